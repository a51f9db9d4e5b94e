// SPDX-License-Identifier: BSD-3-Clause
#ifndef VALUEOBJECTHELPER_H
#define VALUEOBJECTHELPER_H

#include "standaloneplugins_export.h"

#include "Units.h"
#include "Value_object.h"

#include <QString>

// The widgets' units operations: units records and their property strings, unit texts,
// conversions and the choice of a prefix. The arithmetic is the host value library's (ValueHelper);
// this class adds nothing but its own name on the debug stream.
class STANDALONEPLUGINS_EXPORT ValueObjectHelper
{
public:
    static Norvane::Value::Units newUnits(bool flag, const Norvane::Value::SI_units &prefix,
                                          Norvane::Value::Unit_tuple *tuple);
    static bool unitBaseMatches(const Norvane::Value::Units &a, const Norvane::Value::Units &b);
    static bool unitsCanConvert(const Norvane::Value::Units &from, const Norvane::Value::Units &to);

    // value in `from` expressed in `to`, or value unchanged when that is not possible.
    static double convertValue(double value, const Norvane::Value::Units &from,
                               const Norvane::Value::Units &to);
    // The same for an integer, rounded half up (6.5 gives 7, -6.5 gives -6).
    static double convertValue(long value, const Norvane::Value::Units &from,
                               const Norvane::Value::Units &to);

    // The base units with the prefix that reads best (1500 Hz: kHz, 0.001 Hz: µHz, 0: pico).
    static Norvane::Value::Units bestFitUnit(const Norvane::Value::Value_object<double> &v);
    // For a value and its companion: the one with fewer integer digits chooses, `b` on a tie.
    static Norvane::Value::Units bestFitUnit(const Norvane::Value::Value_object<double> &a,
                                             const Norvane::Value::Value_object<double> &b);

    // The unit text to display; empty, with a debug line, when the library has none.
    static QString getUnitString(const Norvane::Value::Units &u);
    static QString toString(const Norvane::Value::Units &u);
    // Reads a units property string; malformed ones are reported and read as far as they go.
    static Norvane::Value::Units convertToUnits(const QString &s);

    static void printUnit(const Norvane::Value::Units &u);
    static void printUnit(const Norvane::Value::Value_object<long> &v);
    static void printUnit(const Norvane::Value::Value_object<double> &v);

private:
    ValueObjectHelper() = delete;
};

#endif // VALUEOBJECTHELPER_H
