// SPDX-License-Identifier: BSD-3-Clause
#include "ScreenRunner.h"

#include "AppProperties.h"
#include "EditLockOwner.h"
#include "MainWindow.h"
#include "PanelHost.h"
#include "PanelScreen.h"
#include "ScreenList.h"
#include "SimulatedEngine.h"

#include "KXWidgets.h"
#include "QKXPushButton.h"

#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QMouseEvent>
#include <QPixmap>
#include <QPushButton>
#include <QTimer>

ScreenRunner::ScreenRunner(MainWindow *window, const QDir &directory, QObject *parent)
    : QObject(parent)
    , mainWindow(window)
    , outputDirectory(directory)
{
}

ScreenRunner::~ScreenRunner() = default;

MainWindow *ScreenRunner::window() const
{
    return mainWindow;
}

QWidget *ScreenRunner::windowWidget() const
{
    return mainWindow;
}

SimulatedEngine *ScreenRunner::engine() const
{
    return mainWindow->engine();
}

EditLockOwner *ScreenRunner::lockOwner() const
{
    return mainWindow->lockOwner();
}

void ScreenRunner::settle()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

QStringList ScreenRunner::renderScreens()
{
    QStringList paths;
    ScreenList *screens = mainWindow->screens();
    for (int i = 0; i < screens->count(); ++i) {
        screens->setCurrentIndex(i);
        const QString name = QStringLiteral("%1-%2").arg(i + 1, 2, 10, QLatin1Char('0')).arg(screens->screenId(i));
        const QString path = renderWindow(name);
        if (!path.isEmpty()) {
            paths.append(path);
        }
    }
    screens->setCurrentIndex(0);
    return paths;
}

QStringList ScreenRunner::renderWidgets(QStringList *missing)
{
    QStringList classes;
    const Norvane::gui::KXWidgets collection;
    for (QDesignerCustomWidgetInterface *plugin : collection.customWidgets()) {
        classes.append(plugin->name());
    }
    QDir widgetDirectory(outputDirectory.absoluteFilePath(QStringLiteral("widgets")));
    if (!widgetDirectory.mkpath(QStringLiteral("."))) {
        fail(QStringLiteral("cannot create %1").arg(widgetDirectory.absolutePath()));
        return QStringList();
    }
    QStringList paths;
    ScreenList *screens = mainWindow->screens();
    for (int i = 0; i < screens->count() && !classes.isEmpty(); ++i) {
        screens->setCurrentIndex(i);
        settle();
        for (QWidget *widget : screens->screen(i)->findChildren<QWidget *>()) {
            const QString className = QString::fromLatin1(widget->metaObject()->className());
            if (!widget->isVisible() || !classes.contains(className)) {
                continue;
            }
            const QString path = widgetDirectory.absoluteFilePath(className + QStringLiteral(".png"));
            // From the window, so that the panel shows through the widgets drawn on it.
            const QRect area(widget->mapTo(mainWindow, QPoint(0, 0)), widget->size());
            if (!mainWindow->grab(area).save(path, "PNG")) {
                fail(QStringLiteral("cannot write %1").arg(path));
                continue;
            }
            classes.removeOne(className);
            paths.append(path);
        }
    }
    screens->setCurrentIndex(0);
    if (missing) {
        *missing = classes;
    }
    return paths;
}

QString ScreenRunner::renderWindow(const QString &baseName)
{
    settle();
    const QString path = outputDirectory.absoluteFilePath(baseName + QStringLiteral(".png"));
    if (!mainWindow->grab().save(path, "PNG")) {
        fail(QStringLiteral("cannot write %1").arg(path));
        return QString();
    }
    return path;
}

bool ScreenRunner::snapshot(const QString &baseName)
{
    const QString path = renderWindow(baseName);
    if (path.isEmpty()) {
        return false;
    }
    written.append(path);
    return true;
}

QStringList ScreenRunner::images() const
{
    return written;
}

bool ScreenRunner::play(PanelScreen *screen)
{
    return screen && screen->play(*this);
}

bool ScreenRunner::tapPushButton(const QString &attribute, int timeoutMs)
{
    QKXPushButton *widget = nullptr;
    const QList<QKXPushButton *> buttons = windowWidget()->findChildren<QKXPushButton *>();
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
    ScreenList *screens = mainWindow->screens();
    screens->setCurrentIndex(screens->indexOfScreenHolding(widget));
    settle();
    if (!inner->isVisible()) {
        return fail(QStringLiteral("the %1 button is not on screen").arg(attribute));
    }

    EditLockOwner *lock = mainWindow->lockOwner();
    SimulatedEngine *engine = mainWindow->engine();
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
        connect(mainWindow->host(), &PanelHost::guiLockedMessageRequested, &loop, [&] { ++notices; loop.quit(); }),
        connect(engine, &SimulatedEngine::commandExecuted, &loop, [&](const QString &name) { commands.append(name); }),
    };

    const QPoint centre = inner->rect().center();
    const QPoint at = inner->mapTo(windowWidget(), centre);
    engine->appendLog(QStringLiteral("tap %1 at (%2, %3)").arg(attribute).arg(at.x()).arg(at.y()));
    tap(inner, centre);

    bool timedOut = false;
    if (releases == 0 && refusals == 0 && notices == 0) {
        QTimer::singleShot(timeoutMs, &loop, [&] {
            timedOut = true;
            loop.quit();
        });
        loop.exec();
    }
    // Anything the grant set going (queued calls) lands before the outcome is judged.
    settle();
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

QString ScreenRunner::failure() const
{
    return failureText;
}

bool ScreenRunner::fail(const QString &why)
{
    failureText = why;
    return false;
}

bool ScreenRunner::showScreenOf(QWidget *widget, const QString &what)
{
    ScreenList *screens = mainWindow->screens();
    screens->setCurrentIndex(screens->indexOfScreenHolding(widget));
    settle();
    if (!widget->isVisible()) {
        return fail(QStringLiteral("%1 is not on screen").arg(what));
    }
    return true;
}

bool ScreenRunner::waitFor(const std::function<bool()> &condition, int timeoutMs)
{
    QElapsedTimer clock;
    clock.start();
    while (!condition() && clock.elapsed() < timeoutMs) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
    }
    return condition();
}

void ScreenRunner::touch(QWidget *target, QEvent::Type type, const QPoint &global)
{
    const QPoint pos = target->mapFromGlobal(global);
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, pos, target->window()->mapFromGlobal(global), global, button, held, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &event);
}

void ScreenRunner::tap(QWidget *target, const QPoint &at)
{
    const QPoint global = target->mapToGlobal(at);
    touch(target, QEvent::MouseButtonPress, global);
    touch(target, QEvent::MouseButtonRelease, global);
}

void ScreenRunner::tap(QWidget *target)
{
    tap(target, target->rect().center());
}

// Runs the event loop for the time, as the gaps between a finger's moves do.
static void runner_pause(int ms)
{
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < ms) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    }
}

void ScreenRunner::drag(QWidget *target, const QPoint &fromGlobal, int dy)
{
    touch(target, QEvent::MouseButtonPress, fromGlobal);
    const int steps = qMax(1, qAbs(dy) / 10);
    for (int i = 1; i <= steps; ++i) {
        runner_pause(20);
        touch(target, QEvent::MouseMove, fromGlobal + QPoint(0, dy * i / steps));
    }
    runner_pause(150);
    touch(target, QEvent::MouseButtonRelease, fromGlobal + QPoint(0, dy));
}
