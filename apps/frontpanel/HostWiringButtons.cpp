// The wiring rules of the buttons and status indicators; the rest of HostWiring is in HostWiring.cpp.
#include "HostWiring.h"

#include "SimulatedEngine.h"
#include "WidgetNaming.h"

#include "GlobalImpl.h"
#include "QKXBrowseButton.h"
#include "QKXBrowseButtonEventFilter.h"
#include "QKXConfirmationPushButton.h"
#include "QKXConfirmationPushButtonEventFilter.h"
#include "QKXConfirmationToggleButton.h"
#include "QKXConfirmationToggleButtonEventFilter.h"
#include "QKXFlagStatus.h"
#include "QKXPlaybackControlButton.h"
#include "QKXProgressBar.h"
#include "QKXPushButtonEventFilter.h"
#include "QKXToggleButton.h"
#include "QKXToggleButtonEventFilter.h"
#include "SystemModule.h"

#include <QMetaObject>
#include <QtMath>

// Set on a widget once it follows the engine, so that wiring a screen again adds no second binding.
static const char wiring_followsProperty[] = "frontpanelFollowsEngine";

void HostWiring::followValue(QWidget *widget, std::function<void(const QVariant &)> show)
{
    if (widget->property(wiring_followsProperty).toBool()) {
        return;
    }
    widget->setProperty(wiring_followsProperty, true);
    const auto update = [widget, show](const QString &name, const QVariant &value) {
        // The attribute is read each time, so a form that rebinds the widget later is followed.
        if (name == WidgetNaming::boundAttribute(widget)) {
            show(value);
        }
    };
    connect(engine, &SimulatedEngine::valueChanged, widget, update);
    connect(engine, &SimulatedEngine::valueConfirmed, widget, update);
    const QVariant now = engine->value(WidgetNaming::boundAttribute(widget));
    if (now.isValid()) {
        show(now);
    }
}

// A toggle asks for the opposite state and waits in its loading look until the engine confirms.
template <typename Filter>
static Filter *wiring_toggleFilter(SimulatedEngine *engine, QWidget *toggle)
{
    auto *filter = new Filter(toggle);
    QObject::connect(filter, &Filter::submit, engine,
                     [engine, toggle](bool on) { engine->requestValue(WidgetNaming::boundAttribute(toggle), on); });
    return filter;
}

QKXEventFilterBase *HostWiring::createToggleButtonFilter(QKXToggleButton *toggle)
{
    followValue(toggle, [toggle](const QVariant &value) { toggle->setActiveState(value.toBool()); });
    return wiring_toggleFilter<QKXToggleButtonEventFilter>(engine, toggle);
}

QKXEventFilterBase *HostWiring::createConfirmationToggleButtonFilter(QKXConfirmationToggleButton *toggle)
{
    followValue(toggle, [toggle](const QVariant &value) { toggle->setActiveState(value.toBool()); });
    return wiring_toggleFilter<QKXConfirmationToggleButtonEventFilter>(engine, toggle);
}

QKXEventFilterBase *HostWiring::createConfirmationPushButtonFilter(QKXConfirmationPushButton *button)
{
    auto *filter = new QKXConfirmationPushButtonEventFilter(button);
    SimulatedEngine *target = engine;
    connect(filter, &QKXConfirmationPushButtonEventFilter::submit, engine,
            [target, button] { target->command(WidgetNaming::boundAttribute(button)); });
    return filter;
}

QKXEventFilterBase *HostWiring::createBrowseButtonFilter(QKXBrowseButton *button)
{
    auto *filter = new QKXBrowseButtonEventFilter(button);
    SimulatedEngine *target = engine;
    connect(filter, &QKXBrowseButtonEventFilter::submit, engine,
            [target, button](const QString &path) { target->requestValue(WidgetNaming::boundAttribute(button), path); });
    followValue(button, [button](const QVariant &value) {
        if (!value.toString().isEmpty()) {
            button->setFilename(value.toString());
        }
    });
    // The filter only listens to the browser; bringing it up is the host's part. The filter sees the
    // tap before the button turns it into a click, so it is listening by the time the browser opens.
    connect(button, &QKXBrowseButton::clicked, this, [] {
        if (QWidget *browser = GlobalImpl::getInstance()->systemModule()->getSystemScreen(QStringLiteral("SimpleFileBrowser"))) {
            QMetaObject::invokeMethod(browser, "open");
        }
    });
    return filter;
}

QKXEventFilterBase *HostWiring::createPlaybackButtonFilter(QKXPlaybackControlButton *button)
{
    // A playback key is a command key with a symbol: the command button's filter serves it.
    auto *filter = new QKXPushButtonEventFilter(button);
    SimulatedEngine *target = engine;
    connect(filter, &QKXPushButtonEventFilter::submit, engine,
            [target, button] { target->command(WidgetNaming::boundAttribute(button)); });
    return filter;
}

QKXEventFilterBase *HostWiring::bindFlagStatus(QKXFlagStatus *flag)
{
    followValue(flag, [flag](const QVariant &value) { flag->setValue(value.toBool()); });
    return nullptr;
}

QKXEventFilterBase *HostWiring::bindProgressBar(QKXProgressBar *bar)
{
    // Through the floating-point slot, which refuses what is no number.
    followValue(bar, [bar](const QVariant &value) {
        bool isNumber = false;
        const double progress = value.toDouble(&isNumber);
        bar->setValue(isNumber ? progress : qQNaN());
    });
    return nullptr;
}
