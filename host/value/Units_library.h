// SPDX-License-Identifier: BSD-3-Clause
#ifndef NORVANE_VALUE_UNITS_LIBRARY_H
#define NORVANE_VALUE_UNITS_LIBRARY_H

#include "norvanehost_export.h"

#include "Units.h"

#include <string>

namespace Norvane {
namespace Value {

// What the value library knows about units: their texts and the rules between them.
//
// Every unit is held as its dimension over the base quantities (time, length, mass, current,
// information, plane angle), its size in coherent base units (a mantissa times a power of ten)
// and, for a level such as dBm, the factor of its logarithm (10 for power levels, 20 for field
// levels) and its reference. A record resolves to the product of its five pairs, so V/m, bit/s and
// dBm/Hz need no entries of their own.
class NORVANEHOST_EXPORT Units_library
{
public:
    // The kinds of text Get_unit_string writes.
    enum String_type {
        Symbol_text = 1, // for display, UTF-8: "kHz", "dBµV", "MΩ", "V/m", "m/s²"
        Plain_text = 2   // ASCII, for logs and files: "kHz", "dBuV", "MOhm", "V/m", "m/s^2"
    };

    // The text of a units record. Throws Value_exception for a string type it does not know, a
    // unit it does not know, a prefix outside pico to peta, and a prefix on a level (there is no
    // "kdBm"). A plain number has the empty text (or its prefix alone).
    static std::string Get_unit_string(const Units &units, int type);

    // value, in units `from`, expressed in units `to`. Records with the same five pairs differ by a
    // power of ten and convert exactly (one rounding). Otherwise throws UnitDimensionNotSame when
    // the dimensions differ, NoRuleToConvert when they agree but no rule exists (dBc, a level
    // raised to a power, a unit the library does not know), and Value_exception for a level of a
    // negative quantity. A level of zero is minus infinity. Two prefixes of the very same record
    // convert whatever the unit, known or not; a prefix that reaches a level scales the level number.
    static double Convert(double value, const Units &from, const Units &to);

    // Converts a value and its error bounds. The bounds are converted as the interval's ends; an
    // end the target cannot express (a level of a negative power) makes its bound infinite.
    static void Convert(double &value, double &plusError, double &minusError, const Units &from,
                        const Units &to);

    // True when one of the record's pairs is a level (dB, dBm, dBW, dBµV, dBc).
    static bool Is_logarithmic(const Units &units);

    // True for the enumerators of Units_list that name a unit (none included).
    static bool Is_known_unit(int unit);

    // value * 10^exponent, rounded once: exact for the decimal steps between prefixes.
    static double Scale_by_power_of_ten(double value, long long exponent);

private:
    Units_library() = delete;
};

} // namespace Value
} // namespace Norvane

#endif // NORVANE_VALUE_UNITS_LIBRARY_H
