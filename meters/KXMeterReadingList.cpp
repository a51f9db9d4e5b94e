// SPDX-License-Identifier: BSD-3-Clause
#include "KXMeterReadingList_p.h"

#include "ValueHelper.h"

#include <QDebug>

namespace kxmeters {

QString quoted(const QString &text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}

QString describe(const QVariant &value)
{
    // Engine data can nest deeply; a line only needs enough of it to recognise it.
    constexpr int Longest = 160;
    QString text;
    QDebug(&text).nospace() << value;
    if (text.size() > Longest) {
        text = text.left(Longest) + QStringLiteral("...");
    }
    return text;
}

QString recordProblem(const QVariant &record)
{
    const QVariantList fields = record.toList();
    if (fields.size() < 4) {
        return QStringLiteral("%1 is no value record").arg(describe(record));
    }
    if (fields.at(0).userType() != QMetaType::QString) {
        return QStringLiteral("%1 has no units text").arg(describe(record));
    }
    for (int i = 1; i < 4; ++i) {
        bool isNumber = false;
        fields.at(i).toDouble(&isNumber);
        if (!isNumber) {
            return QStringLiteral("%1 has %2 for a number").arg(describe(record), describe(fields.at(i)));
        }
    }
    return QString();
}

void readValueRecord(const QVariantList &record, Norvane::Value::Value_object<double> &result, UnitsMemo &memo)
{
    const QString text = record.value(0).toString();
    if (!memo.valid || text != memo.text) {
        memo.text = text;
        memo.units = ValueHelper::convertToUnits(text);
        memo.valid = ValueHelper::toString(memo.units) == text;
    }
    result.Set_unit(memo.units);
    result.Set_plus_minus_err(record.value(2).toDouble(), record.value(1).toDouble());
    result.Set_value(record.value(3).toDouble());
}

bool flagsReadable(const QVariantList &list, int last, QString *problem)
{
    for (int i = FirstFlag; i <= last; ++i) {
        const QVariant &flag = list.at(i);
        if (!flag.canConvert(QMetaType::Bool)) {
            *problem = QStringLiteral("status flag %1 is %2").arg(i).arg(describe(flag));
            return false;
        }
    }
    return true;
}

QVariantList readingTypePairs(const QVariantList &types)
{
    QVariantList pairs;
    pairs.reserve(types.size());
    for (int i = 0; i < types.size(); ++i) {
        pairs.append(QVariant(QVariantList{i, types.at(i).toList().value(0).toString()}));
    }
    return pairs;
}

} // namespace kxmeters
