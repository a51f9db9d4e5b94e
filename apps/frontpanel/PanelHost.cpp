// SPDX-License-Identifier: BSD-3-Clause
#include "PanelHost.h"

#include "EditLockOwner.h"
#include "PanelScreen.h"

#include "GlobalImpl.h"
#include "QKXDPad.h"
#include "QKXEventFilterBase.h"
#include "QKXNumeric.h"
#include "QKXNumericValueObj.h"
#include "QKXNumpad.h"
#include "QKXSliderBar.h"
#include "QKXSpinner.h"
#include "QKXWidgetBase.h"
#include "SystemModule.h"

#include <QApplication>
#include <QDebug>
#include <QKeyEvent>

// Set on a widget once it is wired, and once it follows the engine, so that wiring a screen again
// adds no second filter (every tap would be answered twice) and no second binding.
static const char host_wiredProperty[] = "frontpanelWired";
static const char host_followsProperty[] = "frontpanelFollowsEngine";
// Set on a field that the arrow keys step through the direction pad.
static const char host_directionProperty[] = "frontpanelDirectionPad";

// The spinner's size: its corner keys then lie on the wheel's own circle.
static const int host_spinnerWidth = 260;
static const int host_spinnerHeight = 334;

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
    openEditorsOnEditStart(filter, widget, [choose] {
        const Editor chosen = choose();
        return chosen.open ? QList<Editor>{chosen} : QList<Editor>();
    });
}

void PanelHost::openEditorsOnEditStart(QKXEventFilterBase *filter, QWidget *widget, std::function<QList<Editor>()> ring)
{
    connect(filter, &QKXEventFilterBase::editStart, this, [this, widget, ring](QObject *edit, QWidget *edited) {
        editedFilter = edit;
        editedWidget = widget;
        if (directionField == widget) {
            // An arrow key started this edit: the direction pad serves it.
            const int key = directionKey;
            directionField = nullptr;
            openDirectionPad(edit, edited, key);
            return;
        }
        editorRing = ring();
        if (editorRing.isEmpty()) {
            editorIndex = -1;
            simulatedEngine->appendLog(QStringLiteral("edit %1: no editor for it").arg(WidgetNaming::describe(widget)));
            QMetaObject::invokeMethod(edit, "cancel", Qt::QueuedConnection);
            return;
        }
        editorIndex = 0;
        const Editor &chosen = editorRing.first();
        simulatedEngine->appendLog(QStringLiteral("edit %1 on the %2").arg(WidgetNaming::describe(widget), chosen.name));
        editorName = chosen.name;
        chosen.open(edit, edited);
    });
    connect(filter, &QKXEventFilterBase::editEnd, this, [this, filter] {
        if (editedFilter == filter) {
            editedFilter = nullptr;
            editorRing.clear();
            editorIndex = -1;
        }
    });
}

QList<PanelHost::Editor> PanelHost::numericEditors(QKXNumeric *field)
{
    QList<Editor> ring;
    if (field->hasNumpad()) {
        ring << editor<QKXNumpad>(QStringLiteral("numeric pad"));
    }
    if (field->hasSpinner()) {
        QKXSpinner *spinner = popup<QKXSpinner>(0.0, 0.0, 0, host_spinnerWidth, host_spinnerHeight);
        // A field with units brings its limits in its unit; a plain field's are handed over here.
        ring << Editor{QStringLiteral("spinner"),
                       [spinner](QObject *filter, QWidget *widget) {
                           auto *numeric = qobject_cast<QKXNumeric *>(widget);
                           if (numeric && !qobject_cast<QKXNumericValueObj *>(widget)) {
                               spinner->updateLimits(numeric->lowerLimit(), numeric->upperLimit());
                           }
                           spinner->registerWidget(filter, widget);
                       },
                       [spinner] { QMetaObject::invokeMethod(spinner, "unregister"); }};
    }
    if (field->hasSlider()) {
        ring << editor<QKXSliderBar>(QStringLiteral("slider bar"));
    }
    return ring;
}

void PanelHost::rotationAsked()
{
    if (!editedFilter || editorRing.size() < 2 || editorIndex < 0) {
        simulatedEngine->appendLog(QStringLiteral("rotate: the %1 is the only editor for %2")
                                       .arg(editorName, WidgetNaming::describe(editedWidget)));
        return;
    }
    const Editor from = editorRing.at(editorIndex);
    editorIndex = (editorIndex + 1) % editorRing.size();
    const Editor to = editorRing.at(editorIndex);
    simulatedEngine->appendLog(QStringLiteral("rotate %1 from the %2 to the %3")
                                   .arg(WidgetNaming::describe(editedWidget), from.name, to.name));
    // The edit stays open: the editor lets go of it without ending it, and the next one takes it.
    if (from.close) {
        from.close();
    }
    editorName = to.name;
    to.open(editedFilter, editedWidget);
}

void PanelHost::useDirectionPad(QKXEventFilterBase *filter, QWidget *field)
{
    if (field->property(host_directionProperty).toBool()) {
        return;
    }
    field->setProperty(host_directionProperty, true);
    field->setFocusPolicy(Qt::StrongFocus);
    connect(filter, &QKXEventFilterBase::editEnd, field, [field] {
        if (field->isVisible()) {
            field->setFocus(Qt::OtherFocusReason);
        }
    });
    if (!watchingKeys) {
        watchingKeys = true;
        qApp->installEventFilter(this);
    }
}

void PanelHost::openDirectionPad(QObject *filter, QWidget *field, int key)
{
    QKXDPad *pad = popup<QKXDPad>();
    const Editor pad_editor{QStringLiteral("direction pad"),
                            [pad](QObject *edit, QWidget *edited) { pad->registerWidget(edit, edited); },
                            [pad] { pad->unregister(); }};
    editedFilter = filter;
    editedWidget = field;
    editorRing = {pad_editor};
    editorIndex = 0;
    editorName = pad_editor.name;
    simulatedEngine->appendLog(QStringLiteral("edit %1 on the %2").arg(WidgetNaming::describe(field), editorName));
    pad->registerWidget(filter, field);
    pad->dPadKeyPressed(key);
}

bool PanelHost::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress || !watched->isWidgetType()) {
        return false;
    }
    int key = -1;
    switch (static_cast<QKeyEvent *>(event)->key()) {
    case Qt::Key_Up:
        key = 0;
        break;
    case Qt::Key_Down:
        key = 1;
        break;
    case Qt::Key_Left:
        key = 2;
        break;
    case Qt::Key_Right:
        key = 3;
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        key = 4;
        break;
    default:
        return false;
    }
    // The field that has the focus, or holds the child that has it.
    QWidget *field = static_cast<QWidget *>(watched);
    while (field && !field->property(host_directionProperty).toBool()) {
        field = field->parentWidget();
    }
    auto *attribute = qobject_cast<QKXWidgetBase *>(field);
    if (!attribute || !attribute->isVisible() || attribute->isReadOnly()) {
        return false;
    }
    QKXDPad *pad = popup<QKXDPad>();
    if (pad->registeredWidget() == field) {
        pad->dPadKeyPressed(key);
        return true;
    }
    // Return without the pad is the field's own: a typed value commits.
    auto *filter = qobject_cast<QKXEventFilterBase *>(attribute->getEventFilter());
    if (key == 4 || !filter) {
        return false;
    }
    if (editedFilter == filter && editorIndex >= 0) {
        const Editor from = editorRing.at(editorIndex);
        simulatedEngine->appendLog(QStringLiteral("keys %1: the direction pad takes over from the %2")
                                       .arg(WidgetNaming::describe(field), from.name));
        if (from.close) {
            from.close();
        }
        openDirectionPad(filter, field, key);
        return true;
    }
    if (!editLock->isFree()) {
        return false;
    }
    if (qApp->property("guilocked").toBool()) {
        emit guiLockedMessageRequested(field);
        return true;
    }
    directionField = field;
    directionKey = key;
    filter->forceClick();
    return true;
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
        // A size of the form's own choosing (a meter bar laid out horizontally is "Thumb") stays.
        if (widget->currentSize() != QLatin1String("Min") && widget->currentSize() != QLatin1String("Max")) {
            continue;
        }
        // A request for the sheet already in force is ignored without reading the display mode, so
        // after a mode change a widget showing "Max" must pass through "Min" to look again.
        widget->changeSize(QStringLiteral("Min"));
        widget->changeSize(QStringLiteral("Max"));
    }
}
