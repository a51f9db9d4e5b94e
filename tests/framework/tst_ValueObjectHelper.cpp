// SPDX-License-Identifier: BSD-3-Clause
#include "KXTestSupport.h"
#include "Units_list.h"
#include "ValueObjectHelper.h"

#include <QtTest>

#include <initializer_list>
#include <limits>
#include <utility>

using namespace Norvane::Value;

namespace {

// A units property string: us(kilo, {{hertz, 1}}) is "0,3,1:1;0:0;0:0;0:0;0:0".
QString us(int prefix, std::initializer_list<std::pair<int, int>> pairs, bool flag = false)
{
    Unit_tuple tuple{};
    int i = 0;
    for (const auto &p : pairs)
        tuple[i++] = {p.first, p.second};
    return ValueObjectHelper::toString(ValueObjectHelper::newUnits(flag, static_cast<SI_units>(prefix), &tuple));
}

Units units(const QString &s)
{
    return ValueObjectHelper::convertToUnits(s);
}


} // namespace

class tst_ValueObjectHelper : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void unitString_data();
    void unitString();
    void printUnit();
};

void tst_ValueObjectHelper::unitString_data()
{
    QTest::addColumn<QString>("units");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<bool>("reported");

    QTest::newRow("kHz") << us(kilo, {{hertz, 1}}) << "kHz" << false;
    QTest::newRow("Mi") << us(0, {{mebibyte, 1}, {second, -1}}) << "MB/s" << false;
    QTest::newRow("only at the start") << us(0, {{byte, 1}, {kibibyte, -1}}) << "B/KiB" << false;
    QTest::newRow("after a prefix") << us(kilo, {{kibibyte, 1}}) << "kKiB" << false;
    QTest::newRow("ohm kept as written") << us(0, {{kibibyte, 1}, {ohm, 1}}) << QString::fromUtf8("KiB\u00b7\u2126") << false;
    QTest::newRow("unknown unit") << us(0, {{99, 1}}) << "" << true;
    QTest::newRow("prefix without text") << us(1, {{metre, 1}}) << "" << true;
    QTest::newRow("kdBm") << us(kilo, {{decibel_milliwatt, 1}}) << "" << true;
}

void tst_ValueObjectHelper::unitString()
{
    QFETCH(QString, units);
    QFETCH(QString, expected);
    QFETCH(bool, reported);
    const Units record = ::units(units);
    kxtest::DebugLines catcher;
    QCOMPARE(ValueObjectHelper::getUnitString(record), expected);
    QCOMPARE(catcher.lines(),
             reported ? QStringList{"UserInterface - ValueObjectHelper: Failed to get unit string, Base Unit "
                                    "probably not initialized properly."}
                      : QStringList());
}

void tst_ValueObjectHelper::printUnit()
{
    kxtest::DebugLines catcher(kxtest::DebugLines::AllDebugLines);
    ValueObjectHelper::printUnit(Value_object<long>(5, units("1,3,1:1;3:-1;0:0;0:0;0:0"), 0, 0));
    QCOMPARE(catcher.lines(), (QStringList{"------------------\n", "\"kHz/m\" \n------------------", "true \n 3",
                                           "1  ^  1", "3  ^  -1", "0  ^  0", "0  ^  0", "0  ^  0",
                                           "------------------\n"}));
}

QTEST_APPLESS_MAIN(tst_ValueObjectHelper)
#include "tst_ValueObjectHelper.moc"
