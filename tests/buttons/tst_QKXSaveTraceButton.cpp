// Mouse events travel through the window system, as a finger on the panel does.
#define QTEST_QPA_MOUSE_HANDLING
#include <QtTest>

#include <QLabel>
#include <QPushButton>

#include "QKXPushButtonEventFilter.h"
#include "QKXSaveTraceButton.h"

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
    QCOMPARE(b.sizeHint(), QSize(32, 32));
    QCOMPARE(b.minimumSizeHint(), QSize(32, 32));
    QCOMPARE(b.minimumSize(), QSize(32, 32));
    QCOMPARE(b.sizePolicy().horizontalPolicy(), QSizePolicy::Minimum);
    QCOMPARE(b.sizePolicy().verticalPolicy(), QSizePolicy::Minimum);
    auto *inner = b.findChild<QPushButton *>(QStringLiteral("PushButton"));
    QVERIFY(inner);
    QCOMPARE(inner->sizePolicy().horizontalPolicy(), QSizePolicy::Minimum);
    QCOMPARE(inner->sizePolicy().verticalPolicy(), QSizePolicy::Minimum);
    // The sheet names the application's icon, byte for byte, in both sizes.
    const QString sheet = QStringLiteral(
        "QPushButton { background-color: transparent; border: none; image: url(:/images/svg/saveTrace.svg)}");
    QCOMPARE(b.styleSheet(), sheet);
    b.changeSize(QStringLiteral("Max"));
    QCOMPARE(b.styleSheet(), sheet);

    // No lock mark, even when locked.
    auto *lock = inner->findChild<QLabel *>();
    QVERIFY(lock);
    QVERIFY(lock->isHidden());
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
    screen.show();
    QVERIFY(QTest::qWaitForWindowExposed(&screen));
    QCOMPARE(b->size(), QSize(32, 32));

    QStringList log;
    QObject::connect(b, &QKXPushButton::clicked, [&log] { log << QStringLiteral("clicked"); });
    QObject::connect(filter, &QKXPushButtonEventFilter::submit, [&log] { log << QStringLiteral("submit"); });
    QObject::connect(filter, &QKXEventFilterBase::attemptSetLock, [&](QWidget *w, bool locked) {
        log << (locked ? "request" : "release");
        if (locked)
            filter->lockAcquired(w);
    });
    QTest::mouseClick(b->findChild<QPushButton *>(), Qt::LeftButton);
    QCOMPARE(log, (QStringList{"request", "submit", "release", "clicked"}));
}

QTEST_MAIN(tst_QKXSaveTraceButton)
#include "tst_QKXSaveTraceButton.moc"
