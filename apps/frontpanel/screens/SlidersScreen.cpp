// SPDX-License-Identifier: BSD-3-Clause
#include "SlidersScreen.h"

#include "EditLockOwner.h"
#include "PanelHost.h"
#include "ScreenRunner.h"
#include "SimulatedEngine.h"

#include "QKXSliderEventFilter.h"
#include "QKXSliderHorizontal.h"
#include "QKXSliderVertical.h"

#include <QSlider>
#include <QStyle>
#include <QStyleOptionSlider>

#include <memory>

#include "ui_SlidersScreen.h"

QString SlidersScreen::id() const
{
    return QStringLiteral("sliders");
}

void SlidersScreen::addAttributes(SimulatedEngine &engine)
{
    struct Attribute {
        const char *name;
        int preset;
        int lower;
        int upper;
    };
    const Attribute attributes[] = {
        {"Volume", 40, 0, 100},
        {"Balance", 0, -50, 50},
        {"RfGain", 30, 0, 60},
        {"SquelchLevel", 20, 0, 100},
    };
    for (const Attribute &attribute : attributes) {
        const QString name = QString::fromLatin1(attribute.name);
        engine.addValue(name, attribute.preset);
        engine.setLimits(name, attribute.lower, attribute.upper);
    }
}

QWidget *SlidersScreen::createPage()
{
    return formPage<Ui::SlidersScreen>();
}

// The filter of a slider, with the engine's limits on the slider and its value shown as the engine
// holds it. The machine starts once the filter is wired.
template <typename Slider>
static QKXSliderEventFilter *sliders_filter(PanelHost &host, Slider *slider)
{
    SimulatedEngine *engine = host.engine();
    const QString attribute = WidgetNaming::boundAttribute(slider);
    auto *filter = new QKXSliderEventFilter(slider);
    if (engine->hasLimits(attribute)) {
        slider->setLowerLimit(int(engine->lowerLimit(attribute)));
        slider->setUpperLimit(int(engine->upperLimit(attribute)));
    }
    host.requestOnSubmit(filter, &QKXSliderEventFilter::submit, slider);
    host.followValue(slider, [slider](const QVariant &value) { slider->setValue(value.toInt()); });
    filter->startMachine();
    return filter;
}

// Whether a value the slider announces is new to the engine: the engine's own values come back
// through setValue() and are announced again.
static bool sliders_isNew(SimulatedEngine *engine, QWidget *slider, int value)
{
    return engine->value(WidgetNaming::boundAttribute(slider)).toInt() != value;
}

void SlidersScreen::wire(PanelHost &host, QWidget *page)
{
    SimulatedEngine *engine = host.engine();
    host.wireEach<QKXSliderHorizontal>(page, [&host, engine](QKXSliderHorizontal *slider) {
        QKXSliderEventFilter *filter = sliders_filter(host, slider);
        QObject::connect(slider, &QKXSliderHorizontal::valueChanged, filter, [engine, slider, filter](int value) {
            if (sliders_isNew(engine, slider, value)) {
                filter->submitWidgetValue(value);
            }
        });
        return filter;
    });
    host.wireEach<QKXSliderVertical>(page, [&host, engine](QKXSliderVertical *slider) {
        QKXSliderEventFilter *filter = sliders_filter(host, slider);
        auto dragged = std::make_shared<bool>(false);
        QObject::connect(filter, &QKXEventFilterBase::editStart, slider, [dragged] { *dragged = true; });
        PanelHost *requestFrom = &host;
        QObject::connect(slider, &QKXSliderVertical::valueChanged, filter, [=](int value) {
            if (*dragged && sliders_isNew(engine, slider, value)) {
                requestFrom->request(slider, value);
            }
            *dragged = false;
        });
        return filter;
    });
}

// The inner slider's handle, in the inner slider's coordinates.
static QRect sliders_handle(QSlider *slider)
{
    QStyleOptionSlider option;
    option.initFrom(slider);
    option.orientation = slider->orientation();
    option.minimum = slider->minimum();
    option.maximum = slider->maximum();
    option.sliderPosition = slider->sliderPosition();
    option.sliderValue = slider->value();
    option.tickPosition = slider->tickPosition();
    option.tickInterval = slider->tickInterval();
    option.upsideDown = slider->orientation() == Qt::Vertical;
    if (slider->orientation() == Qt::Horizontal) {
        option.state |= QStyle::State_Horizontal;
    }
    return slider->style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, slider);
}

// Drags the handle of the slider bound to the attribute by the offset, a finger's way, and checks that
// the engine then holds what the handle shows and that the lock is free again.
template <typename Slider>
static bool sliders_drag(ScreenRunner &runner, const QString &attribute, const QPoint &offset)
{
    auto *widget = runner.boundWidget<Slider>(attribute);
    auto *handle = widget ? widget->template findChild<QSlider *>() : nullptr;
    if (!handle) {
        return runner.fail(QStringLiteral("no slider is bound to %1").arg(attribute));
    }
    if (!runner.showScreenOf(widget, QStringLiteral("the %1 slider").arg(attribute))) {
        return false;
    }
    SimulatedEngine *engine = runner.engine();
    const int before = engine->value(attribute).toInt();
    engine->appendLog(QStringLiteral("drag %1").arg(attribute));
    const QPoint from = handle->mapToGlobal(sliders_handle(handle).center());
    ScreenRunner::touch(handle, QEvent::MouseButtonPress, from);
    runner.waitFor([&] { return runner.lockOwner()->holder() == widget; }, 500);
    const int steps = 6;
    for (int i = 1; i <= steps; ++i) {
        runner.waitFor([] { return false; }, 20);
        ScreenRunner::touch(handle, QEvent::MouseMove, from + offset * i / steps);
    }
    ScreenRunner::touch(handle, QEvent::MouseButtonRelease, from + offset);
    const bool settled = runner.waitFor([&] {
        return runner.lockOwner()->isFree() && engine->value(attribute).toInt() == handle->value();
    });
    if (!settled || handle->value() == before) {
        return runner.fail(QStringLiteral("after the drag the %1 handle shows %2, the engine holds %3 (was %4), the lock is %5")
                               .arg(attribute).arg(handle->value()).arg(engine->value(attribute).toInt()).arg(before)
                               .arg(runner.lockOwner()->isFree() ? QStringLiteral("free") : QStringLiteral("held")));
    }
    if (widget->value() != handle->value()) {
        return runner.fail(QStringLiteral("the %1 slider reports %2 with its handle at %3")
                               .arg(attribute).arg(widget->value()).arg(handle->value()));
    }
    return true;
}

bool SlidersScreen::play(ScreenRunner &runner)
{
    return sliders_drag<QKXSliderHorizontal>(runner, QStringLiteral("Volume"), QPoint(90, 0))
        && sliders_drag<QKXSliderVertical>(runner, QStringLiteral("RfGain"), QPoint(0, -80))
        && runner.snapshot(QStringLiteral("sliders-dragged"));
}
