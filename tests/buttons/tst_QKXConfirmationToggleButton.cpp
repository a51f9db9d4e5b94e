// SPDX-License-Identifier: BSD-3-Clause
#define QTEST_QPA_MOUSE_HANDLING

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
};

void tst_QKXConfirmationToggleButton::promptRoads_data()
{
    QTest::addColumn<int>("promptStyle");
    QTest::addColumn<QString>("start");   // "on", "off", "locked" (on) or "gui locked" (on)
    QTest::addColumn<QString>("answer");
    QTest::addColumn<QStringList>("expected");
    QTest::addColumn<QString>("line");

    QTest::newRow("0: no prompt") << 0 << "off" << "" << switched(true) << "";
    QTest::newRow("1: turning on, Yes") << 1 << "off" << "Yes" << QStringList{Prompt} + switched(true) << "";
    QTest::newRow("1: turning off needs no word") << 1 << "on" << "" << switched(false) << "";
    QTest::newRow("2: turning off, Yes") << 2 << "on" << "Yes" << QStringList{Prompt} + switched(false) << "";
    QTest::newRow("2: turning on needs no word") << 2 << "off" << "" << switched(true) << "";
    QTest::newRow("3: off, No") << 3 << "off" << "No" << QStringList{Prompt} << "";
    QTest::newRow("3: locked") << 3 << "locked" << "Yes" << QStringList() << "";
    QTest::newRow("3: gui locked") << 3 << "gui locked" << "Yes" << QStringList{"gui locked"} << "";
    // Only 1 to 3 name a prompt for a switch, and only 0 switches without one.
    const QString none = QStringLiteral("UserInterface - QKXConfirmationToggleButtonEventFilter::mouseReleaseEventFilter : "
                                        "PromptStyle %1 is none of 0 to 3; the tap does nothing.");
    QTest::newRow("negative") << -1 << "off" << "Yes" << QStringList() << none.arg(-1);
    QTest::newRow("above 3") << 9 << "on" << "Yes" << QStringList() << none.arg(9);
}

void tst_QKXConfirmationToggleButton::promptRoads()
{
    QFETCH(int, promptStyle);
    QFETCH(QString, start);
    QFETCH(QString, answer);
    QFETCH(QStringList, expected);
    QFETCH(QString, line);
    DebugLines lines;
    Stage s;
    QVERIFY(exposed(s.main));
    const bool startOn = start != QLatin1String("off");
    s.toggle->setPromptStyle(promptStyle);
    s.toggle->setActiveState(startOn);
    s.toggle->setLocked(start == QLatin1String("locked"));
    qApp->setProperty("guilocked", start == QLatin1String("gui locked") ? QVariant(true) : QVariant());
    s.tapAndAnswer(s.inner, answer);
    qApp->setProperty("guilocked", QVariant());
    QCOMPARE(s.log, expected);
    QCOMPARE(DebugLines::lines(), line.isEmpty() ? QStringList() : QStringList{line});
    // Whatever the answer, the state only changes when the engine says so.
    QCOMPARE(s.toggle->activeState(), startOn);
    const char *look = expected.contains(QStringLiteral("request")) ? "Loading Loading"
                       : start == QLatin1String("locked")          ? "Locked Locked-On"
                       : startOn                                   ? "On On" : "Off Off";
    QCOMPARE(s.state->objectName() + QLatin1Char(' ') + s.state->text(), QString::fromLatin1(look));
    QVERIFY(!PromptAnswerer::openDialog());
    QVERIFY(!s.inner->isDown());
}

QTEST_MAIN(tst_QKXConfirmationToggleButton)
#include "tst_QKXConfirmationToggleButton.moc"
