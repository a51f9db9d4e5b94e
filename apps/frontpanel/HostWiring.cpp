#include "HostWiring.h"

#include "EditLockOwner.h"
#include "SimulatedEngine.h"
#include "WidgetNaming.h"

#include "QKXBrowseButton.h"
#include "QKXComboBox.h"
#include "QKXTableEnum.h"
#include "QKXConfirmationPushButton.h"
#include "QKXConfirmationToggleButton.h"
#include "QKXFlagStatus.h"
#include "QKXNumeric.h"
#include "QKXNumericValueObj.h"
#include "QKXPlaybackControlButton.h"
#include "QKXProgressBar.h"
#include "QKXPushButton.h"
#include "QKXPushButtonEventFilter.h"
#include "QKXToggleButton.h"
#include "QKXWidgetBase.h"

#include <QDebug>

// A widget inside another attribute widget is one of its parts (a composite builds its own); the
// composite's filter is the only one that part may have.
static bool wiring_isPartOfAttributeWidget(const QWidget *widget, const QWidget *screen)
{
    for (const QWidget *up = widget->parentWidget(); up && up != screen; up = up->parentWidget()) {
        if (qobject_cast<const QKXWidgetBase *>(up)) {
            return true;
        }
    }
    return false;
}

HostWiring::HostWiring(SimulatedEngine *engine, EditLockOwner *lockOwner, QObject *parent)
    : QObject(parent)
    , engine(engine)
    , lockOwner(lockOwner)
{
    // The first rule whose family the widget belongs to wins, so a derived family (a confirmation
    // button is also a push button) must come before its base.
    addRule<QKXConfirmationPushButton>(&HostWiring::createConfirmationPushButtonFilter);
    addRule<QKXBrowseButton>(&HostWiring::createBrowseButtonFilter);
    addRule<QKXPushButton>(&HostWiring::createPushButtonFilter);
    addRule<QKXConfirmationToggleButton>(&HostWiring::createConfirmationToggleButtonFilter);
    addRule<QKXToggleButton>(&HostWiring::createToggleButtonFilter);
    addRule<QKXPlaybackControlButton>(&HostWiring::createPlaybackButtonFilter);
    addRule<QKXFlagStatus>(&HostWiring::bindFlagStatus);
    addRule<QKXProgressBar>(&HostWiring::bindProgressBar);
    addRule<QKXNumericValueObj>(&HostWiring::createNumericValueObjFilter);
    addRule<QKXNumeric>(&HostWiring::createNumericFilter);
    addRule<QKXComboBox>(&HostWiring::createComboFilter);
    addRule<QKXTableEnum>(&HostWiring::createTableEnumFilter);
}

HostWiring::~HostWiring() = default;

template <typename Widget>
void HostWiring::addRule(QKXEventFilterBase *(HostWiring::*create)(Widget *))
{
    rules.append({&Widget::staticMetaObject,
                  [this, create](QKXWidgetBase *widget) { return (this->*create)(static_cast<Widget *>(widget)); }});
}

int HostWiring::wireScreen(QWidget *screen)
{
    if (!screen) {
        return 0;
    }
    int wired = 0;
    const QList<QKXWidgetBase *> widgets = screen->findChildren<QKXWidgetBase *>();
    for (QKXWidgetBase *widget : widgets) {
        if (!wiring_isPartOfAttributeWidget(widget, screen) && wireWidget(widget)) {
            ++wired;
        }
    }
    return wired;
}

bool HostWiring::wireWidget(QKXWidgetBase *widget)
{
    // A second filter would answer every tap twice: two lock requests, two commands.
    if (!widget || widget->getEventFilter()) {
        return false;
    }
    const QString attribute = WidgetNaming::boundAttribute(widget);
    if (attribute.isEmpty()) {
        qWarning().noquote() << "frontpanel:" << WidgetNaming::describe(widget)
                             << "is bound to no attribute and stays inert";
        return false;
    }
    const auto rule = std::find_if(rules.cbegin(), rules.cend(),
                                   [widget](const Rule &r) { return r.family->cast(widget) != nullptr; });
    if (rule == rules.cend()) {
        qWarning().noquote() << "frontpanel: no wiring for" << widget->metaObject()->className()
                             << "bound to" << attribute;
        return false;
    }
    if (!engine->hasAttribute(attribute)) {
        // Still wired: the engine turns the submit down and says so in the log, which is what the
        // user of a half-built screen needs to see.
        qWarning().noquote() << "frontpanel:" << attribute << "is not an engine attribute";
    }

    QKXEventFilterBase *filter = rule->createFilter(widget);
    // Read-only families take values, not taps: bound, without a filter.
    if (!filter) {
        return true;
    }
    // QKXWidgetBase::installEventFilter, not QObject's: the widget also installs the filter on its
    // input control and keeps it as its edit filter.
    widget->installEventFilter(filter);
    lockOwner->attach(filter);
    connect(filter, &QKXEventFilterBase::showGuiLockedMessage, this,
            [this, widget] { emit guiLockedMessageRequested(widget); });
    return true;
}

QKXEventFilterBase *HostWiring::createPushButtonFilter(QKXPushButton *button)
{
    auto *filter = new QKXPushButtonEventFilter(button);
    // The attribute is read at submit time, so a form that rebinds the button later is followed.
    SimulatedEngine *target = engine;
    connect(filter, &QKXPushButtonEventFilter::submit, engine,
            [target, button] { target->command(WidgetNaming::boundAttribute(button)); });
    return filter;
}

static bool isPartOfAnotherWidget(const QWidget *widget, const QWidget *screen)
{
    for (const QWidget *up = widget->parentWidget(); up && up != screen; up = up->parentWidget()) {
        if (qobject_cast<const QKXWidgetBase *>(up)) {
            return true;
        }
    }
    return false;
}

void HostWiring::applySizeVariant(QWidget *screen)
{
    if (!screen) {
        return;
    }
    const QList<QKXWidgetBase *> widgets = screen->findChildren<QKXWidgetBase *>();
    for (QKXWidgetBase *widget : widgets) {
        // A widget made of other widgets (a unit selector inside a numeric field) sizes its parts
        // itself; asking a part directly would give it back a sheet of its own over its owner's.
        if (isPartOfAnotherWidget(widget, screen)) {
            continue;
        }
        // A request for the sheet already in force is ignored without reading the display mode, so
        // after a mode change a widget showing "Max" must pass through "Min" to look again.
        widget->changeSize(QStringLiteral("Min"));
        widget->changeSize(QStringLiteral("Max"));
    }
}
