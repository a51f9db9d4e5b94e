// SPDX-License-Identifier: BSD-3-Clause
// Date and time edits from the finger on the field to the value coming back from the engine, through
// the window system's mouse events, the host's lock grant and the editors' arrows and keys.
#define QTEST_QPA_MOUSE_HANDLING
#include <QtTest>

#include "DateTimeEditorSupport.h"

#include "QKXDateSpin.h"
#include "QKXDateWidget.h"
#include "QKXTimeSpin.h"
#include "QKXTimeWidget.h"

using kxtest::berlin;

class tst_DateTimeEntryRoad : public QObject
{
    Q_OBJECT

private slots:
    void calibrationDateMovedByArrows();
    void clockSetToTheAfternoon();
    void secondTapWithoutAdapterCommitsOnce();
};

// The engine takes each submit and answers from the event loop with the value it now holds.
template <typename Screen>
static void echoSubmits(Screen &screen)
{
    QObject::connect(screen.filter, &QKXAttribLongLongEventFilter::submit, screen.field, [&screen](qlonglong value) {
        QTimer::singleShot(0, screen.field, [&screen, value] {
            screen.adapter.current = value;
            screen.field->setValue(value);
        });
    });
}

void tst_DateTimeEntryRoad::calibrationDateMovedByArrows()
{
    kxtest::EditorScreen<QKXDateWidget, QKXDateSpin> screen;
    echoSubmits(screen);
    screen.field->setInputFormat(QKXDateWidget::DD_MM_YYYY);
    screen.field->setDisplayFormat(QKXDateWidget::MMM_d_YYYY);
    screen.adapter.current = berlin(2012, 3, 5, 9, 0);
    screen.field->setValue(screen.adapter.current);
    QVERIFY(screen.show());
    screen.road.clear();

    QVERIFY(screen.tapAndWaitForEditor());
    QCOMPARE(screen.columnTexts(), QStringList({"05", "03", "2012"}));
    const QList<QSpinBox *> columns = kxtest::columnsOf(screen.editor);
    kxtest::clickArrow(columns.at(0), true, 2);
    kxtest::clickArrow(columns.at(1), false);
    kxtest::clickArrow(columns.at(2), true);
    QCOMPARE(screen.columnTexts(), QStringList({"07", "02", "2013"}));
    screen.click(QStringLiteral("Enter"));

    QTRY_COMPARE(screen.road.last(), QStringLiteral("release"));
    QCOMPARE(screen.road, QStringList({"lock", "editStart", QStringLiteral("submit %1").arg(screen.submitted.value(0)),
                                       "editEnd", "release"}));
    QVERIFY(!screen.editor->isVisible());
    QVERIFY(!screen.field->findChild<QLineEdit *>()->isEnabled());
    QTRY_COMPARE(screen.field->findChild<QLineEdit *>()->text(), QStringLiteral("Feb 7, 2013"));
}

void tst_DateTimeEntryRoad::clockSetToTheAfternoon()
{
    kxtest::EditorScreen<QKXTimeWidget, QKXTimeSpin> screen;
    echoSubmits(screen);
    screen.field->setMilitaryTime(false);
    screen.adapter.current = berlin(2012, 3, 5, 8, 30, 0);
    screen.field->setValue(screen.adapter.current);
    QVERIFY(screen.show());
    screen.road.clear();

    QVERIFY(screen.tapAndWaitForEditor());
    QCOMPARE(screen.columnTexts(), QStringList({"08", "30", "00"}));
    kxtest::clickArrow(kxtest::columnsOf(screen.editor).at(0), true);
    screen.click(QStringLiteral("AM/PM"));
    const QDate today = QDate::currentDate();
    screen.click(QStringLiteral("Enter"));

    QTRY_COMPARE(screen.road.last(), QStringLiteral("release"));
    QCOMPARE(screen.road.size(), 5);
    QVERIFY(!screen.editor->isVisible());
    // Today at the chosen time, whatever day the clock showed.
    const QDateTime committed = QDateTime::fromSecsSinceEpoch(screen.submitted.value(0));
    QCOMPARE(committed.time(), QTime(21, 30));
    QVERIFY(committed.date() >= today && committed.date() <= QDate::currentDate());
    QTRY_COMPARE(screen.field->findChild<QLineEdit *>()->text(), QStringLiteral("9:30:00 PM"));

    // The next widget, without the property, is edited in 24 hours again.
    QWidget plain;
    plain.setProperty("Value", screen.adapter.current);
    screen.editor->registerWidget(new QKXAttribLongLongEventFilter(&plain, nullptr), &plain);
    QCOMPARE(screen.columnTexts(), QStringList({"21", "30", "00"}));
}

void tst_DateTimeEntryRoad::secondTapWithoutAdapterCommitsOnce()
{
    // Without an adapter every tap starts the edit at once, also while the editor is open for it.
    kxtest::EditorScreen<QKXDateWidget, QKXDateSpin> screen(false);
    screen.field->setLabelText(QStringLiteral("Calibration"));
    screen.field->setValue(berlin(2012, 3, 5));
    QVERIFY(screen.show());
    QVERIFY(screen.tapAndWaitForEditor());
    // The display takes taps itself while it is enabled; the caption passes them to the field.
    screen.road.clear();
    QVERIFY(screen.tapAndWaitForEditor(QStringLiteral("Label")));
    QCOMPARE(screen.road, QStringList("editStart"));
    screen.road.clear();
    screen.click(QStringLiteral("Enter"));
    QTRY_COMPARE(screen.road.last(), QStringLiteral("release"));
    QCOMPARE(screen.road.size(), 3);
    QCOMPARE(screen.submitted.size(), 1);
}

QTEST_MAIN(tst_DateTimeEntryRoad)
#include "tst_DateTimeEntryRoad.moc"
