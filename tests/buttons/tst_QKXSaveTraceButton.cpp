// SPDX-License-Identifier: BSD-3-Clause
#define QTEST_QPA_MOUSE_HANDLING

#include "ButtonTestSupport.h"
#include "QKXPushButtonEventFilter.h"
#include "QKXSaveTraceButton.h"

using namespace kxtest;

class tst_QKXSaveTraceButton : public QObject
{
    Q_OBJECT

private slots:
    void iconKeySendsTheCommand();
};

void tst_QKXSaveTraceButton::iconKeySendsTheCommand()
{
    QWidget screen;
    screen.resize(100, 100);
    auto *b = new QKXSaveTraceButton(&screen);
    b->move(10, 10);
    auto *filter = new QKXPushButtonEventFilter(b);
    b->installEventFilter(filter);

    // The sheet names the application's icon, byte for byte, in both sizes; no lock mark, even when locked.
    const QString sheet = QStringLiteral(
        "QPushButton { background-color: transparent; border: none; image: url(:/images/svg/saveTrace.svg)}");
    QCOMPARE(b->styleSheet(), sheet);
    b->changeSize(QStringLiteral("Max"));
    QCOMPARE(b->styleSheet(), sheet);
    auto *inner = b->findChild<QPushButton *>(QStringLiteral("PushButton"));
    b->setLocked(true);
    QVERIFY(inner->findChild<QLabel *>()->isHidden());
    QCOMPARE(b->styleSheet(), sheet);
    b->setLocked(false);

    // The icon is the whole key, at its own size.
    QVERIFY(exposed(screen));
    QCOMPARE(b->size(), QSize(32, 32));
    QStringList log;
    QObject::connect(b, &QKXPushButton::clicked, [&log] { log << QStringLiteral("clicked"); });
    QObject::connect(filter, &QKXPushButtonEventFilter::submit, [&log] { log << QStringLiteral("submit"); });
    watchLock(filter, b, log, Grant);
    QTest::mouseClick(inner, Qt::LeftButton);
    QCOMPARE(log, (QStringList{"request", "submit", "release", "clicked"}));
}

QTEST_MAIN(tst_QKXSaveTraceButton)
#include "tst_QKXSaveTraceButton.moc"
