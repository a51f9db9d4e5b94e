// SPDX-License-Identifier: BSD-3-Clause
#include "QKXEnumRecord.h"

#include <QDebug>
#include <QSet>

QVector<QKXEnumEntry> QKXEnumRecord::read(const QVariant &record, const char *reporter)
{
    QVector<QKXEnumEntry> entries;
    if (record.userType() != QMetaType::QVariantList) {
        // An invalid variant is how a host clears a record; only something else is worth a line.
        if (reporter && record.isValid()) {
            qDebug().noquote() << QStringLiteral("UserInterface - %1::setMetaData - record is not a list, shown as empty:")
                                      .arg(QLatin1String(reporter))
                               << record.typeName();
        }
        return entries;
    }

    const QVariantList list = record.toList();
    entries.reserve(list.size());
    QSet<int> seen;
    QSet<int> reported;
    for (int i = 0; i < list.size(); ++i) {
        const QVariantList fields = list.at(i).toList();
        if (fields.size() < 2) {
            if (reporter) {
                qDebug().noquote() << QStringLiteral("UserInterface - %1::setMetaData - entry %2 left out, it needs a value and a literal")
                                          .arg(QLatin1String(reporter))
                                          .arg(i);
            }
            continue;
        }
        const QKXEnumEntry entry{fields.at(0).toInt(), fields.at(1).toString()};
        if (reporter) {
            if (seen.contains(entry.value) && !reported.contains(entry.value)) {
                reported.insert(entry.value);
                qDebug().noquote() << QStringLiteral("UserInterface - %1::setMetaData - value %2 listed more than once, its last entry counts")
                                          .arg(QLatin1String(reporter))
                                          .arg(entry.value);
            }
        }
        seen.insert(entry.value);
        entries.append(entry);
    }
    return entries;
}
