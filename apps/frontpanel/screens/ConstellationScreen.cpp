// SPDX-License-Identifier: BSD-3-Clause
#include "ConstellationScreen.h"

#include "PanelHost.h"
#include "ScreenRunner.h"
#include "SimulatedEngine.h"

#include "QKXComplexTraceManager.h"
#include "QKXComplexTracePattern.h"
#include "QKXComplexTracePlot.h"
#include "QKXComplexTraceRange.h"
#include "QKXPlotInterfaceImpl.h"
#include "QKXPushButton.h"
#include "QKXPushButtonEventFilter.h"

#include <QRandomGenerator>
#include <QTimer>
#include <QtMath>
#include <qwt_plot_item.h>
#include <qwt_scale_div.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_widget.h>

#include "ui_ConstellationScreen.h"

namespace {

const QString constellation_type = QStringLiteral("EngineReadingComplexTrace");
const int constellation_symbols = 1500;

// The symbol levels on each axis, the outer ones at +-1.
QVector<double> constellation_levels(bool sixteen)
{
    return sixteen ? QVector<double>{-1.0, -1.0 / 3, 1.0 / 3, 1.0} : QVector<double>{-1.0, 1.0};
}

double constellation_gauss(QRandomGenerator &random)
{
    const double u = qMax(1e-12, random.generateDouble());
    return std::sqrt(-2.0 * std::log(u)) * std::cos(2 * M_PI * random.generateDouble());
}

QVariantList constellation_trace(const QVector<double> &i, const QVector<double> &q)
{
    QVariantList is;
    QVariantList qs;
    for (int k = 0; k < i.size(); ++k) {
        is << i.at(k);
        qs << q.at(k);
    }
    return QVariantList{i.size(), is, qs};
}

// True once a replot tick has brought the axes' labels up to the ranges set on them.
bool constellation_axesShown(QwtPlot *canvas)
{
    for (int axis : {int(QwtPlot::xBottom), int(QwtPlot::yLeft)}) {
        if (!(canvas->axisWidget(axis)->scaleDraw()->scaleDiv() == canvas->axisScaleDiv(axis))) {
            return false;
        }
    }
    return true;
}

int constellation_markers(QKXComplexTraceManager *display)
{
    return display->getTracePlot()->getPlotInterface()->itemList(QwtPlotItem::Rtti_PlotMarker).size();
}

} // namespace

ConstellationScreen::ConstellationScreen()
    : symbols(new QTimer(this))
    , burst(0)
{
    symbols->setInterval(100);
}

ConstellationScreen::~ConstellationScreen() = default;

QString ConstellationScreen::id() const
{
    return QStringLiteral("constellation");
}

void ConstellationScreen::addAttributes(SimulatedEngine &engine)
{
    this->engine = &engine;
    // The three topics are published, not held: each attribute names its trace type.
    engine.addValue(QStringLiteral("IQPoints"), constellation_type);
    engine.addValue(QStringLiteral("IQPattern"), constellation_type);
    engine.addValue(QStringLiteral("IQRange"), constellation_type);
    engine.addValue(QStringLiteral("Modulation"), QStringLiteral("16QAM"));
    SimulatedEngine *target = &engine;
    engine.addCommand(QStringLiteral("Modulation4QAM"), tr("4-QAM"),
                      [target] { target->setValue(QStringLiteral("Modulation"), QStringLiteral("4QAM")); });
    engine.addCommand(QStringLiteral("Modulation16QAM"), tr("16-QAM"),
                      [target] { target->setValue(QStringLiteral("Modulation"), QStringLiteral("16QAM")); });
}

QWidget *ConstellationScreen::createPage()
{
    return formPage<Ui::ConstellationScreen>();
}

void ConstellationScreen::wire(PanelHost &host, QWidget *page)
{
    host.wireEach<QKXPushButton>(page, [&host](QKXPushButton *button) {
        return host.commandFilter<QKXPushButtonEventFilter>(button);
    });
    auto *shown = page->findChild<QKXComplexTraceManager *>(QStringLiteral("constellation"));
    if (!shown || display) {
        return;
    }
    display = shown;
    // Three displays in one: each part stands for its own topic and only shows what is published.
    const auto readOnly = [] { return nullptr; };
    host.wire(display->getTracePlot(), readOnly);
    host.wire(display->getTracePlotPattern(), readOnly);
    host.wire(display->getTraceRange(), readOnly);
    display->getTracePlot()->addTraceType(constellation_type, QStringLiteral("IQPoints"));
    display->getTracePlotPattern()->addTraceType(constellation_type, QStringLiteral("IQPattern"));
    display->getTraceRange()->addTraceType(constellation_type, QStringLiteral("IQRange"));
    // The library's reference points lie under the engine's pattern points.
    QKXComplexTracePlot *plot = display->getTracePlot();
    plot->setXBottomScaleEnable(true);
    plot->setXBottomLabel(tr("I"));
    plot->setYLeftLabel(tr("Q"));
    plot->setRefRadius(1.0);
    plot->setPatternSize(14);
    plot->enableRefPattern(true);
    // A screen coming up asks for a burst at once: a hidden plot takes none.
    plot->installEventFilter(this);

    SimulatedEngine *target = host.engine();
    connect(target, &SimulatedEngine::valueChanged, this, [this](const QString &name) {
        if (name == QLatin1String("Modulation")) {
            publish(true);
        }
    });
    publish(true);
    connect(symbols, &QTimer::timeout, this, [this] { publish(false); });
    symbols->start();
}

bool ConstellationScreen::eventFilter(QObject *watched, QEvent *event)
{
    if (display && watched == display->getTracePlot() && event->type() == QEvent::Show) {
        publish(false);
    }
    return PanelScreen::eventFilter(watched, event);
}

void ConstellationScreen::publish(bool modulationChanged)
{
    if (!display || !engine) {
        return;
    }
    const bool sixteen = engine->value(QStringLiteral("Modulation")).toString() == QLatin1String("16QAM");
    const QVector<double> levels = constellation_levels(sixteen);
    if (modulationChanged) {
        // The library's reference points first: the engine's pattern points, attached after them,
        // are drawn over them.
        display->getTracePlot()->setRefPattern(sixteen ? QKXPlotManager::CONSTELLATION_16QAM : QKXPlotManager::CONSTELLATION_4QAM);
        QVector<double> pi;
        QVector<double> pq;
        for (double q : levels) {
            for (double i : levels) {
                pi << i;
                pq << q;
            }
        }
        display->getTracePlotPattern()->setTrace(constellation_type, QStringLiteral("IQPattern"), constellation_trace(pi, pq));
        const double edge = sixteen ? 1.5 : 1.4;
        display->getTraceRange()->setTrace(constellation_type, QStringLiteral("IQRange"),
                                           QVariantList{2, QVariantList{-edge, edge}, QVariantList{-edge, edge}});
    }
    // A burst of symbols with the receiver's noise on them.
    QRandomGenerator random(quint32(++burst) * 2246822519u + 7);
    QVector<double> i(constellation_symbols);
    QVector<double> q(constellation_symbols);
    for (int k = 0; k < constellation_symbols; ++k) {
        i[k] = levels.at(random.bounded(levels.size())) + 0.08 * constellation_gauss(random);
        q[k] = levels.at(random.bounded(levels.size())) + 0.08 * constellation_gauss(random);
    }
    display->getTracePlot()->setTrace(constellation_type, QStringLiteral("IQPoints"), constellation_trace(i, q));
}

bool ConstellationScreen::play(ScreenRunner &runner)
{
    if (!display) {
        return runner.fail(QStringLiteral("the constellation screen has no display"));
    }
    if (!runner.showScreenOf(display, QStringLiteral("the constellation"))) {
        return false;
    }
    const int bursts = burst;
    if (!runner.waitFor([this, bursts] { return burst >= bursts + 2; })) {
        return runner.fail(QStringLiteral("no symbols arrived in the constellation"));
    }
    runner.waitFor([this] { return constellation_axesShown(display->getTracePlot()->getPlotInterface()); });
    // 16 reference points and 16 pattern points.
    if (constellation_markers(display) != 32) {
        return runner.fail(QStringLiteral("16-QAM shows %1 points of reference").arg(constellation_markers(display)));
    }
    if (!runner.snapshot(QStringLiteral("constellation-16qam"))) {
        return false;
    }
    if (!runner.tapPushButton(QStringLiteral("Modulation4QAM"))) {
        return false;
    }
    QKXPlotInterfaceImpl *canvas = display->getTracePlot()->getPlotInterface();
    runner.waitFor([canvas] { return constellation_axesShown(canvas); });
    const QwtScaleDiv range = canvas->axisScaleDiv(QwtPlot::xBottom);
    if (constellation_markers(display) != 8 || range.upperBound() != 1.4) {
        return runner.fail(QStringLiteral("4-QAM shows %1 points of reference and a range to %2")
                               .arg(constellation_markers(display))
                               .arg(range.upperBound()));
    }
    const bool shown = runner.snapshot(QStringLiteral("constellation-4qam"));
    return runner.tapPushButton(QStringLiteral("Modulation16QAM")) && shown;
}
