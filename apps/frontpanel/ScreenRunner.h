// SPDX-License-Identifier: BSD-3-Clause
#ifndef SCREENRUNNER_H
#define SCREENRUNNER_H

#include "WidgetNaming.h"

#include <QDir>
#include <QEvent>
#include <QObject>
#include <QStringList>
#include <QWidget>

#include <functional>

class EditLockOwner;
class MainWindow;
class PanelScreen;
class SimulatedEngine;

// The headless run: shows each screen and renders the window to image files, then plays each
// screen's script (PanelScreen::play) the way a finger would, through real mouse events to the
// widgets. The helpers below are what the scripts are written with.
class ScreenRunner : public QObject
{
    Q_OBJECT
public:
    // Images are written to the directory, which must exist.
    ScreenRunner(MainWindow *window, const QDir &directory, QObject *parent = nullptr);
    ~ScreenRunner() override;

    MainWindow *window() const;
    SimulatedEngine *engine() const;
    EditLockOwner *lockOwner() const;

    // Renders each screen in turn as "<nn>-<id>.png"; returns the absolute paths written. Leaves the
    // first screen showing.
    QStringList renderScreens();
    // Renders the first widget of each class of the Designer collection found on the screens, alone,
    // as "widgets/<class>.png"; returns the absolute paths written. The classes no screen shows on
    // their own (the constellation's pattern and range draw into its plot) are added to missing.
    // Leaves the first screen showing.
    QStringList renderWidgets(QStringList *missing = nullptr);
    // Renders the window as it is now as "<baseName>.png"; returns the absolute path, or "" with
    // failure() saying why.
    QString renderWindow(const QString &baseName);

    // Taps the command button bound to the attribute and waits, at most timeoutMs, for the road to
    // end. With the interface unlocked that road is: lock request, grant, the command, release;
    // with it locked: the locked notice and nothing else. False, with failure() saying why, if the
    // road did not come out so.
    bool tapPushButton(const QString &attribute, int timeoutMs = 2000);

    // Plays the screen's script; its images are added to images().
    bool play(PanelScreen *screen);

    // For the scripts. Renders the window and keeps the image in images(); false, with failure()
    // saying why, when it cannot be written.
    bool snapshot(const QString &baseName);
    // Every image snapshot() has written.
    QStringList images() const;
    // Brings the screen holding the widget up and says whether the widget can be tapped there.
    bool showScreenOf(QWidget *widget, const QString &what);
    // Runs the event loop until the condition holds or the time is up; returns the condition.
    bool waitFor(const std::function<bool()> &condition, int timeoutMs = 2000);
    // The first widget of the class bound to the attribute, anywhere in the window.
    template <typename Widget>
    Widget *boundWidget(const QString &attribute) const
    {
        const QList<Widget *> candidates = windowWidget()->findChildren<Widget *>();
        for (Widget *candidate : candidates) {
            if (WidgetNaming::boundAttribute(candidate) == attribute) {
                return candidate;
            }
        }
        return nullptr;
    }
    // Always false, so that a script can return fail("why").
    bool fail(const QString &why);
    QString failure() const;

    // A finger at a place on the screen (global coordinates): the event goes to the widget it is on,
    // wherever that widget has moved to since the press, as with the grab a real press gives it.
    static void touch(QWidget *target, QEvent::Type type, const QPoint &global);
    // Press and release at the point of the widget (its own coordinates), or at its centre.
    static void tap(QWidget *target, const QPoint &at);
    static void tap(QWidget *target);
    // Press, a deliberate drag by dy in steps of 10 pixels every 20 ms as a finger sends them, a rest,
    // and a release: a placing stroke, not a flick, so a wheel stops where the finger left it.
    static void drag(QWidget *target, const QPoint &fromGlobal, int dy);
    // Lets layouts, polishing and deferred deletes settle so that a grab shows what a user would see.
    static void settle();

private:
    QWidget *windowWidget() const;

    MainWindow *mainWindow;
    QDir outputDirectory;
    QStringList written;
    QString failureText;
};

#endif // SCREENRUNNER_H
