#define QTEST_QPA_MOUSE_HANDLING
#include <QtTest>

#include <QLabel>
#include <QPushButton>

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
        watchLock(filter, toggle, log, grant);
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
    bool grant = true;
};

// Runs comma-separated "verb:argument" steps on a toggle.
void runSteps(QKXToggleButton *toggle, const QString &steps)
{
    const QHash<QString, QByteArray> texts{{"on", "OnText"}, {"off", "OffText"}, {"loadingText", "LoadingText"}};
    for (const QString &step : steps.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        const QString verb = step.section(QLatin1Char(':'), 0, 0);
        const QString arg = step.section(QLatin1Char(':'), 1);
        if (verb == QLatin1String("state"))
            QVERIFY(toggle->setProperty("State", arg == QLatin1String("1")));
        else if (verb == QLatin1String("lock"))
            toggle->setLocked(arg == QLatin1String("1"));
        else if (verb == QLatin1String("loading"))
            QVERIFY(QMetaObject::invokeMethod(toggle, "setButtonLoading"));
        else
            QVERIFY2(texts.contains(verb) && toggle->setProperty(texts.value(verb), arg), qPrintable(step));
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
    void styleSheet();
    void looksArePainted();
    void tapEndToEnd();
    void filterGrants();
};

void tst_QKXToggleButton::looks_data()
{
    QTest::addColumn<QString>("steps");
    QTest::addColumn<QString>("look");       // a locked look also disables the button
    QTest::addColumn<bool>("active");
    QTest::addColumn<QString>("toggled");    // the states announced, in order

    QTest::newRow("on again still announces") << "state:1" << "On On" << true << "1";
    QTest::newRow("loading keeps the state") << "state:0,loading" << "Loading Loading" << false << "0";
    QTest::newRow("engine answers a loading button") << "state:0,loading,state:1" << "On On" << true << "01";
    QTest::newRow("state set while locked") << "lock:1,state:0,state:1" << "Locked Locked-On" << true << "01";
    QTest::newRow("locked loading button") << "loading,lock:1" << "Locked Locked-On" << true << "";
    QTest::newRow("unlocked") << "state:0,lock:1,lock:0" << "Off Off" << false << "0";
    QTest::newRow("on text while off waits") << "state:0,on:RF on" << "Off Off" << false << "0";
    QTest::newRow("on text while off, then on") << "state:0,on:RF on,state:1" << "On RF on" << true << "01";
    QTest::newRow("on text while locked keeps the mark") << "lock:1,on:RF on" << "Locked Locked-RF on" << true << "";
    QTest::newRow("off text while off") << "state:0,off:Standby" << "Off Standby" << false << "0";
    QTest::newRow("loading text is the next loading look") << "loadingText:Wait,loading" << "Loading Wait" << true << "";
    // With one text for both states only the on look can be shown.
    QTest::newRow("equal texts select on") << "off:RF,on:RF,state:0" << "On RF" << true << "0";
}

void tst_QKXToggleButton::looks()
{
    QFETCH(QString, steps);
    QFETCH(QString, look);
    QFETCH(bool, active);
    QFETCH(QString, toggled);

    QKXToggleButton t;
    QSignalSpy spy(&t, &QKXToggleButton::toggled);
    const QString sheet = t.styleSheet();
    runSteps(&t, steps);

    auto *inner = t.findChild<QPushButton *>();
    auto *state = inner->findChild<QLabel *>();
    QCOMPARE(state->objectName() + QLatin1Char(' ') + state->text(), look);
    QCOMPARE(inner->isEnabled(), !look.startsWith(QLatin1String("Locked")));
    QCOMPARE(t.activeState(), active);
    QString announced;
    for (const QList<QVariant> &args : spy)
        announced += args.at(0).toBool() ? QLatin1Char('1') : QLatin1Char('0');
    QCOMPARE(announced, toggled);
    QCOMPARE(t.styleSheet(), sheet);
}

void tst_QKXToggleButton::translation()
{
    QKXToggleButton t;
    auto *inner = t.findChild<QPushButton *>();
    auto *state = inner->findChild<QLabel *>();
    QSignalSpy spy(&t, &QKXToggleButton::toggled);

    // A caption that Latin-1 cannot carry survives untranslated.
    QVERIFY(t.setProperty("LabelText", QString::fromUtf8("Ausgangsleistung \xe2\x86\x92 HF")));
    QCOMPARE(inner->text(), QString::fromUtf8("Ausgangsleistung \xe2\x86\x92 HF"));

    WordTranslator german({{"Off", "Aus"}, {"RF Output", "HF-Ausgang"}, {"Loading", "Laden"}});
    qApp->installTranslator(&german);
    t.setLabel(QStringLiteral("RF Output"));
    t.setActiveState(false);
    QCOMPARE(inner->text(), QStringLiteral("HF-Ausgang"));
    QCOMPARE(t.property("LabelText").toString(), QStringLiteral("RF Output"));
    QCOMPARE(state->text(), QStringLiteral("Aus"));
    t.setLocked(true);
    QCOMPARE(state->text(), QStringLiteral("Locked-Aus"));
    t.setLocked(false);
    // The loading text is shown as written.
    t.setButtonLoading();
    QCOMPARE(state->text(), QStringLiteral("Loading"));
    qApp->removeTranslator(&german);

    // A language change puts every text back into the language now in force and repeats the state.
    spy.clear();
    t.retranslate();
    QCOMPARE(inner->text(), QStringLiteral("RF Output"));
    QCOMPARE(state->text(), QStringLiteral("Off"));
    QCOMPARE(state->objectName(), QStringLiteral("Off"));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toBool(), false);
}

void tst_QKXToggleButton::styleSheet()
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
    QCOMPARE(t.currentSize(), QStringLiteral("Max"));
    QCOMPARE(t.styleSheet(), sheet);
    t.setReadOnly(true);
    QCOMPARE(t.styleSheet(), sheet);
}

void tst_QKXToggleButton::looksArePainted()
{
    // The object name must reach the sheet: each look paints the state label in its own colours,
    // also when the host sets it up before the screen is first shown.
    QWidget screen;
    screen.resize(300, 300);
    QList<QKXToggleButton *> t;
    for (int i = 0; i < 4; ++i) {
        t << new QKXToggleButton(&screen);
        t[i]->setGeometry(10, 10 + 70 * i, 240, 60);
    }
    t[2]->setButtonLoading();
    QVERIFY(exposed(screen));
    t[1]->setActiveState(false);
    t[3]->setLocked(true);
    const QStringList colours{"#0afa55", CSS::highlight(), "#000", "#666666"};   // on, off, loading, locked
    for (int i = 0; i < 4; ++i) {
        auto *state = t[i]->findChild<QPushButton *>()->findChild<QLabel *>();
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
}

void tst_QKXToggleButton::filterGrants()
{
    Stage s;
    s.grant = false;
    QWidget other;
    s.filter->lockAcquired(&other);
    s.filter->lockAcquired(s.toggle, false);
    QCOMPARE(s.log, QStringList());
    QCOMPARE(s.look(), QStringLiteral("On On"));

    QVERIFY(QMetaObject::invokeMethod(s.filter, "lockAcquired", Q_ARG(QWidget *, s.toggle), Q_ARG(bool, true)));
    QCOMPARE(s.log, (QStringList{"submit 0 while Loading \"Loading\"", "release"}));

    // On a widget without a state the lock goes back and nothing is submitted.
    DebugLines debug;
    QWidget plain;
    auto *filter = new QKXToggleButtonEventFilter(&plain);
    QStringList log;
    QObject::connect(filter, &QKXToggleButtonEventFilter::submit, [&log](bool) { log << QStringLiteral("submit"); });
    watchLock(filter, &plain, log, Refuse);
    filter->lockAcquired(&plain);
    QCOMPARE(log, QStringList{"release"});
    QCOMPARE(DebugLines::lines(),
             QStringList{"UserInterface - QKXToggleButtonEventFilter::lockAcquired : QWidget has no activeState(); "
                         "nothing submitted."});
}

QTEST_MAIN(tst_QKXToggleButton)
#include "tst_QKXToggleButton.moc"
