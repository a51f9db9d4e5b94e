// SPDX-License-Identifier: BSD-3-Clause
// Mouse events travel through the window system, as a finger on the panel does.
#define QTEST_QPA_MOUSE_HANDLING
#include <QtTest>

#include <QKeyEvent>

#include "QKXEventFilterBase.h"
#include "QKXWidgetBase.h"

namespace {

class TapFilter : public QKXEventFilterBase
{
public:
    using QKXEventFilterBase::QKXEventFilterBase;
    void lockAcquired(QWidget *) override {}
};

class KeyCountingWidget : public QKXWidgetBase
{
public:
    using QKXWidgetBase::QKXWidgetBase;
    int keys = 0;

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        ++keys;
        event->accept();
    }
};

// A 200 x 100 widget inside a larger screen, so that releases just outside it still reach it.
struct Stage
{
    Stage()
    {
        screen.resize(400, 300);
        widget = new KeyCountingWidget(&screen);
        widget->setGeometry(50, 50, 200, 100);
        filter = new TapFilter(widget);
        widget->installEventFilter(filter);
        screen.show();
    }

    // Press at `press`, drag along `path` and release at its last point (or at the press point).
    void gesture(QPoint press, const QList<QPoint> &path = {})
    {
        QTest::mousePress(widget, Qt::LeftButton, Qt::NoModifier, press);
        for (const QPoint &p : path)
            QTest::mouseMove(widget, p);
        QTest::mouseRelease(widget, Qt::LeftButton, Qt::NoModifier, path.isEmpty() ? press : path.last());
    }
    void tap() { gesture(QPoint(100, 50)); }

    QWidget screen;
    KeyCountingWidget *widget;
    TapFilter *filter;
};

// The requests among the recorded attemptSetLock emissions, checked to name the filter's widget.
int lockRequests(const QSignalSpy &spy, QWidget *widget)
{
    int n = 0;
    for (const QList<QVariant> &args : spy) {
        if (args.at(0).value<QWidget *>() == widget && args.at(1).toBool())
            ++n;
    }
    return n;
}

} // namespace

class tst_QKXEventFilterBase : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void dragThreshold_data();
    void dragThreshold();
    void newPressClearsDrag();
    void readOnly_data();
    void readOnly();
    void guiLock_data();
    void guiLock();
    void forceClickNeedsWidgetParent();
};

void tst_QKXEventFilterBase::cleanup()
{
    qApp->setProperty("guilocked", QVariant());
}

void tst_QKXEventFilterBase::dragThreshold_data()
{
    QTest::addColumn<QPoint>("press");
    QTest::addColumn<QList<QPoint>>("path");
    QTest::addColumn<bool>("tap");

    const QPoint c(100, 50);
    QTest::newRow("still") << c << QList<QPoint>() << true;
    QTest::newRow("30 right") << c << QList<QPoint>{{130, 50}} << true;
    QTest::newRow("31 right") << c << QList<QPoint>{{131, 50}} << false;
    QTest::newRow("30 diagonal") << c << QList<QPoint>{{115, 65}} << true;
    QTest::newRow("31 diagonal") << c << QList<QPoint>{{116, 65}} << false;
    QTest::newRow("30 up-left") << c << QList<QPoint>{{80, 40}} << true;
    QTest::newRow("31 up-left") << c << QList<QPoint>{{80, 39}} << false;
    QTest::newRow("wander, never beyond 30") << c << QList<QPoint>{{125, 50}, {105, 50}} << true;
    QTest::newRow("out and back") << c << QList<QPoint>{{131, 50}, {100, 50}} << false;
    QTest::newRow("release on last column") << QPoint(190, 50) << QList<QPoint>{{199, 50}} << true;
    QTest::newRow("release right of widget") << QPoint(190, 50) << QList<QPoint>{{200, 50}} << false;
    QTest::newRow("release above widget") << QPoint(100, 5) << QList<QPoint>{{100, -1}} << false;
}

void tst_QKXEventFilterBase::dragThreshold()
{
    QFETCH(QPoint, press);
    QFETCH(QList<QPoint>, path);
    QFETCH(bool, tap);

    Stage s;
    QVERIFY(QTest::qWaitForWindowExposed(&s.screen));
    QSignalSpy lock(s.filter, &QKXEventFilterBase::attemptSetLock);
    QSignalSpy guiLocked(s.filter, &QKXEventFilterBase::showGuiLockedMessage);

    s.gesture(press, path);
    QCOMPARE(lock.count(), tap ? 1 : 0);
    QCOMPARE(lockRequests(lock, s.widget), tap ? 1 : 0);
    QCOMPARE(guiLocked.count(), 0);
}

void tst_QKXEventFilterBase::newPressClearsDrag()
{
    Stage s;
    QVERIFY(QTest::qWaitForWindowExposed(&s.screen));
    QSignalSpy lock(s.filter, &QKXEventFilterBase::attemptSetLock);

    s.gesture(QPoint(100, 50), {{140, 50}});
    QCOMPARE(lock.count(), 0);
    s.tap();
    QCOMPARE(lockRequests(lock, s.widget), 1);
}

void tst_QKXEventFilterBase::readOnly_data()
{
    QTest::addColumn<bool>("readOnly");
    QTest::newRow("editable") << false;
    QTest::newRow("read-only") << true;
}

void tst_QKXEventFilterBase::readOnly()
{
    QFETCH(bool, readOnly);

    Stage s;
    s.widget->setProperty("ReadOnly", readOnly);
    QVERIFY(QTest::qWaitForWindowExposed(&s.screen));
    QSignalSpy lock(s.filter, &QKXEventFilterBase::attemptSetLock);
    QSignalSpy end(s.filter, &QKXEventFilterBase::editEnd);

    QTest::keyClick(s.widget, Qt::Key_5);
    QCOMPARE(s.widget->keys, readOnly ? 1 : 0);    // an editable widget's keys belong to the filter

    s.tap();
    QCOMPARE(lock.count(), readOnly ? 0 : 1);

    s.widget->hide();
    QCOMPARE(end.count(), readOnly ? 0 : 1);
}

void tst_QKXEventFilterBase::guiLock_data()
{
    QTest::addColumn<QVariant>("guiLocked");
    QTest::addColumn<bool>("locked");

    QTest::newRow("absent") << QVariant() << false;
    QTest::newRow("false") << QVariant(false) << false;
    QTest::newRow("true") << QVariant(true) << true;
}

void tst_QKXEventFilterBase::guiLock()
{
    QFETCH(QVariant, guiLocked);
    QFETCH(bool, locked);

    Stage s;
    QVERIFY(QTest::qWaitForWindowExposed(&s.screen));
    qApp->setProperty("guilocked", guiLocked);
    QSignalSpy lock(s.filter, &QKXEventFilterBase::attemptSetLock);
    QSignalSpy message(s.filter, &QKXEventFilterBase::showGuiLockedMessage);

    s.tap();
    QCOMPARE(lock.count(), locked ? 0 : 1);
    QCOMPARE(message.count(), locked ? 1 : 0);

    // The host's forced click skips the lock test.
    QVERIFY(QMetaObject::invokeMethod(s.filter, "forceClick"));
    QCOMPARE(lockRequests(lock, s.widget), locked ? 1 : 2);
    QCOMPARE(lock.count(), locked ? 1 : 2);
    QCOMPARE(message.count(), locked ? 1 : 0);
}

void tst_QKXEventFilterBase::forceClickNeedsWidgetParent()
{
    QObject owner;
    TapFilter filter(&owner);
    QSignalSpy lock(&filter, &QKXEventFilterBase::attemptSetLock);
    filter.forceClick();
    QCOMPARE(lock.count(), 0);
}

QTEST_MAIN(tst_QKXEventFilterBase)
#include "tst_QKXEventFilterBase.moc"
