// SPDX-License-Identifier: BSD-3-Clause
#ifndef NORVANE_VALUE_UNIT_PAIR_H
#define NORVANE_VALUE_UNIT_PAIR_H

namespace Norvane {
namespace Value {

// One factor of a units record: a unit (a Units_list enumerator, held as an int so that records
// read from text keep what they were given) raised to a power.
struct Unit_pair
{
    int unit = 0;
    int power = 0;
};

inline bool operator==(const Unit_pair &a, const Unit_pair &b)
{
    return a.unit == b.unit && a.power == b.power;
}

inline bool operator!=(const Unit_pair &a, const Unit_pair &b)
{
    return !(a == b);
}

} // namespace Value
} // namespace Norvane

#endif // NORVANE_VALUE_UNIT_PAIR_H
