// SPDX-License-Identifier: BSD-3-Clause
#ifndef NORVANE_VALUE_SI_UNITS_H
#define NORVANE_VALUE_SI_UNITS_H

namespace Norvane {
namespace Value {

// The prefix of a units record: the decimal exponent it puts on the unit (kilo = 3, milli = -3).
// Any int is a valid exponent; the named ones are those the library has a text for.
enum SI_units : int {
    pico = -12,
    nano = -9,
    micro = -6,
    milli = -3,
    no_prefix = 0,
    kilo = 3,
    mega = 6,
    giga = 9,
    tera = 12,
    peta = 15
};

} // namespace Value
} // namespace Norvane

#endif // NORVANE_VALUE_SI_UNITS_H
