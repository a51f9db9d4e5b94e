// SPDX-License-Identifier: BSD-3-Clause
// The direction pad: key codes step a numeric field, the marked digit follows the step, each step is
// submitted at once and the select key commits.
#include <QtTest>

#include "QKXDPad.h"

#include "LiveEditorTestSupport.h"

using namespace kxtest;

namespace {

// The pad serving a field limited to [0, 10], whose engine takes every value and shows it again in
// the field (which marks the step's digit anew).
struct PadScreen : LiveScreen<QKXDPad>
{
    PadScreen(double value, int precision) : LiveScreen(QStringLiteral("Double"), value, precision)
    {
        field->setUpperLimit(10.0);
        editor = new QKXDPad(&window);
        QObject::connect(filter, QOverload<double>::of(&QKXNumericEventFilter::submit), field,
                         [this](double v) { field->setValue(v); });
    }
    QLineEdit *entry() const { return field->findChild<QLineEdit *>(); }
};

} // namespace

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

    PadScreen screen(value, precision);
    QVERIFY(screen.open());
    QVERIFY(!screen.editor->isVisible());
    for (int key : keys)
        screen.editor->dPadKeyPressed(key);
    QVERIFY(screen.editor->isVisible());
    QCOMPARE(screen.entry()->text(), shown);
    QCOMPARE(screen.entry()->selectedText(), marked);
    QCOMPARE(screen.road, sends);
}

void tst_QKXDPad::unitFieldSendsItsUnitsString()
{
    QWidget window;
    FrequencyField frequency(&window);
    QKXDPad pad(&window);
    pad.registerWidget(frequency.filter, frequency.field);
    QCOMPARE(pad.maximum(), 10.0);
    pad.dPadKeyPressed(0);
    pad.dPadKeyPressed(1);
    QCOMPARE(frequency.road, QStringList({"2.6 " + kilohertz(), "2.5 " + kilohertz()}));
}

void tst_QKXDPad::selectKeyCommits()
{
    PadScreen screen(0.0, 0);
    QSignalSpy presses(screen.editor, &QKXDPad::dPadPressed);
    QSignalSpy ends(screen.editor, &QKXDPad::editEnd);
    QVERIFY(screen.open());
    screen.editor->dPadKeyPressed(0);
    screen.editor->dPadKeyPressed(4);
    QVERIFY(screen.waitForEnd());
    QCOMPARE(screen.road, QStringList({"double 1", "editEnd", "release"}));
    QCOMPARE(presses.count(), 2);
    QCOMPARE(ends.count(), 1);
    QVERIFY(!screen.editor->isVisible());
    // The pad let go of the filter: its next keys reach nobody.
    screen.editor->dPadKeyPressed(0);
    QCOMPARE(screen.road.size(), 3);
}

void tst_QKXDPad::keysThatDoNothing()
{
    DebugLines lines;
    LiveScreen<QKXDPad> screen(QStringLiteral("Text"), 0.0, 0);
    QKXDPad pad(&screen.window);
    pad.dPadKeyPressed(0);
    pad.registerWidget(screen.filter, screen.field);
    pad.dPadKeyPressed(7);
    QCOMPARE(lines.lines().size(), 3);
    QCOMPARE(lines.lines().at(0), QStringLiteral("UserInterface - QKXDPad: key 0 with no field registered - ignored"));
    QVERIFY(lines.lines().at(1).startsWith(
        "UserInterface - QKXDPad attempting to register unknown data type: \"Text\" Widget: QKXNumeric("));
    QCOMPARE(lines.lines().at(2), QStringLiteral("UserInterface - QKXDPad: Channel key 7 is not a direction (0 to 4) - ignored"));
}

QTEST_MAIN(tst_QKXDPad)
#include "tst_QKXDPad.moc"
