// SPDX-License-Identifier: BSD-3-Clause
#ifndef METERTESTSUPPORT_H
#define METERTESTSUPPORT_H

// Reading lists as the engine builds them, for the tests of both meters.

#include <QVariant>

#include <initializer_list>

namespace kxtest {

inline QString watt() { return QStringLiteral("0,0,6:1;0:0;0:0;0:0;0:0"); }
inline QString hertzUnits() { return QStringLiteral("0,0,1:1;0:0;0:0;0:0;0:0"); }
// dBm flagged as a fixed unit: shown as it comes, far below its range meaning "no signal".
inline QString fixedDBm() { return QStringLiteral("1,0,14:1;0:0;0:0;0:0;0:0"); }

// [units, minus error, plus error, value]
inline QVariant valueRecord(const QString &units, double value)
{
    return QVariantList{units, 0.01, 0.02, value};
}

// One reading type named "Average" holding the reading, the status flags given by number (1 to 7)
// set, and the two limits.
inline QVariantList readingList(const QVariant &reading, std::initializer_list<int> flags, const QVariant &lower,
                                const QVariant &upper)
{
    QVariantList list{QVariant(QVariantList{QVariant(QVariantList{QStringLiteral("Average"), reading})})};
    for (int flag = 1; flag <= 7; ++flag) {
        bool set = false;
        for (int number : flags)
            set |= number == flag;
        list.append(set);
    }
    list << lower << upper;
    return list;
}

inline QVariantList wattReading(double value, double lower, double upper, std::initializer_list<int> flags = {})
{
    return readingList(valueRecord(watt(), value), flags, valueRecord(watt(), lower), valueRecord(watt(), upper));
}

} // namespace kxtest

#endif // METERTESTSUPPORT_H
