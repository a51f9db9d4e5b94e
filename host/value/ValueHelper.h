// SPDX-License-Identifier: BSD-3-Clause
#ifndef VALUEHELPER_H
#define VALUEHELPER_H

#include "norvanehost_export.h"

#include "Units.h"
#include "Value_object.h"

#include <QString>

// The host's units operations for the widgets: units records, their property strings
// ("flag,prefix,unit:power;unit:power;unit:power;unit:power;unit:power", for example
// "0,3,1:1;0:0;0:0;0:0;0:0" for kHz), unit texts, conversions and the choice of a prefix.
// Nothing here throws except where noted; bad input is reported on the debug stream.
class NORVANEHOST_EXPORT ValueHelper
{
public:
    // A record with the flag, the prefix and a copy of the five pairs (no pairs when tuple is null).
    static Norvane::Value::Units newUnits(bool flag, const Norvane::Value::SI_units &prefix,
                                          Norvane::Value::Unit_tuple *tuple);

    // The five pairs agree, whatever the flags and prefixes.
    static bool unitBaseMatches(const Norvane::Value::Units &a, const Norvane::Value::Units &b);

    // Whether a value in `from` can be expressed in `to`. Exceptions other than the two conversion
    // errors (none today) pass through.
    static bool unitsCanConvert(const Norvane::Value::Units &from, const Norvane::Value::Units &to);

    // value in `from` expressed in `to`, or value unchanged when that is not possible.
    static double convertValue(double value, const Norvane::Value::Units &from,
                               const Norvane::Value::Units &to);
    // The same for an integer, rounded half up to a whole number (6.5 gives 7, -6.5 gives -6): the
    // floor, plus one when the fraction is at least a half, exactly; floor(x + 0.5) in doubles would
    // take 0.49999999999999994 to 1 and 2^52 + 1 to 2^52 + 2.
    static double convertValue(long value, const Norvane::Value::Units &from,
                               const Norvane::Value::Units &to);

    // The base units of the value with the prefix that reads best for it: the decade of the value
    // in base units, rounded down to a multiple of three, from pico to peta. A value whose decade
    // is negative drops one step further (0.0015 Hz gives mHz, 0.001 Hz gives µHz); zero gives pico.
    // A level (dBm and the like) always keeps prefix 0. The decade comes from comparing with the
    // powers of ten, not from log10, which rounds 999.9999999999999 up to 3. NaN gives prefix 0,
    // infinity peta.
    static Norvane::Value::Units bestFitUnit(const Norvane::Value::Value_object<double> &v);
    // For a value and its companion (a step, a limit): the one with fewer integer digits in the
    // base units of `a` chooses, `b` on a tie; a zero value leaves the choice to the other. A value
    // that is not finite counts as longer than any other; -0.5 truncates to "0", one character.
    // Throws when `b` cannot be expressed in the units of `a`.
    static Norvane::Value::Units bestFitUnit(const Norvane::Value::Value_object<double> &a,
                                             const Norvane::Value::Value_object<double> &b);

    // The unit text shown to the user ("kHz", "dBm", "MΩ"), binary multiples written the
    // traditional way ("KiB" as "KB"); empty, with a debug line, when the library has none. Recent
    // texts are kept per thread (64 of them): a meter asks for the same text with every reading.
    static QString getUnitString(const Norvane::Value::Units &u);
    // The same, throwing Value_exception where getUnitString reports and answers empty.
    static QString displayText(const Norvane::Value::Units &u);

    static QString toString(const Norvane::Value::Units &u);

    // Reads a units property string. A malformed one is reported on the debug stream and read as
    // far as its shape allows: parts that are missing count as zero, parts beyond the fifth pair
    // are ignored, a field that is not a number counts as zero. Fields are read as QString::toInt
    // reads them. A string without its third part gets both lines, since it has no five pairs either.
    static Norvane::Value::Units convertToUnits(const QString &s);

    // True for a string that toString could have written for a record the library can name:
    // three parts, flag "0" or "1", a prefix from pico to peta (none on a level), five pairs of
    // known units with powers from -9 to 9, integers without signs, blanks or leading zeros.
    static bool isValidUnits(const QString &s);

    // Describe a record on the debug stream.
    static void printUnit(const Norvane::Value::Units &u);
    static void printUnit(const Norvane::Value::Value_object<long> &v);
    static void printUnit(const Norvane::Value::Value_object<double> &v);

private:
    ValueHelper() = delete;
};

#endif // VALUEHELPER_H
