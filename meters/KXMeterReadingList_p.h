// SPDX-License-Identifier: BSD-3-Clause
#ifndef KXMETERREADINGLIST_P_H
#define KXMETERREADINGLIST_P_H

//
//  W A R N I N G
//  -------------
// Not part of the library's public API: how the meters read the engine's reading lists.
//

#include "Value_object.h"

#include <QString>
#include <QVariant>

// A reading list is [reading types, status flags 1 to 7, lower limit, upper limit]; each reading
// type is [name, value record] and each value record [units property string, minus error, plus
// error, value]. The engine builds them; the meters check what they read before they keep any of it.
namespace kxmeters {

constexpr int ReadingListSize = 10;
constexpr int FirstFlag = 1;
constexpr int LastFlag = 7;

QString quoted(const QString &text);

// The variant as the debug stream writes it, shortened for a line.
QString describe(const QVariant &value);

// Empty when the value record can be read (at least four elements: a text, then three numbers);
// otherwise what is wrong with it.
QString recordProblem(const QVariant &record);

// The last units property string read into a record, and what it reads as. Engines send the same few
// strings with every reading; a string the units helper would not write back the same way (and
// reports on the debug stream) is never kept, so it is read, and reported, every time.
struct UnitsMemo
{
    QString text;
    Norvane::Value::Units units;
    bool valid = false;
};

// The value object of a readable value record: its unit, its errors (plus error first) and its value.
void readValueRecord(const QVariantList &record, Norvane::Value::Value_object<double> &result, UnitsMemo &memo);

// True when the status flags up to elements `last` can be read as booleans; otherwise false, with
// what is wrong.
bool flagsReadable(const QVariantList &list, int last, QString *problem);

// The [index, name] pairs of the reading types, as the meters offer them to the host.
QVariantList readingTypePairs(const QVariantList &types);

} // namespace kxmeters

#endif // KXMETERREADINGLIST_P_H
