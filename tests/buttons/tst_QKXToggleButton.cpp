// SPDX-License-Identifier: BSD-3-Clause
#define QTEST_QPA_MOUSE_HANDLING

#include "ButtonTestSupport.h"
#include "CSS.h"
#include "QKXToggleButton.h"
#include "QKXToggleButtonEventFilter.h"

using namespace kxtest;

namespace {

// A toggle on a screen, with the host's filter installed and a host that grants every request at once.
struct Stage
{
    Stage()
    {
        screen.resize(300, 120);
        toggle = new QKXToggleButton(&screen);
        toggle->setGeometry(20, 20, 200, 60);
        filter = new QKXToggleButtonEventFilter(toggle);
        toggle->installEventFilter(filter);
        inner = toggle->findChild<QPushButton *>();
        state = inner->findChild<QLabel *>();
        watchLock(filter, toggle, log, Grant);
        QObject::connect(filter, &QKXToggleButtonEventFilter::submit, [this](bool v) {
            log << QStringLiteral("submit %1 while %2 \"%3\"").arg(v).arg(state->objectName(), state->text());
        });
        QObject::connect(toggle, &QKXToggleButton::toggled, [this](bool v) { log << QStringLiteral("toggled %1").arg(v); });
    }

    QString look() const { return state->objectName() + QLatin1Char(' ') + state->text(); }

    QWidget screen;
    QKXToggleButton *toggle;
    QKXToggleButtonEventFilter *filter;
    QPushButton *inner;
    QLabel *state;
    QStringList log;
};

// Runs comma-separated steps on a toggle: "Property=value" writes a property as a form would,
// "loading" shows the loading look.
void runSteps(QKXToggleButton *toggle, const QString &steps)
{
    for (const QString &step : steps.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        if (step == QLatin1String("loading"))
            QVERIFY(QMetaObject::invokeMethod(toggle, "setButtonLoading"));
        else
            QVERIFY2(toggle->setProperty(qPrintable(step.section(QLatin1Char('='), 0, 0)), step.section(QLatin1Char('='), 1)),
                     qPrintable(step));
    }
}

} // namespace

class tst_QKXToggleButton : public QObject
{
    Q_OBJECT

private slots:
    void looks_data();
    void looks();
    void translation();
    void styleSheetAndPaintedLooks();
    void tapEndToEnd();
};

void tst_QKXToggleButton::looks_data()
{
    QTest::addColumn<QString>("steps");
    QTest::addColumn<QString>("look");       // a locked look also disables the button
    QTest::addColumn<bool>("active");
    QTest::addColumn<QString>("toggled");    // the states announced, in order

    QTest::newRow("on again still announces") << "State=1" << "On On" << true << "1";
    QTest::newRow("loading keeps the state") << "State=0,loading" << "Loading Loading" << false << "0";
    QTest::newRow("engine answers a loading button") << "State=0,loading,State=1" << "On On" << true << "01";
    QTest::newRow("state set while locked") << "Locked=1,State=0,State=1" << "Locked Locked-On" << true << "01";
    QTest::newRow("unlocked") << "State=0,Locked=1,Locked=0" << "Off Off" << false << "0";
    QTest::newRow("on text while off waits") << "State=0,OnText=RF on" << "Off Off" << false << "0";
    QTest::newRow("on text while off, then on") << "State=0,OnText=RF on,State=1" << "On RF on" << true << "01";
    // A new text is only a new text: a locked button loses its mark until the next state or lock.
    QTest::newRow("on text while locked") << "Locked=1,OnText=RF on" << "Locked RF on" << true << "";
    QTest::newRow("on text while loading") << "loading,OnText=RF on" << "Loading RF on" << true << "";
    QTest::newRow("off text while off") << "State=0,OffText=Standby" << "Off Standby" << false << "0";
    QTest::newRow("loading text is the next loading look") << "LoadingText=Wait,loading" << "Loading Wait" << true << "";
    // With one text for both states only the on look can be shown.
    QTest::newRow("equal texts select on") << "OffText=RF,OnText=RF,State=0" << "On RF" << true << "0";
}

void tst_QKXToggleButton::looks()
{
    QFETCH(QString, steps);
    QFETCH(QString, look);
    QFETCH(bool, active);
    QFETCH(QString, toggled);
    Stage s;
    const QString sheet = s.toggle->styleSheet();
    runSteps(s.toggle, steps);
    QCOMPARE(s.look(), look);
    QCOMPARE(s.inner->isEnabled(), !look.startsWith(QLatin1String("Locked")));
    QCOMPARE(s.toggle->activeState(), active);
    QCOMPARE(s.log.join(QString()).remove(QStringLiteral("toggled ")), toggled);
    QCOMPARE(s.toggle->styleSheet(), sheet);
}

void tst_QKXToggleButton::translation()
{
    Stage s;
    WordTranslator german({{"Off", "Aus"}, {"RF Output", "HF-Ausgang"}, {"Loading", "Laden"}});
    qApp->installTranslator(&german);
    s.toggle->setLabel(QStringLiteral("RF Output"));
    s.toggle->setActiveState(false);
    s.toggle->setLocked(true);
    QCOMPARE(s.inner->text() + QLatin1Char('|') + s.state->text(), QStringLiteral("HF-Ausgang|Locked-Aus"));
    // The caption reads back as the button shows it.
    QCOMPARE(s.toggle->property("LabelText").toString(), QStringLiteral("HF-Ausgang"));
    s.toggle->setLocked(false);
    s.toggle->setButtonLoading();
    QCOMPARE(s.state->text(), QStringLiteral("Loading"));   // shown as written
    qApp->removeTranslator(&german);

    // A language change puts the state back into the language now in force and repeats it; the
    // caption stays as it was shown.
    s.log.clear();
    s.toggle->retranslate();
    QCOMPARE(s.inner->text() + QLatin1Char('|') + s.look(), QStringLiteral("HF-Ausgang|Off Off"));
    QCOMPARE(s.log, QStringList{"toggled 0"});
}

void tst_QKXToggleButton::styleSheetAndPaintedLooks()
{
    QKXToggleButton t;
    const QString gradient = QStringLiteral("qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 %1, stop:0.7 %2, stop:1 %3)")
                                 .arg(CSS::gradientDark(), CSS::gradientMiddle(), CSS::gradientLight())
                                 .simplified();
    const QString border = CSS::border().simplified();
    const QString highlight = CSS::highlight().simplified();
    const QStringList expected{
        "QPushButton { background-color: " + gradient + "; color: white; border-style: solid; border-width: 2px; "
            "border-color: " + border + "; border-radius: 15px; padding: 3px 0px 0px 8px; margin: 0px; "
            "min-height: 40px; max-height: 40px; text-align: top left; font-size: 18px }",
        "QPushButton:pressed { color: white; background-color: " + border + " }",
        "QPushButton:disabled { border-color: rgb(102,102,102) }",
        "QLabel { border-radius: 7px; padding: 0px 10px 0px 5px; min-height: 12px; max-height: 12px; "
            "margin: 17px 0px 0px 0px; color: #000; font-size: 14px; font-weight: bold }",
        "QLabel#On { border: 1px solid #0afa55; background-color: #0afa55 }",
        "QLabel#Off { border: 1px solid " + highlight + "; background-color: " + highlight + " }",
        "QLabel#Loading { border: 1px solid #febe42; color: #febe42; background-color: #000 }",
        "QLabel#Locked { border: 1px solid #0afa55; background-color: #666666 }",
    };
    QCOMPARE(describeSheet(t.styleSheet()), expected);

    const QString sheet = t.styleSheet();
    t.changeSize(QStringLiteral("Max"));
    t.setReadOnly(true);
    QCOMPARE(t.currentSize() + QLatin1Char('|') + t.styleSheet(), QStringLiteral("Max|") + sheet);

    // The object name must reach the sheet: each look paints the state label in its own colours,
    // also when the host sets it up before the screen is first shown.
    QWidget screen;
    screen.resize(300, 300);
    QList<QKXToggleButton *> b;
    for (int i = 0; i < 4; ++i)
        (b << new QKXToggleButton(&screen)).last()->setGeometry(10, 10 + 70 * i, 240, 60);
    b[2]->setButtonLoading();
    QVERIFY(exposed(screen));
    b[1]->setActiveState(false);
    b[3]->setLocked(true);
    const QStringList colours{"#0afa55", CSS::highlight(), "#000", "#666666"};   // on, off, loading, locked
    for (int i = 0; i < 4; ++i) {
        auto *state = b[i]->findChild<QPushButton *>()->findChild<QLabel *>();
        QCOMPARE(colourAt(state, QPoint(3, state->height() / 2)), QColor(colours[i]));   // left of the text
    }
}

void tst_QKXToggleButton::tapEndToEnd()
{
    Stage s;
    QVERIFY(exposed(s.screen));
    s.toggle->setLocked(true);
    QTest::mouseClick(s.inner, Qt::LeftButton);
    QCOMPARE(s.log, QStringList());
    QCOMPARE(s.look(), QStringLiteral("Locked Locked-On"));

    // The button shows the request in its loading look before the value goes out, and is not switched.
    s.toggle->setLocked(false);
    QTest::mouseClick(s.inner, Qt::LeftButton);
    QCOMPARE(s.log, (QStringList{"request", "submit 0 while Loading \"Loading\"", "release"}));
    QVERIFY(s.toggle->activeState());
    QCOMPARE(s.look(), QStringLiteral("Loading Loading"));

    // The engine confirms.
    s.log.clear();
    s.toggle->setActiveState(false);
    QCOMPARE(s.log, QStringList{"toggled 0"});
    QCOMPARE(s.look(), QStringLiteral("Off Off"));

    // Grants for another widget, or withdrawn ones, change nothing; a late grant still submits.
    s.log.clear();
    QWidget other;
    s.filter->lockAcquired(&other);
    s.filter->lockAcquired(s.toggle, false);
    QCOMPARE(s.log, QStringList());
    QCOMPARE(s.look(), QStringLiteral("Off Off"));
    QVERIFY(QMetaObject::invokeMethod(s.filter, "lockAcquired", Q_ARG(QWidget *, s.toggle), Q_ARG(bool, true)));
    QCOMPARE(s.log, (QStringList{"submit 1 while Loading \"Loading\"", "release"}));

    // On a widget without a state the lock goes back and nothing is submitted.
    DebugLines debug;
    QWidget plain;
    auto *filter = new QKXToggleButtonEventFilter(&plain);
    QObject::connect(filter, &QKXToggleButtonEventFilter::submit, [&s](bool) { s.log << QStringLiteral("submit"); });
    watchLock(filter, &plain, s.log, Refuse);
    s.log.clear();
    filter->lockAcquired(&plain);
    QCOMPARE(s.log, QStringList{"release"});
    QCOMPARE(DebugLines::lines(),
             QStringList{"UserInterface - QKXToggleButtonEventFilter::lockAcquired : QWidget has no activeState(); "
                         "nothing submitted."});
}

QTEST_MAIN(tst_QKXToggleButton)
#include "tst_QKXToggleButton.moc"
