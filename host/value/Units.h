// SPDX-License-Identifier: BSD-3-Clause
#ifndef NORVANE_VALUE_UNITS_H
#define NORVANE_VALUE_UNITS_H

#include "SI_units.h"
#include "Unit_tuple.h"

#include <QMetaType>

namespace Norvane {
namespace Value {

// A units record: the unit of a value, as the engine and the widgets pass it around.
//   flag       marks a record whose display unit is fixed: meters show it as it comes instead of
//              choosing a prefix, and read levels far below their range as "no signal". Conversions
//              ignore it.
//   prefix     the decimal exponent on the whole unit (3 for kHz).
//   baseUnits  the unit as a product of five unit^power factors.
struct Units
{
    bool flag = false;
    SI_units prefix = no_prefix;
    Unit_tuple baseUnits{};
};

inline bool operator==(const Units &a, const Units &b)
{
    return a.flag == b.flag && a.prefix == b.prefix && a.baseUnits == b.baseUnits;
}

inline bool operator!=(const Units &a, const Units &b)
{
    return !(a == b);
}

} // namespace Value
} // namespace Norvane

Q_DECLARE_METATYPE(Norvane::Value::Units)

#endif // NORVANE_VALUE_UNITS_H
