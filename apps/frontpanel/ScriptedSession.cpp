#include "ScriptedSession.h"

#include "AppProperties.h"
#include "EditLockOwner.h"
#include "HostWiring.h"
#include "MainWindow.h"
#include "ScreenList.h"
#include "SimulatedEngine.h"
#include "WidgetNaming.h"

#include "ContainerDialog.h"
#include "GlobalImpl.h"
#include "QKXBrowseButton.h"
#include "QKXConfirmationPushButton.h"
#include "QKXNumeric.h"
#include "QKXNumpad.h"
#include "QKXPushButton.h"
#include "QKXToggleButton.h"
#include "SimpleFileBrowser.h"
#include "SystemModule.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPixmap>
#include <QPushButton>
#include <QTimer>

// Lets layouts, polishing and deferred deletes settle so that a grab shows what a user would see.
static void session_settle()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

static void session_sendMouse(QWidget *target, QEvent::Type type, const QPoint &pos)
{
    const Qt::MouseButtons buttons = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
    QMouseEvent event(type, pos, target->window()->mapFromGlobal(target->mapToGlobal(pos)),
                      target->mapToGlobal(pos), Qt::LeftButton, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &event);
}

ScriptedSession::ScriptedSession(MainWindow *window, QObject *parent)
    : QObject(parent)
    , window(window)
{
}

ScriptedSession::~ScriptedSession() = default;

QStringList ScriptedSession::renderScreens(const QDir &directory)
{
    QStringList written;
    ScreenList *screens = window->screens();
    for (int i = 0; i < screens->count(); ++i) {
        screens->setCurrentIndex(i);
        const QString name = QStringLiteral("%1-%2").arg(i + 1, 2, 10, QLatin1Char('0')).arg(screens->screenId(i));
        const QString path = renderWindow(directory, name);
        if (!path.isEmpty()) {
            written.append(path);
        }
    }
    screens->setCurrentIndex(0);
    return written;
}

QString ScriptedSession::renderWindow(const QDir &directory, const QString &baseName)
{
    session_settle();
    const QString path = directory.absoluteFilePath(baseName + QStringLiteral(".png"));
    if (!window->grab().save(path, "PNG")) {
        fail(QStringLiteral("cannot write %1").arg(path));
        return QString();
    }
    return path;
}

bool ScriptedSession::tapPushButton(const QString &attribute, int timeoutMs)
{
    QKXPushButton *widget = nullptr;
    const QList<QKXPushButton *> buttons = window->findChildren<QKXPushButton *>();
    for (QKXPushButton *candidate : buttons) {
        // Only the plain command button: the derived buttons answer a tap with a prompt or a browser
        // that waits for more input than one tap.
        if (candidate->metaObject() == &QKXPushButton::staticMetaObject
            && WidgetNaming::boundAttribute(candidate) == attribute) {
            widget = candidate;
            break;
        }
    }
    if (!widget) {
        return fail(QStringLiteral("no command button is bound to %1").arg(attribute));
    }
    auto *inner = widget->findChild<QPushButton *>(QStringLiteral("PushButton"));
    if (!inner) {
        return fail(QStringLiteral("the %1 button has no inner button named PushButton").arg(attribute));
    }
    ScreenList *screens = window->screens();
    screens->setCurrentIndex(screens->indexOfScreenHolding(widget));
    session_settle();
    if (!inner->isVisible()) {
        return fail(QStringLiteral("the %1 button is not on screen").arg(attribute));
    }

    EditLockOwner *lock = window->lockOwner();
    SimulatedEngine *engine = window->engine();
    const bool guiLocked = AppProperties::isGuiLocked();
    int requests = 0;
    int grants = 0;
    int releases = 0;
    int refusals = 0;
    int notices = 0;
    QStringList commands;
    QEventLoop loop;
    // The road ends with a release or a refusal, or at once with the locked notice.
    const QList<QMetaObject::Connection> watches = {
        connect(lock, &EditLockOwner::logged, &loop,
                [&](const QString &line) { requests += line.startsWith(QLatin1String("lock request ")); }),
        connect(lock, &EditLockOwner::lockGranted, &loop, [&] { ++grants; }),
        connect(lock, &EditLockOwner::lockReleased, &loop, [&] { ++releases; loop.quit(); }),
        connect(lock, &EditLockOwner::lockRefused, &loop, [&] { ++refusals; loop.quit(); }),
        connect(window->wiring(), &HostWiring::guiLockedMessageRequested, &loop, [&] { ++notices; loop.quit(); }),
        connect(engine, &SimulatedEngine::commandExecuted, &loop, [&](const QString &name) { commands.append(name); }),
    };

    const QPoint centre = inner->rect().center();
    const QPoint at = inner->mapTo(window, centre);
    engine->appendLog(QStringLiteral("tap %1 at (%2, %3)").arg(attribute).arg(at.x()).arg(at.y()));
    session_sendMouse(inner, QEvent::MouseButtonPress, centre);
    session_sendMouse(inner, QEvent::MouseButtonRelease, centre);

    bool timedOut = false;
    if (releases == 0 && refusals == 0 && notices == 0) {
        QTimer::singleShot(timeoutMs, &loop, [&] {
            timedOut = true;
            loop.quit();
        });
        loop.exec();
    }
    // Anything the grant set going (queued calls) lands before the outcome is judged.
    session_settle();
    for (const QMetaObject::Connection &watch : watches) {
        disconnect(watch);
    }

    if (guiLocked) {
        if (notices != 1 || requests != 0 || !commands.isEmpty()) {
            return fail(QStringLiteral("with the interface locked the tap on %1 gave %2 notices, %3 lock requests, "
                                       "%4 commands").arg(attribute).arg(notices).arg(requests).arg(commands.size()));
        }
        return true;
    }
    if (timedOut) {
        return fail(QStringLiteral("the tap on %1 did not end within %2 ms").arg(attribute).arg(timeoutMs));
    }
    if (refusals != 0) {
        return fail(QStringLiteral("the edit lock was refused to %1").arg(attribute));
    }
    if (requests != 1 || grants != 1 || releases != 1 || commands != QStringList{attribute} || !lock->isFree()) {
        return fail(QStringLiteral("the tap on %1 gave %2 lock requests, %3 grants, %4 releases, commands [%5], "
                                   "lock %6").arg(attribute).arg(requests).arg(grants).arg(releases)
                        .arg(commands.join(QLatin1String(", ")), lock->isFree() ? QStringLiteral("free") : QStringLiteral("held")));
    }
    return true;
}

QString ScriptedSession::failure() const
{
    return failureText;
}

bool ScriptedSession::fail(const QString &why)
{
    failureText = why;
    return false;
}

// The first widget of the class bound to the attribute, anywhere in the window.
template <typename Widget>
static Widget *session_boundWidget(QWidget *window, const QString &attribute)
{
    const QList<Widget *> candidates = window->findChildren<Widget *>();
    for (Widget *candidate : candidates) {
        if (WidgetNaming::boundAttribute(candidate) == attribute) {
            return candidate;
        }
    }
    return nullptr;
}

static void session_tap(QWidget *target)
{
    const QPoint centre = target->rect().center();
    session_sendMouse(target, QEvent::MouseButtonPress, centre);
    session_sendMouse(target, QEvent::MouseButtonRelease, centre);
}

bool ScriptedSession::showScreenOf(QWidget *widget, const QString &what)
{
    ScreenList *screens = window->screens();
    screens->setCurrentIndex(screens->indexOfScreenHolding(widget));
    session_settle();
    if (!widget->isVisible()) {
        return fail(QStringLiteral("%1 is not on screen").arg(what));
    }
    return true;
}

bool ScriptedSession::waitFor(const std::function<bool()> &condition, int timeoutMs)
{
    QElapsedTimer clock;
    clock.start();
    while (!condition() && clock.elapsed() < timeoutMs) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
    }
    return condition();
}

bool ScriptedSession::playSwitchesRoads(const QDir &directory, QStringList &images)
{
    SimulatedEngine *engine = window->engine();
    // A sweep half way through, on the strong carrier: the overload lamp is lit.
    engine->command(QStringLiteral("StartSweep"));
    while (engine->value(QStringLiteral("SweepProgress")).toInt() < 52) {
        engine->stepSweep();
    }
    auto *progress = window->findChild<QWidget *>(QStringLiteral("sweepProgress"));
    if (!progress || !showScreenOf(progress, QStringLiteral("the sweep progress bar"))) {
        return fail(QStringLiteral("the switches screen has no sweep progress bar"));
    }
    const QString sweep = renderWindow(directory, QStringLiteral("switches-sweep"));
    engine->command(QStringLiteral("StopSweep"));
    if (sweep.isEmpty()) {
        return false;
    }
    images.append(sweep);

    return tapToggle(QStringLiteral("RfOutput"), directory, images, 3000)
        && tapConfirmedButton(QStringLiteral("Preset"), QStringLiteral("Yes"), directory, images)
        && browseAndLoad(QStringLiteral("SettingsFile"), QStringLiteral("receiver-test.cfg"), directory, images, 2000);
}

bool ScriptedSession::tapToggle(const QString &attribute, const QDir &directory, QStringList &images, int timeoutMs)
{
    auto *toggle = session_boundWidget<QKXToggleButton>(window, attribute);
    if (!toggle) {
        return fail(QStringLiteral("no toggle is bound to %1").arg(attribute));
    }
    auto *inner = toggle->findChild<QPushButton *>();
    if (!inner || !showScreenOf(inner, QStringLiteral("the %1 toggle").arg(attribute))) {
        return false;
    }
    const bool before = toggle->activeState();
    bool confirmed = false;
    const QMetaObject::Connection watch =
        connect(toggle, &QKXToggleButton::toggled, this, [&confirmed, before](bool on) { confirmed |= on != before; });
    window->engine()->appendLog(QStringLiteral("tap %1").arg(attribute));
    session_tap(inner);

    // The grant comes back queued; until the engine confirms, the toggle shows that it is loading.
    EditLockOwner *lock = window->lockOwner();
    if (!waitFor([lock] { return lock->isFree(); }, timeoutMs)) {
        disconnect(watch);
        return fail(QStringLiteral("the lock for %1 was not handed back").arg(attribute));
    }
    const QString loading = renderWindow(directory, QStringLiteral("switches-%1-loading").arg(attribute));
    const bool answered = waitFor([&confirmed] { return confirmed; }, timeoutMs);
    disconnect(watch);
    if (loading.isEmpty()) {
        return false;
    }
    images.append(loading);
    if (!answered || toggle->activeState() == before) {
        return fail(QStringLiteral("the engine did not switch %1 within %2 ms").arg(attribute).arg(timeoutMs));
    }
    const QString done = renderWindow(directory, QStringLiteral("switches-%1-confirmed").arg(attribute));
    if (done.isEmpty()) {
        return false;
    }
    images.append(done);
    return true;
}

bool ScriptedSession::tapConfirmedButton(const QString &attribute, const QString &answer, const QDir &directory,
                                         QStringList &images, int timeoutMs)
{
    auto *button = session_boundWidget<QKXConfirmationPushButton>(window, attribute);
    if (!button) {
        return fail(QStringLiteral("no confirmation button is bound to %1").arg(attribute));
    }
    auto *inner = button->findChild<QPushButton *>(QStringLiteral("PushButton"));
    if (!inner || !showScreenOf(inner, QStringLiteral("the %1 button").arg(attribute))) {
        return false;
    }

    SimulatedEngine *engine = window->engine();
    QStringList commands;
    const QMetaObject::Connection watch = connect(engine, &SimulatedEngine::commandExecuted, this,
                                                  [&commands](const QString &name) { commands.append(name); });
    // The prompt is modal: the tap does not return until it is answered, so the answer comes from a
    // timer that looks for the open prompt while it runs.
    QString prompt;
    QString problem;
    bool confirming = false;
    QTimer answerer;
    answerer.setInterval(10);
    connect(&answerer, &QTimer::timeout, this, [&] {
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
        prompt = renderWindow(directory, QStringLiteral("prompt-%1").arg(attribute));
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
        session_tap(key);
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
    session_tap(inner);
    answerer.stop();

    EditLockOwner *lock = window->lockOwner();
    const bool settled = waitFor([&] { return lock->isFree() && (!confirming || !commands.isEmpty()); }, timeoutMs);
    session_settle();
    disconnect(watch);
    if (!prompt.isEmpty()) {
        images.append(prompt);
    }
    if (!problem.isEmpty()) {
        return fail(problem);
    }
    if (prompt.isEmpty()) {
        return fail(QStringLiteral("the %1 prompt could not be rendered").arg(attribute));
    }
    const QStringList expected = confirming ? QStringList{attribute} : QStringList();
    if (!settled || commands != expected) {
        return fail(QStringLiteral("answering %1 to the %2 prompt ran the commands [%3]")
                        .arg(answer, attribute, commands.join(QLatin1String(", "))));
    }
    return true;
}

bool ScriptedSession::browseAndLoad(const QString &attribute, const QString &entry, const QDir &directory,
                                    QStringList &images, int timeoutMs)
{
    auto *button = session_boundWidget<QKXBrowseButton>(window, attribute);
    if (!button) {
        return fail(QStringLiteral("no browse button is bound to %1").arg(attribute));
    }
    auto *browser = qobject_cast<SimpleFileBrowser *>(
        GlobalImpl::getInstance()->systemModule()->getSystemScreen(QStringLiteral("SimpleFileBrowser")));
    if (!browser) {
        return fail(QStringLiteral("there is no file browser"));
    }
    auto *inner = button->findChild<QPushButton *>(QStringLiteral("PushButton"));
    if (!inner || !showScreenOf(inner, QStringLiteral("the %1 button").arg(attribute))) {
        return false;
    }
    SimulatedEngine *engine = window->engine();
    engine->appendLog(QStringLiteral("tap %1").arg(attribute));
    session_tap(inner);
    EditLockOwner *lock = window->lockOwner();
    if (!waitFor([&] { return lock->isFree() && browser->isVisible(); }, timeoutMs)) {
        return fail(QStringLiteral("the file browser did not open for %1").arg(attribute));
    }
    if (!browser->activate(entry)) {
        return fail(QStringLiteral("the file browser lists no %1 in %2").arg(entry, browser->currentPath()));
    }
    const QString open = renderWindow(directory, QStringLiteral("browser-%1").arg(attribute));
    if (open.isEmpty()) {
        return false;
    }
    images.append(open);

    const QString path = browser->selectedFile();
    auto *openKey = browser->findChild<QPushButton *>(QStringLiteral("BrowserOpen"));
    if (!openKey || !openKey->isEnabled()) {
        return fail(QStringLiteral("the file browser cannot open %1").arg(entry));
    }
    engine->appendLog(QStringLiteral("choose %1").arg(entry));
    session_tap(openKey);
    if (!waitFor([&] { return button->filename() == path; }, timeoutMs)) {
        return fail(QStringLiteral("the engine did not load %1 (it holds \"%2\")")
                        .arg(path, engine->value(attribute).toString()));
    }
    if (browser->isVisible()) {
        return fail(QStringLiteral("the file browser stayed open"));
    }
    const QString loaded = renderWindow(directory, QStringLiteral("switches-%1-loaded").arg(attribute));
    if (loaded.isEmpty()) {
        return false;
    }
    images.append(loaded);
    return true;
}

bool ScriptedSession::playNumericRoad(const QDir &directory, QStringList &images)
{
    return editOnNumpad(QStringLiteral("UnitAddress"), {QStringLiteral("B"), QStringLiteral("E"), QStringLiteral("E"),
                                                        QStringLiteral("F")},
                        QStringLiteral("hexEnter"), 0xBEEF, QStringLiteral("BEEF"), directory, images, true)
        && editOnNumpad(QStringLiteral("Level"), {QStringLiteral("2"), QStringLiteral("5")}, QStringLiteral("enter"),
                        10.0, QStringLiteral("10.0"), directory, images, true);
}

bool ScriptedSession::editOnNumpad(const QString &attribute, const QStringList &keys, const QString &commitKey,
                                   const QVariant &expected, const QString &shown, const QDir &directory,
                                   QStringList &images, bool render, int timeoutMs)
{
    auto *field = session_boundWidget<QKXNumeric>(window, attribute);
    if (!field) {
        return fail(QStringLiteral("no numeric field is bound to %1").arg(attribute));
    }
    auto *display = field->findChild<QLineEdit *>();
    if (!display || !showScreenOf(field, QStringLiteral("the %1 field").arg(attribute))) {
        return false;
    }
    SimulatedEngine *engine = window->engine();
    EditLockOwner *lock = window->lockOwner();
    engine->appendLog(QStringLiteral("tap %1").arg(attribute));
    // The finger lands on the value display, which is disabled while no edit is open: the press
    // reaches the field's filter through the field.
    const QPoint at = display->geometry().center();
    session_sendMouse(field, QEvent::MouseButtonPress, at);
    session_sendMouse(field, QEvent::MouseButtonRelease, at);

    QKXNumpad *pad = nullptr;
    const bool opened = waitFor([&] {
        pad = window->findChild<QKXNumpad *>();
        return pad && pad->isVisible() && pad->registeredWidget() == field && lock->holder() == field;
    }, timeoutMs);
    if (!opened) {
        return fail(QStringLiteral("the numeric pad did not open for %1").arg(attribute));
    }
    engine->appendLog(QStringLiteral("keys %1, then %2").arg(keys.join(QLatin1Char(' ')), commitKey));
    for (const QString &name : keys) {
        QPushButton *key = pad->button(name);
        if (!key || !key->isVisible() || !key->isEnabled()) {
            return fail(QStringLiteral("the numeric pad has no usable %1 key for %2").arg(name, attribute));
        }
        session_tap(key);
    }
    if (pad->display()->text() != keys.join(QString())) {
        return fail(QStringLiteral("the pad shows \"%1\" after the keys %2").arg(pad->display()->text(), keys.join(QLatin1Char(' '))));
    }
    if (render) {
        const QString open = renderWindow(directory, QStringLiteral("numeric-%1-pad-open").arg(attribute));
        if (open.isEmpty()) {
            return false;
        }
        images.append(open);
    }
    QPushButton *commit = pad->button(commitKey);
    if (!commit || !commit->isVisible()) {
        return fail(QStringLiteral("the numeric pad shows no %1 key for %2").arg(commitKey, attribute));
    }
    session_tap(commit);
    if (!waitFor([&] { return lock->isFree() && !pad->isVisible() && display->text() == shown; }, timeoutMs)) {
        return fail(QStringLiteral("after %1 the %2 field shows \"%3\", the engine holds %4, the lock is %5")
                        .arg(commitKey, attribute, display->text(), engine->value(attribute).toString(),
                             lock->isFree() ? QStringLiteral("free") : QStringLiteral("held")));
    }
    if (engine->value(attribute) != expected) {
        return fail(QStringLiteral("the engine holds %1 for %2, not %3")
                        .arg(engine->value(attribute).toString(), attribute, expected.toString()));
    }
    const QString done = renderWindow(directory, QStringLiteral("numeric-%1-committed").arg(attribute));
    if (done.isEmpty()) {
        return false;
    }
    images.append(done);
    return true;
}
