// SPDX-License-Identifier: BSD-3-Clause
#ifndef MAINWINDOW_H
#define MAINWINDOW_H

#include <QHash>
#include <QMainWindow>
#include <QMargins>
#include <QVector>

#include <memory>
#include <vector>

class EditLockOwner;
class PanelHost;
class PanelScreen;
class ScreenList;
class SimulatedEngine;
class StatusStrip;
class TopContainer;

// The panel's one window, 800 x 480 (480 x 800 in the portrait display mode): the status strip, the
// current screen and the screen tabs, inside the top container. It registers itself with the host as
// the "MainWindow" screen and as the desktop, owns the edit lock and the host duties, and builds and
// wires every screen of the list in PanelScreens.cpp. In portrait, sections that a screen's form
// sets side by side are stacked.
class MainWindow : public QMainWindow
{
    Q_OBJECT
public:
    // The panel's size in the display mode.
    static QSize panelSize(const QString &displayMode);

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
    // The window's size and the pages' arrangement for the display mode in force.
    void fitDisplayMode();
    void showGuiLockedNotice(QWidget *widget);

    SimulatedEngine *simulatedEngine;
    EditLockOwner *editLock;
    PanelHost *panelHost;
    TopContainer *top;
    StatusStrip *strip;
    ScreenList *screenList;
    std::vector<std::unique_ptr<PanelScreen>> screenObjects;
    struct FormArrangement {
        bool sideBySide = false;
        QMargins margins;
        int spacing = 0;
        QVector<int> stretches;
    };
    QHash<QWidget *, FormArrangement> formArrangements;
};

#endif // MAINWINDOW_H
