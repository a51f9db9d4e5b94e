// SPDX-License-Identifier: BSD-3-Clause
// A value with units edited on the numeric pad: the pad's unit keys, and the whole road of one edit
// from the finger on the field to the engine's value shown again in the unit the user chose.
#define QTEST_QPA_MOUSE_HANDLING
#include <QtTest>

#include <QLabel>

#include "EditorTestSupport.h"

using namespace kxtest;

class tst_UnitEntryRoad : public QObject
{
    Q_OBJECT

private slots:
    void unitKeysFollowTheUnitList();
    void plainAndLongValuesCommit();
    void roadOfOneEditThenACancel();
    void keyboardAndHostCommits();
};

void tst_UnitEntryRoad::unitKeysFollowTheUnitList()
{
    // Five units: four keys, none of them the last unit. Short entries get no key.
    DebugLines lines;
    UnitScreen screen;
    screen.field->setUnitListString(QStringList{hertz(), kilohertz(), megahertz(), "0,9,1:1;0:0;0:0;0:0;0:0",
                                                "0,-3,1:1;0:0;0:0;0:0;0:0"}.join('|'));
    QVERIFY(screen.show());
    QVERIFY(screen.tapAndWaitForPad());
    QCOMPARE(screen.unitKeys(), QStringList({"Hz/unit", "kHz/unit", "MHz/unit", "GHz/unit"}));
    screen.filter->cancel();
    QVERIFY(QTest::qWaitFor([&] { return !screen.pad->isVisible() && !screen.filter->isEditing(); }));

    QVariantList list = screen.field->property("UnitList").toList();
    list.insert(1, QVariant(QVariantList{5, QStringLiteral("odd")}));
    screen.field->setProperty("UnitList", list.mid(0, 3));
    QVERIFY(screen.tapAndWaitForPad());
    QCOMPARE(screen.unitKeys(), QStringList({"Hz/unit", "kHz/lastUnit"}));
    QCOMPARE(lines.lines(), QStringList({"UserInterface - QKXNumpad: unit list entry 1 is not "
                                         "[index, name, true, units string] - no key for it"}));
}

void tst_UnitEntryRoad::plainAndLongValuesCommit()
{
    // Without units, Enter commits in the base unit.
    UnitScreen plain;
    plain.field->setUnitListString(QString());
    plain.field->setValue(12.0, neutralUnits());
    QVERIFY(plain.show());
    QVERIFY(plain.tapAndWaitForPad());
    QVERIFY(plain.unitKeys().isEmpty());
    plain.press(QStringLiteral("4"));
    plain.road.clear();
    plain.press(QStringLiteral("enter"));
    QCOMPARE(plain.road.mid(0, 3), QStringList({"submit 4 (neutral)", "editEnd", "release"}));
    QCOMPARE(plain.field->unitIndex(), -1);

    // A long value has no dot and commits its integer form only.
    UnitScreen screen(QStringLiteral("ValueLong"));
    QVERIFY(screen.show());
    QVERIFY(screen.tapAndWaitForPad());
    QVERIFY(!screen.pad->button(QStringLiteral("dot"))->isEnabled());
    screen.press(QStringLiteral("7"));
    screen.road.clear();
    screen.click(screen.pad->unitButton(0));
    QCOMPARE(screen.road.mid(0, 3), QStringList({"submit int 7 Hz", "editEnd", "release"}));
    QCOMPARE(screen.field->unitIndex(), 0);
}

void tst_UnitEntryRoad::roadOfOneEditThenACancel()
{
    UnitScreen screen;
    QVERIFY(screen.show());
    QCOMPARE(screen.entry->text(), QStringLiteral("1.000"));
    QCOMPARE(screen.field->currentUnitName(), QStringLiteral("MHz"));
    screen.road.clear();

    // Tap: the lock is asked for and granted, the edit starts, the pad opens with one key per unit.
    QVERIFY(screen.tapAndWaitForPad());
    QCOMPARE(screen.lockOwner.holder, screen.field);
    QCOMPARE(screen.road, QStringList({"lock", "editStart"}));
    QCOMPARE(screen.pad->registeredWidget(), screen.field);
    QCOMPARE(screen.unitKeys(), QStringList({"Hz/unit", "kHz/unit", "MHz/lastUnit"}));
    QCOMPARE(screen.pad->unitButton(1)->property("UnitString").toString(), kilohertz());
    QVERIFY(!screen.pad->button(QStringLiteral("enter"))->isVisible());
    QCOMPARE(screen.pad->display()->text(), QStringLiteral("1.000"));

    // The keys type into the field itself; the first replaces the old value.
    screen.press(QStringLiteral("2"));
    screen.press(QStringLiteral("dot"));
    screen.press(QStringLiteral("5"));
    QCOMPARE(screen.entry->text(), QStringLiteral("2.5"));
    QCOMPARE(screen.pad->display()->text(), QStringLiteral("2.5"));

    // kHz commits the number in kHz; the edit ends and the lock goes back before the engine answers.
    screen.click(screen.pad->unitButton(1));
    QVERIFY(QTest::qWaitFor([&] { return screen.road.size() >= 7; }));
    QCOMPARE(screen.road, QStringList({"lock", "editStart", "submit 2.5 kHz", "editEnd", "release", "engine 2500 Hz",
                                       "setValue 2500 Hz"}));
    QVERIFY(!screen.lockOwner.holder);
    QVERIFY(!screen.pad->isVisible());
    QVERIFY(!screen.filter->isEditing());
    QVERIFY(!screen.entry->isEnabled());

    // The engine's hertz, shown in the unit the user chose.
    QCOMPARE(screen.field->value(), 2500.0);
    QCOMPARE(screen.field->unitIndex(), 1);
    QCOMPARE(screen.field->currentUnitName(), QStringLiteral("kHz"));
    QCOMPARE(screen.entry->text(), QStringLiteral("2.500"));

    // Cancel gives back the engine's value, in hertz, and the chosen unit stays.
    QVERIFY(screen.tapAndWaitForPad());
    screen.press(QStringLiteral("9"));
    screen.road.clear();
    screen.press(QStringLiteral("cancel"));
    QVERIFY(QTest::qWaitFor([&] { return screen.road.size() >= 5; }));
    QCOMPARE(screen.road, QStringList({"submit 2500 Hz", "editEnd", "release", "engine 2500 Hz", "setValue 2500 Hz"}));
    QCOMPARE(screen.entry->text(), QStringLiteral("2.500"));
    QCOMPARE(screen.field->currentUnitName(), QStringLiteral("kHz"));
}

void tst_UnitEntryRoad::keyboardAndHostCommits()
{
    UnitScreen screen;
    QVERIFY(screen.show());
    QVERIFY(screen.tapAndWaitForPad());
    QCOMPARE(screen.filter->savedValue(), 1.0e6);
    QVERIFY(screen.filter->unitLabel()->isEnabled());

    // Typed text that is no number keeps the edit open and says why.
    DebugLines lines;
    screen.road.clear();
    screen.entry->setText(QStringLiteral("2,5k"));
    QTest::keyClick(screen.entry, Qt::Key_Enter);
    QVERIFY(screen.road.isEmpty());
    QCOMPARE(lines.lines(), QStringList({"UserInterface - QKXNumericValueObjEventFilter: \"2,5k\" is not a number "
                                         "for ValueDouble - nothing submitted"}));

    // Return commits both forms in the unit shown.
    screen.entry->setText(QStringLiteral("2.5"));
    QTest::keyClick(screen.entry, Qt::Key_Return);
    QCOMPARE(screen.road.mid(0, 4), QStringList({"submit 2.5 MHz", "submit int 2 MHz", "editEnd", "release"}));
    QVERIFY(QTest::qWaitFor([&] { return !screen.filter->isEditing() && !screen.filter->unitLabel()->isEnabled(); }));

    // The host's own calls: both forms in a given unit, or the double form in the unit shown.
    QVERIFY(QTest::qWaitFor([&] { return screen.road.size() >= 6; }));
    screen.road.clear();
    screen.filter->submitWidgetValue(3.75, kilohertz());
    screen.filter->enterVale(4.5);
    QCOMPARE(screen.road, QStringList({"submit 3.75 kHz", "submit int 3 kHz", "submit 4.5 MHz"}));
}

QTEST_MAIN(tst_UnitEntryRoad)
#include "tst_UnitEntryRoad.moc"
