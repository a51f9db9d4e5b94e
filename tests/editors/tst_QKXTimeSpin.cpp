// SPDX-License-Identifier: BSD-3-Clause
#define QTEST_QPA_MOUSE_HANDLING
#include <QtTest>

#include <QLabel>

#include "DateTimeEditorSupport.h"

#include "QKXTimeSpin.h"
#include "QKXTimeWidget.h"

using kxtest::berlin;
using Screen = kxtest::EditorScreen<QKXTimeWidget, QKXTimeSpin>;

class tst_QKXTimeSpin : public QObject
{
    Q_OBJECT

private slots:
    void hourForms_data();
    void hourForms();
};

static QString modeOf(QKXTimeSpin *editor)
{
    return editor->findChild<QLabel *>(QStringLiteral("mode"))->text();
}

void tst_QKXTimeSpin::hourForms_data()
{
    QTest::addColumn<int>("hour");          // the editor opens in 24 hours at hour:30:05
    QTest::addColumn<QStringList>("keys");  // then these are clicked
    QTest::addColumn<int>("arrow");         // then the hour column's up (1) or down (-1) arrow
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<int>("hourOfDay");

    const QStringList mil{"12/24"};
    const QStringList milTwice{"12/24", "12/24"};
    QTest::newRow("00:30 is 12 AM") << 0 << mil << 0 << "AM" << "12" << 0;
    QTest::newRow("12 AM back to 00") << 0 << milTwice << 0 << "24h" << "00" << 0;
    QTest::newRow("12:15 is 12 PM") << 12 << mil << 0 << "PM" << "12" << 12;
    QTest::newRow("12 PM back to 12") << 12 << milTwice << 0 << "24h" << "12" << 12;
    QTest::newRow("15 is 3 PM") << 15 << mil << 0 << "PM" << "03" << 15;
    QTest::newRow("3 PM back to 15") << 15 << milTwice << 0 << "24h" << "15" << 15;
    QTest::newRow("AM/PM leaves 24 hours") << 9 << QStringList{"AM/PM"} << 0 << "AM" << "09" << 9;
    QTest::newRow("12 AM flipped is noon") << 0 << QStringList{"AM/PM", "AM/PM"} << 0 << "PM" << "12" << 12;
    QTest::newRow("12 PM flipped, then 24 hours") << 12 << QStringList{"AM/PM", "AM/PM", "12/24"} << 0 << "24h" << "00" << 0;
    QTest::newRow("12 PM up wraps to 1 PM") << 12 << mil << 1 << "PM" << "01" << 13;
    QTest::newRow("1 AM down wraps to 12 AM") << 1 << mil << -1 << "AM" << "12" << 0;
}

void tst_QKXTimeSpin::hourForms()
{
    QFETCH(int, hour);
    QFETCH(QStringList, keys);
    QFETCH(int, arrow);
    QFETCH(QString, mode);
    QFETCH(QString, shown);
    QFETCH(int, hourOfDay);

    Screen screen;
    screen.field->setValue(berlin(2012, 3, 5, hour, 30, 5));
    QVERIFY(screen.show());
    QVERIFY(screen.tapAndWaitForEditor());
    QCOMPARE(modeOf(screen.editor), QStringLiteral("24h"));
    for (const QString &key : keys)
        screen.click(key);
    if (arrow != 0)
        kxtest::clickArrow(kxtest::columnsOf(screen.editor).at(0), arrow > 0);
    QCOMPARE(modeOf(screen.editor), mode);
    QCOMPARE(screen.columnTexts(), QStringList({shown, "30", "05"}));
    QCOMPARE(screen.editor->getTime(), QTime(hourOfDay, 30, 5));
}

QTEST_MAIN(tst_QKXTimeSpin)
#include "tst_QKXTimeSpin.moc"
