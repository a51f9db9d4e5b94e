#define QTEST_QPA_MOUSE_HANDLING
#include <QtTest>

#include <QLabel>
#include <QPushButton>

#include "ButtonTestSupport.h"
#include "QKXConfirmationToggleButton.h"
#include "QKXConfirmationToggleButtonEventFilter.h"

using namespace kxtest;

namespace {

// A confirmation toggle under the top container of the registered main window, with the host's
// filter and a host that grants every lock request at once.
struct Stage : PromptScreen
{
    Stage()
    {
        toggle = new QKXConfirmationToggleButton(top);
        toggle->setGeometry(20, 20, 200, 60);
        toggle->setTitleText(QStringLiteral("RF"));
        toggle->setDialogText(QStringLiteral("Switch the RF output?"));
        filter = new QKXConfirmationToggleButtonEventFilter(toggle);
        toggle->installEventFilter(filter);
        inner = toggle->findChild<QPushButton *>();
        state = inner->findChild<QLabel *>();
        QObject::connect(filter, &QKXConfirmationToggleButtonEventFilter::submit, [this](bool v) {
            log << QStringLiteral("submit %1 while %2").arg(v).arg(state->objectName());
        });
        QObject::connect(filter, &QKXEventFilterBase::showGuiLockedMessage, [this] { log << QStringLiteral("gui locked"); });
        watchLock(filter, toggle, log, Grant);
    }

    QKXConfirmationToggleButton *toggle;
    QKXConfirmationToggleButtonEventFilter *filter;
    QPushButton *inner;
    QLabel *state;
};

const QString Prompt = QStringLiteral("prompt RF|Switch the RF output?|No/Yes");

QStringList switched(bool to)
{
    return {QStringLiteral("request"), QStringLiteral("submit %1 while Loading").arg(to), QStringLiteral("release")};
}

} // namespace

class tst_QKXConfirmationToggleButton : public QObject
{
    Q_OBJECT

private slots:
    void promptRoads_data();
    void promptRoads();
    void noPrompt_data();
    void noPrompt();
};

void tst_QKXConfirmationToggleButton::promptRoads_data()
{
    QTest::addColumn<int>("promptStyle");
    QTest::addColumn<bool>("startOn");
    QTest::addColumn<QString>("answer");
    QTest::addColumn<QStringList>("expected");
    QTest::addColumn<QStringList>("debug");

    const QStringList none;
    QTest::newRow("0: no prompt") << 0 << false << "" << switched(true) << none;
    QTest::newRow("1: turning on, Yes") << 1 << false << "Yes" << QStringList{Prompt} + switched(true) << none;
    QTest::newRow("1: turning off needs no word") << 1 << true << "" << switched(false) << none;
    QTest::newRow("2: turning off, Yes") << 2 << true << "Yes" << QStringList{Prompt} + switched(false) << none;
    QTest::newRow("2: turning on needs no word") << 2 << false << "" << switched(true) << none;
    QTest::newRow("3: off, No") << 3 << false << "No" << QStringList{Prompt} << none;
    QTest::newRow("3: window closed") << 3 << false << "<window closed>" << QStringList{Prompt} << none;
    QTest::newRow("negative: a notice") << -1 << false << "Yes" << QStringList{Prompt} << none;
    QTest::newRow("unknown style asks both ways") << 9 << true << "Yes" << QStringList{Prompt} + switched(false)
                                                  << QStringList{"UserInterface - QKXConfirmationToggleButtonEventFilter::"
                                                                 "mouseReleaseEventFilter : PromptStyle 9 is none of 0 "
                                                                 "to 3; confirming both ways."};
}

void tst_QKXConfirmationToggleButton::promptRoads()
{
    QFETCH(int, promptStyle);
    QFETCH(bool, startOn);
    QFETCH(QString, answer);
    QFETCH(QStringList, expected);
    QFETCH(QStringList, debug);

    DebugLines lines;
    Stage s;
    QVERIFY(exposed(s.main));
    s.toggle->setPromptStyle(promptStyle);
    s.toggle->setActiveState(startOn);
    s.tapAndAnswer(s.inner, answer);
    QCOMPARE(s.log, expected);
    QCOMPARE(DebugLines::lines(), debug);
    // Whatever the answer, the state only changes when the engine says so.
    QCOMPARE(s.toggle->activeState(), startOn);
    QCOMPARE(s.state->objectName(), expected.contains(QStringLiteral("request")) ? QStringLiteral("Loading")
                                                                                 : startOn ? QStringLiteral("On")
                                                                                           : QStringLiteral("Off"));
    QVERIFY(!PromptAnswerer::openDialog());
}

void tst_QKXConfirmationToggleButton::noPrompt_data()
{
    QTest::addColumn<bool>("guiLocked");
    QTest::addColumn<QStringList>("expected");
    QTest::addColumn<QString>("look");
    QTest::newRow("locked") << false << QStringList() << "Locked Locked-On";
    QTest::newRow("gui locked") << true << QStringList{"gui locked"} << "On On";
}

void tst_QKXConfirmationToggleButton::noPrompt()
{
    QFETCH(bool, guiLocked);
    QFETCH(QStringList, expected);
    QFETCH(QString, look);
    Stage s;
    QVERIFY(exposed(s.main));
    s.toggle->setPromptStyle(3);
    s.toggle->setLocked(!guiLocked);
    qApp->setProperty("guilocked", guiLocked ? QVariant(true) : QVariant());
    s.tapAndAnswer(s.inner, QStringLiteral("Yes"));
    qApp->setProperty("guilocked", QVariant());
    QCOMPARE(s.log, expected);
    QVERIFY(!s.inner->isDown());
    QCOMPARE(s.state->objectName() + QLatin1Char(' ') + s.state->text(), look);
}

QTEST_MAIN(tst_QKXConfirmationToggleButton)
#include "tst_QKXConfirmationToggleButton.moc"
