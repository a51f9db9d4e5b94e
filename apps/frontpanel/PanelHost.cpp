#include "PanelHost.h"

#include "EditLockOwner.h"
#include "PanelScreen.h"

#include "GlobalImpl.h"
#include "QKXEventFilterBase.h"
#include "QKXWidgetBase.h"
#include "SystemModule.h"

#include <QDebug>

// Set on a widget once it is wired, and once it follows the engine, so that wiring a screen again
// adds no second filter (every tap would be answered twice) and no second binding.
static const char host_wiredProperty[] = "frontpanelWired";
static const char host_followsProperty[] = "frontpanelFollowsEngine";

PanelHost::PanelHost(SimulatedEngine *engine, EditLockOwner *lockOwner, QObject *parent)
    : QObject(parent)
    , simulatedEngine(engine)
    , editLock(lockOwner)
    , wiredCount(0)
{
}

PanelHost::~PanelHost() = default;

SimulatedEngine *PanelHost::engine() const
{
    return simulatedEngine;
}

EditLockOwner *PanelHost::lockOwner() const
{
    return editLock;
}

bool PanelHost::isPartOfAttributeWidget(const QWidget *widget, const QWidget *page)
{
    for (const QWidget *up = widget->parentWidget(); up && up != page; up = up->parentWidget()) {
        if (qobject_cast<const QKXWidgetBase *>(up)) {
            return true;
        }
    }
    return false;
}

int PanelHost::wireScreen(PanelScreen *screen)
{
    QWidget *page = screen ? screen->page() : nullptr;
    if (!page) {
        return 0;
    }
    const int before = wiredCount;
    screen->wire(*this, page);
    const QList<QKXWidgetBase *> widgets = page->findChildren<QKXWidgetBase *>();
    for (QKXWidgetBase *widget : widgets) {
        const QString attribute = WidgetNaming::boundAttribute(widget);
        if (!attribute.isEmpty() && !widget->property(host_wiredProperty).toBool()
            && !isPartOfAttributeWidget(widget, page)) {
            qWarning().noquote() << "frontpanel: no wiring for" << widget->metaObject()->className() << "bound to"
                                 << attribute << "on the" << screen->id() << "screen";
        }
    }
    return wiredCount - before;
}

bool PanelHost::wire(QKXWidgetBase *widget, const std::function<QKXEventFilterBase *()> &createFilter)
{
    if (!widget || widget->property(host_wiredProperty).toBool() || widget->getEventFilter()) {
        return false;
    }
    const QString attribute = WidgetNaming::boundAttribute(widget);
    if (attribute.isEmpty()) {
        qWarning().noquote() << "frontpanel:" << WidgetNaming::describe(widget) << "is bound to no attribute and stays inert";
        return false;
    }
    if (!simulatedEngine->hasAttribute(attribute)) {
        // Still wired: the engine turns the submit down and says so in the log, which is what the
        // user of a half-built screen needs to see.
        qWarning().noquote() << "frontpanel:" << attribute << "is not an engine attribute";
    }
    widget->setProperty(host_wiredProperty, true);
    ++wiredCount;

    QKXEventFilterBase *filter = createFilter();
    if (!filter) {
        return true;
    }
    // QKXWidgetBase::installEventFilter, not QObject's: the widget also installs the filter on its
    // input control and keeps it as its edit filter.
    widget->installEventFilter(filter);
    editLock->attach(filter);
    connect(filter, &QKXEventFilterBase::showGuiLockedMessage, this,
            [this, widget] { emit guiLockedMessageRequested(widget); });
    return true;
}

SimulatedEngine::Answer PanelHost::request(QWidget *widget, const QVariant &value)
{
    const QString attribute = WidgetNaming::boundAttribute(widget);
    const SimulatedEngine::Answer answer = simulatedEngine->requestValue(attribute, value);
    if (answer == SimulatedEngine::Clamped) {
        // The field shows the value the engine kept, right beside the one the user typed away.
        const QString caption = WidgetNaming::caption(widget);
        showNotice(value.toDouble() > simulatedEngine->upperLimit(attribute) ? tr("%1 set to its upper limit").arg(caption)
                                                                              : tr("%1 set to its lower limit").arg(caption),
                   StatusStrip::Warning);
    }
    return answer;
}

void PanelHost::followValue(QWidget *widget, std::function<void(const QVariant &)> show)
{
    if (widget->property(host_followsProperty).toBool()) {
        return;
    }
    widget->setProperty(host_followsProperty, true);
    const auto update = [widget, show](const QString &name, const QVariant &value) {
        // The attribute is read each time, so a form that rebinds the widget later is followed.
        if (name == WidgetNaming::boundAttribute(widget)) {
            show(value);
        }
    };
    connect(simulatedEngine, &SimulatedEngine::valueChanged, widget, update);
    connect(simulatedEngine, &SimulatedEngine::valueConfirmed, widget, update);
    const QVariant now = simulatedEngine->value(WidgetNaming::boundAttribute(widget));
    if (now.isValid()) {
        show(now);
    }
}

void PanelHost::openEditorOnEditStart(QKXEventFilterBase *filter, QWidget *widget, std::function<Editor()> choose)
{
    connect(filter, &QKXEventFilterBase::editStart, this, [this, widget, choose](QObject *edit, QWidget *edited) {
        const Editor chosen = choose();
        if (!chosen.open) {
            simulatedEngine->appendLog(QStringLiteral("edit %1: no editor for it").arg(WidgetNaming::describe(widget)));
            QMetaObject::invokeMethod(edit, "cancel", Qt::QueuedConnection);
            return;
        }
        simulatedEngine->appendLog(QStringLiteral("edit %1 on the %2").arg(WidgetNaming::describe(widget), chosen.name));
        editedWidget = widget;
        editorName = chosen.name;
        chosen.open(edit, edited);
    });
}

void PanelHost::rotationAsked()
{
    // Each family has one editor on this panel so far: the one open stays.
    simulatedEngine->appendLog(QStringLiteral("rotate: the %1 is the only editor for %2")
                                   .arg(editorName, WidgetNaming::describe(editedWidget)));
}

void PanelHost::showNotice(const QString &text, StatusStrip::NoticeKind kind)
{
    emit noticeRequested(text, kind);
}

QWidget *PanelHost::mainWindow() const
{
    return GlobalImpl::getInstance()->systemModule()->getSystemScreen(QStringLiteral("MainWindow"));
}

void PanelHost::applySizeVariant(QWidget *page)
{
    if (!page) {
        return;
    }
    const QList<QKXWidgetBase *> widgets = page->findChildren<QKXWidgetBase *>();
    for (QKXWidgetBase *widget : widgets) {
        // A widget made of other widgets (a unit selector inside a numeric field) sizes its parts
        // itself; asking a part directly would give it back a sheet of its own over its owner's.
        if (isPartOfAttributeWidget(widget, page)) {
            continue;
        }
        // A request for the sheet already in force is ignored without reading the display mode, so
        // after a mode change a widget showing "Max" must pass through "Min" to look again.
        widget->changeSize(QStringLiteral("Min"));
        widget->changeSize(QStringLiteral("Max"));
    }
}
