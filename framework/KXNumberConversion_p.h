// SPDX-License-Identifier: BSD-3-Clause
#ifndef KXNUMBERCONVERSION_P_H
#define KXNUMBERCONVERSION_P_H

//
//  W A R N I N G
//  -------------
// Not part of the library's public API: how the numeric widgets, their filters and the numeric
// editors turn typed text into numbers and numbers into the integers their attributes hold.
//

#include <QString>
#include <QVariant>

#include <cmath>
#include <limits>

namespace kxnumber {

// Whether the value has an integer form without saturating (finite, within the int range once
// truncated toward zero).
inline bool fitsInt(double value)
{
    return std::isfinite(value) && value > -2147483649.0 && value < 2147483648.0;
}

// The integer form of a value: truncated toward zero. The instrument's float-to-integer conversion
// saturates at the ends of the range and gives 0 for NaN; the same rule here keeps the integer
// signals identical on every platform and free of undefined conversions.
inline int truncated(double value)
{
    if (std::isnan(value)) {
        return 0;
    }
    if (value >= 2147483647.0) {
        return std::numeric_limits<int>::max();
    }
    if (value <= -2147483648.0) {
        return std::numeric_limits<int>::min();
    }
    return static_cast<int>(value);
}

// The radix a widget's "Base" property names: 16, 8 or 2, and 10 for anything else (also for a
// widget without the property).
inline int radixOf(const QVariant &base)
{
    bool ok = false;
    const int radix = base.toInt(&ok);
    return ok && (radix == 16 || radix == 8 || radix == 2) ? radix : 10;
}

// What a typed text is read as. The editors differ on purpose: a field's own filter reads an integer
// attribute in the field's base and refuses anything else, the numeric pad reads every base-10 entry
// as a real number (whole numbers in other bases may use 64 bits), the spinner reads real numbers.
enum class NumberForm {
    Integer,        // a whole number in the given radix, within the int range
    WholeNumber,    // a whole number in the given radix, within 64 bits
    Real            // a finite floating-point number; the radix is not used
};

// The one reading rule: true with *value set when the whole text is a number of that form. "nan"
// and "inf" are no numbers here: no attribute takes them from a user.
inline bool readNumber(const QString &text, NumberForm form, int radix, double *value)
{
    bool ok = false;
    switch (form) {
    case NumberForm::Integer:
        *value = text.toInt(&ok, radix);
        break;
    case NumberForm::WholeNumber:
        *value = double(text.toLongLong(&ok, radix));
        break;
    case NumberForm::Real:
        *value = text.toDouble(&ok);
        ok = ok && std::isfinite(*value);
        break;
    }
    if (!ok) {
        *value = 0.0;
    }
    return ok;
}

} // namespace kxnumber

#endif // KXNUMBERCONVERSION_P_H
