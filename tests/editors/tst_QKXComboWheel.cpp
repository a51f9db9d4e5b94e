// SPDX-License-Identifier: BSD-3-Clause
// Mouse events travel through the window system, as a finger on the panel does.
#define QTEST_QPA_MOUSE_HANDLING
#include <QtTest>

#include <QAbstractButton>
#include <QButtonGroup>
#include <QLabel>
#include <QLoggingCategory>

#include "../common/EnumTestSupport.h"
#include "QKXComboWheel.h"
#include "QKXUtil.h"
#include "QKXWheelEnum.h"
#include "QKXWheelFrame.h"

using kxtest::record;

namespace {

struct Stage : kxtest::PopupStage<QKXWheelEnum, QKXComboWheel>
{
    explicit Stage(const QRect &at = QRect(100, 60, 160, 60), int screenWidth = 800) : PopupStage(at, screenWidth)
    {
        // The wheel traces each turn on the debug channel; the tests follow the column instead.
        QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    }
    ~Stage() { QLoggingCategory::setFilterRules(QString()); }
    QKXWheelFrame *frame() const { return popup->wheelFrame(); }
    int columnTop() const { return frame()->column()->y(); }
};

} // namespace

class tst_QKXComboWheel : public QObject
{
    Q_OBJECT
private slots:
    void looks();
    void placement_data();
    void placement();
    void turnLimits_data();
    void turnLimits();
    void flicksAndDrags();
    void tapsEndToEnd();
};

void tst_QKXComboWheel::looks()
{
    kxtest::WordTranslator german("Off", "Aus");
    qApp->installTranslator(&german);
    Stage s;
    // The value 2 is listed twice: one item, where its last entry is, with that entry's literal.
    s.widget->setMetaData(record({{3, "Off"}, {2, "Low"}, {1, "dBm^2"}, {2, "High"}}));
    s.open(2);
    qApp->removeTranslator(&german);
    QCOMPARE(s.frame()->objectName(), QStringLiteral("wheelFrame"));
    QCOMPARE(s.frame()->column()->objectName(), QStringLiteral("listFrame"));
    // The window's inside is 210 high; the band positions count from its outer corner.
    QCOMPARE(s.frame()->contentsRect().height(), 210);
    // Item ids are the values themselves; literals are shown untranslated, processed.
    QString processed = QStringLiteral("dBm^2");
    QKXUtil::processString(processed);
    QStringList shown;
    for (QKXComboListItem *item : s.popup->shownItems())
        shown << QStringLiteral("%1=%2").arg(s.popup->buttonGroup()->id(item)).arg(item->label()->text());
    QCOMPARE(shown, QStringList({"3=Off", QStringLiteral("1=") + processed, "2=High"}));
    QCOMPARE(s.item(2)->objectName(), QStringLiteral("lastPushButton"));
    QCOMPARE(s.field()->text(), QStringLiteral("High"));
    QCOMPARE(s.frame()->column()->pos(), QPoint(2, 81 - 2 * 42));
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
    s.widget->setMetaData(kxtest::longRecord(8));
    s.open(current);
    QVERIFY(s.popup->isVisible());
    QCOMPARE(s.frame()->geometry().topLeft(), QPoint(x, y == QLatin1String("field") ? s.fieldTop() : y.toInt()));
    QCOMPARE(s.frame()->width(), width);
    QCOMPARE(s.columnTop(), columnTop);
}

void tst_QKXComboWheel::turnLimits_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QList<int>>("before");   // turns made first
    QTest::addColumn<int>("dy");
    QTest::addColumn<int>("top");
    // Eight items, 338 pixels of column with its border: from row r the column's top is 81 - 42 r.
    QTest::newRow("free") << 2 << QList<int>() << 10 << 7;
    QTest::newRow("free, stopped at the first item") << 2 << QList<int>() << 100 << 81;
    QTest::newRow("from the top, up past the end") << 0 << QList<int>() << -400 << 126 - 338;
    QTest::newRow("from the top, down does nothing") << 0 << QList<int>() << 10 << 81;
    QTest::newRow("from the end, down past the top") << 2 << QList<int>{-300} << 400 << 81;
    QTest::newRow("from the end, up does nothing") << 2 << QList<int>{-300} << -5 << 126 - 338;
    // The last item put on the band leaves the column a pixel short of the band's bottom: it stands.
    QTest::newRow("last item, down does nothing") << 7 << QList<int>() << 10 << 81 - 294;
}

void tst_QKXComboWheel::turnLimits()
{
    QFETCH(int, row);
    QFETCH(QList<int>, before);
    QFETCH(int, dy);
    QFETCH(int, top);
    Stage s;
    s.widget->setMetaData(kxtest::longRecord(8));
    s.open(0);
    QCOMPARE(s.frame()->column()->height(), 338);
    s.frame()->setCurIdx(row);
    for (int turn : before)
        s.frame()->moveIt(QPoint(0, turn));
    s.frame()->moveIt(QPoint(25, dy));
    QCOMPARE(s.frame()->column()->pos(), QPoint(2, top));
}

void tst_QKXComboWheel::flicksAndDrags()
{
    Stage s;
    QVERIFY(s.ready());
    s.widget->setMetaData(kxtest::longRecord(40));
    QSignalSpy submitted(s.filter, &QKXComboEventFilter::submit);
    s.open(0);
    // 50 pixels up, then the finger rests before it lets go: no run-on, the nearer item settles.
    const QPoint start = s.centreOf(s.item(1));
    QTest::mousePress(&s.screen, Qt::LeftButton, Qt::NoModifier, start);
    QTest::mouseMove(&s.screen, start - QPoint(0, 50));
    QTest::qWait(200);
    QTest::mouseRelease(&s.screen, Qt::LeftButton, Qt::NoModifier, start - QPoint(0, 50));
    QTRY_VERIFY(!s.frame()->isMoving());
    QCOMPARE(s.columnTop(), 81 - 42);
    // A quick upward stroke of 120 pixels runs on beyond the finger, until an item rests on the band.
    QTest::mousePress(&s.screen, Qt::LeftButton, Qt::NoModifier, start);
    for (int step = 1; step <= 6; ++step) {
        QTest::mouseMove(&s.screen, start - QPoint(0, 20 * step));
        QTest::qWait(8);
    }
    QCOMPARE(s.columnTop(), 81 - 42 - 120);
    QTest::mouseRelease(&s.screen, Qt::LeftButton, Qt::NoModifier, start - QPoint(0, 120));
    QVERIFY(s.frame()->isMoving());
    QTRY_VERIFY_WITH_TIMEOUT(!s.frame()->isMoving(), 3000);
    const int top = s.columnTop();
    QVERIFY2(top < 81 - 42 - 120 - 42, qPrintable(QString::number(top)));
    QVERIFY(top >= 81 - 39 * 42);
    QCOMPARE((81 - top) % 42, 0);
    QCOMPARE(submitted.count(), 0);
    QVERIFY(s.popup->isVisible());
    // A finger on the running wheel stops it where it is, and the tap picks the item under it.
    QTest::mousePress(&s.screen, Qt::LeftButton, Qt::NoModifier, start);
    QTest::mouseMove(&s.screen, start - QPoint(0, 60));
    QTest::mouseMove(&s.screen, start - QPoint(0, 120));
    QTest::mouseRelease(&s.screen, Qt::LeftButton, Qt::NoModifier, start - QPoint(0, 120));
    QVERIFY(s.frame()->isMoving());
    const QPoint onBand(s.frame()->x() + 70, s.frame()->y() + 100);
    QTest::mousePress(&s.screen, Qt::LeftButton, Qt::NoModifier, onBand);
    QVERIFY(!s.frame()->isMoving());
    auto *under = qobject_cast<QAbstractButton *>(s.frame()->childAt(QPoint(70, 100)));
    QVERIFY(under);
    QTest::mouseRelease(&s.screen, Qt::LeftButton, Qt::NoModifier, onBand);
    QCOMPARE(kxtest::firstInts(submitted), QList<int>{s.popup->buttonGroup()->id(under)});
    QVERIFY(!s.popup->isVisible());

    // Dragged to its end, the wheel settles where a drag turns it back.
    s.open(0);
    s.frame()->moveIt(QPoint(0, -5000));
    s.frame()->releaseDrag();
    QTRY_VERIFY(!s.frame()->isMoving());
    QCOMPARE(s.columnTop(), 126 - s.frame()->column()->height());
    s.frame()->moveIt(QPoint(0, 10));
    QCOMPARE(s.columnTop(), 126 - s.frame()->column()->height() + 10);
}

void tst_QKXComboWheel::tapsEndToEnd()
{
    Stage s;
    QVERIFY(s.ready());
    // -1 is a value like any other, though a button group cannot hold it as an id.
    s.widget->setMetaData(record({{4, "FM"}, {9, "AM"}, {-1, "<b>SSB</b>"}}));
    s.widget->setIndex(9);
    QStringList log;
    kxtest::HostDouble host(s.filter, s.widget, s.popup, log);
    QTest::mouseClick(&s.screen, Qt::LeftButton, Qt::NoModifier, s.centreOf(s.field()));
    QCOMPARE(log, QStringList({"lock requested", "editStart"}));
    QVERIFY(s.popup->isVisible());
    QVERIFY(s.filter->isEditing());
    // Beside the widget, its top level with the field, the current value on the band.
    QCOMPARE(s.frame()->pos(), QPoint(s.widget->geometry().right() + 1, s.fieldTop()));
    QCOMPARE(s.columnTop(), 81 - 42);
    // The items leave the wheel's window empty below them: that is still the wheel.
    log.clear();
    QVERIFY(!s.frame()->column()->geometry().contains(QPoint(70, 200)));
    QTest::mouseClick(&s.screen, Qt::LeftButton, Qt::NoModifier, s.frame()->mapTo(&s.screen, QPoint(70, 200)));
    QVERIFY(s.popup->isVisible());
    QCOMPARE(log, QStringList());
    QTest::mouseClick(&s.screen, Qt::LeftButton, Qt::NoModifier, s.centreOf(s.item(2)));
    QCOMPARE(log, QStringList({"editEnd", "lock released", "submit -1", "shown -1"}));
    QVERIFY(!s.popup->isVisible());
    QVERIFY(!s.filter->isEditing());
    QCOMPARE(s.field()->text(), QStringLiteral("<b>SSB</b>"));   // as the record spells it
    // Beside the window, a tap cancels.
    QTest::mouseClick(&s.screen, Qt::LeftButton, Qt::NoModifier, s.centreOf(s.field()));
    QVERIFY(s.popup->isVisible());
    log.clear();
    QTest::mouseClick(&s.screen, Qt::LeftButton, Qt::NoModifier, QPoint(700, 400));
    QVERIFY(!s.popup->isVisible());
    QCOMPARE(log, QStringList({"editEnd", "lock released"}));
    QCOMPARE(s.widget->currentIndex(), -1);
}

QTEST_MAIN(tst_QKXComboWheel)
#include "tst_QKXComboWheel.moc"
