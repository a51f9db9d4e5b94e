// SPDX-License-Identifier: BSD-3-Clause
#include "MainWindow.h"

#include "AppProperties.h"
#include "EditLockOwner.h"
#include "PanelHost.h"
#include "PanelScreen.h"
#include "ScreenList.h"
#include "SettingsFolder.h"
#include "SimpleFileBrowser.h"
#include "SimulatedEngine.h"
#include "StatusStrip.h"
#include "TopContainer.h"
#include "WidgetNaming.h"

#include "CSS.h"
#include "GlobalImpl.h"
#include "QKXProgressBar.h"
#include "SystemModule.h"

#include <QBoxLayout>
#include <QProgressBar>
#include <QVBoxLayout>

// Only object names and the panel's own dynamic properties are selected here: this sheet cascades
// into every attribute widget, whose looks are their own, so no rule may match a bare QLabel or
// QPushButton.
static QString mainwindow_styleSheet()
{
    return QStringLiteral(R"(
#MainWindow, #TopContainerObject { background-color: %1; }
#StatusStrip {
    background-color: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 %3, stop:1 %2);
    border-bottom: 2px solid %5;
}
#ScreenTitle { color: white; font-size: 20px; font-weight: bold; }
#StatusNotice { color: white; font-size: 15px; font-weight: bold; border-radius: 6px; padding: 3px 14px; }
#StatusNotice[kind="info"] { background-color: %2; border: 1px solid %4; }
#StatusNotice[kind="warning"] { background-color: #b3261e; border: 1px solid #ff8a80; }
#GuiLockToggle, #SizeToggle {
    color: white; font-size: 14px; min-height: 30px; max-height: 30px; padding: 0px 12px;
    background-color: %1; border: 1px solid %4; border-radius: 8px;
}
#GuiLockToggle { min-width: 76px; }
#GuiLockToggle:checked { background-color: %5; color: %1; font-weight: bold; }
#GuiLockToggle:pressed, #SizeToggle:pressed { background-color: %2; }
#ScreenStack { background-color: %1; }
QFrame[panelSection="true"] {
    background-color: %2; border: 1px solid %3; border-radius: 10px;
}
QLabel[panelCaption="true"] {
    color: %5; font-size: 16px; font-weight: bold; background: transparent; border: none;
    padding-bottom: 4px; border-bottom: 1px solid %3;
}
#ScreenTabs { background-color: %2; border-top: 2px solid %3; }
#ScreenTab {
    color: white; font-size: 17px; min-height: 40px; max-height: 40px;
    background-color: %1; border: 1px solid %3; border-radius: 8px; padding: 0px 10px;
}
#ScreenTab:checked { background-color: %5; color: %1; font-weight: bold; border-color: %4; }
)")
        .arg(CSS::gradientDark(), CSS::gradientMiddle(), CSS::gradientLight(), CSS::border(), CSS::highlight());
}

// The progress bar fills with the palette's two darkest stops, which on the panel's dark sections
// all but vanish into the bar's own dark groove. The panel gives the fill its own colour, on the bar
// itself: a sheet on the bar is the only one that outranks the widget's, which stays as it is. Steel
// blue, light enough to stand out of the groove and dark enough for the white percentage.
static const char mainwindow_progressFill[] = R"(QProgressBar::chunk {
    background-color: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 #5a94cc, stop:0.5 #3a74ae, stop:1 #5a94cc);
})";

static void mainwindow_fillProgressBars(QWidget *page)
{
    const QList<QKXProgressBar *> bars = page->findChildren<QKXProgressBar *>();
    for (QKXProgressBar *bar : bars) {
        if (QProgressBar *inner = bar->findChild<QProgressBar *>()) {
            inner->setStyleSheet(QString::fromLatin1(mainwindow_progressFill));
        }
    }
}

MainWindow::MainWindow(SimulatedEngine *engine, QWidget *parent)
    : QMainWindow(parent)
    , simulatedEngine(engine)
    , editLock(new EditLockOwner(this))
    , panelHost(new PanelHost(engine, editLock, this))
    , top(new TopContainer(this))
    , strip(new StatusStrip(top))
    , screenList(new ScreenList(top))
{
    setObjectName(QStringLiteral("MainWindow"));
    setWindowTitle(tr("Front panel"));
    setStyleSheet(mainwindow_styleSheet());

    auto *layout = new QVBoxLayout(top);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(strip);
    layout->addWidget(screenList, 1);
    setCentralWidget(top);

    connect(editLock, &EditLockOwner::logged, simulatedEngine, &SimulatedEngine::appendLog);
    connect(panelHost, &PanelHost::guiLockedMessageRequested, this, &MainWindow::showGuiLockedNotice);
    connect(panelHost, &PanelHost::noticeRequested, strip,
            [this](const QString &text, StatusStrip::NoticeKind kind) { strip->showNotice(text, kind); });
    connect(simulatedEngine, &SimulatedEngine::commandExecuted, strip,
            [this](const QString &name) { strip->showNotice(tr("%1 sent").arg(simulatedEngine->commandLabel(name))); });
    connect(screenList, &ScreenList::currentScreenChanged, strip,
            [this](int index) { strip->setTitle(screenList->screenTitle(index)); });
    connect(strip, &StatusStrip::displayModeChanged, this, [this] {
        fitDisplayMode();
        for (int i = 0; i < screenList->count(); ++i) {
            PanelHost::applySizeVariant(screenList->screen(i));
        }
    });

    buildScreens();
    fitDisplayMode();

    // The host's file chooser: browse buttons listen to it, and it covers the panel while open.
    auto *fileBrowser = new SimpleFileBrowser(this);
    fileBrowser->setTitle(tr("Load settings"));
    fileBrowser->setNameFilters({QStringLiteral("*.cfg")});
    fileBrowser->setRootPath(SettingsFolder::prepare());

    // Prompts take the main window as their parent and popups place themselves in its coordinates;
    // full-screen overlays take the desktop's size, which on the panel is this window.
    GlobalImpl *global = GlobalImpl::getInstance();
    global->systemModule()->registerSystemScreen(QStringLiteral("MainWindow"), this);
    global->systemModule()->registerSystemScreen(QStringLiteral("SimpleFileBrowser"), fileBrowser);
    global->setDesktop(this);
}

MainWindow::~MainWindow() = default;

QSize MainWindow::panelSize(const QString &displayMode)
{
    return AppProperties::isPortrait(displayMode) ? QSize(480, 800) : QSize(800, 480);
}

void MainWindow::fitDisplayMode()
{
    const QSize size = panelSize(AppProperties::displayMode());
    setFixedSize(size);
    const bool portrait = size.height() > size.width();
    for (int i = 0; i < screenList->count(); ++i) {
        QWidget *page = screenList->screen(i);
        auto *sections = qobject_cast<QBoxLayout *>(page->layout());
        if (!sections) {
            continue;
        }
        // The form's own arrangement, kept from before the page was first turned.
        if (!formArrangements.contains(page)) {
            FormArrangement form;
            form.sideBySide = sections->direction() == QBoxLayout::LeftToRight;
            form.margins = sections->contentsMargins();
            form.spacing = sections->spacing();
            for (int item = 0; item < sections->count(); ++item) {
                form.stretches.append(sections->stretch(item));
            }
            formArrangements.insert(page, form);
        }
        const FormArrangement &form = formArrangements.value(page);
        if (!form.sideBySide) {
            continue;
        }
        // Stacked, the sections take the height they need, and the screen's edges and gaps narrow
        // so that they all fit on the panel.
        sections->setDirection(portrait ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
        sections->setContentsMargins(portrait ? QMargins(8, 8, 8, 8) : form.margins);
        sections->setSpacing(portrait ? 8 : form.spacing);
        for (int item = 0; item < form.stretches.size(); ++item) {
            sections->setStretch(item, portrait ? 0 : form.stretches.at(item));
        }
    }
}

void MainWindow::buildScreens()
{
    screenObjects = createPanelScreens();
    // Every screen's attributes first: a screen's widgets may stand for another screen's attribute.
    for (const std::unique_ptr<PanelScreen> &screen : screenObjects) {
        screen->addAttributes(*simulatedEngine);
    }
    for (const std::unique_ptr<PanelScreen> &screen : screenObjects) {
        QWidget *page = screen->buildPage();
        screenList->addScreen(screen->id(), page->windowTitle(), page);
        panelHost->wireScreen(screen.get());
        PanelHost::applySizeVariant(page);
        mainwindow_fillProgressBars(page);
    }
    screenList->setCurrentIndex(0);
    strip->setTitle(screenList->screenTitle(screenList->currentIndex()));
}

void MainWindow::showGuiLockedNotice(QWidget *widget)
{
    const QString text = tr("Interface locked");
    simulatedEngine->appendLog(QStringLiteral("notice %1 (%2)").arg(text, WidgetNaming::describe(widget)));
    strip->showNotice(text, StatusStrip::Warning);
}

SimulatedEngine *MainWindow::engine() const
{
    return simulatedEngine;
}

EditLockOwner *MainWindow::lockOwner() const
{
    return editLock;
}

PanelHost *MainWindow::host() const
{
    return panelHost;
}

QList<PanelScreen *> MainWindow::panelScreens() const
{
    QList<PanelScreen *> screens;
    for (const std::unique_ptr<PanelScreen> &screen : screenObjects) {
        screens.append(screen.get());
    }
    return screens;
}

PanelScreen *MainWindow::panelScreen(const QString &id) const
{
    for (const std::unique_ptr<PanelScreen> &screen : screenObjects) {
        if (screen->id() == id) {
            return screen.get();
        }
    }
    return nullptr;
}

ScreenList *MainWindow::screens() const
{
    return screenList;
}

StatusStrip *MainWindow::statusStrip() const
{
    return strip;
}

TopContainer *MainWindow::topContainer() const
{
    return top;
}
