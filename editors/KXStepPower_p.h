// SPDX-License-Identifier: BSD-3-Clause
#ifndef KXSTEPPOWER_P_H
#define KXSTEPPOWER_P_H

//
//  W A R N I N G
//  -------------
// Not part of the library's public API: the step rules the spinner, the slider bar and the
// direction pad share. A step changes a value by 10^power.
//

#include <cmath>

namespace kxstep {

// The power a spinner or slider bar starts with for a value: about the third digit of a large value,
// the tenths (or the second decimal shown) of a small one, the units for whole numbers below 100.
inline double initialPower(double x, int precision)
{
    if (!std::isfinite(x)) {
        return 0.0;
    }
    const double d = std::log10(x) + 1.0;
    if (x < 1.0) {
        if (precision == 0) {
            return 0.0;
        }
        return 1 - precision > -3 ? double(1 - precision) : -2.0;
    }
    if (precision == 0) {
        if (d == 1.0) {
            return 0.0;
        }
        return d <= 3.0 ? std::trunc(d - 2.0) : std::trunc(d - 3.0);
    }
    if (d - 3.0 <= 0.0) {
        return -1.0;
    }
    return d - 3.0 < 1.0 ? 0.0 : std::trunc(d - 3.0);
}

// Whether a new power may be taken: not finer than the last decimal shown, not coarser than the
// leading digit of the value, or of the limit on its side when that has fewer digits, and always up
// to the tens.
inline bool powerAllowed(double power, double value, double minimum, double maximum, int precision)
{
    double h = std::log10(std::fabs(value)) + 1.0;
    if (value < 0.0 && h > std::log10(std::fabs(minimum))) {
        h = std::log10(std::fabs(minimum));
    }
    if (value > 0.0 && h > std::log10(std::fabs(maximum))) {
        h = std::log10(std::fabs(maximum));
    }
    if (h < 1.0) {
        h = 1.0;
    }
    return -precision <= power && power <= h;
}

} // namespace kxstep

#endif // KXSTEPPOWER_P_H
