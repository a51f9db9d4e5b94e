// SPDX-License-Identifier: BSD-3-Clause
#include "NoRuleToConvert.h"
#include "UnitDimensionNotSame.h"
#include "Units_library.h"
#include "Units_list.h"
#include "ValueHelper.h"
#include "Value_object.h"

#include <QtTest>

#include <climits>
#include <cmath>
#include <initializer_list>
#include <utility>

using namespace Norvane::Value;

namespace {

// A units property string: us(kilo, {{hertz, 1}}) is "0,3,1:1;0:0;0:0;0:0;0:0".
QString us(int prefix, std::initializer_list<std::pair<int, int>> pairs)
{
    Unit_tuple tuple{};
    int i = 0;
    for (const auto &p : pairs)
        tuple[i++] = {p.first, p.second};
    return ValueHelper::toString(ValueHelper::newUnits(false, static_cast<SI_units>(prefix), &tuple));
}

Units units(const QString &s) { return ValueHelper::convertToUnits(s); }
// Value, plus and minus bound, compared bit for bit (QCOMPARE on a double is fuzzy).
QVector<double> bounds(const Value_object<double> &v) { return {v.Get_value(), v.Get_plus_err(), v.Get_minus_err()}; }

enum Failure { Converted, DimensionNotSame, NoRule, OtherValueError };

} // namespace

class tst_Units_library : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void unitText_data();
    void unitText();
    void conversions_data();
    void conversions();
    void errorBoundsFollowTheValue();
    void integerValueObjects_data();
    void integerValueObjects();
};

void tst_Units_library::unitText_data()
{
    QTest::addColumn<QString>("units");
    QTest::addColumn<QString>("symbol");
    QTest::addColumn<QString>("plain");

    QTest::newRow("micro") << us(micro, {{volt, 1}}) << QString::fromUtf8("\u00b5V") << "uV";
    QTest::newRow("ohm sign") << us(mega, {{ohm, 1}}) << QString::fromUtf8("M\u2126") << "MOhm";
    QTest::newRow("V/m") << us(0, {{volt, 1}, {metre, -1}}) << "V/m" << "V/m";
    QTest::newRow("two below") << us(0, {{watt, 1}, {hertz, -1}, {metre, -2}}) << QString::fromUtf8("W/(Hz\u00b7m\u00b2)")
                               << "W/(Hz*m^2)";
    QTest::newRow("only below") << us(0, {{second, -1}}) << QString::fromUtf8("s\u207b\u00b9") << "s^-1";
    QTest::newRow("power 12") << us(0, {{metre, 12}}) << QString::fromUtf8("m\u00b9\u00b2") << "m^12";
    QTest::newRow("empty pairs skipped") << us(0, {{none, 0}, {hertz, 0}, {watt, 1}}) << "W" << "W";
    QTest::newRow("prefixed number") << us(kilo, {}) << "k" << "k";
    // Refused in symbols (and so in plain text): "!".
    QTest::newRow("unknown unit, power 0") << us(0, {{hertz, 1}, {99, 0}}) << "!" << "!";
    QTest::newRow("centi") << us(-2, {{metre, 1}}) << "!" << "!";
    QTest::newRow("exa") << us(18, {{hertz, 1}}) << "!" << "!";
    QTest::newRow("kdBm") << us(kilo, {{decibel_milliwatt, 1}}) << "!" << "!";
}

void tst_Units_library::unitText()
{
    QFETCH(QString, units);
    QFETCH(QString, symbol);
    QFETCH(QString, plain);
    const auto text = [&](int type) {
        try {
            return QString::fromStdString(Units_library::Get_unit_string(::units(units), type));
        } catch (const Value_exception &) {
            return QStringLiteral("!");
        }
    };
    QCOMPARE(text(Units_library::Symbol_text), symbol);
    QCOMPARE(text(Units_library::Plain_text), plain);
    QCOMPARE(text(3), QStringLiteral("!"));   // no third kind of text
}

void tst_Units_library::conversions_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::addColumn<double>("expected");
    QTest::addColumn<int>("failure");

    const QString W = us(0, {{watt, 1}});
    const QString dBm = us(0, {{decibel_milliwatt, 1}});
    const QString dBuV = us(0, {{decibel_microvolt, 1}});
    const QString Hz = us(0, {{hertz, 1}});
    const double inf = HUGE_VAL;
    const int C = Converted;

    // Prefix steps divide or multiply by the power of ten once: multiplying by a rounded reciprocal
    // (9 * 0.001) is one unit in the last place off.
    const auto hz = [](int prefix) { return us(prefix, {{hertz, 1}}); };
    QTest::newRow("9 mHz") << 9.0 << hz(milli) << Hz << 0.009 << C;
    QTest::newRow("pico to peta") << 3.0 << hz(pico) << hz(peta) << 3e-27 << C;
    QTest::newRow("peta to pico") << 7.0 << hz(peta) << hz(pico) << 7e27 << C;
    QTest::newRow("44 decades") << 1.0 << hz(-22) << hz(22) << 1e-44 << C;
    QTest::newRow("overflow") << 1e300 << hz(300) << Hz << inf << C;
    QTest::newRow("far beyond") << 1.0 << hz(INT_MIN) << hz(INT_MAX) << 0.0 << C;
    QTest::newRow("10 dBm in mW") << 10.0 << dBm << us(milli, {{watt, 1}}) << 10.0 << C;
    QTest::newRow("1 W in dBm") << 1.0 << W << dBm << 30.0 << C;
    QTest::newRow("0 W in dBm") << 0.0 << W << dBm << -inf << C;
    QTest::newRow("dBm in dBW") << -30.0 << dBm << us(0, {{decibel_watt, 1}}) << -60.0 << C;
    QTest::newRow("120 dBuV in V") << 120.0 << dBuV << us(0, {{volt, 1}}) << 1.0 << C;
    QTest::newRow("1 mV in dBuV") << 1.0 << us(milli, {{volt, 1}}) << dBuV << 60.0 << C;
    QTest::newRow("20 dB as ratio") << 20.0 << us(0, {{decibel, 1}}) << us(0, {}) << 100.0 << C;
    QTest::newRow("0 dB in percent") << 0.0 << us(0, {{decibel, 1}}) << us(0, {{percent, 1}}) << 100.0 << C;
    QTest::newRow("dBm/Hz in W/Hz") << -30.0 << us(0, {{decibel_milliwatt, 1}, {hertz, -1}}) << us(0, {{watt, 1}, {hertz, -1}})
                                    << 1e-6 << C;
    QTest::newRow("Hz as 1/s") << 5.0 << hz(kilo) << us(0, {{second, -1}}) << 5000.0 << C;
    QTest::newRow("ppm") << 2.5 << us(0, {{parts_per_million, 1}}) << us(0, {{percent, 1}}) << 0.00025 << C;
    QTest::newRow("YiB in B") << 1.0 << us(0, {{yobibyte, 1}}) << us(0, {{byte, 1}}) << std::ldexp(1.0, 80) << C;
    QTest::newRow("Mbit/s") << 1.0 << us(mega, {{bit, 1}, {second, -1}}) << us(0, {{byte, 1}, {second, -1}}) << 125000.0 << C;

    QTest::newRow("dBm to dBuV") << 1.0 << dBm << dBuV << 0.0 << int(DimensionNotSame);
    QTest::newRow("Hz to bit/s") << 1.0 << Hz << us(0, {{bit, 1}, {second, -1}}) << 0.0 << int(DimensionNotSame);
    QTest::newRow("dBc to dB") << 1.0 << us(0, {{decibel_carrier, 1}}) << us(0, {{decibel, 1}}) << 0.0 << int(NoRule);
    QTest::newRow("dBm squared") << 1.0 << us(0, {{decibel_milliwatt, 2}}) << us(0, {{watt, 2}}) << 0.0 << int(NoRule);
    QTest::newRow("unknown unit") << 1.0 << us(0, {{99, 1}}) << Hz << 0.0 << int(NoRule);
    QTest::newRow("negative power as dBm") << -1.0 << W << dBm << 0.0 << int(OtherValueError);
}

void tst_Units_library::conversions()
{
    QFETCH(double, value);
    QFETCH(QString, from);
    QFETCH(QString, to);
    QFETCH(double, expected);
    QFETCH(int, failure);
    try {
        const double converted = Units_library::Convert(value, units(from), units(to));
        QCOMPARE(failure, int(Converted));
        QVERIFY2(converted == expected, qPrintable(QString::number(converted, 'g', 17)));   // bit for bit
    } catch (const UnitDimensionNotSame &) {
        QCOMPARE(failure, int(DimensionNotSame));
    } catch (const NoRuleToConvert &) {
        QCOMPARE(failure, int(NoRule));
    } catch (const Value_exception &) {
        QCOMPARE(failure, int(OtherValueError));
    }
}

void tst_Units_library::errorBoundsFollowTheValue()
{
    // Prefix steps scale the bounds; level conversions map the interval's ends, so the bounds of
    // 0 dBm +3/-3 dB are no longer symmetric in watts.
    Value_object<double> f(1.0, units(us(kilo, {{hertz, 1}})), 0.01, 0.02);
    f.Convert_to(units(us(0, {{hertz, 1}})));
    QCOMPARE(bounds(f), (QVector<double>{1000.0, 10.0, 20.0}));

    Value_object<double> p(0.0, units(us(0, {{decibel_milliwatt, 1}})), 10.0, 10.0);
    p.Convert_to(units(us(milli, {{watt, 1}})));
    QCOMPARE(bounds(p), (QVector<double>{1.0, 9.0, 0.9}));

    // An end below zero watts has no level: that bound becomes infinite instead of failing.
    Value_object<double> w(1.0, units(us(0, {{watt, 1}})), 0.0, 2.0);
    w.Convert_to(units(us(0, {{decibel_watt, 1}})));
    QCOMPARE(bounds(w), (QVector<double>{0.0, 0.0, HUGE_VAL}));
}

void tst_Units_library::integerValueObjects_data()
{
    QTest::addColumn<long>("value");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<long>("expected");
    QTest::addColumn<bool>("thrown");

    QTest::newRow("half away from zero") << 2500L << 0 << int(kilo) << 3L << false;
    QTest::newRow("half away from zero, negative") << -2500L << 0 << int(kilo) << -3L << false;
    QTest::newRow("largest, same prefix") << LONG_MAX << 0 << 0 << LONG_MAX << false;
    QTest::newRow("beyond 2^53") << 9007199254740993L << 0 << int(milli) << 9007199254740993000L << false;
    QTest::newRow("beyond 2^53, down") << 9007199254740993L << int(milli) << 0 << 9007199254741L << false;
    QTest::newRow("too large") << 9000000000000000000L << 0 << int(milli) << 0L << true;
    QTest::newRow("too small") << -9000000000000000000L << int(kilo) << 0 << 0L << true;
}

void tst_Units_library::integerValueObjects()
{
    QFETCH(long, value);
    QFETCH(int, from);
    QFETCH(int, to);
    QFETCH(long, expected);
    QFETCH(bool, thrown);
    Value_object<long> v(value, units(us(from, {{hertz, 1}})), 0, 0);
    if (thrown) {
        QVERIFY_EXCEPTION_THROWN(v.Convert_to(units(us(to, {{hertz, 1}}))), Value_exception);
        QCOMPARE(v.Get_value(), value); // untouched
        QCOMPARE(int(v.Get_unit().prefix), from);
    } else {
        v.Convert_to(units(us(to, {{hertz, 1}})));
        QCOMPARE(v.Get_value(), expected);
    }
}

QTEST_APPLESS_MAIN(tst_Units_library)
#include "tst_Units_library.moc"
