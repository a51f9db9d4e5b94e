// SPDX-License-Identifier: BSD-3-Clause
#include "SwitchesScreen.h"

#include "EditLockOwner.h"
#include "MainWindow.h"
#include "PanelHost.h"
#include "ScreenRunner.h"
#include "SimpleFileBrowser.h"
#include "SimulatedEngine.h"

#include "ContainerDialog.h"
#include "GlobalImpl.h"
#include "QKXBrowseButton.h"
#include "QKXBrowseButtonEventFilter.h"
#include "QKXConfirmationPushButton.h"
#include "QKXConfirmationPushButtonEventFilter.h"
#include "QKXConfirmationToggleButton.h"
#include "QKXConfirmationToggleButtonEventFilter.h"
#include "QKXFlagStatus.h"
#include "QKXPlaybackControlButton.h"
#include "QKXProgressBar.h"
#include "QKXPushButton.h"
#include "QKXPushButtonEventFilter.h"
#include "QKXToggleButton.h"
#include "QKXToggleButtonEventFilter.h"
#include "SystemModule.h"

#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QLabel>
#include <QMetaObject>
#include <QPushButton>
#include <QTimer>
#include <QtMath>

#include "ui_SwitchesScreen.h"

QString SwitchesScreen::id() const
{
    return QStringLiteral("switches");
}

void SwitchesScreen::addAttributes(SimulatedEngine &engine)
{
    // The RF output, Preset, the sweep and the settings file are the engine's own.
    engine.addValue(QStringLiteral("Recording"), QStringLiteral("Stopped"));
    engine.addValue(QStringLiteral("ExternalReference"), false);
    SimulatedEngine *target = &engine;
    engine.addCommand(QStringLiteral("PlayRecording"), tr("Play recording"),
                      [target] { target->setValue(QStringLiteral("Recording"), QStringLiteral("Playing")); });
    engine.addCommand(QStringLiteral("StopRecording"), tr("Stop recording"),
                      [target] { target->setValue(QStringLiteral("Recording"), QStringLiteral("Stopped")); });
    engine.addCommand(QStringLiteral("SaveTrace"), tr("Save trace"));
}

namespace {

// The settings file under the browse button, on one line: its path below the settings folder the
// browser shows (most often just its name), shortened in the middle when even that does not fit.
// The full path would wrap over several lines of the narrow section.
class SettingsFileLine : public QObject
{
public:
    SettingsFileLine(QLabel *label, QKXBrowseButton *button)
        : QObject(label)
        , label(label)
    {
        // Ignored: a long name must not widen the section; it is shortened instead.
        label->setSizePolicy(QSizePolicy::Ignored, label->sizePolicy().verticalPolicy());
        label->installEventFilter(this);
        connect(button, &QKXBrowseButton::filenameChanged, this, [this](const QString &path) {
            shown = nameBelowSettingsFolder(path);
            fit();
        });
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched == label && event->type() == QEvent::Resize && !shown.isEmpty()) {
            fit();
        }
        return false;
    }

private:
    static QString nameBelowSettingsFolder(const QString &path)
    {
        auto *browser = qobject_cast<SimpleFileBrowser *>(
            GlobalImpl::getInstance()->systemModule()->getSystemScreen(QStringLiteral("SimpleFileBrowser")));
        const QString root = browser ? QDir(browser->rootPath()).absolutePath() : QString();
        const QString file = QFileInfo(path).absoluteFilePath();
        if (!root.isEmpty() && file.startsWith(root + QLatin1Char('/'))) {
            return file.mid(root.size() + 1);
        }
        return QFileInfo(path).fileName();
    }

    void fit()
    {
        label->setText(label->fontMetrics().elidedText(shown, Qt::ElideMiddle, label->contentsRect().width()));
    }

    QLabel *label;
    QString shown;
};

} // namespace

QWidget *SwitchesScreen::createPage()
{
    QWidget *page = formPage<Ui::SwitchesScreen>();
    auto *label = page->findChild<QLabel *>(QStringLiteral("settingsFileLabel"));
    auto *button = page->findChild<QKXBrowseButton *>(QStringLiteral("loadSettingsButton"));
    if (label && button) {
        new SettingsFileLine(label, button);
    }
    return page;
}

// A toggle asks for the opposite state and waits in its loading look until the engine confirms.
template <typename Toggle, typename Filter>
static void switches_wireToggles(PanelHost &host, QWidget *page)
{
    host.wireEach<Toggle>(page, [&host](Toggle *toggle) {
        host.followValue(toggle, [toggle](const QVariant &value) { toggle->setActiveState(value.toBool()); });
        auto *filter = new Filter(toggle);
        host.requestOnSubmit(filter, &Filter::submit, toggle);
        return filter;
    });
}

void SwitchesScreen::wire(PanelHost &host, QWidget *page)
{
    // Derived families before their bases: a confirmation button is also a push button.
    host.wireEach<QKXConfirmationPushButton>(page, [&host](QKXConfirmationPushButton *button) {
        return host.commandFilter<QKXConfirmationPushButtonEventFilter>(button);
    });
    host.wireEach<QKXBrowseButton>(page, [&host](QKXBrowseButton *button) {
        auto *filter = new QKXBrowseButtonEventFilter(button);
        host.requestOnSubmit(filter, &QKXBrowseButtonEventFilter::submit, button);
        host.followValue(button, [button](const QVariant &value) {
            if (!value.toString().isEmpty()) {
                button->setFilename(value.toString());
            }
        });
        // The filter only listens to the browser; bringing it up is the host's part. The filter sees
        // the tap before the button turns it into a click, so it is listening by the time the browser
        // opens.
        QObject::connect(button, &QKXBrowseButton::clicked, &host, [] {
            if (QWidget *browser =
                    GlobalImpl::getInstance()->systemModule()->getSystemScreen(QStringLiteral("SimpleFileBrowser"))) {
                QMetaObject::invokeMethod(browser, "open");
            }
        });
        return filter;
    });
    // The save-trace key among them: a command key with a symbol.
    host.wireEach<QKXPushButton>(page, [&host](QKXPushButton *button) {
        return host.commandFilter<QKXPushButtonEventFilter>(button);
    });
    switches_wireToggles<QKXConfirmationToggleButton, QKXConfirmationToggleButtonEventFilter>(host, page);
    switches_wireToggles<QKXToggleButton, QKXToggleButtonEventFilter>(host, page);
    // A playback key is a command key with a symbol: the command button's filter serves it.
    host.wireEach<QKXPlaybackControlButton>(page, [&host](QKXPlaybackControlButton *button) {
        return host.commandFilter<QKXPushButtonEventFilter>(button);
    });
    // The indicators take values, not taps: bound, without a filter.
    host.wireEach<QKXFlagStatus>(page, [&host](QKXFlagStatus *flag) -> QKXEventFilterBase * {
        host.followValue(flag, [flag](const QVariant &value) { flag->setValue(value.toBool()); });
        return nullptr;
    });
    host.wireEach<QKXProgressBar>(page, [&host](QKXProgressBar *bar) -> QKXEventFilterBase * {
        // Through the floating-point slot, which refuses what is no number.
        host.followValue(bar, [bar](const QVariant &value) {
            bool isNumber = false;
            const double progress = value.toDouble(&isNumber);
            bar->setValue(isNumber ? progress : qQNaN());
        });
        return nullptr;
    });
}

static bool switches_tapToggle(ScreenRunner &runner, const QString &attribute, int timeoutMs)
{
    auto *toggle = runner.boundWidget<QKXToggleButton>(attribute);
    if (!toggle) {
        return runner.fail(QStringLiteral("no toggle is bound to %1").arg(attribute));
    }
    auto *inner = toggle->findChild<QPushButton *>();
    if (!inner || !runner.showScreenOf(inner, QStringLiteral("the %1 toggle").arg(attribute))) {
        return false;
    }
    const bool before = toggle->activeState();
    bool confirmed = false;
    const QMetaObject::Connection watch = QObject::connect(toggle, &QKXToggleButton::toggled, &runner,
                                                           [&confirmed, before](bool on) { confirmed |= on != before; });
    runner.engine()->appendLog(QStringLiteral("tap %1").arg(attribute));
    ScreenRunner::tap(inner);

    // The grant comes back queued; until the engine confirms, the toggle shows that it is loading.
    EditLockOwner *lock = runner.lockOwner();
    if (!runner.waitFor([lock] { return lock->isFree(); }, timeoutMs)) {
        QObject::disconnect(watch);
        return runner.fail(QStringLiteral("the lock for %1 was not handed back").arg(attribute));
    }
    const bool loading = runner.snapshot(QStringLiteral("switches-%1-loading").arg(attribute));
    const bool answered = runner.waitFor([&confirmed] { return confirmed; }, timeoutMs);
    QObject::disconnect(watch);
    if (!loading) {
        return false;
    }
    if (!answered || toggle->activeState() == before) {
        return runner.fail(QStringLiteral("the engine did not switch %1 within %2 ms").arg(attribute).arg(timeoutMs));
    }
    return runner.snapshot(QStringLiteral("switches-%1-confirmed").arg(attribute));
}

// Taps the confirmation button bound to the attribute, renders the open prompt as
// "prompt-<attribute>", presses the answer key with that label, and checks that the engine ran the
// command exactly when the answer confirms.
static bool switches_tapConfirmedButton(ScreenRunner &runner, const QString &attribute, const QString &answer,
                                        int timeoutMs)
{
    auto *button = runner.boundWidget<QKXConfirmationPushButton>(attribute);
    if (!button) {
        return runner.fail(QStringLiteral("no confirmation button is bound to %1").arg(attribute));
    }
    auto *inner = button->findChild<QPushButton *>(QStringLiteral("PushButton"));
    if (!inner || !runner.showScreenOf(inner, QStringLiteral("the %1 button").arg(attribute))) {
        return false;
    }

    SimulatedEngine *engine = runner.engine();
    QWidget *window = runner.window();
    QStringList commands;
    const QMetaObject::Connection watch = QObject::connect(engine, &SimulatedEngine::commandExecuted, &runner,
                                                           [&commands](const QString &name) { commands.append(name); });
    // The prompt is modal: the tap does not return until it is answered, so the answer comes from a
    // timer that looks for the open prompt while it runs.
    bool prompted = false;
    bool rendered = false;
    QString problem;
    bool confirming = false;
    QTimer answerer;
    answerer.setInterval(10);
    QObject::connect(&answerer, &QTimer::timeout, &runner, [&] {
        ContainerDialog *dialog = nullptr;
        for (ContainerDialog *candidate : window->findChildren<ContainerDialog *>()) {
            if (candidate->QWidget::isVisible()) {
                dialog = candidate;
            }
        }
        if (!dialog) {
            return;
        }
        answerer.stop();
        prompted = true;
        rendered = runner.snapshot(QStringLiteral("prompt-%1").arg(attribute));
        QPushButton *key = nullptr;
        for (QPushButton *candidate : dialog->findChildren<QPushButton *>(QStringLiteral("DialogButton"))) {
            if (candidate->text() == answer) {
                key = candidate;
            }
        }
        if (!key) {
            problem = QStringLiteral("the %1 prompt has no %2 key").arg(attribute, answer);
            dialog->cancelDialog();
            return;
        }
        confirming = key->property("returnCode").toInt() == 1;
        engine->appendLog(QStringLiteral("answer %1 to the %2 prompt").arg(answer, attribute));
        ScreenRunner::tap(key);
    });
    QTimer::singleShot(timeoutMs, &answerer, [&] {
        if (answerer.isActive()) {
            answerer.stop();
            problem = QStringLiteral("no prompt opened for %1 within %2 ms").arg(attribute).arg(timeoutMs);
            // A prompt that is open but not found must still end, or the tap never returns.
            for (ContainerDialog *dialog : window->findChildren<ContainerDialog *>()) {
                dialog->cancelDialog();
            }
        }
    });
    answerer.start();
    engine->appendLog(QStringLiteral("tap %1").arg(attribute));
    ScreenRunner::tap(inner);
    answerer.stop();

    EditLockOwner *lock = runner.lockOwner();
    const bool settled =
        runner.waitFor([&] { return lock->isFree() && (!confirming || !commands.isEmpty()); }, timeoutMs);
    ScreenRunner::settle();
    QObject::disconnect(watch);
    if (!problem.isEmpty()) {
        return runner.fail(problem);
    }
    if (!prompted || !rendered) {
        return runner.fail(QStringLiteral("the %1 prompt could not be rendered").arg(attribute));
    }
    const QStringList expected = confirming ? QStringList{attribute} : QStringList();
    if (!settled || commands != expected) {
        return runner.fail(QStringLiteral("answering %1 to the %2 prompt ran the commands [%3]")
                               .arg(answer, attribute, commands.join(QLatin1String(", "))));
    }
    return true;
}

static bool switches_browseAndLoad(ScreenRunner &runner, const QString &attribute, const QString &entry,
                                   int timeoutMs)
{
    auto *button = runner.boundWidget<QKXBrowseButton>(attribute);
    if (!button) {
        return runner.fail(QStringLiteral("no browse button is bound to %1").arg(attribute));
    }
    auto *browser = qobject_cast<SimpleFileBrowser *>(
        GlobalImpl::getInstance()->systemModule()->getSystemScreen(QStringLiteral("SimpleFileBrowser")));
    if (!browser) {
        return runner.fail(QStringLiteral("there is no file browser"));
    }
    auto *inner = button->findChild<QPushButton *>(QStringLiteral("PushButton"));
    if (!inner || !runner.showScreenOf(inner, QStringLiteral("the %1 button").arg(attribute))) {
        return false;
    }
    SimulatedEngine *engine = runner.engine();
    engine->appendLog(QStringLiteral("tap %1").arg(attribute));
    ScreenRunner::tap(inner);
    EditLockOwner *lock = runner.lockOwner();
    if (!runner.waitFor([&] { return lock->isFree() && browser->isVisible(); }, timeoutMs)) {
        return runner.fail(QStringLiteral("the file browser did not open for %1").arg(attribute));
    }
    if (!browser->activate(entry)) {
        return runner.fail(QStringLiteral("the file browser lists no %1 in %2").arg(entry, browser->currentPath()));
    }
    if (!runner.snapshot(QStringLiteral("browser-%1").arg(attribute))) {
        return false;
    }

    const QString path = browser->selectedFile();
    auto *openKey = browser->findChild<QPushButton *>(QStringLiteral("BrowserOpen"));
    if (!openKey || !openKey->isEnabled()) {
        return runner.fail(QStringLiteral("the file browser cannot open %1").arg(entry));
    }
    engine->appendLog(QStringLiteral("choose %1").arg(entry));
    ScreenRunner::tap(openKey);
    if (!runner.waitFor([&] { return button->filename() == path; }, timeoutMs)) {
        return runner.fail(QStringLiteral("the engine did not load %1 (it holds \"%2\")")
                               .arg(path, engine->value(attribute).toString()));
    }
    if (browser->isVisible()) {
        return runner.fail(QStringLiteral("the file browser stayed open"));
    }
    return runner.snapshot(QStringLiteral("switches-%1-loaded").arg(attribute));
}

bool SwitchesScreen::play(ScreenRunner &runner)
{
    SimulatedEngine *engine = runner.engine();
    // A sweep half way through, on the strong carrier: the overload lamp is lit.
    engine->command(QStringLiteral("StartSweep"));
    while (engine->value(QStringLiteral("SweepProgress")).toInt() < 52) {
        engine->stepSweep();
    }
    auto *progress = runner.window()->findChild<QWidget *>(QStringLiteral("sweepProgress"));
    if (!progress || !runner.showScreenOf(progress, QStringLiteral("the sweep progress bar"))) {
        return runner.fail(QStringLiteral("the switches screen has no sweep progress bar"));
    }
    const bool sweep = runner.snapshot(QStringLiteral("switches-sweep"));
    engine->command(QStringLiteral("StopSweep"));
    if (!sweep) {
        return false;
    }

    return switches_tapToggle(runner, QStringLiteral("RfOutput"), 3000)
        && switches_tapConfirmedButton(runner, QStringLiteral("Preset"), QStringLiteral("Yes"), 2000)
        && switches_browseAndLoad(runner, QStringLiteral("SettingsFile"), QStringLiteral("receiver-test.cfg"), 2000);
}
