#include <QtTest>

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
    void arithmetic_data();
    void arithmetic();
    void outOfRange_data();
    void outOfRange();
    void styleSheets();
    void sizes_data();
    void sizes();
};

void tst_QKXProgressBar::arithmetic_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("shown");

    // The percentage is the quotient times 100, truncated: some whole numbers lose one.
    const QList<QPair<int, int>> cases{{0, 0}, {1, 1}, {28, 28}, {29, 28}, {57, 56}, {58, 57}, {99, 99}, {100, 100}};
    for (const auto &c : cases)
        QTest::addRow("%d", c.first) << c.first << c.second;
}

void tst_QKXProgressBar::arithmetic()
{
    QFETCH(int, value);
    QFETCH(int, shown);

    QKXProgressBar p;
    QVERIFY(p.setProperty("Value", value));
    QCOMPARE(p.findChild<QProgressBar *>()->value(), shown);
    QCOMPARE(p.value(), value);
}

void tst_QKXProgressBar::outOfRange_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("stored");
    QTest::addColumn<QString>("line");

    QTest::newRow("101") << QVariant(101) << 101
                         << "UserInterface - QKXProgressBar::setValue : 101 lies outside 0 to 100; the bar keeps 40.";
    QTest::newRow("-1") << QVariant(-1) << -1
                        << "UserInterface - QKXProgressBar::setValue : -1 lies outside 0 to 100; the bar keeps 40.";
    QTest::newRow("NaN") << QVariant(std::numeric_limits<double>::quiet_NaN()) << 40
                         << "UserInterface - QKXProgressBar::setValue : nan is no progress value; the bar keeps 40.";
    QTest::newRow("infinity") << QVariant(std::numeric_limits<double>::infinity()) << 40
                              << "UserInterface - QKXProgressBar::setValue : inf is no progress value; the bar keeps 40.";
    QTest::newRow("beyond int") << QVariant(3e9) << 40
                                << "UserInterface - QKXProgressBar::setValue : 3e+09 is no progress value; the bar keeps 40.";
    QTest::newRow("fraction") << QVariant(72.9) << 72 << "";
    QTest::newRow("small negative fraction") << QVariant(-0.5) << 0 << "";
}

void tst_QKXProgressBar::outOfRange()
{
    QFETCH(QVariant, value);
    QFETCH(int, stored);
    QFETCH(QString, line);

    DebugLines debug;
    QKXProgressBar p;
    auto *bar = p.findChild<QProgressBar *>();
    p.setValue(40);
    if (value.userType() == QMetaType::Double)
        p.setValue(value.toDouble());
    else
        p.setValue(value.toInt());
    QCOMPARE(p.value(), stored);
    QCOMPARE(bar->value(), line.isEmpty() ? stored : 40);
    QCOMPARE(DebugLines::lines(), line.isEmpty() ? QStringList() : QStringList{line});
}

void tst_QKXProgressBar::styleSheets()
{
    QKXProgressBar p;
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
    QCOMPARE(describeSheet(p.styleSheet()), sheet(12, 26, 1, 12));
    p.changeSize(QStringLiteral("Max"));
    QCOMPARE(describeSheet(p.styleSheet()), sheet(16, 32, 2, 14));
    // No locked or read-only look.
    const QString max = p.styleSheet();
    p.setLocked(true);
    p.setReadOnly(true);
    QCOMPARE(p.styleSheet(), max);
}

void tst_QKXProgressBar::sizes_data()
{
    QTest::addColumn<QVariant>("displayMode");
    QTest::addColumn<QString>("request");
    QTest::addColumn<int>("height");

    QTest::newRow("Min") << QVariant() << "Min" << 26;
    QTest::newRow("Max") << QVariant() << "Max" << 32;
    QTest::newRow("Max in portrait") << QVariant(QStringLiteral("portrait")) << "Max" << 32;
    QTest::newRow("Max in landscape") << QVariant(QStringLiteral("landscape")) << "Max" << 26;
    QTest::newRow("Max in small portrait") << QVariant(QStringLiteral("small_portrait")) << "Max" << 26;
}

void tst_QKXProgressBar::sizes()
{
    QFETCH(QVariant, displayMode);
    QFETCH(QString, request);
    QFETCH(int, height);

    qApp->setProperty("-size", displayMode);
    QWidget screen;
    auto *layout = new QVBoxLayout(&screen);
    auto *p = new QKXProgressBar(&screen);
    layout->addWidget(p);
    layout->addStretch(1);
    screen.resize(300, 200);
    p->setLabelText(QStringLiteral("Sweep"));
    p->changeSize(request);
    QVERIFY(exposed(screen));
    qApp->setProperty("-size", QVariant());

    // The height inside the frame's 2-pixel border.
    auto *frame = qobject_cast<QFrame *>(p->findChild<QProgressBar *>()->parentWidget());
    QCOMPARE(frame->contentsRect().height(), height);
    QCOMPARE(frame->height(), height + 4);
}

QTEST_MAIN(tst_QKXProgressBar)
#include "tst_QKXProgressBar.moc"
