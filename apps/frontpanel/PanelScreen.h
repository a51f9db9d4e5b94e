// SPDX-License-Identifier: BSD-3-Clause
#ifndef PANELSCREEN_H
#define PANELSCREEN_H

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <memory>
#include <vector>

class PanelHost;
class ScreenRunner;
class SimulatedEngine;

// One screen of the panel: a designer form, the engine attributes its widgets stand for, how its
// widgets are bound to those attributes and to their popup editors, and the edits the headless run
// plays on it. Everything a screen shares with the others (the window, the edit lock, the engine's
// common attributes, notices, popups, the headless runner) is the driver's; a screen only calls it.
//
// A new screen is a class in screens/ derived from this one (its .h, .cpp and .ui, picked up by the
// build) and one line in the list in PanelScreens.cpp. The driver calls, in this order:
//   1. addAttributes() of every screen, so that any screen's widgets may show any screen's attribute;
//   2. for each screen in tab order: createPage(), then wire() on the page, then the size variants;
//   3. in a headless run, after every screen has been rendered: play() of each screen in tab order.
// A page gets the window's width (800, or 480 in portrait) and what the status strip and the tabs
// leave of its height: about 380 pixels with one row of tabs, 48 fewer for each further row. In
// portrait, the sections that the form's top box layout sets side by side are stacked.
class PanelScreen : public QObject
{
    Q_OBJECT
public:
    ~PanelScreen() override;

    // Names the screen in the headless run's files ("03-numeric.png"): lower case, no spaces.
    virtual QString id() const = 0;

    // Declares the engine attributes that this screen's widgets stand for: values with their presets,
    // limits, units, records, and commands with their labels and effects. Attributes every screen
    // shares are the engine's own (SimulatedEngine's constructor). None by default.
    virtual void addAttributes(SimulatedEngine &engine);

    // Builds the page, usually formPage<Ui::FormClass>(). The form's window title is the title of
    // the screen's tab. The driver takes ownership of the page.
    virtual QWidget *createPage() = 0;

    // Binds the page's attribute widgets through the host: their edit filters, their engine values
    // and the popups their edits open (PanelHost::wireEach and the duties next to it). May run again
    // on the same page; widgets that are wired already are left as they are.
    virtual void wire(PanelHost &host, QWidget *page) = 0;

    // The screen's part of the headless run: edits played through real mouse events, with images of
    // what the user sees (ScreenRunner::snapshot). False, with runner.fail() saying why, at the first
    // edit that does not come out as it should. Nothing to play by default.
    virtual bool play(ScreenRunner &runner);

    // The page createPage() built; null before the driver has built it.
    QWidget *page() const;
    // Builds the page once; later calls return the same page.
    QWidget *buildPage();

protected:
    explicit PanelScreen(QObject *parent = nullptr);

    // A page filled by a generated form class. The widgets belong to the page, so the form object is
    // not needed once it has run.
    template <typename Form>
    static QWidget *formPage()
    {
        auto *page = new QWidget;
        Form form;
        form.setupUi(page);
        return page;
    }

private:
    QPointer<QWidget> builtPage;
};

// Every screen of the panel, in tab order (PanelScreens.cpp).
std::vector<std::unique_ptr<PanelScreen>> createPanelScreens();

#endif // PANELSCREEN_H
