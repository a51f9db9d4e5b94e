#ifndef MAINWINDOW_H
#define MAINWINDOW_H

#include <QMainWindow>

class EditLockOwner;
class HostWiring;
class ScreenList;
class SimulatedEngine;
class StatusStrip;
class TopContainer;

// The panel's one window, 800 x 480: the status strip, the current screen and the screen tabs,
// inside the top container. It registers itself with the host as the "MainWindow" screen and as the
// desktop, owns the edit lock and the wiring, and binds every screen's widgets to the engine.
class MainWindow : public QMainWindow
{
    Q_OBJECT
public:
    static constexpr int PanelWidth = 800;
    static constexpr int PanelHeight = 480;

    explicit MainWindow(SimulatedEngine *engine, QWidget *parent = nullptr);
    ~MainWindow() override;

    SimulatedEngine *engine() const;
    EditLockOwner *lockOwner() const;
    HostWiring *wiring() const;
    ScreenList *screens() const;
    StatusStrip *statusStrip() const;
    TopContainer *topContainer() const;

private:
    void buildScreens();
    void showGuiLockedNotice(QWidget *widget);

    SimulatedEngine *simulatedEngine;
    EditLockOwner *editLock;
    HostWiring *hostWiring;
    TopContainer *top;
    StatusStrip *strip;
    ScreenList *screenList;
};

#endif // MAINWINDOW_H
