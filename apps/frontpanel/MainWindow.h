#ifndef MAINWINDOW_H
#define MAINWINDOW_H

#include <QMainWindow>

#include <memory>
#include <vector>

class EditLockOwner;
class PanelHost;
class PanelScreen;
class ScreenList;
class SimulatedEngine;
class StatusStrip;
class TopContainer;

// The panel's one window, 800 x 480: the status strip, the current screen and the screen tabs,
// inside the top container. It registers itself with the host as the "MainWindow" screen and as the
// desktop, owns the edit lock and the host duties, and builds and wires every screen of the list in
// PanelScreens.cpp.
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
    PanelHost *host() const;
    ScreenList *screens() const;
    // The screens in tab order, and the one with the id (null for none).
    QList<PanelScreen *> panelScreens() const;
    PanelScreen *panelScreen(const QString &id) const;
    StatusStrip *statusStrip() const;
    TopContainer *topContainer() const;

private:
    void buildScreens();
    void showGuiLockedNotice(QWidget *widget);

    SimulatedEngine *simulatedEngine;
    EditLockOwner *editLock;
    PanelHost *panelHost;
    TopContainer *top;
    StatusStrip *strip;
    ScreenList *screenList;
    std::vector<std::unique_ptr<PanelScreen>> screenObjects;
};

#endif // MAINWINDOW_H
