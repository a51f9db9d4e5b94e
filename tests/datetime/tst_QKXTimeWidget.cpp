// SPDX-License-Identifier: BSD-3-Clause
#include <QtTest>

#include <QLineEdit>

#include "DateTimeTestSupport.h"

#include "QKXTimeWidget.h"

using kxtest::berlin;

class tst_QKXTimeWidget : public QObject
{
    Q_OBJECT

private slots:
    void showsTimeOfDay_data();
    void showsTimeOfDay();
    void countOutsideRangeKeepsTime();
};

void tst_QKXTimeWidget::showsTimeOfDay_data()
{
    QTest::addColumn<qlonglong>("value");
    QTest::addColumn<bool>("military");
    QTest::addColumn<bool>("utc");
    QTest::addColumn<QString>("text");

    const qlonglong afternoon = berlin(2012, 3, 5, 13, 5, 9);
    QTest::newRow("24 hours") << afternoon << true << false << "13:05:09";
    QTest::newRow("12 hours") << afternoon << false << false << "1:05:09 PM";
    QTest::newRow("12 AM is midnight") << berlin(2012, 3, 5, 0, 5, 9) << false << false << "12:05:09 AM";
    QTest::newRow("12 PM is noon") << berlin(2012, 3, 5, 12, 5, 9) << false << false << "12:05:09 PM";
    QTest::newRow("midnight in 24 hours") << berlin(2012, 3, 5, 0, 5, 9) << true << false << "00:05:09";
    QTest::newRow("UTC in winter") << afternoon << true << true << "12:05:09";
    QTest::newRow("UTC in summer") << berlin(2012, 7, 5, 13, 5, 9) << true << true << "11:05:09";
    // The clocks skip from 02:00 to 03:00 and later go back from 03:00 to 02:00.
    QTest::newRow("second after 01:59:59 when summer time begins") << berlin(2021, 3, 28, 1, 59, 59) + 1 << true
                                                                   << false << "03:00:00";
    QTest::newRow("first 02:30 when summer time ends") << qlonglong(1635640200) << true << false << "02:30:00";
    QTest::newRow("second 02:30 when summer time ends") << qlonglong(1635640200 + 3600) << true << false
                                                        << "02:30:00";
    QTest::newRow("second 02:30 in UTC") << qlonglong(1635640200 + 3600) << true << true << "01:30:00";
    QTest::newRow("past 2038") << berlin(2040, 6, 2, 23, 59, 59) << false << false << "11:59:59 PM";
}

void tst_QKXTimeWidget::showsTimeOfDay()
{
    QFETCH(qlonglong, value);
    QFETCH(bool, military);
    QFETCH(bool, utc);
    QFETCH(QString, text);

    QKXTimeWidget widget;
    QVERIFY(widget.setProperty("UseMilitaryTime", military));
    QVERIFY(widget.setProperty("TimeMode", utc ? QKXTimeWidget::UTC : QKXTimeWidget::LOCALE));
    widget.setValue(value);
    QCOMPARE(widget.findChild<QLineEdit *>()->text(), text);
    QCOMPARE(widget.property("Value").toLongLong(), value);
}

void tst_QKXTimeWidget::countOutsideRangeKeepsTime()
{
    QKXTimeWidget widget;
    widget.setObjectName(QStringLiteral("clock"));
    QVERIFY(widget.setProperty("UseMilitaryTime", true));
    const qlonglong good = berlin(2040, 6, 2, 23, 59, 59);
    widget.setValue(good);

    for (const qlonglong value : {qlonglong(-1), qlonglong(4294967296LL)}) {
        kxtest::DebugLines lines;
        widget.setValue(value);
        QCOMPARE(lines.lines(), QStringList(QStringLiteral("UserInterface - QKXTimeWidget \"clock\": value %1"
                                                           " is not a count of seconds from 0 to 4294967295 - display kept")
                                                .arg(value)));
        QCOMPARE(widget.property("Value").toLongLong(), good);
        QCOMPARE(widget.findChild<QLineEdit *>()->text(), QStringLiteral("23:59:59"));
    }
}

QTEST_MAIN(tst_QKXTimeWidget)
#include "tst_QKXTimeWidget.moc"
