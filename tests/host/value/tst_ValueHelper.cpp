// SPDX-License-Identifier: BSD-3-Clause
#include "KXTestSupport.h"
#include "UnitDimensionNotSame.h"
#include "Units_list.h"
#include "ValueHelper.h"

#include <QtTest>

#include <initializer_list>
#include <limits>
#include <utility>

using namespace Norvane::Value;

namespace {

// A units property string whose last four pairs are empty, with something after it.
QString withPairs(const QString &head, const QString &tail = QString()) { return head + "0:0;0:0;0:0;0:0" + tail; }

// A units property string: us(kilo, {{hertz, 1}}) is "0,3,1:1;0:0;0:0;0:0;0:0".
QString us(int prefix, std::initializer_list<std::pair<int, int>> pairs, bool flag = false)
{
    Unit_tuple tuple{};
    int i = 0;
    for (const auto &p : pairs)
        tuple[i++] = {p.first, p.second};
    return ValueHelper::toString(ValueHelper::newUnits(flag, static_cast<SI_units>(prefix), &tuple));
}

Units units(const QString &s)
{
    return ValueHelper::convertToUnits(s);
}

Value_object<double> value(double v, const QString &s)
{
    return Value_object<double>(v, units(s), 0.0, 0.0);
}

const QString Malformed = QStringLiteral("UserInterface - Malformed Units property string. - \"%1\"");
const QString MalformedPairs =
    QStringLiteral("UserInterface - Malformed Units property string (Base Unit Portion). - \"%1\"");

} // namespace

class tst_ValueHelper : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isValidUnits_data();
    void isValidUnits();
    void extremeRecordsSurviveText();
    void levelsTakeNoBestFitPrefix();
    void unitStringFailureNamesTheHost();
    void integerConversionRoundsHalfUp_data();
    void integerConversionRoundsHalfUp();
    void failedConversionReturnsInput_data();
    void failedConversionReturnsInput();
    void unitsCanConvert_data();
    void unitsCanConvert();
    void bestFitUnit_data();
    void bestFitUnit();
    void bestFitUnitOfTwo_data();
    void bestFitUnitOfTwo();
    void bestFitUnitOfTwoNeedsOneDimension();
    void malformedStrings_data();
    void malformedStrings();
};

void tst_ValueHelper::isValidUnits_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("valid");

    QTest::newRow("neutral") << withPairs("0,0,0:0;") << true;
    QTest::newRow("V/m") << "0,0,4:1;3:-1;0:0;0:0;0:0" << true;
    QTest::newRow("dBm, flag") << withPairs("1,0,14:1;") << true;
    QTest::newRow("power 9") << withPairs("0,0,3:9;") << true;
    QTest::newRow("last unit") << withPairs(QStringLiteral("0,0,%1:1;").arg(units_list_end - 1)) << true;

    QTest::newRow("empty") << "" << false;
    QTest::newRow("four parts") << withPairs("0,0,1:1;", ",0") << false;
    QTest::newRow("four pairs") << "0,0,1:1;0:0;0:0;0:0" << false;
    QTest::newRow("six pairs") << withPairs("0,0,1:1;", ";0:0") << false;
    QTest::newRow("bare number") << withPairs("0,0,1;") << false;
    QTest::newRow("flag 2") << withPairs("2,0,1:1;") << false;
    QTest::newRow("huge prefix") << withPairs("0,3000000000,1:1;") << false;
    QTest::newRow("unknown unit") << withPairs(QStringLiteral("0,0,%1:1;").arg(int(units_list_end))) << false;
    QTest::newRow("unknown unit, power 0") << "0,0,1:1;99:0;0:0;0:0;0:0" << false;
    QTest::newRow("centi") << withPairs("0,-2,3:1;") << false;
    QTest::newRow("kdBm") << withPairs("0,3,14:1;") << false;
    QTest::newRow("power 10") << withPairs("0,0,3:10;") << false;
    QTest::newRow("plus sign") << withPairs("0,+3,1:1;") << false;
    QTest::newRow("leading zero") << withPairs("0,03,1:1;") << false;
    QTest::newRow("minus zero") << withPairs("0,-0,1:1;") << false;
    QTest::newRow("trailing blank") << withPairs("0,0,1:1;", " ") << false;
    QTest::newRow("arabic-indic digit") << withPairs(QString::fromUtf8("0,0,\u0661:1;")) << false;
    QTest::newRow("thousands of pairs") << QString("0,0," + QString("1:1;").repeated(5000)) << false;
}

void tst_ValueHelper::isValidUnits()
{
    QFETCH(QString, text);
    QFETCH(bool, valid);
    QCOMPARE(ValueHelper::isValidUnits(text), valid);
    if (valid) // a valid string is one toString writes
        QCOMPARE(ValueHelper::toString(ValueHelper::convertToUnits(text)), text);
}

void tst_ValueHelper::extremeRecordsSurviveText()
{
    // Records outside what a valid string can say still come back from their text, silently.
    kxtest::DebugLines debug;
    for (const int extreme : {std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        Unit_tuple pairs{};
        pairs[0] = {hertz, 1};
        pairs[4] = {extreme, extreme};
        const Units record = ValueHelper::newUnits(extreme < 0, static_cast<SI_units>(extreme), &pairs);
        const QString text = ValueHelper::toString(record);
        QVERIFY(ValueHelper::convertToUnits(text) == record);
        QVERIFY(!ValueHelper::isValidUnits(text));
    }
    QCOMPARE(kxtest::DebugLines::lines(), QStringList());
}

void tst_ValueHelper::levelsTakeNoBestFitPrefix()
{
    const Units dBm = ValueHelper::convertToUnits(withPairs("1,0,14:1;"));
    for (double level : {-3000.0, -0.001, 0.0, 2500.0, 1e20}) {
        const Units fit = ValueHelper::bestFitUnit(Value_object<double>(level, dBm, 0.0, 0.0));
        QCOMPARE(ValueHelper::toString(fit), ValueHelper::toString(dBm));
    }
    const Units dBmPerHz = ValueHelper::convertToUnits("0,0,14:1;1:-1;0:0;0:0;0:0");
    QCOMPARE(int(ValueHelper::bestFitUnit(Value_object<double>(-1500.0, dBmPerHz, 0.0, 0.0)).prefix), 0);
}

void tst_ValueHelper::unitStringFailureNamesTheHost()
{
    kxtest::DebugLines debug;
    QCOMPARE(ValueHelper::getUnitString(ValueHelper::convertToUnits(withPairs("0,0,99:1;"))), QString());
    QCOMPARE(kxtest::DebugLines::lines(),
             QStringList{"UserInterface - ValueHelper: Failed to get unit string, Base Unit probably not "
                         "initialized properly."});
}

void tst_ValueHelper::integerConversionRoundsHalfUp_data()
{
    QTest::addColumn<long>("value");
    QTest::addColumn<int>("fromPrefix");
    QTest::addColumn<double>("expected");

    // From tenths (prefix -1) to units: 65 gives 6.5.
    QTest::newRow("6.5") << 65L << -1 << 7.0;
    QTest::newRow("-6.5") << -65L << -1 << -6.0;
    QTest::newRow("2.5") << 25L << -1 << 3.0;
    QTest::newRow("-0.5") << -5L << -1 << 0.0;
    QTest::newRow("6.49") << 649L << -2 << 6.0;
    // x + 0.5 rounds to the even neighbour here; the result must stay x.
    QTest::newRow("2^52 + 1") << 4503599627370497L << 0 << 4503599627370497.0;
    QTest::newRow("largest") << std::numeric_limits<long>::max() << 0 << 9223372036854775808.0;
}


void tst_ValueHelper::integerConversionRoundsHalfUp()
{
    QFETCH(long, value);
    QFETCH(int, fromPrefix);
    QFETCH(double, expected);
    const double result =
        ValueHelper::convertValue(value, units(us(fromPrefix, {{hertz, 1}})), units(us(0, {{hertz, 1}})));
    QVERIFY2(result == expected, qPrintable(QString::number(result, 'g', 17)));
}


void tst_ValueHelper::failedConversionReturnsInput_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");

    QTest::newRow("Hz to V") << 2.5 << us(0, {{hertz, 1}}) << us(0, {{volt, 1}});
    QTest::newRow("dBc to dB") << 2.5 << us(0, {{decibel_carrier, 1}}) << us(0, {{decibel, 1}});
    QTest::newRow("unknown unit") << 2.5 << us(0, {{99, 1}}) << us(0, {{hertz, 1}});
    QTest::newRow("negative W to dBm") << -2.5 << us(0, {{watt, 1}}) << us(0, {{decibel_milliwatt, 1}});
}


void tst_ValueHelper::failedConversionReturnsInput()
{
    QFETCH(double, value);
    QFETCH(QString, from);
    QFETCH(QString, to);
    QCOMPARE(ValueHelper::convertValue(value, units(from), units(to)), value);
    QCOMPARE(ValueHelper::convertValue(long(value * 2), units(from), units(to)), value * 2);
}


void tst_ValueHelper::unitsCanConvert_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::addColumn<bool>("expected");

    QTest::newRow("Hz, kHz") << us(0, {{hertz, 1}}) << us(kilo, {{hertz, 1}}) << true;
    QTest::newRow("dBm, W") << us(0, {{decibel_milliwatt, 1}}) << us(0, {{watt, 1}}) << true;
    QTest::newRow("dBm, dBuV") << us(0, {{decibel_milliwatt, 1}}) << us(0, {{decibel_microvolt, 1}}) << false;
    QTest::newRow("dBc, dB") << us(0, {{decibel_carrier, 1}}) << us(0, {{decibel, 1}}) << false;
    QTest::newRow("unknown") << us(0, {{hertz, 1}}) << us(0, {{units_list_end, 1}}) << false;
    QTest::newRow("prefix only, unknown") << us(0, {{500, 1}}) << us(3, {{500, 1}}) << true;
}


void tst_ValueHelper::unitsCanConvert()
{
    QFETCH(QString, from);
    QFETCH(QString, to);
    QFETCH(bool, expected);
    QCOMPARE(ValueHelper::unitsCanConvert(units(from), units(to)), expected);
}


void tst_ValueHelper::bestFitUnit_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("prefix"); // of the value's units, hertz
    QTest::addColumn<int>("expected");

    QTest::newRow("1000") << 1000.0 << 0 << 3;
    QTest::newRow("999.9999999999999") << 999.9999999999999 << 0 << 0;
    QTest::newRow("0.0015") << 0.0015 << 0 << -3;
    QTest::newRow("0.001") << 0.001 << 0 << -6;
    QTest::newRow("0") << 0.0 << 0 << -12;
    QTest::newRow("just below 1e15") << 999999999999999.875 << 0 << 12;
    QTest::newRow("1e15") << 1e15 << 0 << 15;
    QTest::newRow("infinity") << std::numeric_limits<double>::infinity() << 0 << 15;
    QTest::newRow("1.5 kHz") << 1.5 << 3 << 3;
    QTest::newRow("0.02 GHz") << 0.02 << 9 << 6;
}


void tst_ValueHelper::bestFitUnit()
{
    QFETCH(double, value);
    QFETCH(int, prefix);
    QFETCH(int, expected);
    const Units fit = ValueHelper::bestFitUnit(::value(value, us(prefix, {{hertz, 1}, {metre, -1}}, true)));
    QCOMPARE(int(fit.prefix), expected);
    QCOMPARE(ValueHelper::toString(fit), us(expected, {{hertz, 1}, {metre, -1}}, true));
}


void tst_ValueHelper::bestFitUnitOfTwo_data()
{
    QTest::addColumn<double>("a");
    QTest::addColumn<int>("aPrefix");
    QTest::addColumn<double>("b");
    QTest::addColumn<int>("bPrefix");
    QTest::addColumn<int>("expected");

    QTest::newRow("a zero") << 0.0 << 0 << 1500.0 << 0 << 3;
    QTest::newRow("b zero") << 1500.0 << 0 << 0.0 << 0 << 3;
    QTest::newRow("both zero") << 0.0 << 0 << 0.0 << 0 << -12;
    QTest::newRow("fewer digits in b") << 1500.0 << 0 << 2.0 << 0 << 0;
    QTest::newRow("fewer digits in a") << 2.0 << 0 << 1500.0 << 0 << 0;
    QTest::newRow("tie: b") << 0.0015 << 0 << 0.5 << 0 << 0;
    QTest::newRow("minus sign counts") << 0.0015 << 0 << -5.0 << 0 << -3;
    QTest::newRow("no minus on zero") << 0.0015 << 0 << -0.5 << 0 << 0;
    QTest::newRow("b counted in a's base") << 1.0 << 0 << 2.0 << 3 << 0;
    QTest::newRow("a counted in its base") << 2.0 << 3 << 15.0 << 0 << 0;
}


void tst_ValueHelper::bestFitUnitOfTwo()
{
    QFETCH(double, a);
    QFETCH(int, aPrefix);
    QFETCH(double, b);
    QFETCH(int, bPrefix);
    QFETCH(int, expected);
    const Units fit =
        ValueHelper::bestFitUnit(value(a, us(aPrefix, {{hertz, 1}})), value(b, us(bPrefix, {{hertz, 1}})));
    QCOMPARE(int(fit.prefix), expected);
}


void tst_ValueHelper::bestFitUnitOfTwoNeedsOneDimension()
{
    QVERIFY_EXCEPTION_THROWN(ValueHelper::bestFitUnit(value(1.0, us(0, {{hertz, 1}})),
                                                            value(2.0, us(0, {{volt, 1}}))),
                             UnitDimensionNotSame);
}


void tst_ValueHelper::malformedStrings_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("record");     // what it reads as, in its text form
    QTest::addColumn<bool>("wrongParts");    // reported as malformed
    QTest::addColumn<bool>("wrongPairs");    // reported as malformed in its pairs

    const QString neutral = "0,0,0:0;0:0;0:0;0:0;0:0";
    QTest::newRow("well formed") << "1,3,2:1;0:0;0:0;0:0;0:0" << "1,3,2:1;0:0;0:0;0:0;0:0" << false << false;
    QTest::newRow("empty") << "" << neutral << true << true;
    QTest::newRow("flag only") << "1" << "1,0,0:0;0:0;0:0;0:0;0:0" << true << true;
    QTest::newRow("no pairs") << "1,3" << "1,3,0:0;0:0;0:0;0:0;0:0" << true << true;
    QTest::newRow("empty pairs") << "1,3," << "1,3,0:0;0:0;0:0;0:0;0:0" << false << true;
    QTest::newRow("four parts") << "1,3,2:1;0:0;0:0;0:0;0:0,7" << "1,3,2:1;0:0;0:0;0:0;0:0" << true << false;
    QTest::newRow("two pairs") << "0,0,2:1;3:-1" << "0,0,2:1;3:-1;0:0;0:0;0:0" << false << true;
    QTest::newRow("six pairs") << "0,0,1:1;2:2;3:3;4:4;5:5;6:6" << "0,0,1:1;2:2;3:3;4:4;5:5" << false << true;
    QTest::newRow("bare number") << "0,0,4:1;5;3:-1;0:0;0:0" << "0,0,4:1;0:0;3:-1;0:0;0:0" << false << false;
    QTest::newRow("three fields") << "0,0,1:1:1;4:1;0:0;0:0;0:0" << "0,0,0:0;4:1;0:0;0:0;0:0" << false << false;
    QTest::newRow("letters") << "x,k,Hz:1;1:y;0:0;0:0;0:0" << "0,0,0:1;1:0;0:0;0:0;0:0" << false << false;
    QTest::newRow("huge numbers") << "0,99999999999,1:99999999999;99999999999:1;0:0;0:0;0:0"
                                  << "0,0,1:0;0:1;0:0;0:0;0:0" << false << false;
    QTest::newRow("blanks") << " 1, 3,2 :1;0:0;0:0;0:0;0:0" << "0,3,2:1;0:0;0:0;0:0;0:0" << false << false;
    QTest::newRow("thousands of commas") << QString(",").repeated(5000) << neutral << true << true;
    QTest::newRow("thousands of pairs") << QString("1,6," + QString("1:1;").repeated(3000))
                                        << "1,6,1:1;1:1;1:1;1:1;1:1" << false << true;
}


void tst_ValueHelper::malformedStrings()
{
    QFETCH(QString, text);
    QFETCH(QString, record);
    QFETCH(bool, wrongParts);
    QFETCH(bool, wrongPairs);
    QStringList expectedLines;
    if (wrongParts)
        expectedLines << Malformed.arg(text);
    if (wrongPairs)
        expectedLines << MalformedPairs.arg(text);

    kxtest::DebugLines catcher;
    const Units parsed = ValueHelper::convertToUnits(text);
    QCOMPARE(catcher.lines(), expectedLines);
    QCOMPARE(ValueHelper::toString(parsed), record);
}


QTEST_APPLESS_MAIN(tst_ValueHelper)
#include "tst_ValueHelper.moc"
