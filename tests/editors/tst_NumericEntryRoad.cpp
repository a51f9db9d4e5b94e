// SPDX-License-Identifier: BSD-3-Clause
// One numeric edit from the finger on the field to the value leaving the filter, through the window
// system's mouse events, the host's lock grant and the numeric pad.
#define QTEST_QPA_MOUSE_HANDLING
#include <QtTest>

#include "EditorTestSupport.h"

using kxtest::Screen;

class tst_NumericEntryRoad : public QObject
{
    Q_OBJECT

private slots:
    void hexChannelCommittedWithEnter();
    void levelCancelled();
};

void tst_NumericEntryRoad::hexChannelCommittedWithEnter()
{
    Screen screen(QStringLiteral("Int"));
    screen.field->setBaseType(QKXNumeric::HEX);
    screen.field->setUpperLimit(0xFFF);
    screen.intAdapter.current = 0x2A;
    screen.field->setValue(0x2A);
    QVERIFY(screen.show());
    screen.road.clear();

    screen.tap();
    QCOMPARE(screen.lockOwner.requests, QStringList({"Channel"}));
    QVERIFY(QTest::qWaitFor([&] { return screen.pad->isVisible() && screen.filter->isEditing(); }));
    QCOMPARE(screen.lockOwner.holder, screen.field);
    QCOMPARE(screen.pad->display()->text(), QStringLiteral("2A"));
    QVERIFY(screen.pad->button(QStringLiteral("F"))->isVisible());

    screen.press(QStringLiteral("1"));
    screen.press(QStringLiteral("F"));
    screen.press(QStringLiteral("bksp"));
    screen.press(QStringLiteral("C"));
    QCOMPARE(screen.pad->display()->text(), QStringLiteral("1C"));
    screen.press(QStringLiteral("hexEnter"));

    // The int form only.
    QCOMPARE(screen.road, QStringList({"lock", "editStart", "int 28", "editEnd", "release"}));
    QVERIFY(!screen.filter->isEditing());
    QVERIFY(!screen.lockOwner.holder);
    QVERIFY(!screen.pad->isVisible());
    QVERIFY(!screen.entry->isEnabled());

    // The engine confirms; the field shows its value in its base.
    screen.field->setValue(28);
    QCOMPARE(screen.entry->text(), QStringLiteral("1C"));
}

void tst_NumericEntryRoad::levelCancelled()
{
    Screen screen(QStringLiteral("Double"));
    screen.field->setPrecision(1);
    screen.field->setLowerLimit(-40.0);
    screen.field->setUpperLimit(10.0);
    screen.doubleAdapter.current = -12.5;
    screen.field->setValue(-12.5);
    QVERIFY(screen.show());
    screen.road.clear();

    screen.tap();
    QVERIFY(QTest::qWaitFor([&] { return screen.pad->isVisible() && screen.filter->isEditing(); }));
    screen.press(QStringLiteral("3"));
    screen.press(QStringLiteral("dot"));
    screen.press(QStringLiteral("5"));
    screen.press(QStringLiteral("plmin"));
    QCOMPARE(screen.entry->text(), QStringLiteral("-3.5"));
    screen.press(QStringLiteral("cancel"));

    QCOMPARE(screen.road, QStringList({"lock", "editStart", "double -12.5", "editEnd", "release"}));
    QVERIFY(!screen.filter->isEditing());
    QVERIFY(!screen.lockOwner.holder);
    QVERIFY(!screen.pad->isVisible());

    // The field is free for the next edit: a second tap asks for the lock again.
    screen.tap();
    QCOMPARE(screen.lockOwner.requests.size(), 2);
    QVERIFY(QTest::qWaitFor([&] { return screen.pad->isVisible(); }));
}

QTEST_MAIN(tst_NumericEntryRoad)
#include "tst_NumericEntryRoad.moc"
