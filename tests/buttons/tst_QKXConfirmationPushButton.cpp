// SPDX-License-Identifier: BSD-3-Clause
#define QTEST_QPA_MOUSE_HANDLING

#include "ButtonTestSupport.h"
#include "QKXConfirmationPushButton.h"
#include "QKXConfirmationPushButtonEventFilter.h"
#include "QKXPushButton.h"

using namespace kxtest;

namespace {

const QStringList Click{"clicked", "buttonPressed PushButton"};
const QStringList Command{"request", "submit", "release"};
const int Untouched = -99;   // a style the test leaves as the button starts
const QString Line = QStringLiteral("UserInterface - QKXConfirmationPushButtonEventFilter::");

// A confirmation button under the top container of a main window, with the host's filter and a host
// that grants every lock request at once. Everything lands in one ordered log.
struct Stage : PromptScreen
{
    explicit Stage(bool registerMain = true, const QString &topName = QStringLiteral("TopContainerObject"))
        : PromptScreen(registerMain, topName)
    {
        button = new QKXConfirmationPushButton(top);
        button->setGeometry(20, 20, 200, 60);
        button->setTitleText(QStringLiteral("Preset"));
        button->setDialogText(QStringLiteral("Reset all settings?"));
        filter = new QKXConfirmationPushButtonEventFilter(button);
        button->installEventFilter(filter);
        inner = button->findChild<QPushButton *>(QStringLiteral("PushButton"));
        watchClicks(button, log);
        QObject::connect(filter, &QKXConfirmationPushButtonEventFilter::submit, [this] { log << QStringLiteral("submit"); });
        QObject::connect(filter, &QKXEventFilterBase::showGuiLockedMessage, [this] { log << QStringLiteral("gui locked"); });
        watchLock(filter, button, log, Grant);
    }

    QKXConfirmationPushButton *button;
    QKXConfirmationPushButtonEventFilter *filter;
    QPushButton *inner;
};

QString prompt(const QString &keys) { return QStringLiteral("prompt Preset|Reset all settings?|") + keys; }

} // namespace

class tst_QKXConfirmationPushButton : public QObject
{
    Q_OBJECT

private slots:
    void promptRoads_data();
    void promptRoads();
    void noPrompt_data();
    void noPrompt();
    void filterOnPlainButton();
    void buttonGoneWhilePromptOpen();
};

void tst_QKXConfirmationPushButton::promptRoads_data()
{
    QTest::addColumn<int>("buttonStyle");
    QTest::addColumn<int>("promptStyle");
    QTest::addColumn<QString>("screen");   // "" as hosts build it; else what is missing
    QTest::addColumn<QString>("answer");
    QTest::addColumn<QStringList>("expected");
    QTest::addColumn<QString>("line");

    const QStringList yes = QStringList{prompt("No/Yes")} + Command + Click;
    // A new button asks No/Yes on every tap.
    QTest::newRow("new button, Yes") << Untouched << Untouched << "" << "Yes" << yes << "";
    QTest::newRow("Cancel/OK, Cancel") << 0 << 1 << "" << "Cancel" << QStringList{prompt("Cancel/OK")} + Click << "";
    QTest::newRow("notice never confirms") << 2 << 1 << "" << "OK" << QStringList{prompt("OK")} + Click << "";
    QTest::newRow("single OK confirms") << 3 << 1 << "" << "OK" << QStringList{prompt("OK")} + Command + Click << "";
    QTest::newRow("no prompt") << 1 << 0 << "" << "" << Command + Click << "";
    QTest::newRow("negative: prompt only") << 1 << -1 << "" << "Yes" << QStringList{prompt("No/Yes")} + Click << "";
    QTest::newRow("window closed") << 1 << 1 << "" << "<window closed>" << QStringList{prompt("No/Yes")} + Click << "";
    // No answer keys and no close key: only the window closing ends it, and that does not confirm.
    QTest::newRow("ButtonStyle without answers") << 4 << Untouched << "" << "<window closed>" << QStringList{prompt("")} + Click
        << Line + "displayPrompt : ButtonStyle 4 offers no answer; only closing the window ends the prompt.";
    QTest::newRow("no top container") << 1 << Untouched << "top" << "Yes" << yes
        << Line + "displayDialog : no TopContainerObject above the widget; closing the window cannot cancel the prompt.";
    // The prompt opens as a window of its own and still works.
    QTest::newRow("no main window") << 1 << Untouched << "main" << "Yes" << yes
        << Line + "displayDialog : no MainWindow screen; the prompt opens on its own.";
}

void tst_QKXConfirmationPushButton::promptRoads()
{
    QFETCH(int, buttonStyle);
    QFETCH(int, promptStyle);
    QFETCH(QString, screen);
    QFETCH(QString, answer);
    QFETCH(QStringList, expected);
    QFETCH(QString, line);

    DebugLines debug;
    Stage s(screen != QLatin1String("main"), screen == QLatin1String("top") ? "Panel" : "TopContainerObject");
    QVERIFY(exposed(s.main));
    if (buttonStyle != Untouched)
        s.button->setButtonStyle(buttonStyle);
    if (promptStyle != Untouched)
        s.button->setPromptStyle(promptStyle);
    s.tapAndAnswer(s.inner, answer);
    QCOMPARE(s.log, expected);
    QCOMPARE(DebugLines::lines(), line.isEmpty() ? QStringList() : QStringList{line});

    if (s.answerer.seenText) {   // question top left and wrapped; the dialog is deleted once answered
        QCOMPARE(s.answerer.seenParent, screen == QLatin1String("main") ? nullptr : &s.main);
        QVERIFY(!s.answerer.closeKeyShown);
        QCOMPARE(s.answerer.textAlignment, Qt::AlignLeft | Qt::AlignTop);
        QVERIFY(s.answerer.textWraps && !s.answerer.seen);
    }
    QVERIFY(!PromptAnswerer::openDialog());
    QVERIFY(!s.inner->isDown());
}

void tst_QKXConfirmationPushButton::noPrompt_data()
{
    QTest::addColumn<bool>("guiLocked");
    QTest::newRow("gui locked") << true;
    QTest::newRow("drag") << false;
}

void tst_QKXConfirmationPushButton::noPrompt()
{
    QFETCH(bool, guiLocked);
    Stage s;
    QVERIFY(exposed(s.main));
    s.answerer.answerWith(QStringLiteral("Yes"));
    qApp->setProperty("guilocked", guiLocked ? QVariant(true) : QVariant());
    guiLocked ? QTest::mouseClick(s.inner, Qt::LeftButton) : drag(s.inner);
    qApp->setProperty("guilocked", QVariant());
    s.answerer.stop();
    QCOMPARE(s.log.filter(QStringLiteral("prompt")) + s.log.filter(QStringLiteral("request")), QStringList());
    // A locked GUI swallows the release: no click, and the button does not stay held down.
    if (guiLocked)
        QCOMPARE(s.log, QStringList{"gui locked"});
    QVERIFY(!s.inner->isDown());
}

void tst_QKXConfirmationPushButton::filterOnPlainButton()
{
    // A host that puts the filter on a widget without prompt properties still gets a No/Yes prompt.
    DebugLines debug;
    Stage s;
    auto *plain = new QKXPushButton(s.top);
    plain->setGeometry(20, 100, 200, 60);
    plain->show();
    auto *filter = new QKXConfirmationPushButtonEventFilter(plain);
    plain->installEventFilter(filter);
    watchLock(filter, plain, s.log, Refuse);
    QVERIFY(exposed(s.main));
    s.tapAndAnswer(plain->findChild<QPushButton *>(), QStringLiteral("Yes"));
    QCOMPARE(s.log, (QStringList{"prompt ||No/Yes", "request"}));
    QCOMPARE(DebugLines::lines(),
             (QStringList{Line + "mouseReleaseEventFilter : QKXPushButton has no PromptStyle; prompting as PromptStyle 1.",
                          Line + "displayPrompt : QKXPushButton has no buttonStyle(); asking No/Yes."}));
}

void tst_QKXConfirmationPushButton::buttonGoneWhilePromptOpen()
{
    Stage s;
    QVERIFY(exposed(s.main));
    QPointer<QKXConfirmationPushButton> button(s.button);
    // The screen drops the button while the question is open, then the window closes.
    s.answerer.answerWith(QString(), [&s](ContainerDialog *) {
        s.button->deleteLater();
        QTimer::singleShot(0, s.top, [&s] { emit s.top->WindowClosed(); });
    });
    QTest::mouseClick(s.inner, Qt::LeftButton);
    s.answerer.stop();
    QVERIFY(!button);
    QCOMPARE(s.log, QStringList{prompt("No/Yes")});
    QVERIFY(!PromptAnswerer::openDialog());
}

QTEST_MAIN(tst_QKXConfirmationPushButton)
#include "tst_QKXConfirmationPushButton.moc"
