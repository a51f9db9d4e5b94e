// SPDX-License-Identifier: BSD-3-Clause
#ifndef NORVANE_VALUE_VALUE_OBJECT_H
#define NORVANE_VALUE_VALUE_OBJECT_H

#include "Units.h"
#include "Units_library.h"
#include "Value_exception.h"

#include <cmath>
#include <limits>
#include <type_traits>

namespace Norvane {
namespace Value {

// A value with its units and its error bounds (how far the true value may lie above and below).
// Used as Value_object<double> for measured and set values and Value_object<long> for counts.
template <typename T>
class Value_object
{
    static_assert(std::is_floating_point<T>::value || std::is_signed<T>::value,
                  "a value object holds a floating-point or signed integer number");

public:
    Value_object() = default;
    Value_object(T value, const Units &units, T plusError, T minusError)
        : m_value(value), m_units(units), m_plusError(plusError), m_minusError(minusError)
    {
    }

    void Set_value(T value) { m_value = value; }
    T Get_value() const { return m_value; }

    void Set_unit(const Units &units) { m_units = units; }
    Units Get_unit() const { return m_units; }

    void Set_plus_minus_err(T plusError, T minusError)
    {
        m_plusError = plusError;
        m_minusError = minusError;
    }
    T Get_plus_err() const { return m_plusError; }
    T Get_minus_err() const { return m_minusError; }

    // The base units of a record: the same unit without prefix (kHz gives Hz, mV/m gives V/m).
    Units Get_base_unit(const Units &units) const
    {
        Units base = units;
        base.prefix = no_prefix;
        return base;
    }

    // Re-expresses the value and its bounds in `units` (see Units_library::Convert for what throws).
    // An integer is rounded to the nearest integer, halves away from zero, and a result outside
    // the range of T throws Value_exception. Nothing changes when it throws.
    Value_object &Convert_to(const Units &units)
    {
        if constexpr (!std::is_floating_point<T>::value) {
            // Between prefixes of one unit an integer converts in integers, exactly.
            if (m_units.baseUnits == units.baseUnits) {
                const long long step = static_cast<long long>(m_units.prefix) - units.prefix;
                T value, plusError, minusError;
                if (scaleInteger(m_value, step, value) && scaleInteger(m_plusError, step, plusError)
                    && scaleInteger(m_minusError, step, minusError)) {
                    m_value = value;
                    m_plusError = plusError;
                    m_minusError = minusError;
                    m_units = units;
                    return *this;
                }
            }
        }
        double value = static_cast<double>(m_value);
        double plusError = static_cast<double>(m_plusError);
        double minusError = static_cast<double>(m_minusError);
        Units_library::Convert(value, plusError, minusError, m_units, units);
        if constexpr (std::is_floating_point<T>::value) {
            m_value = static_cast<T>(value);
            m_plusError = static_cast<T>(plusError);
            m_minusError = static_cast<T>(minusError);
        } else {
            const T v = toInteger(value);
            const T plus = toInteger(plusError);
            m_minusError = toInteger(minusError);
            m_value = v;
            m_plusError = plus;
        }
        m_units = units;
        return *this;
    }

private:
    // x * 10^step rounded half away from zero, when that is a plain integer operation (at most 18
    // decades) and fits T.
    static bool scaleInteger(T x, long long step, T &result)
    {
        if (step == 0) {
            result = x;
            return true;
        }
        const long long magnitude = step < 0 ? -step : step;
        if (magnitude > 18)
            return false;
        long long power = 1;
        for (long long i = 0; i < magnitude; ++i)
            power *= 10;
        const long long v = x;
        if (step > 0) {
            if (v > std::numeric_limits<T>::max() / power || v < std::numeric_limits<T>::lowest() / power)
                return false;
            result = static_cast<T>(v * power);
            return true;
        }
        long long quotient = v / power;
        const long long remainder = v % power;
        if (2 * (remainder < 0 ? -remainder : remainder) >= power)
            quotient += v < 0 ? -1 : 1;
        result = static_cast<T>(quotient);
        return true;
    }

    static T toInteger(double x)
    {
        // The limits of T as doubles: the lowest is exact, one past the highest is a power of two.
        const double low = static_cast<double>(std::numeric_limits<T>::lowest());
        const double high = -low;
        const double rounded = std::round(x);
        if (!(rounded >= low && rounded < high))
            throw Value_exception("the converted value does not fit an integer");
        return static_cast<T>(rounded);
    }

    T m_value = T();
    Units m_units;
    T m_plusError = T();
    T m_minusError = T();
};

} // namespace Value
} // namespace Norvane

#endif // NORVANE_VALUE_VALUE_OBJECT_H
