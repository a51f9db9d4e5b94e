// SPDX-License-Identifier: BSD-3-Clause
// The numeric meter reading: its text and status colours from the reading list's flags, the style
// left alone while the status holds, and reading lists it cannot show.
#include <QtTest>

#include <QLineEdit>

#include "CSS.h"
#include "QKXComboBox.h"
#include "QKXNumericMeterReading.h"

#include "KXTestSupport.h"
#include "MeterTestSupport.h"

#include <limits>

using namespace kxtest;

namespace {

const QString kx_frequencyUnits = QStringLiteral("0,0,1:1;0:0;0:0;0:0;0:0|0,3,1:1;0:0;0:0;0:0;0:0");

// A frequency reading shown in kHz, the second unit of its list.
struct Reading
{
    Reading()
    {
        reading.setObjectName(QStringLiteral("sinadReading"));
        reading.setAttributeName(QStringLiteral("Sinad"));
        reading.setBaseUnit(hertzUnits());
        reading.setDefaultUnit(1);
        reading.setUnitListString(kx_frequencyUnits);
        display = reading.findChild<QLineEdit *>();
    }
    void take(double hertz, std::initializer_list<int> flags)
    {
        reading.setValue(QVariant(readingList(valueRecord(hertzUnits(), hertz), flags, valueRecord(hertzUnits(), 0.0),
                                              valueRecord(hertzUnits(), 1e4))));
    }
    QKXNumericMeterReading reading;
    QLineEdit *display;
};

QVariantList withFlags(const QList<int> &flags, QVariantList list)
{
    for (int flag : flags)
        list[flag] = true;
    return list;
}

} // namespace

class tst_QKXNumericMeterReading : public QObject
{
    Q_OBJECT

private slots:
    void textAndStatusColour_data();
    void textAndStatusColour();
    void unchangedStatusLeavesTheStyle();
    void readingTypeChoosesTheEntry();
    void unreadableReadingListsKeepTheDisplay_data();
    void unreadableReadingListsKeepTheDisplay();
    void plainLookWithoutUnit();
    void unitWithoutTheNumberKeepsTheText();
};

void tst_QKXNumericMeterReading::textAndStatusColour_data()
{
    QTest::addColumn<QVariant>("record");
    QTest::addColumn<QList<int>>("flags");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("overlay");

    const QVariant hz1500 = valueRecord(hertzUnits(), 1500.0);
    const QString red = QStringLiteral("QLineEdit:disabled {  background-color: #E00;}");
    const QString blue = QStringLiteral("QLineEdit:disabled {  background-color: #03D;}");
    const QString green = QStringLiteral("QLineEdit:disabled {  color: black;  background-color: #00FF00;}");
    const QString yellow = QStringLiteral("QLineEdit:disabled {  background-color: #FEFE00;  color: black;}");
    const QString grey = QStringLiteral("QLineEdit:disabled {  background-color: #707070;  color: #484848;}");

    QTest::newRow("plain") << hz1500 << QList<int>{} << QStringLiteral("1.5000") << QString();
    QTest::newRow("in doubt") << hz1500 << QList<int>{2} << QStringLiteral("1.5000 ?") << QString();
    QTest::newRow("no reading, no colour") << hz1500 << QList<int>{1, 4} << QStringLiteral("---") << QString();
    QTest::newRow("no reading, in doubt") << hz1500 << QList<int>{1, 2} << QStringLiteral("--- ?") << QString();
    QTest::newRow("no reading needs no number")
        << QVariant(QVariantList{hertzUnits(), 0.0, 0.0, qQNaN()}) << QList<int>{1} << QStringLiteral("---") << QString();
    QTest::newRow("no reading needs no record") << QVariant(QStringLiteral("none")) << QList<int>{1}
                                                << QStringLiteral("---") << QString();
    QTest::newRow("4 and 7 green") << hz1500 << QList<int>{4, 7} << QStringLiteral("1.5000") << green;
    QTest::newRow("4 red") << hz1500 << QList<int>{4} << QStringLiteral("1.5000") << red;
    QTest::newRow("7 blue") << hz1500 << QList<int>{7} << QStringLiteral("1.5000") << blue;
    QTest::newRow("3 yellow over 4") << hz1500 << QList<int>{3, 4} << QStringLiteral("1.5000") << yellow;
    QTest::newRow("5 grey over 4 and 7") << hz1500 << QList<int>{4, 5, 7} << QStringLiteral("1.5000") << grey;
    QTest::newRow("3 yellow over 5") << hz1500 << QList<int>{3, 5} << QStringLiteral("1.5000") << yellow;
}

void tst_QKXNumericMeterReading::textAndStatusColour()
{
    QFETCH(QVariant, record);
    QFETCH(QList<int>, flags);
    QFETCH(QString, text);
    QFETCH(QString, overlay);

    Reading r;
    r.take(2500.0, {});
    const QString plain = r.reading.styleSheet();
    DebugLines lines;
    r.reading.setValue(QVariant(withFlags(flags, readingList(record, {}, valueRecord(hertzUnits(), 0.0),
                                                             valueRecord(hertzUnits(), 1e4)))));
    QCOMPARE(r.display->text(), text);
    QCOMPARE(r.reading.styleSheet(), plain + overlay);
    QCOMPARE(lines.lines(), QStringList());

    // Read-only frames the field in the palette's colour, under the status colour.
    r.reading.setReadOnly(true);
    QCOMPARE(r.reading.styleSheet(),
             plain + QStringLiteral("QLineEdit:disabled {    border-color: ") + CSS::border() + QStringLiteral(";}") + overlay);
}

void tst_QKXNumericMeterReading::unchangedStatusLeavesTheStyle()
{
    Reading r;
    r.reading.resize(200, 60);
    r.reading.show();
    QVERIFY(QTest::qWaitForWindowExposed(&r.reading));
    r.take(1500.0, {4, 7});
    QCoreApplication::processEvents();
    int restyled = 0;
    struct Spy : QObject {
        int *count;
        bool eventFilter(QObject *, QEvent *event) override
        {
            *count += event->type() == QEvent::StyleChange || event->type() == QEvent::Polish;
            return false;
        }
    } spy;
    spy.count = &restyled;
    r.display->installEventFilter(&spy);
    r.reading.installEventFilter(&spy);

    r.take(1750.0, {4, 7});
    QCOMPARE(r.display->text(), QStringLiteral("1.7500"));
    QCOMPARE(restyled, 0);
    r.take(1750.0, {4});
    QVERIFY(restyled > 0);
}

void tst_QKXNumericMeterReading::readingTypeChoosesTheEntry()
{
    Reading r;
    QVariantList list = readingList(valueRecord(hertzUnits(), 1000.0), {}, valueRecord(hertzUnits(), 0.0),
                                    valueRecord(hertzUnits(), 1e4));
    list[0] = QVariantList{QVariant(QVariantList{QStringLiteral("Average"), valueRecord(hertzUnits(), 1000.0)}),
                           QVariant(QVariantList{QStringLiteral("Peak"), valueRecord(hertzUnits(), 3000.0)})};
    r.reading.setReadingTypeIndex(1);
    r.reading.setValue(list);
    QCOMPARE(r.display->text(), QStringLiteral("3.0000"));

    DebugLines lines;
    for (int index : {2, -1}) {
        r.reading.setReadingTypeIndex(index);
        r.reading.setValue(list);
    }
    QCOMPARE(lines.lines(),
             (QStringList{QStringLiteral("UserInterface - Meter reading index is out of range: \"sinadReading\" \"Sinad\" 2 2"),
                          QStringLiteral("UserInterface - Meter reading index is out of range: \"sinadReading\" \"Sinad\" 2 -1")}));
    QCOMPARE(r.display->text(), QStringLiteral("3.0000"));
    const QVariantList names{QVariant(QVariantList{0, QStringLiteral("Average")}), QVariant(QVariantList{1, QStringLiteral("Peak")})};
    QCOMPARE(r.reading.readingTypes(), QVariant(names));
}

void tst_QKXNumericMeterReading::unreadableReadingListsKeepTheDisplay_data()
{
    QTest::addColumn<QVariant>("readingList");
    QTest::addColumn<QString>("line");

    const QVariant lower = valueRecord(hertzUnits(), 0.0);
    const QVariant upper = valueRecord(hertzUnits(), 1e4);
    const QString prefix = QStringLiteral("UserInterface - QKXNumericMeterReading \"sinadReading\" ");
    QVariantList shortList = readingList(valueRecord(hertzUnits(), 1.0), {}, lower, upper).mid(0, 7);
    QVariantList badFlag = readingList(valueRecord(hertzUnits(), 1.0), {}, lower, upper);
    badFlag[2] = QVariantList();

    QTest::newRow("no flag 7") << QVariant(shortList)
                               << prefix + QStringLiteral("reading list of 7 elements has no status flag 7 - display kept");
    QTest::newRow("flag a list") << QVariant(badFlag) << prefix + QStringLiteral("status flag 2 is QVariant(QVariantList, ()) - display kept");
    QTest::newRow("record short")
        << QVariant(readingList(QVariantList{hertzUnits(), 1.0}, {}, lower, upper))
        << prefix + QStringLiteral("reading QVariant(QVariantList, (QVariant(QString, \"0,0,1:1;0:0;0:0;0:0;0:0\"), QVariant(double, 1))) is no value record - display kept");
    QTest::newRow("NaN") << QVariant(readingList(valueRecord(hertzUnits(), qQNaN()), {4}, lower, upper))
                         << prefix + QStringLiteral("reading nan is no number to show - display kept");
    QTest::newRow("too large for kHz")
        << QVariant(readingList(valueRecord(QStringLiteral("0,6,1:1;0:0;0:0;0:0;0:0"), std::numeric_limits<double>::max()),
                                {}, lower, upper))
        << prefix + QStringLiteral("reading 1.79769e+308 has no number in kHz - display kept");
}

void tst_QKXNumericMeterReading::unreadableReadingListsKeepTheDisplay()
{
    QFETCH(QVariant, readingList);
    QFETCH(QString, line);

    Reading r;
    r.take(1500.0, {7});
    const QString sheet = r.reading.styleSheet();
    DebugLines lines;
    r.reading.setValue(readingList);
    QCOMPARE(lines.lines(), QStringList{line});
    QCOMPARE(r.display->text(), QStringLiteral("1.5000"));
    QCOMPARE(r.reading.styleSheet(), sheet);
}

void tst_QKXNumericMeterReading::plainLookWithoutUnit()
{
    QKXNumericMeterReading reading;
    reading.setValue(QVariant(readingList(valueRecord(QStringLiteral("0,0,0:0;0:0;0:0;0:0;0:0"), 0.25), {4}, 0.0, 1.0)));
    QCOMPARE(reading.findChild<QLineEdit *>()->text(), QStringLiteral("0.2500"));
    QVERIFY(reading.findChild<QKXComboBox *>()->isHidden());
    // The plain field's white frame, not the joined field-and-selector one.
    QVERIFY(reading.styleSheet().startsWith(
        QStringLiteral("QLineEdit {    padding: 1px 5px 0px 5px;    margin: 0px;    border: 2px solid #fff;")));
    QVERIFY(reading.styleSheet().endsWith(QStringLiteral("QLineEdit:disabled {  background-color: #E00;}")));
}

void tst_QKXNumericMeterReading::unitWithoutTheNumberKeepsTheText()
{
    QKXNumericMeterReading reading;
    reading.setObjectName(QStringLiteral("sinadReading"));
    reading.setBaseUnit(hertzUnits());
    reading.setUnitListString(hertzUnits() + QStringLiteral("|0,-3,1:1;0:0;0:0;0:0;0:0"));
    reading.setValue(QVariant(readingList(valueRecord(hertzUnits(), 1e307), {}, 0.0, 1.0)));
    const QString shown = reading.findChild<QLineEdit *>()->text();
    DebugLines lines;
    reading.setUnitIndex(1);   // 1e310 mHz
    QCOMPARE(reading.findChild<QLineEdit *>()->text(), shown);
    QCOMPARE(lines.lines(), QStringList{QStringLiteral(
                                "UserInterface - QKXNumericMeterReading \"sinadReading\" reading 1e+307 has no number in mHz - display kept")});
}

QTEST_MAIN(tst_QKXNumericMeterReading)
#include "tst_QKXNumericMeterReading.moc"
