// SPDX-License-Identifier: BSD-3-Clause
#define QTEST_QPA_MOUSE_HANDLING
#include <QtTest>

#include <QLabel>

#include "DateTimeEditorSupport.h"

#include "KXDateTimeSupport_p.h"
#include "QKXDateSpin.h"
#include "QKXDateWidget.h"

using kxtest::berlin;
using Screen = kxtest::EditorScreen<QKXDateWidget, QKXDateSpin>;

class tst_QKXDateSpin : public QObject
{
    Q_OBJECT

private slots:
    void dayFollowsMonthAndYear_data();
    void dayFollowsMonthAndYear();
    void opensOnWidgetsDate_data();
    void opensOnWidgetsDate();
    void enterCommitsDateAtTimeOfDay_data();
    void enterCommitsDateAtTimeOfDay();
    void timeTheClocksSkipCommitsAnHourOn();
    void dateWithoutCountStaysOpen_data();
    void dateWithoutCountStaysOpen();
    void cancelClosesWithoutSubmit();
};

void tst_QKXDateSpin::dayFollowsMonthAndYear_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<QDate>("start");
    QTest::addColumn<int>("column");   // clicked once, on its up arrow, or down where up is false
    QTest::addColumn<bool>("up");
    QTest::addColumn<QStringList>("shown");

    QTest::newRow("31 January to February 2012") << 0 << QDate(2012, 1, 31) << 0 << true << QStringList{"02", "29", "2012"};
    QTest::newRow("31 January to February 2013") << 0 << QDate(2013, 1, 31) << 0 << true << QStringList{"02", "28", "2013"};
    QTest::newRow("1900 counts as leap") << 0 << QDate(1900, 1, 31) << 0 << true << QStringList{"02", "29", "1900"};
    QTest::newRow("31 March to April") << 0 << QDate(2013, 3, 31) << 0 << true << QStringList{"04", "30", "2013"};
    QTest::newRow("29 February into a common year") << 0 << QDate(2012, 2, 29) << 2 << true << QStringList{"02", "28", "2013"};
    QTest::newRow("month 12 wraps to 1") << 0 << QDate(2012, 12, 15) << 0 << true << QStringList{"01", "15", "2012"};
    QTest::newRow("last day wraps to 1") << 0 << QDate(2012, 2, 29) << 1 << true << QStringList{"02", "01", "2012"};
    // The first column held years in the order before: as the day column it must not reach 0.
    QTest::newRow("day 1 down wraps to the month's end") << 2 << QDate(2012, 2, 1) << 2 << false
                                                        << QStringList{"2012", "02", "29"};
}

void tst_QKXDateSpin::dayFollowsMonthAndYear()
{
    QFETCH(int, format);
    QFETCH(QDate, start);
    QFETCH(int, column);
    QFETCH(bool, up);
    QFETCH(QStringList, shown);

    Screen screen;
    screen.field->setInputFormat(QKXDateWidget::InputDateFormat(format));
    QVERIFY(screen.show());
    screen.editor->registerWidget(screen.filter, screen.field);
    screen.editor->setDate(start);
    kxtest::clickArrow(kxtest::columnsOf(screen.editor).at(column), up);
    QCOMPARE(screen.columnTexts(), shown);
}

void tst_QKXDateSpin::opensOnWidgetsDate_data()
{
    QTest::addColumn<QVariant>("format");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QStringList>("headings");
    QTest::addColumn<QStringList>("shown");   // empty: today's date
    QTest::addColumn<QString>("line");

    const QVariant leapDay(berlin(2012, 2, 29));
    const QStringList monthFirst{"MM", "DD", "YYYY"};
    // A fresh editor holds a common year; 29 February must survive that.
    QTest::newRow("no order") << QVariant() << leapDay << monthFirst << QStringList{"02", "29", "2012"} << "";
    QTest::newRow("MM_DD_YYYY") << QVariant(0) << leapDay << monthFirst << QStringList{"02", "29", "2012"} << "";
    QTest::newRow("DD_MM_YYYY") << QVariant(1) << leapDay << QStringList{"DD", "MM", "YYYY"} << QStringList{"29", "02", "2012"} << "";
    QTest::newRow("YYYY_MM_DD") << QVariant(2) << leapDay << QStringList{"YYYY", "MM", "DD"} << QStringList{"2012", "02", "29"} << "";
    QTest::newRow("no value") << QVariant() << QVariant() << monthFirst << QStringList() << "";
    QTest::newRow("a widget never given a value")
        << QVariant(2) << QVariant(qlonglong(-1)) << QStringList{"YYYY", "MM", "DD"} << QStringList()
        << "UserInterface - QKXDateSpin \"form\": Value -1 is not a count of seconds from 0 to 4294967295 - opening on today's date";
}

void tst_QKXDateSpin::opensOnWidgetsDate()
{
    QFETCH(QVariant, format);
    QFETCH(QVariant, value);
    QFETCH(QStringList, headings);
    QFETCH(QStringList, shown);
    QFETCH(QString, line);

    // A plain widget with the two properties, as any form may hand the editor.
    QWidget window;
    window.resize(800, 480);
    auto *widget = new QWidget(&window);
    widget->setObjectName(QStringLiteral("form"));
    widget->setProperty("inputFormat", format);
    widget->setProperty("Value", value);
    auto *filter = new QKXAttribLongLongEventFilter(widget, nullptr);
    auto *editor = new QKXDateSpin(&window);
    window.show();
    kxtest::DebugLines caught;
    editor->registerWidget(filter, widget);
    QCOMPARE(caught.lines(), line.isEmpty() ? QStringList() : QStringList(line));

    QCOMPARE(kxtest::columnTexts<QLabel>(editor, QStringLiteral("desc")), headings);
    if (shown.isEmpty())
        QCOMPARE(editor->getDate(), QDate::currentDate());
    else
        QCOMPARE(kxtest::columnTexts(editor), shown);

    // A number that is no order keeps the one in force.
    widget->setProperty("inputFormat", 9);
    editor->registerWidget(filter, widget);
    QCOMPARE(kxtest::columnTexts<QLabel>(editor, QStringLiteral("desc")), headings);
}

void tst_QKXDateSpin::enterCommitsDateAtTimeOfDay_data()
{
    QTest::addColumn<QDate>("date");

    QTest::newRow("2040") << QDate(2040, 6, 2);
    QTest::newRow("summer time begins") << QDate(2021, 3, 28);
    QTest::newRow("summer time ends") << QDate(2021, 10, 31);
}

void tst_QKXDateSpin::enterCommitsDateAtTimeOfDay()
{
    QFETCH(QDate, date);

    Screen screen;
    screen.adapter.current = berlin(2040, 6, 2);
    QVERIFY(screen.show());
    QVERIFY(screen.tapAndWaitForEditor());
    screen.editor->setDate(date);
    const QTime before = QTime::currentTime();
    screen.click(QStringLiteral("Enter"));
    const QTime after = QTime::currentTime();

    QTRY_COMPARE(screen.road, QStringList({"release", "lock", "editStart",
                                           QStringLiteral("submit %1").arg(screen.submitted.value(0)), "editEnd", "release"}));
    QVERIFY(!screen.editor->isVisible());
    QCOMPARE(screen.filter->savedValue(), berlin(2040, 6, 2));
    const QDateTime committed = QDateTime::fromSecsSinceEpoch(screen.submitted.value(0));
    QCOMPARE(committed.date(), date);
    // The wall-clock time of day, not the seconds since midnight, which differ on these days.
    const int skipped = date == QDate(2021, 3, 28) && before.hour() == 2 ? 3600 : 0;
    if (after >= before) {
        QVERIFY2(committed.time() >= before.addSecs(skipped - 1) && committed.time() <= after.addSecs(skipped),
                 qPrintable(committed.toString(Qt::ISODate)));
    }
}

void tst_QKXDateSpin::timeTheClocksSkipCommitsAnHourOn()
{
    QCOMPARE(kxdatetime::localDateTime(QDate(2021, 3, 28), QTime(2, 30)).toSecsSinceEpoch(), berlin(2021, 3, 28, 3, 30));
    QCOMPARE(kxdatetime::localDateTime(QDate(2021, 3, 28), QTime(1, 30)).toSecsSinceEpoch(), berlin(2021, 3, 28, 1, 30));
}

void tst_QKXDateSpin::dateWithoutCountStaysOpen_data()
{
    QTest::addColumn<QDate>("start");
    QTest::addColumn<int>("dayClicks");
    QTest::addColumn<QString>("shown");

    QTest::newRow("before 1970") << QDate(1969, 12, 30) << 0 << "1969-12-30";
    QTest::newRow("after 7 February 2106") << QDate(2106, 2, 8) << 0 << "2106-02-08";
    // The leap rule offers it; the calendar has none.
    QTest::newRow("29 February 2100") << QDate(2100, 2, 28) << 1 << "2100-02-29";
}

void tst_QKXDateSpin::dateWithoutCountStaysOpen()
{
    QFETCH(QDate, start);
    QFETCH(int, dayClicks);
    QFETCH(QString, shown);

    Screen screen;
    QVERIFY(screen.show());
    QVERIFY(screen.tapAndWaitForEditor());
    screen.editor->setDate(start);
    kxtest::clickArrow(kxtest::columnsOf(screen.editor).at(1), true, dayClicks);
    kxtest::DebugLines caught;
    screen.click(QStringLiteral("Enter"));
    QCOMPARE(caught.lines(), QStringList(QStringLiteral("UserInterface - QKXDateSpin \"field\": %1 has no count of seconds"
                                                        " from 0 to 4294967295 - nothing submitted").arg(shown)));
    QVERIFY(screen.submitted.isEmpty());
    QVERIFY(screen.editor->isVisible() && screen.filter->isEditing());
}

void tst_QKXDateSpin::cancelClosesWithoutSubmit()
{
    Screen screen;
    QVERIFY(screen.show());
    QVERIFY(screen.tapAndWaitForEditor());
    screen.click(QStringLiteral("Cancel"));
    QVERIFY(!screen.editor->isVisible());
    QTRY_COMPARE(screen.road, QStringList({"release", "lock", "editStart", "editEnd", "release"}));
}

QTEST_MAIN(tst_QKXDateSpin)
#include "tst_QKXDateSpin.moc"
