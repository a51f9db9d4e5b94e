#ifndef SCRIPTEDSESSION_H
#define SCRIPTEDSESSION_H

#include <QObject>
#include <QStringList>

#include <functional>

class MainWindow;
class QDir;

// Plays scripted input on the panel the way a finger would, through real mouse events to the
// widgets, and renders the window to image files. Used by the headless run to show that the road
// from a tap to the engine is complete.
class ScriptedSession : public QObject
{
    Q_OBJECT
public:
    explicit ScriptedSession(MainWindow *window, QObject *parent = nullptr);
    ~ScriptedSession() override;

    // Renders each screen in turn as "<nn>-<id>.png"; returns the absolute paths written. Leaves the
    // first screen showing.
    QStringList renderScreens(const QDir &directory);
    // Renders the window as it is now; returns the absolute path, or "" on failure.
    QString renderWindow(const QDir &directory, const QString &baseName);

    // Taps the command button bound to the attribute and waits, at most timeoutMs, for the road to
    // end. With the interface unlocked that road is: lock request, grant, the command, release;
    // with it locked: the locked notice and nothing else. False, with failure() saying why, if the
    // road did not come out so.
    bool tapPushButton(const QString &attribute, int timeoutMs = 2000);

    // The switches screen's roads, each through real mouse events, with images of what the user sees
    // on the way (their paths are appended to images): the sweep running into overload; the RF
    // toggle in its loading look and then confirmed; the confirmed Preset with its prompt open,
    // answered Yes; a settings file loaded through the file browser. False at the first road that
    // does not come out as it should.
    bool playSwitchesRoads(const QDir &directory, QStringList &images);

    // Taps the confirmation button bound to the attribute, renders the open prompt as
    // "prompt-<attribute>", presses the answer key with that label, and checks that the engine ran
    // the command exactly when the answer confirms.
    bool tapConfirmedButton(const QString &attribute, const QString &answer, const QDir &directory,
                            QStringList &images, int timeoutMs = 2000);

    // The numeric screen's roads, through real mouse events on the fields and the numeric pad: the hex
    // unit address typed and committed with Enter, then a level beyond the engine's limits, which the
    // engine clamps and the field shows clamped; each rendered while the pad is open beside the field.
    bool playNumericRoad(const QDir &directory, QStringList &images);

    // The choices screen's roads (ScriptedSessionChoices.cpp), through real mouse events: a
    // modulation picked on the list popup, the long bandwidth list dragged and picked from, a detector
    // turned to and picked on the wheel popup, and a channel row tapped after scrolling the table;
    // each popup rendered while open, and each value checked in the engine and in the widget.
    bool playChoicesRoads(const QDir &directory, QStringList &images);

    // The units screen's roads (ScriptedSessionUnits.cpp): the generator frequency shown in MHz, typed
    // 2.5 on the numeric pad and committed with its kHz key, stored by the engine as 2500 Hz and shown
    // as 2.500 kHz; then the resolution bandwidth chosen from its discrete list. Each is rendered with
    // its popup open and after the engine's answer.
    bool playUnitsRoads(const QDir &directory, QStringList &images);

    QString failure() const;

private:
    bool fail(const QString &why);
    bool tapToggle(const QString &attribute, const QDir &directory, QStringList &images, int timeoutMs);
    bool browseAndLoad(const QString &attribute, const QString &entry, const QDir &directory, QStringList &images,
                       int timeoutMs);
    // Taps the numeric field bound to the attribute, presses the keys and then the commit key on the
    // pad, and checks that the engine holds the expected value and the field shows the expected text.
    // With render, the window is rendered while the pad is open.
    bool editOnNumpad(const QString &attribute, const QStringList &keys, const QString &commitKey,
                      const QVariant &expected, const QString &shown, const QDir &directory, QStringList &images,
                      bool render, int timeoutMs = 2000);
    // Brings the screen holding the widget up and says whether the widget can be tapped there.
    bool showScreenOf(QWidget *widget, const QString &what);
    // Taps the enumerated widget bound to the attribute, waits for its popup, optionally drags the
    // popup's column by dragBy, renders the open popup, and taps the item showing the literal.
    bool chooseOnPopup(const QString &attribute, int dragBy, const QString &literal, int expected,
                       const QDir &directory, QStringList &images, int timeoutMs = 2000);
    // Runs the event loop until the condition holds or the time is up; returns the condition.
    bool waitFor(const std::function<bool()> &condition, int timeoutMs);

    MainWindow *window;
    QString failureText;
};

#endif // SCRIPTEDSESSION_H
