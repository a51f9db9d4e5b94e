// SPDX-License-Identifier: BSD-3-Clause
#include "CSS.h"
#include "ContainerImpl.h"
#include "KXTestSupport.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QtTest>

namespace {

// A real press, move and release delivered through the window, as the touch screen sends them.
void drag(QWidget *window, QPoint from, QPoint to)
{
    QWindow *handle = window->windowHandle();
    QTest::mousePress(handle, Qt::LeftButton, Qt::NoModifier, from);
    QTest::mouseMove(handle, (from + to) / 2);
    QTest::mouseMove(handle, to);
    QTest::mouseRelease(handle, Qt::LeftButton, Qt::NoModifier, to);
}

// The rule of the frame itself; the same sheet also styles the title bar inside it.
QString borderFrameRule(const ContainerImpl &popup)
{
    const QString sheet = popup.borderFrame()->styleSheet();
    const int start = sheet.indexOf(QLatin1String("QFrame#BorderFrame"));
    return start < 0 ? QString() : sheet.mid(start, sheet.indexOf(QLatin1Char('}'), start) - start);
}

} // namespace

class tst_ContainerImpl : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void showPlacesPopup();
    void dragKeepsInsideParent();
    void borderAndCloseKey();

private:
    QScopedPointer<QWidget> window;
    QWidget *screen = nullptr;
    QPoint origin; // the screen's top-left corner in window coordinates
};

void tst_ContainerImpl::init()
{
    // The screen sits off the window's origin, so parent and window coordinates differ.
    window.reset(new QWidget);
    window->resize(500, 400);
    screen = new QWidget(window.data());
    screen->setGeometry(20, 30, 400, 300);
    origin = screen->pos();
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.data()));
}

void tst_ContainerImpl::showPlacesPopup()
{
    // Built before its screen is shown, a popup must still not open with it.
    QWidget other;
    ContainerImpl early(&other);
    other.show();
    QVERIFY(!early.isVisible());

    ContainerImpl popup(screen);
    QStringList events;
    connect(&popup, &ContainerBase::WindowOpened, [&] { events << QStringLiteral("opened"); });
    connect(&popup, &ContainerBase::WindowClosed, [&] { events << QStringLiteral("closed"); });
    popup.resize(50, 60);
    popup.show();
    popup.show(); // already open: no second announcement
    QCOMPARE(popup.size(), QSize(50, 60)); // no normal size: left alone
    popup.hide();
    popup.setNormalSize(260, 200);
    QCOMPARE(popup.sizeHint(), QSize(260, 200));
    popup.resize(100, 100);
    popup.move(30, 40);
    // A field created after the popup must not cover it.
    auto *later = new QLabel(QStringLiteral("field"), screen);
    later->setGeometry(0, 0, 400, 300);
    later->show();
    popup.show();
    QCOMPARE(popup.size(), QSize(260, 200));
    QCOMPARE(popup.mapTo(window.data(), QPoint(0, 0)), origin + QPoint(30, 40));
    QWidget *top = screen->childAt(50, 60);
    QVERIFY(top == &popup || popup.isAncestorOf(top));
    popup.hide();
    QCOMPARE(events, (QStringList{"opened", "closed", "opened", "closed"}));
}

void tst_ContainerImpl::dragKeepsInsideParent()
{
    ContainerImpl popup(screen);
    popup.setWindowTitle(QStringLiteral("Spinner"));
    auto *row = new QHBoxLayout;
    auto *key = new QPushButton(QStringLiteral("7"));
    key->setMinimumSize(60, 50);
    row->addWidget(key);
    popup.setLayout(row, true);
    popup.setNormalSize(100, 80);
    popup.move(50, 50);
    popup.show();

    // Presses on the title text fall through to the container, which drags, never out of its parent.
    drag(window.data(), origin + QPoint(60, 60), origin + QPoint(90, 100));
    QCOMPARE(popup.pos(), QPoint(80, 90));
    drag(window.data(), origin + QPoint(90, 100), origin + QPoint(470, 360));
    QCOMPARE(popup.pos(), QPoint(300, 220));
    drag(window.data(), origin + QPoint(310, 230), origin + QPoint(-15, -25));
    QCOMPARE(popup.pos(), QPoint(0, 0));

    // A press on a key is the key's; a container that is not draggable stays put.
    const QPoint onKey = key->mapTo(window.data(), key->rect().center());
    drag(window.data(), onKey, onKey + QPoint(40, 40));
    QCOMPARE(popup.pos(), QPoint(0, 0));
    popup.setDraggable(false);
    drag(window.data(), origin + QPoint(10, 10), origin + QPoint(80, 80));
    QCOMPARE(popup.pos(), QPoint(0, 0));
}

void tst_ContainerImpl::borderAndCloseKey()
{
    // The sheet reaches the frame and the title bar by their names; restyling after a palette change
    // keeps the border choice.
    ContainerImpl popup(screen);
    QCOMPARE(popup.borderFrame()->objectName(), QStringLiteral("BorderFrame"));
    QCOMPARE(popup.controlWidget()->objectName(), QStringLiteral("ContainerControl"));
    QVERIFY(borderFrameRule(popup).contains(CSS::border()));
    popup.setBorder(false);
    popup.updateStyle();
    QVERIFY(borderFrameRule(popup).contains(QLatin1String("border: none")));
    popup.setBorder(true);
    QVERIFY(borderFrameRule(popup).contains(CSS::border()));
    QVERIFY(!borderFrameRule(popup).contains(QLatin1String("border: none")));
    // An editor that draws its whole panel makes the frame transparent; the container leaves that be.
    const QString transparent = QStringLiteral("QFrame#BorderFrame { background-color: transparent; border: none; }");
    popup.borderFrame()->setStyleSheet(transparent);
    popup.setBorder(false);
    popup.updateStyle();
    QCOMPARE(popup.borderFrame()->styleSheet(), transparent);

    auto *key = popup.findChild<QPushButton *>(QStringLiteral("ContainerClose"));
    popup.setWindowTitle(QStringLiteral("Keyboard"), ContainerBase::CloseButton);
    QCOMPARE(popup.findChild<QLabel *>(QStringLiteral("ContainerTitle"))->text(), QStringLiteral("Keyboard"));
    popup.show();
    QVERIFY(key && key->isVisible());
    kxtest::WordTranslator german("Close", "Schließen");
    QCoreApplication::installTranslator(&german);
    QTRY_COMPARE(key->text(), QStringLiteral("Schließen"));
    QCoreApplication::removeTranslator(&german);
    QTRY_COMPARE(key->text(), QStringLiteral("Close"));
    popup.setWindowTitle(QStringLiteral("Keyboard"), ContainerBase::NoTitleButtons);
    popup.show();
    QVERIFY(!key->isVisible());
}

QTEST_MAIN(tst_ContainerImpl)
#include "tst_ContainerImpl.moc"
