#ifndef KXNUMBERTEXT_P_H
#define KXNUMBERTEXT_P_H

//
//  W A R N I N G
//  -------------
// Not part of the library's public API: number rules shared by the numeric widgets, their filters
// and the numeric editors.
//

#include <QDebug>
#include <QMetaObject>
#include <QObject>
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

// How the debug lines name a numeric widget: its class and the object name its form gave it.
inline QString named(const QObject *widget)
{
    return QString::fromLatin1(widget->metaObject()->className()) + QStringLiteral(" \"") + widget->objectName()
        + QLatin1Char('"');
}

// Reports an edit that starts with limits no value lies between (LowerLimit above UpperLimit, or
// either not a number). The limit setters stay silent: forms and hosts set the limits one at a time
// and pass through such pairs on the way to a good one, so only an edit shows the pair is meant.
inline void reportEmptyRange(const QObject *widget)
{
    if (!widget) {
        return;
    }
    const QVariant lower = widget->property("LowerLimit");
    const QVariant upper = widget->property("UpperLimit");
    if (!lower.isValid() || !upper.isValid() || lower.toDouble() <= upper.toDouble()) {
        return;
    }
    qDebug().noquote() << "UserInterface -" << named(widget) << "edit starts with limits no value lies between:"
                       << "LowerLimit" << lower.toDouble() << "UpperLimit" << upper.toDouble();
}

enum class StartValueType { Integer, Double, Other };

// The value an edit starts from, kept for a cancel to put back: the adapter's get() as int or as
// double after the filter's data type (nothing for another type), or, without an adapter, the
// widget's value(). False when a value was due but could not be read; *value is 0 then.
inline bool readStartValue(QObject *adapter, QObject *widget, StartValueType type, double *value)
{
    *value = 0.0;
    if (adapter) {
        if (type == StartValueType::Integer) {
            int read = 0;
            if (!QMetaObject::invokeMethod(adapter, "get", Q_RETURN_ARG(int, read)))
                return false;
            *value = read;
        } else if (type == StartValueType::Double) {
            double read = 0.0;
            if (!QMetaObject::invokeMethod(adapter, "get", Q_RETURN_ARG(double, read)))
                return false;
            *value = read;
        }
        return true;
    }
    if (widget) {
        double read = 0.0;
        if (!QMetaObject::invokeMethod(widget, "value", Q_RETURN_ARG(double, read)))
            return false;
        *value = read;
    }
    return true;
}

} // namespace kxnumber

#endif // KXNUMBERTEXT_P_H
