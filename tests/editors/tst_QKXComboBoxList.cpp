// SPDX-License-Identifier: BSD-3-Clause
// Mouse events travel through the window system, as a finger on the panel does.
#define QTEST_QPA_MOUSE_HANDLING
#include <QtTest>

#include <QLabel>

#include "../common/EnumTestSupport.h"
#include "CSS.h"
#include "QKXComboListFrame.h"
#include "QKXComboWheel.h"
#include "QKXUtil.h"

using kxtest::record;

namespace {

struct Stage : kxtest::PopupStage<QKXComboBox, QKXComboBoxList>
{
    explicit Stage(const QRect &at = QRect(100, 200, 160, 60), int screenWidth = 800) : PopupStage(at, screenWidth) {}
    QKXComboListFrame *column() const { return popup->listFrame(); }
};

QStringList namesAndTexts(const QKXComboPopup *popup)
{
    QStringList out;
    for (QKXComboListItem *item : popup->shownItems())
        out << item->objectName() + QLatin1Char('/') + item->text();
    return out;
}

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
    void tapsEndToEnd();
    void popupsRefuseWidgetsTheyCannotEdit();
    void thousandsOfEntriesAndReopening();
};

void tst_QKXComboBoxList::looks()
{
    kxtest::WordTranslator german("Off", "Aus");
    qApp->installTranslator(&german);
    Stage s;
    s.widget->setMetaData(record({{1, "Off"}, {2, "dBm^2"}, {3, "SSB"}}));
    s.open(2);
    QCOMPARE(s.popup->objectName(), QStringLiteral("cancelFrame"));
    QCOMPARE(s.popup->styleSheet(), QStringLiteral("QFrame#cancelFrame {\tbackground-color: transparent;}"));
    QCOMPARE(s.popup->geometry(), s.screen.rect());
    QCOMPARE(s.column()->objectName(), QStringLiteral("listFrame"));
    const QString expected = QStringLiteral(
        "QFrame#listFrame { border: 0px solid white; border-radius: 10px; min-width: 140px; margin: 0px; "
        "background-color: %1; } "
        "QPushButton#cbPushButton, QPushButton#lastPushButton { border: none; font-size: 26px; min-height: 42px; "
        "max-height: 42px; min-width: 60px; padding: 0px 0px 0px 9px; color: white; border-bottom: 1px dashed white; } "
        "QLabel#buttonLabel { font-size: 26px; padding: 0px 0px 0px 9px; color: white; } "
        "QPushButton#lastPushButton { border-bottom: none; } "
        "QPushButton:pressed { color: #000; }").arg(CSS::accentRGBA());
    QCOMPARE(s.column()->styleSheet().simplified(), expected);
    QCOMPARE(s.column()->height(), 3 * QKXComboListItem::RowPitch);
    // The items show the literals translated and processed, except in the compact display modes.
    QString processed = QStringLiteral("dBm^2");
    QKXUtil::processString(processed);
    QCOMPARE(namesAndTexts(s.popup), QStringList({"cbPushButton/Aus", "cbPushButton/dBm^2", "lastPushButton/SSB"}));
    QCOMPARE(s.item(1)->label()->objectName(), QStringLiteral("buttonLabel"));
    QCOMPARE(s.item(1)->label()->text(), processed);
    kxtest::AppProperty mode("-size", QStringLiteral("small_portrait"));
    s.popup->registerWidget(s.filter, s.widget);
    QCOMPARE(s.item(0)->label()->text(), QStringLiteral("Off"));
    qApp->removeTranslator(&german);
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
    QTest::newRow("right of the widget, row 3 level with the field") << QRect(100, 200, 160, 60) << 800 << 8 << 30 << 260 << 140 << "field-126";
    QTest::newRow("value without a row puts row 0 level") << QRect(100, 60, 160, 60) << 800 << 8 << 35 << 260 << 140 << "field-0";
    QTest::newRow("right edge exactly reached") << QRect(500, 60, 160, 60) << 800 << 8 << 0 << 660 << 140 << "field-0";
    QTest::newRow("one pixel too wide: on the left") << QRect(501, 60, 160, 60) << 800 << 8 << 0 << 361 << 140 << "field-0";
    QTest::newRow("no room on either side: over the widget, as wide") << QRect(40, 60, 220, 60) << 300 << 8 << 0 << 40 << 220 << "field-0";
    QTest::newRow("kept below the top") << QRect(100, 20, 160, 60) << 800 << 8 << 70 << 260 << 140 << "0";
    QTest::newRow("kept above the bottom") << QRect(100, 400, 160, 60) << 800 << 8 << 0 << 260 << 140 << "144";
    QTest::newRow("taller than the screen starts at the top") << QRect(100, 200, 160, 60) << 800 << 20 << 100 << 260 << 140 << "0";
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
    s.widget->setMetaData(kxtest::longRecord(entries));
    s.open(current);
    QVERIFY(s.popup->isVisible());
    QCOMPARE(s.column()->geometry(), QRect(x, y.startsWith(QLatin1String("field-")) ? s.fieldTop() - y.mid(6).toInt() : y.toInt(),
                                           width, entries * QKXComboListItem::RowPitch));
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
    s.widget->setMetaData(kxtest::longRecord(8));
    QSignalSpy submitted(s.filter, &QKXComboEventFilter::submit);
    s.filter->lockAcquired(s.widget);
    s.open(30);
    const int startY = s.column()->y();
    QCOMPARE(startY, s.fieldTop() - 126);
    const QPoint start = s.centreOf(s.item(3));
    QTest::mousePress(&s.screen, Qt::LeftButton, Qt::NoModifier, start);
    QTest::mouseMove(&s.screen, start + travel);
    QCOMPARE(s.column()->y() - startY, columnMoves);
    QTest::mouseRelease(&s.screen, Qt::LeftButton, Qt::NoModifier, start + travel);
    QCOMPARE(kxtest::firstInts(submitted), picks ? QList<int>{30} : QList<int>());
    QCOMPARE(s.popup->isVisible(), !picks);
    QCOMPARE(s.filter->isEditing(), !picks);
    QVERIFY(!s.item(3)->isDown());
}

void tst_QKXComboBoxList::tapsEndToEnd()
{
    Stage s;
    QVERIFY(s.ready());
    s.widget->setMetaData(record({{3, "Off"}, {1, "On"}, {7, "Auto"}}));
    s.widget->setIndex(1);
    QStringList log;
    kxtest::HostDouble host(s.filter, s.widget, s.popup, log);
    QSignalSpy submitted(s.filter, &QKXComboEventFilter::submit);
    // A tap on empty screen cancels; so does one on the combo box under the overlay, which does not
    // open the popup again.
    for (const QPoint &beside : {QPoint(700, 40), s.centreOf(s.field())}) {
        QTest::mouseClick(&s.screen, Qt::LeftButton, Qt::NoModifier, s.centreOf(s.field()));
        QCOMPARE(log, QStringList({"lock requested", "editStart", "WindowOpened"}));
        QVERIFY(s.popup->isVisible());
        log.clear();
        QTest::mouseClick(&s.screen, Qt::LeftButton, Qt::NoModifier, beside);
        QCOMPARE(log, QStringList({"editEnd", "lock released", "WindowClosed"}));
        QVERIFY(!s.popup->isVisible());
        log.clear();
    }
    QCOMPARE(submitted.count(), 0);
    QCOMPARE(s.widget->currentIndex(), 1);
    QTest::mouseClick(&s.screen, Qt::LeftButton, Qt::NoModifier, s.centreOf(s.field()));
    QVERIFY(s.filter->isEditing());
    // Beside the widget, the current value's row level with the field.
    QCOMPARE(s.column()->x(), s.widget->geometry().right() + 1);
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

void tst_QKXComboBoxList::popupsRefuseWidgetsTheyCannotEdit()
{
    kxtest::DebugLines debug;
    QLabel label;
    QKXComboBox combo;
    QKXComboBoxList list;
    QKXComboWheel wheel;
    for (const auto &refusal : QList<QPair<QKXComboPopup *, QWidget *>>{{&list, &label}, {&wheel, &combo}}) {
        QKXComboEventFilter filter(refusal.second);
        QCoreApplication::processEvents();
        filter.lockAcquired(refusal.second);
        QVERIFY(filter.isEditing());
        refusal.first->registerWidget(&filter, refusal.second);
        QVERIFY(!refusal.first->isVisible());
        QVERIFY(!filter.isEditing());   // the edit is ended so that the lock is not held for nothing
    }
    QCOMPARE(kxtest::takeLines(), QStringList({"UserInterface - QKXComboBoxList::registerWidget - cannot edit this widget: QLabel",
                                               "UserInterface - QKXComboWheel::registerWidget - cannot edit this widget: QKXComboBox"}));
}

void tst_QKXComboBoxList::thousandsOfEntriesAndReopening()
{
    Stage s;
    QVERIFY(s.ready());
    s.widget->setMetaData(kxtest::longRecord(3000));
    QSignalSpy submitted(s.filter, &QKXComboEventFilter::submit);
    s.filter->lockAcquired(s.widget);
    s.open(29990);
    QCOMPARE(s.popup->shownItems().size(), 3000);
    QCOMPARE(s.popup->shownItems().constLast()->objectName(), QStringLiteral("lastPushButton"));
    QCOMPARE(s.column()->y(), 0);
    s.popup->unregister();
    QVERIFY(!s.popup->isVisible());
    // Another combo box's record replaces the column, placed by that combo box.
    auto *other = new QKXComboBox(&s.screen);
    other->setGeometry(400, 100, 160, 60);
    other->setMetaData(record({{5, "Peak"}, {2, "RMS"}, {9, "Average"}}));
    other->setIndex(9);
    s.popup->registerWidget(s.filter, other);
    QCOMPARE(namesAndTexts(s.popup), QStringList({"cbPushButton/Peak", "cbPushButton/RMS", "lastPushButton/Average"}));
    QCOMPARE(s.popup->valueOfRow(2), 9);
    QCOMPARE(s.column()->y(), other->findChild<QLabel *>(QStringLiteral("ComboText"))->mapTo(&s.screen, QPoint()).y() - 84);
    // Back to the long record: the closing name moves on to its last item.
    s.popup->registerWidget(s.filter, s.widget);
    QCOMPARE(s.popup->shownItems().size(), 3000);
    QCOMPARE(s.item(2)->objectName(), QStringLiteral("cbPushButton"));
    QCOMPARE(s.item(2999)->objectName(), QStringLiteral("lastPushButton"));
    // Drag the column up by a screen and pick what is then level with the top of the field.
    s.swipe(s.centreOf(s.item(5)), s.centreOf(s.item(5)) - QPoint(0, 420));
    QCOMPARE(s.column()->y(), -420);
    QTest::mouseClick(&s.screen, Qt::LeftButton, Qt::NoModifier, s.centreOf(s.item(15)));
    QCOMPARE(kxtest::firstInts(submitted), QList<int>{150});
}

QTEST_MAIN(tst_QKXComboBoxList)
#include "tst_QKXComboBoxList.moc"
