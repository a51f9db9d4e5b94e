#include "KXTestSupport.h"
#include "Units_list.h"
#include "ValueHelper.h"

#include <QtTest>

#include <limits>

using namespace Norvane::Value;

namespace {

// A units property string whose last four pairs are empty, with something after it.
QString withPairs(const QString &head, const QString &tail = QString()) { return head + "0:0;0:0;0:0;0:0" + tail; }

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

QTEST_APPLESS_MAIN(tst_ValueHelper)
#include "tst_ValueHelper.moc"
