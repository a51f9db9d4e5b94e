// Mouse events travel through the window system, as a finger on the panel does.
#define QTEST_QPA_MOUSE_HANDLING
#include <QtTest>

#include <QButtonGroup>
#include <QLabel>

#include "../common/EnumTestSupport.h"
#include "CSS.h"
#include "QKXComboEventFilter.h"
#include "QKXComboListItem.h"
#include "QKXComboWheel.h"
#include "QKXUtil.h"
#include "QKXWheelEnum.h"
#include "QKXWheelFrame.h"

using kxtest::record;

namespace {

struct Stage
{
    explicit Stage(const QRect &wheelRect = QRect(100, 60, 160, 60), int screenWidth = 800)
    {
        screen.resize(screenWidth, 480);
        wheel = new QKXWheelEnum(&screen);
        wheel->setGeometry(wheelRect);
        filter = new QKXComboEventFilter(wheel);
        wheel->installEventFilter(filter);
        popup = new QKXComboWheel(&screen);
        screen.show();
    }
    bool ready()
    {
        return QTest::qWaitForWindowExposed(&screen) && QTest::qWaitFor([this] { return filter->isMachineStarted(); });
    }
    QLabel *field() const { return wheel->findChild<QLabel *>(QStringLiteral("ComboText")); }
    int fieldTop() const { return field()->mapTo(const_cast<QWidget *>(&screen), QPoint()).y(); }
    QKXWheelFrame *frame() const { return popup->wheelFrame(); }
    int columnTop() const { return frame()->column()->y(); }
    QKXComboListItem *item(int row) const { return popup->shownItems().value(row); }
    QPoint centreOf(QWidget *w) const { return w->mapTo(const_cast<QWidget *>(&screen), w->rect().center()); }
    void open(int current)
    {
        wheel->setIndex(current);
        popup->registerWidget(filter, wheel);
    }

    QWidget screen;
    QKXWheelEnum *wheel;
    QKXComboEventFilter *filter;
    QKXComboWheel *popup;
};

QStringList traces(const QList<int> &numbers)
{
    QStringList lines{"moveIt 1", "moveIt 2", "moveIt 3", "moveIt 5"};
    for (int n : numbers)
        lines << QStringLiteral("moveIt %1").arg(n);
    return lines;
}

} // namespace

class tst_QKXComboWheel : public QObject
{
    Q_OBJECT

private slots:
    void looks();
    void itemsShowRecordLiterals();
    void placement_data();
    void placement();
    void turnLimits_data();
    void turnLimits();
    void flickRunsOnAndSettles();
    void slowDragSettlesOnNearestItem();
    void tapOnItemSubmitsEndToEnd();
    void tapsBesideTheColumn();
    void refusesPlainComboBox();
};

void tst_QKXComboWheel::looks()
{
    Stage s;
    s.wheel->setMetaData(kxtest::longRecord(3));
    s.open(10);
    QCOMPARE(s.popup->objectName(), QStringLiteral("cancelFrame"));
    QCOMPARE(s.popup->styleSheet(), QStringLiteral("QFrame#cancelFrame {\tbackground-color: transparent;}"));
    QCOMPARE(s.frame()->objectName(), QStringLiteral("wheelFrame"));
    QCOMPARE(s.frame()->column()->objectName(), QStringLiteral("listFrame"));
    QCOMPARE(s.frame()->column()->x(), 2);
    // The window's inside is 210 high; the band positions count from its outer corner.
    QCOMPARE(s.frame()->contentsRect().height(), 210);

    const QString expected = QStringLiteral(
        "QFrame#wheelFrame { min-width: 144px; min-height: 210 px; max-height: 210 px; color: transparent; "
        "border: 2px solid white; background-color: black; } "
        "QFrame#listFrame { border: 1px solid white; border-radius: 10px; min-width: 140px; margin: 0px; "
        "background-color: %1; } "
        "QPushButton#cbPushButton, QPushButton#lastPushButton { border: none; font-size: 26px; min-height: 42px; "
        "max-height: 42px; min-width: 60px; padding: 0px 0px 0px 9px; color: white; border-bottom: 1px dashed white; } "
        "QPushButton#lastPushButton { border-bottom: none; } "
        "QPushButton:pressed { color: #000; }").arg(CSS::accentRGBA());
    QCOMPARE(s.frame()->styleSheet().simplified(), expected);

    for (QKXComboListItem *item : s.popup->shownItems())
        QCOMPARE(item->height(), QKXComboListItem::RowPitch);
    // Item ids are the values themselves.
    QCOMPARE(s.popup->buttonGroup()->id(s.item(2)), 20);
}

void tst_QKXComboWheel::itemsShowRecordLiterals()
{
    kxtest::WordTranslator german("Off", "Aus");
    qApp->installTranslator(&german);
    Stage s;
    // The value 2 is listed twice: one item, where its last entry is, with that entry's literal.
    s.wheel->setMetaData(record({{3, "Off"}, {2, "Low"}, {1, "dBm^2"}, {2, "High"}}));
    s.open(2);
    QString processed = QStringLiteral("dBm^2");
    QKXUtil::processString(processed);

    QStringList shown;
    for (QKXComboListItem *item : s.popup->shownItems())
        shown << QStringLiteral("%1=%2").arg(s.popup->buttonGroup()->id(item)).arg(item->label()->text());
    QCOMPARE(shown, QStringList({"3=Off", QStringLiteral("1=") + processed, "2=High"}));
    QCOMPARE(s.item(2)->objectName(), QStringLiteral("lastPushButton"));
    QCOMPARE(s.field()->text(), QStringLiteral("High"));
    QCOMPARE(s.columnTop(), 81 - 2 * 42);
    qApp->removeTranslator(&german);
}

void tst_QKXComboWheel::placement_data()
{
    QTest::addColumn<QRect>("wheelRect");
    QTest::addColumn<int>("screenWidth");
    QTest::addColumn<int>("current");
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("width");
    QTest::addColumn<QString>("y");      // "field": level with the field's top; otherwise absolute
    QTest::addColumn<int>("columnTop");

    QTest::newRow("right, current in row 3") << QRect(100, 60, 160, 60) << 800 << 30 << 260 << 148 << "field" << 81 - 126;
    QTest::newRow("first row") << QRect(100, 60, 160, 60) << 800 << 0 << 260 << 148 << "field" << 81;
    QTest::newRow("last row") << QRect(100, 60, 160, 60) << 800 << 70 << 260 << 148 << "field" << 81 - 294;
    QTest::newRow("value not on the wheel") << QRect(100, 60, 160, 60) << 800 << 5 << 260 << 148 << "field" << 81;
    QTest::newRow("left") << QRect(652, 60, 100, 60) << 800 << 0 << 504 << 148 << "field" << 81;
    QTest::newRow("over the widget, its width") << QRect(40, 60, 200, 60) << 300 << 0 << 40 << 200 << "field" << 81;
    QTest::newRow("kept above the bottom") << QRect(100, 400, 160, 60) << 800 << 0 << 260 << 148 << "266" << 81;
    QTest::newRow("kept below the top") << QRect(100, -50, 160, 60) << 800 << 0 << 260 << 148 << "0" << 81;
}

void tst_QKXComboWheel::placement()
{
    QFETCH(QRect, wheelRect);
    QFETCH(int, screenWidth);
    QFETCH(int, current);
    QFETCH(int, x);
    QFETCH(int, width);
    QFETCH(QString, y);
    QFETCH(int, columnTop);

    Stage s(wheelRect, screenWidth);
    QVERIFY(s.ready());
    s.wheel->setMetaData(kxtest::longRecord(8));
    s.open(current);
    QVERIFY(s.popup->isVisible());
    QCOMPARE(s.frame()->x(), x);
    QCOMPARE(s.frame()->width(), width);
    QCOMPARE(s.frame()->y(), y == QLatin1String("field") ? s.fieldTop() : y.toInt());
    QCOMPARE(s.columnTop(), columnTop);
}

void tst_QKXComboWheel::turnLimits_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QList<int>>("before");   // turns made first, their traces not checked
    QTest::addColumn<int>("dy");
    QTest::addColumn<int>("top");
    QTest::addColumn<QStringList>("trace");

    // Eight items, 338 pixels of column with its border: from row r the column's top is 81 - 42 r.
    QTest::newRow("free") << 2 << QList<int>() << 10 << 7 << traces({6});
    QTest::newRow("free, stopped at the first item") << 2 << QList<int>() << 100 << 81 << traces({6, 7});
    QTest::newRow("free, stopped at the column's end") << 2 << QList<int>() << -300 << 126 - 338 << traces({6, 8});
    QTest::newRow("from the top, up") << 0 << QList<int>() << -10 << 71 << traces({9, 12});
    QTest::newRow("from the top, up past the end") << 0 << QList<int>() << -400 << 126 - 338 << traces({9, 11, 12});
    QTest::newRow("from the top, down does nothing") << 0 << QList<int>() << 10 << 81 << traces({});
    QTest::newRow("from the end, down") << 2 << QList<int>{-300} << 50 << 126 - 338 + 50 << traces({13, 16});
    QTest::newRow("from the end, down past the top") << 2 << QList<int>{-300} << 400 << 81 << traces({13, 14, 16});
    QTest::newRow("from the end, up does nothing") << 2 << QList<int>{-300} << -5 << 126 - 338 << traces({});
    // The last item on the band leaves the column just short of the band's bottom; it turns back.
    QTest::newRow("last item, back down") << 7 << QList<int>() << 10 << 81 - 294 + 10 << traces({});
    QTest::newRow("last item, up does nothing") << 7 << QList<int>() << -10 << 81 - 294 << traces({});
}

void tst_QKXComboWheel::turnLimits()
{
    QFETCH(int, row);
    QFETCH(QList<int>, before);
    QFETCH(int, dy);
    QFETCH(int, top);
    QFETCH(QStringList, trace);

    Stage s;
    s.wheel->setMetaData(kxtest::longRecord(8));
    s.open(0);
    QCOMPARE(s.frame()->column()->height(), 338);
    s.frame()->setCurIdx(row);
    for (int turn : before)
        s.frame()->moveIt(QPoint(0, turn));
    kxtest::DebugLines debug({QStringLiteral("moveIt ")});
    s.frame()->moveIt(QPoint(25, dy));
    QCOMPARE(s.columnTop(), top);
    QCOMPARE(s.frame()->column()->x(), 2);
    QCOMPARE(debug.take(), trace);
}

void tst_QKXComboWheel::flickRunsOnAndSettles()
{
    Stage s;
    QVERIFY(s.ready());
    s.wheel->setMetaData(kxtest::longRecord(40));
    QSignalSpy submitted(s.filter, &QKXComboEventFilter::submit);
    s.open(0);
    kxtest::DebugLines quiet({QStringLiteral("moveIt ")});

    // A quick upward stroke of 120 pixels.
    const QPoint start = s.centreOf(s.item(0));
    QTest::mousePress(&s.screen, Qt::LeftButton, Qt::NoModifier, start);
    for (int step = 1; step <= 6; ++step) {
        QTest::mouseMove(&s.screen, start - QPoint(0, 20 * step));
        QTest::qWait(8);
    }
    QCOMPARE(s.columnTop(), 81 - 120);
    QTest::mouseRelease(&s.screen, Qt::LeftButton, Qt::NoModifier, start - QPoint(0, 120));
    QVERIFY(s.frame()->isMoving());

    QTRY_VERIFY_WITH_TIMEOUT(!s.frame()->isMoving(), 3000);
    const int top = s.columnTop();
    QVERIFY2(top < 81 - 120 - 42, qPrintable(QString::number(top)));   // ran on beyond the finger
    QVERIFY(top >= 81 - 39 * 42);
    QCOMPARE((81 - top) % 42, 0);                                      // an item rests on the band
    QCOMPARE(submitted.count(), 0);
    QVERIFY(s.popup->isVisible());

    // A finger on the running wheel stops it where it is, and picks nothing: the item under it only
    // came there by turning. The next tap picks.
    QTest::mousePress(&s.screen, Qt::LeftButton, Qt::NoModifier, start);
    QTest::mouseMove(&s.screen, start - QPoint(0, 60));
    QTest::mouseMove(&s.screen, start - QPoint(0, 120));
    QTest::mouseRelease(&s.screen, Qt::LeftButton, Qt::NoModifier, start - QPoint(0, 120));
    QVERIFY(s.frame()->isMoving());
    const QPoint onBand(s.frame()->x() + 70, s.frame()->y() + 100);
    QTest::mousePress(&s.screen, Qt::LeftButton, Qt::NoModifier, onBand);
    QVERIFY(!s.frame()->isMoving());
    QTest::mouseRelease(&s.screen, Qt::LeftButton, Qt::NoModifier, onBand);
    QCOMPARE(submitted.count(), 0);
    QTRY_VERIFY(!s.frame()->isMoving());
    const int restedAt = s.columnTop();
    QCOMPARE((81 - restedAt) % 42, 0);
    QTest::mouseClick(&s.screen, Qt::LeftButton, Qt::NoModifier, onBand);
    QCOMPARE(submitted.count(), 1);
    QCOMPARE(submitted.at(0).at(0).toInt(), 10 * ((81 - restedAt) / 42));
}

void tst_QKXComboWheel::slowDragSettlesOnNearestItem()
{
    Stage s;
    QVERIFY(s.ready());
    s.wheel->setMetaData(kxtest::longRecord(10));
    s.open(30);
    kxtest::DebugLines quiet({QStringLiteral("moveIt ")});
    const int startTop = s.columnTop();

    // 50 pixels down, then the finger rests before it lets go: no run-on, the nearer item settles.
    const QPoint start = s.centreOf(s.item(3));
    QTest::mousePress(&s.screen, Qt::LeftButton, Qt::NoModifier, start);
    QTest::mouseMove(&s.screen, start + QPoint(0, 50));
    QTest::qWait(200);
    QTest::mouseRelease(&s.screen, Qt::LeftButton, Qt::NoModifier, start + QPoint(0, 50));
    QTRY_VERIFY(!s.frame()->isMoving());
    QCOMPARE(s.columnTop(), startTop + 42);
}

void tst_QKXComboWheel::tapOnItemSubmitsEndToEnd()
{
    Stage s;
    QVERIFY(s.ready());
    // -1 is a value like any other, though a button group cannot hold it as an id.
    s.wheel->setMetaData(record({{4, "FM"}, {9, "AM"}, {-1, "<b>SSB</b>"}}));
    s.wheel->setIndex(9);
    QStringList log;
    kxtest::HostDouble host(s.filter, s.wheel, s.popup, log);

    QTest::mouseClick(&s.screen, Qt::LeftButton, Qt::NoModifier, s.centreOf(s.field()));
    QCOMPARE(log, QStringList({"lock requested", "editStart"}));
    QVERIFY(s.popup->isVisible());
    QVERIFY(s.filter->isEditing());
    // Beside the widget, its top level with the field, the current value on the band.
    QCOMPARE(s.frame()->x(), s.wheel->geometry().right() + 1);
    QCOMPARE(s.frame()->y(), s.fieldTop());
    QCOMPARE(s.columnTop(), 81 - 42);

    log.clear();
    QTest::mouseClick(&s.screen, Qt::LeftButton, Qt::NoModifier, s.centreOf(s.item(2)));
    QCOMPARE(log, QStringList({"editEnd", "lock released", "submit -1", "shown -1"}));
    QVERIFY(!s.popup->isVisible());
    QVERIFY(!s.filter->isEditing());
    QCOMPARE(s.field()->text(), QStringLiteral("<b>SSB</b>"));   // as the record spells it
}

void tst_QKXComboWheel::tapsBesideTheColumn()
{
    Stage s;
    QVERIFY(s.ready());
    s.wheel->setMetaData(record({{4, "FM"}, {9, "AM"}}));
    QStringList log;
    kxtest::HostDouble host(s.filter, s.wheel, s.popup, log);
    QTest::mouseClick(&s.screen, Qt::LeftButton, Qt::NoModifier, s.centreOf(s.field()));
    QVERIFY(s.popup->isVisible());
    log.clear();

    // Two items leave the wheel's window empty below them: that is still the wheel.
    const QPoint belowItems = s.frame()->mapTo(&s.screen, QPoint(70, 200));
    QVERIFY(!s.frame()->column()->geometry().contains(QPoint(70, 200)));
    QTest::mouseClick(&s.screen, Qt::LeftButton, Qt::NoModifier, belowItems);
    QVERIFY(s.popup->isVisible());
    QCOMPARE(log, QStringList());

    QTest::mouseClick(&s.screen, Qt::LeftButton, Qt::NoModifier, QPoint(700, 400));
    QVERIFY(!s.popup->isVisible());
    QCOMPARE(log, QStringList({"editEnd", "lock released"}));
}

void tst_QKXComboWheel::refusesPlainComboBox()
{
    kxtest::DebugLines debug;
    QWidget screen;
    auto *combo = new QKXComboBox(&screen);
    QKXComboEventFilter filter(combo);
    QCoreApplication::processEvents();
    filter.lockAcquired(combo);
    QKXComboWheel popup;
    popup.registerWidget(&filter, combo);
    QVERIFY(!popup.isVisible());
    QVERIFY(!filter.isEditing());
    QCOMPARE(debug.take(), QStringList{"UserInterface - QKXComboWheel::registerWidget - cannot edit this widget: QKXComboBox"});
}

QTEST_MAIN(tst_QKXComboWheel)
#include "tst_QKXComboWheel.moc"
