// The direction pad: key codes step a numeric field, the marked digit follows the step, each step is
// submitted at once and the select key commits.
#include <QtTest>

#include <QLineEdit>

#include "QKXDPad.h"
#include "QKXNumeric.h"
#include "QKXNumericEventFilter.h"
#include "QKXNumericValueObj.h"
#include "QKXNumericValueObjEventFilter.h"

#include "../common/NumericTestSupport.h"

using namespace kxtest;

class tst_QKXDPad : public QObject
{
    Q_OBJECT

private slots:
    void keysStepTheField_data();
    void keysStepTheField();
    void unitFieldSendsItsUnitsString();
    void selectKeyCommits();
    void keysThatDoNothing();
};

void tst_QKXDPad::keysStepTheField_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("precision");
    QTest::addColumn<QList<int>>("keys");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("marked");
    QTest::addColumn<QStringList>("sends");

    // The field is limited to [0, 10].
    QTest::newRow("up stops at the maximum") << 9.5 << 1 << QList<int>{2, 0} << "10.0" << "0" << QStringList{"double 10"};
    QTest::newRow("down stops at the minimum") << 0.5 << 1 << QList<int>{1} << "0.0" << "0" << QStringList{"double 0"};
    QTest::newRow("finer step marks the hundredths") << 3.14 << 2 << QList<int>{3} << "3.14" << "4" << QStringList();
    QTest::newRow("coarser step marks the tenths") << 3.14 << 2 << QList<int>{3, 2} << "3.14" << "1" << QStringList();
    QTest::newRow("no finer than the decimals") << 3.14 << 2 << QList<int>{3, 3, 1} << "3.13" << "3"
                                                << QStringList{"double 3.13"};
    QTest::newRow("whole numbers step by one") << 7.0 << 0 << QList<int>{0, 0} << "9" << "9"
                                               << QStringList{"double 8", "double 9"};
}

void tst_QKXDPad::keysStepTheField()
{
    QFETCH(double, value);
    QFETCH(int, precision);
    QFETCH(QList<int>, keys);
    QFETCH(QString, shown);
    QFETCH(QString, marked);
    QFETCH(QStringList, sends);

    QWidget window;
    auto *field = new QKXNumeric(&window);
    field->setPrecision(precision);
    field->setUpperLimit(10.0);
    field->setValue(value);
    auto *filter = new QKXNumericEventFilter(field, QStringLiteral("Double"), nullptr);
    QStringList road;
    logFilter(filter, road);
    // The engine takes every value and the field shows it again, which marks the step's digit anew.
    connect(filter, QOverload<double>::of(&QKXNumericEventFilter::submit), field,
            [field](double v) { field->setValue(v); });
    QKXDPad pad(&window);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    pad.registerWidget(filter, field);
    road.clear();
    QVERIFY(!pad.isVisible());

    for (int key : keys)
        pad.dPadKeyPressed(key);
    QLineEdit *entry = field->findChild<QLineEdit *>();
    QVERIFY(pad.isVisible());
    QCOMPARE(entry->text(), shown);
    QCOMPARE(entry->selectedText(), marked);
    QCOMPARE(road, sends);
}

void tst_QKXDPad::unitFieldSendsItsUnitsString()
{
    QWidget window;
    auto *field = new QKXNumericValueObj(&window);
    field->setPrecision(1);
    field->setBaseUnit(hertz());
    field->setDefaultUnit(1);
    field->setUnitListString(frequencyUnits());
    field->setUpperLimit(10000.0);
    field->setValue(2500.0, hertz());
    auto *filter = new QKXNumericValueObjEventFilter(field, QStringLiteral("ValueDouble"), nullptr, nullptr);
    QStringList road;
    connect(filter, QOverload<double, QString>::of(&QKXNumericValueObjEventFilter::submit),
            [&](double v, const QString &unit) { road << QString::number(v) + ' ' + unit; });
    QKXDPad pad(&window);
    pad.registerWidget(filter, field);
    QCOMPARE(pad.maximum(), 10.0);
    pad.dPadKeyPressed(0);
    pad.dPadKeyPressed(1);
    QCOMPARE(road, QStringList({"2.6 " + kilohertz(), "2.5 " + kilohertz()}));
}

void tst_QKXDPad::selectKeyCommits()
{
    QWidget window;
    auto *field = new QKXNumeric(&window);
    field->setUpperLimit(10.0);
    auto *filter = new QKXNumericEventFilter(field, QStringLiteral("Double"), nullptr);
    QStringList road;
    logFilter(filter, road);
    QKXDPad pad(&window);
    QSignalSpy presses(&pad, &QKXDPad::dPadPressed);
    QSignalSpy ends(&pad, &QKXDPad::editEnd);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    filter->lockAcquired(field);
    QVERIFY(QTest::qWaitFor([&] { return filter->isEditing(); }));
    pad.registerWidget(filter, field);
    road.clear();

    pad.dPadKeyPressed(0);
    pad.dPadKeyPressed(4);
    QVERIFY(QTest::qWaitFor([&] { return !filter->isEditing(); }));
    QCOMPARE(road, QStringList({"double 1", "editEnd", "release"}));
    QCOMPARE(presses.count(), 2);
    QCOMPARE(ends.count(), 1);
    QVERIFY(!pad.isVisible());
    QVERIFY(!pad.registeredFilter());
    // The pad let go of the filter: its next keys reach nobody.
    pad.dPadKeyPressed(0);
    QCOMPARE(road.size(), 3);
}

void tst_QKXDPad::keysThatDoNothing()
{
    DebugLines lines;
    QWidget window;
    auto *field = new QKXNumeric(&window);
    field->setObjectName(QStringLiteral("Channel"));
    auto *filter = new QKXNumericEventFilter(field, QStringLiteral("Text"), nullptr);
    QKXDPad pad(&window);
    pad.dPadKeyPressed(0);
    pad.registerWidget(filter, field);
    pad.dPadKeyPressed(7);
    QCOMPARE(lines.lines().size(), 3);
    QCOMPARE(lines.lines().at(0), QStringLiteral("UserInterface - QKXDPad: key 0 with no field registered - ignored"));
    QVERIFY(lines.lines().at(1).startsWith(
        "UserInterface - QKXDPad attempting to register unknown data type: \"Text\" Widget: QKXNumeric("));
    QCOMPARE(lines.lines().at(2), QStringLiteral("UserInterface - QKXDPad: Channel key 7 is not a direction (0 to 4) - ignored"));
}

QTEST_MAIN(tst_QKXDPad)
#include "tst_QKXDPad.moc"
