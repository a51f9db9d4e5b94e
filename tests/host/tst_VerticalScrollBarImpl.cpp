// SPDX-License-Identifier: BSD-3-Clause
// Mouse events travel through the window system, as a finger on the panel does.
#define QTEST_QPA_MOUSE_HANDLING
#include "VerticalScrollBarImpl.h"

#include <QTextEdit>
#include <QtTest>

using Norvane::gui::VerticalScrollBarImpl;

class tst_VerticalScrollBarImpl : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFingerMovesTheView();
    void aLogKeepsItsNewestLineInView();
};

void tst_VerticalScrollBarImpl::aFingerMovesTheView()
{
    QTextEdit view;
    view.resize(300, 200);
    auto *bar = new VerticalScrollBarImpl(&view);
    view.setVerticalScrollBar(bar);
    view.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    for (int i = 0; i < 200; ++i)
        view.append(QStringLiteral("line %1").arg(i));
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QTRY_VERIFY(bar->maximum() > 0);
    QCOMPARE(bar->orientation(), Qt::Vertical);
    // As wide as a finger, whatever the view's style would make it.
    QCOMPARE(bar->width(), VerticalScrollBarImpl::BarWidth);

    // The handle, at the bottom, follows a finger dragged to the top.
    bar->setValue(bar->maximum());
    const QPoint handle(bar->width() / 2, bar->height() - 25);
    QTest::mousePress(bar, Qt::LeftButton, Qt::NoModifier, handle);
    for (int y = handle.y(); y >= -20; y -= 20)
        QTest::mouseMove(bar, QPoint(handle.x(), y));
    QTest::mouseRelease(bar, Qt::LeftButton, Qt::NoModifier, QPoint(handle.x(), -20));
    QCOMPARE(bar->value(), 0);
    QCOMPARE(bar->focusPolicy(), Qt::NoFocus);

    // A tap on the groove below the handle moves by a page.
    QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, QPoint(bar->width() / 2, bar->height() - 10));
    QCOMPARE(bar->value(), bar->pageStep());
}

void tst_VerticalScrollBarImpl::aLogKeepsItsNewestLineInView()
{
    QTextEdit log;
    log.setReadOnly(true);
    log.resize(300, 200);
    auto *bar = new VerticalScrollBarImpl(&log);
    log.setVerticalScrollBar(bar);
    log.show();
    QVERIFY(QTest::qWaitForWindowExposed(&log));
    // Lines arrive while the log is out of sight, and it comes back smaller.
    log.hide();
    for (int i = 0; i < 300; ++i)
        log.append(QStringLiteral("event %1").arg(i));
    log.resize(300, 120);
    log.show();
    QVERIFY(QTest::qWaitForWindowExposed(&log));
    QTRY_VERIFY(bar->maximum() > 0);
    QTRY_COMPARE(bar->value(), bar->maximum());

    // Scrolled back to read, the reader is left where they are.
    bar->setValue(bar->maximum() / 2);
    const int reading = bar->value();
    for (int i = 0; i < 50; ++i)
        log.append(QStringLiteral("later %1").arg(i));
    log.resize(300, 160);
    QTest::qWait(20);
    QCOMPARE(bar->value(), reading);
}

QTEST_MAIN(tst_VerticalScrollBarImpl)
#include "tst_VerticalScrollBarImpl.moc"
