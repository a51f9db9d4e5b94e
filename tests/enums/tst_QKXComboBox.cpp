// SPDX-License-Identifier: BSD-3-Clause
// Mouse events travel through the window system, as a finger on the panel does.
#define QTEST_QPA_MOUSE_HANDLING
#include <QtTest>

#include <QLabel>

#include "CSS.h"
#include "../common/EnumTestSupport.h"
#include "QKXComboBox.h"
#include "QKXComboEventFilter.h"
#include "QKXUtil.h"

using kxtest::record;

namespace {

// Records which events get past the edit filter to the widget itself: installed before the filter,
// it runs after it.
class Reached : public QObject
{
public:
    QStringList events;
    bool eventFilter(QObject *, QEvent *e) override
    {
        if (e->type() == QEvent::MouseButtonPress || e->type() == QEvent::MouseButtonRelease)
            events << QString::fromLatin1(e->type() == QEvent::MouseButtonPress ? "press" : "release");
        return false;
    }
};

struct Stage : kxtest::PopupStage<QKXComboBox, QKXComboBoxList>
{
    Stage() : PopupStage(QRect(50, 40, 160, 60))
    {
        widget->installEventFilter(&reached);
        widget->installEventFilter(filter);   // back in front of the recorder
        widget->setMetaData(record({{3, "Off"}, {1, "On"}}));
    }
    Reached reached;
};

} // namespace

class tst_QKXComboBox : public QObject
{
    Q_OBJECT
private slots:
    void values_data();
    void values();
    void shownTextIsTranslatedAndProcessed();
    void styleSheets_data();
    void styleSheets();
    void taps_data();
    void taps();
    void editMachine();
};

void tst_QKXComboBox::values_data()
{
    QTest::addColumn<QVariant>("rec");
    QTest::addColumn<QString>("initializedBefore");
    QTest::addColumn<QVariantList>("steps");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<int>("index");
    QTest::addColumn<QList<int>>("signalled");
    QTest::addColumn<QStringList>("lines");
    const QVariant offOn = record({{3, "Off"}, {1, "On"}});
    const auto fellBack = [](const char *bad, const char *instead) {
        return QStringList{QStringLiteral("UserInterface - QKXComboBoxPrivate::setIndex - got bad value: ") + bad,
                           QStringLiteral("UserInterface - QKXComboBoxPrivate::setIndex - using instead: ") + instead};
    };
    const QStringList none;
    // setMetaData alone re-applies the start value 0, which the record lacks: the smallest value's
    // literal is shown, the signal carries 0, and only once started up is it reported.
    QTest::newRow("record after start-up") << offOn << "record" << QVariantList() << "On" << 0 << QList<int>{0} << fellBack("0", "1 ; \"On\"");
    QTest::newRow("unknown value, starting up") << offOn << "never" << QVariantList{7} << "On" << 7 << QList<int>{0, 7} << none;
    QTest::newRow("unknown value") << offOn << "steps" << QVariantList{7} << "On" << 7 << QList<int>{0, 7} << fellBack("7", "1 ; \"On\"");
    QTest::newRow("same value twice") << offOn << "steps" << QVariantList{3, 3} << "Off" << 3 << QList<int>{0, 3, 3} << none;
    QTest::newRow("literal") << offOn << "steps" << QVariantList{"Off"} << "Off" << 3 << QList<int>{0, 3} << none;
    QTest::newRow("unknown literal") << offOn << "steps" << QVariantList{3, "Auto"} << "Off" << 3 << QList<int>{0, 3} << none;
    QTest::newRow("new record keeps the value") << offOn << "steps" << QVariantList{3, record({{3, "Aus"}, {5, "Ein"}})} << "Aus" << 3 << QList<int>{0, 3, 3} << none;
    QTest::newRow("new record lacks the value") << offOn << "steps" << QVariantList{3, record({{5, "Ein"}, {4, "Aus"}})} << "Aus" << 3 << QList<int>{0, 3, 3} << fellBack("3", "4 ; \"Aus\"");
    QTest::newRow("empty record") << QVariant(QVariantList()) << "record" << QVariantList{4} << "" << 4 << QList<int>{0, 4} << none;
    QTest::newRow("repeated literal picks the later value") << record({{1, "Auto"}, {2, "Auto"}}) << "steps" << QVariantList{"Auto"} << "Auto" << 2 << QList<int>{0, 2} << none;
}

void tst_QKXComboBox::values()
{
    QFETCH(QVariant, rec);
    QFETCH(QString, initializedBefore);
    QFETCH(QVariantList, steps);
    QFETCH(QString, shown);
    QFETCH(int, index);
    QFETCH(QList<int>, signalled);
    QFETCH(QStringList, lines);
    kxtest::AppProperty state("state", QStringLiteral("starting"));
    kxtest::DebugLines debug;
    QKXComboBox combo;
    QSignalSpy changed(&combo, &QKXComboBox::currentIndexChanged);
    if (initializedBefore == QLatin1String("record"))
        qApp->setProperty("state", QStringLiteral("initialized"));
    combo.setMetaData(rec);
    if (initializedBefore == QLatin1String("steps"))
        qApp->setProperty("state", QStringLiteral("initialized"));
    QVERIFY(kxtest::replay(&combo, steps));
    QCOMPARE(combo.findChild<QLabel *>(QStringLiteral("ComboText"))->text(), shown);
    QCOMPARE(combo.property("Text").toString(), shown);
    QCOMPARE(combo.currentIndex(), index);
    QCOMPARE(kxtest::firstInts(changed), signalled);
    QCOMPARE(kxtest::takeLines(), lines);
}

void tst_QKXComboBox::shownTextIsTranslatedAndProcessed()
{
    kxtest::WordTranslator german("On", "Ein");
    qApp->installTranslator(&german);
    QKXComboBox combo;
    QLabel *field = combo.findChild<QLabel *>(QStringLiteral("ComboText"));
    combo.setMetaData(record({{3, "Off"}, {1, "On"}, {2, "dBm^2"}, {4, QStringLiteral("Crête")}}));
    QString processed = QStringLiteral("dBm^2");
    QKXUtil::processString(processed);
    // The field shows the literal translated (accents whole) and processed; the widget reports it as given.
    QStringList shown;
    for (int value : {1, 4, 2}) {
        combo.setIndex(value);
        shown << field->text() + QLatin1Char('|') + combo.text();
    }
    QCOMPARE(shown, QStringList({"Ein|On", QStringLiteral("Crête|Crête"), processed + QStringLiteral("|dBm^2")}));
    {
        // The compact display modes show literals as the engine gives them, and never the large look.
        kxtest::AppProperty mode("-size", QStringLiteral("landscape"));
        combo.setIndex(1);
        QCOMPARE(field->text(), QStringLiteral("On"));
        combo.changeSize(QStringLiteral("Max"));
        QCOMPARE(combo.currentSize(), QStringLiteral("Min"));
    }
    combo.changeSize(QStringLiteral("Max"));   // the size change re-applies the translation
    QCOMPARE(combo.currentSize(), QStringLiteral("Max"));
    QCOMPARE(field->text(), QStringLiteral("Ein"));
    qApp->removeTranslator(&german);
    combo.retranslate();
    QCOMPARE(field->text(), QStringLiteral("On"));
}

void tst_QKXComboBox::styleSheets_data()
{
    QTest::addColumn<bool>("locked");
    QTest::addColumn<bool>("readOnly");
    QTest::addColumn<QString>("size");
    QTest::addColumn<QString>("overlay");
    const QString padlock = QStringLiteral("    QLabel#ComboText {    background-image: url(:/images/lock_generic.png);"
                                           "    background-position: top right;    background-repeat: no-repeat;}");
    const QString readOnly = QStringLiteral("QLabel#ComboText {    border-color: ") + CSS::border() + QStringLiteral(";}");
    QTest::newRow("plain, compact") << false << false << "Min" << QString();
    QTest::newRow("locked, large") << true << false << "Max" << padlock;
    QTest::newRow("read-only") << false << true << "Min" << readOnly;
    // Read-only wins: the padlock is not shown on a field that cannot be opened anyway.
    QTest::newRow("locked and read-only") << true << true << "Max" << readOnly;
}

void tst_QKXComboBox::styleSheets()
{
    QFETCH(bool, locked);
    QFETCH(bool, readOnly);
    QFETCH(QString, size);
    QFETCH(QString, overlay);
    const bool large = size == QLatin1String("Max");
    const QString plain =
        QStringLiteral("QLabel#ComboText { background-color: transparent; color: #fff; border: 2px solid #fff; "
                       "border-radius: 10px; margin: 0px; min-height: %1; max-height: %1; font-size: %2; padding: %3; } "
                       "QLabel#Label { border: none; color: #fff; padding: 4px 5px 0px 8px; margin: 0px; "
                       "min-height: 12px; font-size: %4; }")
            .arg(large ? "32px" : "25px", large ? "20px" : "14px", large ? "1px 5px 0px 5px" : "0px 5px 1px 5px",
                 large ? "16px" : "12px");
    QKXComboBox combo;
    combo.setLocked(locked);
    combo.setReadOnly(readOnly);
    combo.changeSize(size);
    QCOMPARE(combo.currentSize(), size);
    const QString sheet = combo.styleSheet();
    QVERIFY2(sheet.endsWith(overlay), qPrintable(sheet));
    QCOMPARE(sheet.left(sheet.size() - overlay.size()).simplified(), plain);
    // Taking the flags back restores the plain sheet exactly.
    combo.setReadOnly(false);
    combo.setLocked(false);
    QCOMPARE(combo.styleSheet().simplified(), plain);
    combo.removeCSS();
    QCOMPARE(combo.styleSheet(), QString());
    combo.setLocked(true);
    QCOMPARE(combo.styleSheet(), QString());
}

void tst_QKXComboBox::taps_data()
{
    QTest::addColumn<bool>("passThrough");
    QTest::addColumn<QPoint>("travel");
    QTest::addColumn<QString>("appState");
    QTest::addColumn<QStringList>("host");
    QTest::addColumn<QStringList>("widgetSees");
    const QStringList release{"release"};
    QTest::newRow("30 pixels is still a tap") << true << QPoint(20, -10) << "" << QStringList{"lock requested"} << release;
    QTest::newRow("tap, not passed through") << false << QPoint() << "" << QStringList{"lock requested"} << QStringList();
    QTest::newRow("31 pixels is a drag, passed through anyway") << false << QPoint(31, 0) << "" << QStringList() << release;
    QTest::newRow("gui locked") << false << QPoint() << "guilocked" << QStringList{"gui locked"} << release;
    // A read-only combo is left alone entirely: the press reaches it too.
    QTest::newRow("read-only") << false << QPoint() << "readonly" << QStringList() << QStringList{"press", "release"};
}

void tst_QKXComboBox::taps()
{
    QFETCH(bool, passThrough);
    QFETCH(QPoint, travel);
    QFETCH(QString, appState);
    QFETCH(QStringList, host);
    QFETCH(QStringList, widgetSees);
    kxtest::AppProperty guiLock("guilocked", appState == QLatin1String("guilocked"));
    Stage s;
    QVERIFY(s.ready());
    QCoreApplication::processEvents();
    QVERIFY(s.filter->setProperty("EventPassThrough", passThrough));
    s.widget->setReadOnly(appState == QLatin1String("readonly"));
    QStringList log;
    kxtest::HostDouble hostSide(s.filter, s.widget, nullptr, log);
    hostSide.grant = false;
    const QPoint start = s.field()->mapTo(s.widget, s.field()->rect().center());
    QTest::mousePress(s.widget, Qt::LeftButton, Qt::NoModifier, start);
    if (!travel.isNull())
        QTest::mouseMove(s.widget, start + travel);
    QTest::mouseRelease(s.widget, Qt::LeftButton, Qt::NoModifier, start + travel);
    QCOMPARE(log, host);
    QCOMPARE(s.reached.events, widgetSees);
}

void tst_QKXComboBox::editMachine()
{
    // Without a parent the machine waits to be started: until then a submit ends nothing.
    QKXComboEventFilter orphan(nullptr);
    QSignalSpy orphanEnds(&orphan, &QKXEventFilterBase::editEnd);
    QCoreApplication::processEvents();
    QVERIFY(!orphan.isMachineStarted());
    emit orphan.submit(2);
    orphan.startMachine();
    QTRY_VERIFY(orphan.isMachineStarted());
    emit orphan.submit(2);
    QCOMPARE(orphanEnds.count(), 1);
    Stage s;
    QStringList log;
    kxtest::HostDouble hostSide(s.filter, s.widget, nullptr, log);
    hostSide.grant = false;
    // The machine starts idle, and idle lets go of the lock: once.
    QTRY_COMPARE(log, QStringList{"lock released"});
    log.clear();
    QWidget stranger;
    s.filter->lockAcquired(&stranger);
    s.filter->lockSucessed(s.widget, false);
    QCOMPARE(log, QStringList());
    QVERIFY(!s.filter->isEditing());
    s.filter->lockSucessed(s.widget, true);
    QCOMPARE(log, QStringList{"editStart"});
    QVERIFY(s.filter->isEditing());
    // A submitted value ends the edit, before the host carries it out.
    log.clear();
    QVERIFY(QMetaObject::invokeMethod(s.filter, "submitWidgetValue", Q_ARG(int, 1)));
    QCOMPARE(log, QStringList({"editEnd", "lock released", "submit 1", "shown 1"}));
    QVERIFY(!s.filter->isEditing());
    // A cancel, or hiding the widget mid-edit, only ends the edit: the value shown was never touched.
    s.filter->lockAcquired(s.widget);
    log.clear();
    QVERIFY(QMetaObject::invokeMethod(s.filter, "cancel"));
    QCOMPARE(log, QStringList({"editEnd", "lock released"}));
    QCOMPARE(s.widget->currentIndex(), 1);
    s.filter->lockAcquired(s.widget);
    log.clear();
    s.widget->hide();
    QCOMPARE(log, QStringList({"editEnd", "lock released"}));
}

QTEST_MAIN(tst_QKXComboBox)
#include "tst_QKXComboBox.moc"
