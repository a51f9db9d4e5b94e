// SPDX-License-Identifier: BSD-3-Clause
#include <QtTest>

#include <QLineEdit>

#include "DateTimeTestSupport.h"

#include "QKXDateWidget.h"

using kxtest::berlin;

class tst_QKXDateWidget : public QObject
{
    Q_OBJECT

private slots:
    void showsLocalDateInEachFormat_data();
    void showsLocalDateInEachFormat();
    void countOutsideRangeKeepsDate_data();
    void countOutsideRangeKeepsDate();
};

void tst_QKXDateWidget::showsLocalDateInEachFormat_data()
{
    QTest::addColumn<qlonglong>("value");
    QTest::addColumn<int>("format");
    QTest::addColumn<QString>("text");

    const qlonglong march5 = berlin(2012, 3, 5);
    QTest::newRow("MMM d, yyyy") << march5 << 2 << "Mar 5, 2012";
    QTest::newRow("MM dd, yyyy") << march5 << 0 << "03 05, 2012";
    QTest::newRow("dd MM yyyy") << march5 << 1 << "05 03 2012";
    QTest::newRow("unknown format reads as the first") << march5 << 7 << "03 05, 2012";
    // Still 4 March in UTC: the local date is shown.
    QTest::newRow("local, not UTC") << berlin(2012, 3, 5, 0, 30) << 2 << "Mar 5, 2012";
    QTest::newRow("past 2038") << berlin(2040, 6, 2) << 2 << "Jun 2, 2040";
    QTest::newRow("first second") << qlonglong(0) << 1 << "01 01 1970";
    QTest::newRow("last second") << qlonglong(4294967295LL) << 2 << "Feb 7, 2106";
}

void tst_QKXDateWidget::showsLocalDateInEachFormat()
{
    QFETCH(qlonglong, value);
    QFETCH(int, format);
    QFETCH(QString, text);

    QKXDateWidget widget;
    widget.setDisplayFormat(QKXDateWidget::DisplayDateFormat(format));
    widget.setValue(value);
    QCOMPARE(widget.findChild<QLineEdit *>()->text(), text);
    QCOMPARE(widget.property("Value").toLongLong(), value);
}

void tst_QKXDateWidget::countOutsideRangeKeepsDate_data()
{
    QTest::addColumn<qlonglong>("value");

    QTest::newRow("one before 1970") << qlonglong(-1);
    QTest::newRow("one past 2106") << qlonglong(4294967296LL);
    QTest::newRow("smallest") << std::numeric_limits<qlonglong>::min();
}

void tst_QKXDateWidget::countOutsideRangeKeepsDate()
{
    QFETCH(qlonglong, value);

    QKXDateWidget widget;
    widget.setObjectName(QStringLiteral("calibrationDate"));
    widget.setDisplayFormat(QKXDateWidget::MMM_d_YYYY);
    const qlonglong good = berlin(2040, 6, 2);
    widget.setValue(good);

    kxtest::DebugLines lines;
    widget.setValue(value);
    QCOMPARE(lines.lines(), QStringList(QStringLiteral("UserInterface - QKXDateWidget \"calibrationDate\": value %1"
                                                       " is not a count of seconds from 0 to 4294967295 - display kept")
                                            .arg(value)));
    QCOMPARE(widget.value(), good);
    QCOMPARE(widget.findChild<QLineEdit *>()->text(), QStringLiteral("Jun 2, 2040"));
}

QTEST_MAIN(tst_QKXDateWidget)
#include "tst_QKXDateWidget.moc"
