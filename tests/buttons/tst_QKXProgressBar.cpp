// SPDX-License-Identifier: BSD-3-Clause
#include <QFrame>
#include <QProgressBar>
#include <QVBoxLayout>

#include <limits>

#include "ButtonTestSupport.h"
#include "CSS.h"
#include "QKXProgressBar.h"

using namespace kxtest;

class tst_QKXProgressBar : public QObject
{
    Q_OBJECT

private slots:
    void values_data();
    void values();
    void sheetsAndSizes();
};

void tst_QKXProgressBar::values_data()
{
    QTest::addColumn<QVariant>("value");   // an int goes through the property, a double through setValue(double)
    QTest::addColumn<int>("stored");
    QTest::addColumn<int>("shown");        // the bar starts at 40
    QTest::addColumn<QString>("line");

    // The percentage is the quotient times 100, truncated: some whole numbers lose one.
    QTest::newRow("0") << QVariant(0) << 0 << 0 << "";
    QTest::newRow("29") << QVariant(29) << 29 << 28 << "";
    QTest::newRow("100") << QVariant(100) << 100 << 100 << "";
    const QString line = QStringLiteral("UserInterface - QKXProgressBar::setValue : ");
    QTest::newRow("101") << QVariant(101) << 101 << 40 << line + "101 lies outside 0 to 100; the bar keeps 40.";
    QTest::newRow("-1") << QVariant(-1) << -1 << 40 << line + "-1 lies outside 0 to 100; the bar keeps 40.";
    QTest::newRow("NaN") << QVariant(std::numeric_limits<double>::quiet_NaN()) << 40 << 40
                         << line + "nan is no progress value; the bar keeps 40.";
    QTest::newRow("beyond int") << QVariant(3e9) << 40 << 40 << line + "3e+09 is no progress value; the bar keeps 40.";
    QTest::newRow("fraction") << QVariant(72.9) << 72 << 72 << "";
    QTest::newRow("small negative fraction") << QVariant(-0.5) << 0 << 0 << "";
}

void tst_QKXProgressBar::values()
{
    QFETCH(QVariant, value);
    QFETCH(int, stored);
    QFETCH(int, shown);
    QFETCH(QString, line);
    DebugLines debug;
    QKXProgressBar p;
    p.setValue(40);
    if (value.userType() == QMetaType::Double)
        p.setValue(value.toDouble());
    else
        QVERIFY(p.setProperty("Value", value));
    QCOMPARE(p.value(), stored);
    QCOMPARE(p.findChild<QProgressBar *>()->value(), shown);
    QCOMPARE(DebugLines::lines(), line.isEmpty() ? QStringList() : QStringList{line});
}

void tst_QKXProgressBar::sheetsAndSizes()
{
    QWidget screen;
    auto *layout = new QVBoxLayout(&screen);
    auto *p = new QKXProgressBar(&screen);
    layout->addWidget(p);
    layout->addStretch(1);
    screen.resize(300, 200);
    p->setLabelText(QStringLiteral("Sweep"));
    const QString chunk = QStringLiteral("QProgressBar::chunk { background-color: qlineargradient(x1:0, y1:0, x2:0, y2:1, "
                                         "stop:0 %1, stop:0.5 %2, stop:1 %1); border-radius: 7px }")
                              .arg(CSS::gradientDark().simplified(), CSS::gradientMiddle().simplified());
    const auto sheet = [&](int captionFont, int height, int padding, int barFont) {
        return QStringList{
            QStringLiteral("QLabel#Label { font-size: %1px; padding: 4px 5px 0px 8px; margin: 0px; border: none; "
                           "color: #fff; min-height: 12px }").arg(captionFont),
            QStringLiteral("QFrame { background: transparent; border: 2px solid %1; border-radius: 10px; "
                           "min-height: %2px; max-height: %2px }").arg(CSS::border().simplified()).arg(height),
            chunk,
            QStringLiteral("QProgressBar { padding: %1px; background: rgba(0,0,0,125); border: none; "
                           "text-align: center; border-radius: 8px; font-size: %2px; color: #fff }")
                .arg(padding).arg(barFont),
        };
    };
    // The heights hold inside the frame's 2-pixel border once laid out on a shown screen.
    auto *frame = qobject_cast<QFrame *>(p->findChild<QProgressBar *>()->parentWidget());
    QCOMPARE(describeSheet(p->styleSheet()), sheet(12, 26, 1, 12));
    QVERIFY(exposed(screen));
    QCOMPARE(frame->contentsRect().height(), 26);
    p->changeSize(QStringLiteral("Max"));
    QTRY_COMPARE(frame->height(), 36);
    QCOMPARE(frame->contentsRect().height(), 32);
    // No locked or read-only look.
    const QString max = p->styleSheet();
    p->setLocked(true);
    p->setReadOnly(true);
    QCOMPARE(p->styleSheet(), max);
}

QTEST_MAIN(tst_QKXProgressBar)
#include "tst_QKXProgressBar.moc"
