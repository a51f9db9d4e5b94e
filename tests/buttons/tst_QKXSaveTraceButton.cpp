// Mouse events travel through the window system, as a finger on the panel does.
#define QTEST_QPA_MOUSE_HANDLING
#include <QtTest>

#include <QLabel>
#include <QPushButton>

#include "ButtonTestSupport.h"
#include "QKXPushButtonEventFilter.h"
#include "QKXSaveTraceButton.h"

using namespace kxtest;

class tst_QKXSaveTraceButton : public QObject
{
    Q_OBJECT

private slots:
    void iconButton();
    void tapSendsTheCommand();
};

void tst_QKXSaveTraceButton::iconButton()
{
    QKXSaveTraceButton b;
    // The sheet names the application's icon, byte for byte, in both sizes.
    const QString sheet = QStringLiteral(
        "QPushButton { background-color: transparent; border: none; image: url(:/images/svg/saveTrace.svg)}");
    QCOMPARE(b.styleSheet(), sheet);
    b.changeSize(QStringLiteral("Max"));
    QCOMPARE(b.styleSheet(), sheet);

    // No lock mark, even when locked.
    auto *lock = b.findChild<QPushButton *>(QStringLiteral("PushButton"))->findChild<QLabel *>();
    QVERIFY(lock);
    b.setLocked(true);
    QVERIFY(lock->isHidden());
    QCOMPARE(b.styleSheet(), sheet);
}

void tst_QKXSaveTraceButton::tapSendsTheCommand()
{
    QWidget screen;
    screen.resize(100, 100);
    auto *b = new QKXSaveTraceButton(&screen);
    b->move(10, 10);
    auto *filter = new QKXPushButtonEventFilter(b);
    b->installEventFilter(filter);
    QVERIFY(exposed(screen));
    // The icon is the whole key, at its own size.
    QCOMPARE(b->size(), QSize(32, 32));

    QStringList log;
    QObject::connect(b, &QKXPushButton::clicked, [&log] { log << QStringLiteral("clicked"); });
    QObject::connect(filter, &QKXPushButtonEventFilter::submit, [&log] { log << QStringLiteral("submit"); });
    watchLock(filter, b, log, Grant);
    QTest::mouseClick(b->findChild<QPushButton *>(), Qt::LeftButton);
    QCOMPARE(log, (QStringList{"request", "submit", "release", "clicked"}));
}

QTEST_MAIN(tst_QKXSaveTraceButton)
#include "tst_QKXSaveTraceButton.moc"
