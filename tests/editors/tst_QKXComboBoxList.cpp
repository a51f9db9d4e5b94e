// Mouse events travel through the window system, as a finger on the panel does.
#define QTEST_QPA_MOUSE_HANDLING
#include <QtTest>

#include <QButtonGroup>
#include <QElapsedTimer>
#include <QLabel>

#include "../common/EnumTestSupport.h"
#include "CSS.h"
#include "QKXComboBox.h"
#include "QKXComboBoxList.h"
#include "QKXComboEventFilter.h"
#include "QKXComboListFrame.h"
#include "QKXComboListItem.h"
#include "QKXUtil.h"

using kxtest::record;

namespace {

// A screen with one combo box and the list popup floating over it, as the front panel has them.
struct Stage
{
    explicit Stage(const QRect &comboRect = QRect(100, 200, 160, 60), int screenWidth = 800)
    {
        screen.resize(screenWidth, 480);
        combo = new QKXComboBox(&screen);
        combo->setGeometry(comboRect);
        filter = new QKXComboEventFilter(combo);
        combo->installEventFilter(filter);
        popup = new QKXComboBoxList(&screen);
        screen.show();
    }
    bool ready()
    {
        return QTest::qWaitForWindowExposed(&screen) && QTest::qWaitFor([this] { return filter->isMachineStarted(); });
    }
    QLabel *field() const { return combo->findChild<QLabel *>(QStringLiteral("ComboText")); }
    // The field's top and bottom in the screen, which the popup covers from its corner.
    int fieldTop() const { return field()->mapTo(&screen, QPoint(0, 0)).y(); }
    int fieldBottom() const { return fieldTop() + field()->height(); }
    QKXComboListFrame *column() const { return popup->listFrame(); }
    QKXComboListItem *item(int row) const { return popup->shownItems().value(row); }
    QPoint centreOf(QWidget *w) const { return w->mapTo(const_cast<QWidget *>(&screen), w->rect().center()); }
    void open(int current)
    {
        combo->setIndex(current);
        popup->registerWidget(filter, combo);
    }

    QWidget screen;
    QKXComboBox *combo;
    QKXComboEventFilter *filter;
    QKXComboBoxList *popup;
};

} // namespace

class tst_QKXComboBoxList : public QObject
{
    Q_OBJECT

private slots:
    void looks();
    void placement_data();
    void placement();
    void drags_data();
    void drags();
    void columnAlwaysSpansTheField();
    void reopeningShowsTheNewRecord();
    void literalsTranslatedUnlessCompact();
    void tapOnItemSubmitsEndToEnd();
    void tapBesideColumnCancels_data();
    void tapBesideColumnCancels();
    void refusesOtherWidgets();
    void thousandsOfEntries();
};

void tst_QKXComboBoxList::looks()
{
    Stage s;
    s.combo->setMetaData(record({{1, "AM"}, {2, "FM"}, {3, "SSB"}}));
    s.open(2);
    QCOMPARE(s.popup->objectName(), QStringLiteral("cancelFrame"));
    QCOMPARE(s.popup->styleSheet(), QStringLiteral("QFrame#cancelFrame {\tbackground-color: transparent;}"));
    QCOMPARE(s.popup->geometry(), s.screen.rect());
    QCOMPARE(s.column()->objectName(), QStringLiteral("listFrame"));

    const QString sheet = s.column()->styleSheet().simplified();
    const QString expected = QStringLiteral(
        "QFrame#listFrame { border: 0px solid white; border-radius: 10px; min-width: 140px; margin: 0px; "
        "background-color: %1; } "
        "QPushButton#cbPushButton, QPushButton#lastPushButton { border: none; font-size: 26px; min-height: 42px; "
        "max-height: 42px; min-width: 60px; padding: 0px 0px 0px 9px; color: white; border-bottom: 1px dashed white; } "
        "QLabel#buttonLabel { font-size: 26px; padding: 0px 0px 0px 9px; color: white; } "
        "QPushButton#lastPushButton { border-bottom: none; } "
        "QPushButton:pressed { color: #000; }").arg(CSS::accentRGBA());
    QCOMPARE(sheet, expected);

    QStringList names;
    for (QKXComboListItem *item : s.popup->shownItems()) {
        names << item->objectName() + QLatin1Char('/') + item->text();
        QCOMPARE(item->height(), QKXComboListItem::RowPitch);
        QCOMPARE(item->label()->objectName(), QStringLiteral("buttonLabel"));
        QCOMPARE(item->parentWidget(), s.column());
    }
    QCOMPARE(names, QStringList({"cbPushButton/AM", "cbPushButton/FM", "lastPushButton/SSB"}));
    QCOMPARE(s.column()->height(), 3 * QKXComboListItem::RowPitch);
}

void tst_QKXComboBoxList::placement_data()
{
    QTest::addColumn<QRect>("comboRect");
    QTest::addColumn<int>("screenWidth");
    QTest::addColumn<int>("entries");
    QTest::addColumn<int>("current");
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("width");
    QTest::addColumn<QString>("y");   // "field-<n>": n pixels above the field's top; otherwise absolute

    QTest::newRow("right of the widget, row 3 level with the field") << QRect(100, 200, 160, 60) << 800 << 8 << 30
                                                                     << 260 << 140 << "field-126";
    QTest::newRow("first row") << QRect(100, 60, 160, 60) << 800 << 8 << 0 << 260 << 140 << "field-0";
    QTest::newRow("value without a row puts row 0 level") << QRect(100, 60, 160, 60) << 800 << 8 << 35 << 260 << 140
                                                          << "field-0";
    QTest::newRow("no room on the right") << QRect(600, 60, 160, 60) << 800 << 8 << 0 << 460 << 140 << "field-0";
    QTest::newRow("right edge exactly reached") << QRect(500, 60, 160, 60) << 800 << 8 << 0 << 660 << 140 << "field-0";
    QTest::newRow("one pixel too wide") << QRect(501, 60, 160, 60) << 800 << 8 << 0 << 361 << 140 << "field-0";
    QTest::newRow("no room on either side: over the widget, as wide") << QRect(40, 60, 220, 60) << 300 << 8 << 0 << 40
                                                                      << 220 << "field-0";
    QTest::newRow("kept below the top") << QRect(100, 20, 160, 60) << 800 << 8 << 70 << 260 << 140 << "0";
    QTest::newRow("kept above the bottom") << QRect(100, 400, 160, 60) << 800 << 8 << 0 << 260 << 140 << "144";
    QTest::newRow("taller than the screen starts at the top") << QRect(100, 200, 160, 60) << 800 << 20 << 100 << 260
                                                               << 140 << "0";
}

void tst_QKXComboBoxList::placement()
{
    QFETCH(QRect, comboRect);
    QFETCH(int, screenWidth);
    QFETCH(int, entries);
    QFETCH(int, current);
    QFETCH(int, x);
    QFETCH(int, width);
    QFETCH(QString, y);

    Stage s(comboRect, screenWidth);
    QVERIFY(s.ready());
    s.combo->setMetaData(kxtest::longRecord(entries));
    s.open(current);

    QVERIFY(s.popup->isVisible());
    QCOMPARE(s.column()->x(), x);
    QCOMPARE(s.column()->width(), width);
    QCOMPARE(s.column()->height(), entries * QKXComboListItem::RowPitch);
    const int expectedY = y.startsWith(QLatin1String("field-")) ? s.fieldTop() - y.mid(6).toInt() : y.toInt();
    QCOMPARE(s.column()->y(), expectedY);
}

void tst_QKXComboBoxList::drags_data()
{
    QTest::addColumn<QPoint>("travel");
    QTest::addColumn<bool>("picks");
    QTest::addColumn<int>("columnMoves");

    // The column starts with row 3 level with the field: 126 pixels of column above it, 210 below.
    QTest::newRow("30 pixels still taps") << QPoint(10, 20) << true << 20;
    QTest::newRow("31 pixels drag") << QPoint(0, 31) << false << 31;
    QTest::newRow("sideways drag does not move the column") << QPoint(-31, 0) << false << 0;
    QTest::newRow("up, stopped with the last row on the field") << QPoint(0, -250) << false << -(336 - 42 - 126) - 12;
    QTest::newRow("down, stopped with the first row on the field") << QPoint(0, 200) << false << 126;
}

void tst_QKXComboBoxList::drags()
{
    QFETCH(QPoint, travel);
    QFETCH(bool, picks);
    QFETCH(int, columnMoves);

    Stage s;
    QVERIFY(s.ready());
    s.combo->setMetaData(kxtest::longRecord(8));
    QSignalSpy submitted(s.filter, &QKXComboEventFilter::submit);
    s.filter->lockAcquired(s.combo);
    s.open(30);
    const int startY = s.column()->y();
    QCOMPARE(startY, s.fieldTop() - 126);

    // The finger goes down on the row level with the field and travels with the column it drags.
    const QPoint start = s.centreOf(s.item(3));
    QTest::mousePress(&s.screen, Qt::LeftButton, Qt::NoModifier, start);
    QTest::mouseMove(&s.screen, start + travel);
    const int movedBy = s.column()->y() - startY;
    QTest::mouseRelease(&s.screen, Qt::LeftButton, Qt::NoModifier, start + travel);

    QCOMPARE(movedBy, columnMoves);
    if (picks) {
        QCOMPARE(submitted.count(), 1);
        QCOMPARE(submitted.at(0).at(0).toInt(), 30);
        QVERIFY(!s.popup->isVisible());
        QVERIFY(!s.filter->isEditing());
    } else {
        QCOMPARE(submitted.count(), 0);
        QVERIFY(s.popup->isVisible());
        QVERIFY(s.filter->isEditing());
        QVERIFY(!s.item(3)->isDown());
    }
}

void tst_QKXComboBoxList::columnAlwaysSpansTheField()
{
    Stage s;
    s.combo->setMetaData(kxtest::longRecord(5));
    s.open(0);
    const int top = s.fieldTop();
    const int bottom = s.fieldBottom();
    QKXComboListFrame *column = s.column();
    QCOMPARE(column->y(), top);

    // At its lowest the column can only go up; at its highest only down; never past either limit.
    const QList<int> steps{25, -40, -500, -10, 7, 500, 3, -1};
    QList<int> tops;
    for (int dy : steps) {
        column->moveIt(QPoint(0, dy));
        tops << column->y() - top;
        QVERIFY(column->y() <= top);
        QVERIFY(column->y() + column->height() >= bottom);
    }
    const int highest = bottom - top - column->height();
    QCOMPARE(tops, QList<int>({0, -40, highest, highest, highest + 7, 0, 0, -1}));

    // Without a field to keep covered, the column stays put.
    QKXComboListFrame loose(&s.screen, new QWidget(&s.screen));
    loose.setGeometry(10, 10, 140, 200);
    loose.moveIt(QPoint(0, 30));
    QCOMPARE(loose.y(), 10);
}

void tst_QKXComboBoxList::reopeningShowsTheNewRecord()
{
    Stage s;
    auto *other = new QKXComboBox(&s.screen);
    other->setGeometry(400, 100, 160, 60);
    s.combo->setMetaData(kxtest::longRecord(6));
    s.open(20);
    const QList<QKXComboListItem *> first = s.popup->shownItems();
    s.popup->unregister();
    QVERIFY(!s.popup->isVisible());

    other->setMetaData(record({{5, "Peak"}, {2, "RMS"}, {9, "Average"}}));
    other->setIndex(9);
    s.popup->registerWidget(s.filter, other);
    QStringList shown;
    for (QKXComboListItem *item : s.popup->shownItems())
        shown << item->objectName() + QLatin1Char('/') + item->text();
    QCOMPARE(shown, QStringList({"cbPushButton/Peak", "cbPushButton/RMS", "lastPushButton/Average"}));
    QCOMPARE(s.popup->spareItemCount(), 3);
    QCOMPARE(s.popup->valueOfRow(2), 9);
    QCOMPARE(s.column()->y(), other->findChild<QLabel *>(QStringLiteral("ComboText"))->mapTo(&s.screen, QPoint()).y() - 84);
    // Items are kept between openings, not made anew.
    for (QKXComboListItem *item : s.popup->shownItems())
        QVERIFY(first.contains(item));

    // Back to the longer record: the spare items come back, with the closing name moved on.
    s.popup->registerWidget(s.filter, s.combo);
    QCOMPARE(s.popup->shownItems().size(), 6);
    QCOMPARE(s.popup->spareItemCount(), 0);
    QCOMPARE(s.popup->shownItems().at(2)->objectName(), QStringLiteral("cbPushButton"));
    QCOMPARE(s.popup->shownItems().at(5)->objectName(), QStringLiteral("lastPushButton"));
}

void tst_QKXComboBoxList::literalsTranslatedUnlessCompact()
{
    kxtest::WordTranslator german("Off", "Aus");
    qApp->installTranslator(&german);
    Stage s;
    s.combo->setMetaData(record({{3, "Off"}, {1, "dBm^2"}, {2, QStringLiteral("Crête")}}));
    QString processed = QStringLiteral("dBm^2");
    QKXUtil::processString(processed);

    s.open(3);
    QCOMPARE(s.item(0)->label()->text(), QStringLiteral("Aus"));
    QCOMPARE(s.item(1)->label()->text(), processed);
    QCOMPARE(s.item(2)->label()->text(), QStringLiteral("Crête"));
    {
        kxtest::AppProperty mode("-size", QStringLiteral("small_portrait"));
        s.popup->registerWidget(s.filter, s.combo);
        QCOMPARE(s.item(0)->label()->text(), QStringLiteral("Off"));
    }
    qApp->removeTranslator(&german);
}

void tst_QKXComboBoxList::tapOnItemSubmitsEndToEnd()
{
    Stage s;
    QVERIFY(s.ready());
    s.combo->setMetaData(record({{3, "Off"}, {1, "On"}, {7, "Auto"}}));
    s.combo->setIndex(1);
    QStringList log;
    kxtest::HostDouble host(s.filter, s.combo, s.popup, log);

    QTest::mouseClick(&s.screen, Qt::LeftButton, Qt::NoModifier, s.centreOf(s.field()));
    QCOMPARE(log, QStringList({"lock requested", "editStart", "WindowOpened"}));
    QVERIFY(s.popup->isVisible());
    QVERIFY(s.filter->isEditing());
    // Beside the widget, the current value's row level with the field.
    QCOMPARE(s.column()->x(), s.combo->geometry().right() + 1);
    QCOMPARE(s.item(1)->mapTo(&s.screen, QPoint()).y(), s.fieldTop());

    log.clear();
    QTest::mouseClick(&s.screen, Qt::LeftButton, Qt::NoModifier, s.centreOf(s.item(2)));
    // The filter ends the edit as soon as the value leaves it; the engine's confirmation comes last.
    QCOMPARE(log, QStringList({"editEnd", "lock released", "WindowClosed", "submit 7", "shown 7"}));
    QVERIFY(!s.popup->isVisible());
    QVERIFY(!s.filter->isEditing());
    QVERIFY(!s.popup->filter());
    QCOMPARE(s.field()->text(), QStringLiteral("Auto"));

    // The popup let go of the filter: a late submit or editEnd no longer reaches it.
    log.clear();
    emit s.popup->submit(3);
    emit s.filter->editEnd();
    QCOMPARE(log, QStringList({"editEnd"}));
}

void tst_QKXComboBoxList::tapBesideColumnCancels_data()
{
    QTest::addColumn<QString>("where");
    QTest::newRow("empty screen") << "screen";
    // The tap lands on the combo box under the overlay: it cancels, and does not open the popup again.
    QTest::newRow("the widget itself") << "widget";
}

void tst_QKXComboBoxList::tapBesideColumnCancels()
{
    QFETCH(QString, where);

    Stage s;
    QVERIFY(s.ready());
    s.combo->setMetaData(record({{3, "Off"}, {1, "On"}}));
    QStringList log;
    kxtest::HostDouble host(s.filter, s.combo, s.popup, log);
    QSignalSpy submitted(s.filter, &QKXComboEventFilter::submit);

    QTest::mouseClick(&s.screen, Qt::LeftButton, Qt::NoModifier, s.centreOf(s.field()));
    QVERIFY(s.popup->isVisible());
    log.clear();
    const QPoint at = where == QLatin1String("widget") ? s.centreOf(s.field()) : QPoint(700, 40);
    QTest::mouseClick(&s.screen, Qt::LeftButton, Qt::NoModifier, at);
    QCOMPARE(log, QStringList({"editEnd", "lock released", "WindowClosed"}));
    QVERIFY(!s.popup->isVisible());
    QCOMPARE(submitted.count(), 0);
    QCOMPARE(s.combo->currentIndex(), 0);
}

void tst_QKXComboBoxList::refusesOtherWidgets()
{
    kxtest::DebugLines debug;
    QWidget screen;
    auto *label = new QLabel(&screen);
    QKXComboEventFilter filter(label);
    QCoreApplication::processEvents();
    filter.lockAcquired(label);
    QVERIFY(filter.isEditing());
    QKXComboBoxList popup;
    popup.registerWidget(&filter, label);

    QVERIFY(!popup.isVisible());
    QVERIFY(!filter.isEditing());   // the edit is ended so that the lock is not held for nothing
    QCOMPARE(debug.take(), QStringList{"UserInterface - QKXComboBoxList::registerWidget - cannot edit this widget: QLabel"});
}

void tst_QKXComboBoxList::thousandsOfEntries()
{
    Stage s;
    QVERIFY(s.ready());
    s.combo->setMetaData(kxtest::longRecord(3000));
    QSignalSpy submitted(s.filter, &QKXComboEventFilter::submit);
    s.filter->lockAcquired(s.combo);
    s.open(29990);
    QCOMPARE(s.popup->shownItems().size(), 3000);
    QCOMPARE(s.popup->shownItems().constLast()->objectName(), QStringLiteral("lastPushButton"));
    QCOMPARE(s.column()->y(), 0);

    // Opening again on the same record reuses the column as it stands.
    s.popup->unregister();
    QElapsedTimer reopening;
    reopening.start();
    s.popup->registerWidget(s.filter, s.combo);
    QVERIFY2(reopening.elapsed() < 1000, qPrintable(QString::number(reopening.elapsed())));

    // Drag the column up by a screen and pick what is then level with the top of the field.
    const QPoint start = s.centreOf(s.item(5));
    QTest::mousePress(&s.screen, Qt::LeftButton, Qt::NoModifier, start);
    QTest::mouseMove(&s.screen, start - QPoint(0, 420));
    QTest::mouseRelease(&s.screen, Qt::LeftButton, Qt::NoModifier, start - QPoint(0, 420));
    QCOMPARE(s.column()->y(), -420);
    QTest::mouseClick(&s.screen, Qt::LeftButton, Qt::NoModifier, s.centreOf(s.item(15)));
    QCOMPARE(submitted.count(), 1);
    QCOMPARE(submitted.at(0).at(0).toInt(), 150);
}

QTEST_MAIN(tst_QKXComboBoxList)
#include "tst_QKXComboBoxList.moc"
