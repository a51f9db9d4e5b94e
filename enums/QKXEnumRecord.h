// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXENUMRECORD_H
#define QKXENUMRECORD_H

#include "standaloneplugins_export.h"

#include <QString>
#include <QVariant>
#include <QVector>

// One entry of an enumeration record: the attribute's own code and the text shown for it.
struct QKXEnumEntry
{
    int value;
    QString literal;
};

// Reads the enumeration record that the host hands the enumerated widgets: a list of entries, each a
// list whose element 0 is the value and element 1 the literal. Every enumerated widget and popup reads
// it here, so all of them agree on which entries count.
class STANDALONEPLUGINS_EXPORT QKXEnumRecord
{
public:
    // The usable entries, in record order. A record that is not a list reads as empty; an entry with
    // fewer than two elements is left out. With a reporter, those two cases and a value listed more
    // than once each give one debug line under the reporter's name; the popups read the record the
    // widget already reported on, and pass none. An empty literal is a literal like any other (a plain
    // number's unit has none).
    static QVector<QKXEnumEntry> read(const QVariant &record, const char *reporter = nullptr);

private:
    QKXEnumRecord() = delete;
};

#endif // QKXENUMRECORD_H
