// SPDX-License-Identifier: BSD-3-Clause
#include "SpectrumScreen.h"

#include "PanelHost.h"
#include "ScreenRunner.h"
#include "SimulatedEngine.h"

#include "QKXPlotInterfaceImpl.h"
#include "QKXPlotManager.h"
#include "QKXPushButtonEventFilter.h"
#include "QKXSaveTraceButton.h"

#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QRandomGenerator>
#include <QTimer>
#include <QtMath>
#include <qwt_scale_div.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_widget.h>

#include "ui_SpectrumScreen.h"

namespace {

const QString spectrum_type = QStringLiteral("EngineBasicTrace");
const QString spectrum_topic = QStringLiteral("Spectrum");
const int spectrum_points = 1001;
const double spectrum_first = 2400.0;   // MHz
const double spectrum_last = 2500.0;
const char *const spectrum_markers[] = {"M1", "M2"};

// One sweep of the simulated analyser: a noise floor with a carrier that drifts about 2450 MHz and a
// weaker one at 2472 MHz, in the engine's basic-trace layout.
QVariantList spectrum_sweep(int count)
{
    QRandomGenerator noise(quint32(count) * 2654435761u + 1);
    const double carrier = 2450.0 + 2.5 * std::sin(count / 25.0);
    QVariantList xs;
    QVariantList ys;
    xs.reserve(spectrum_points);
    ys.reserve(spectrum_points);
    for (int i = 0; i < spectrum_points; ++i) {
        const double f = spectrum_first + i * (spectrum_last - spectrum_first) / (spectrum_points - 1);
        const double floor = -92.0 + 5.0 * noise.generateDouble();
        const double main = -24.0 - 12.0 * qPow((f - carrier) / 0.8, 2);
        const double side = -58.0 - 12.0 * qPow((f - 2472.0) / 0.6, 2);
        const double power = qPow(10.0, floor / 10) + qPow(10.0, main / 10) + qPow(10.0, side / 10);
        xs << f;
        ys << 10.0 * std::log10(power);
    }
    return QVariantList{spectrum_points, spectrum_first, spectrum_last, QStringLiteral("MHz"), QStringLiteral("dBm"),
                        xs, ys};
}

// A marker's picture: a numbered yellow pennant pointing down at its point.
QImage spectrum_markerPicture(int number)
{
    QImage picture(18, 18, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 200, 0));
    painter.drawPolygon(QPolygonF(QVector<QPointF>{QPointF(0, 0), QPointF(18, 0), QPointF(9, 18)}));
    painter.setPen(Qt::black);
    QFont font = painter.font();
    font.setPixelSize(11);
    font.setBold(true);
    painter.setFont(font);
    painter.drawText(QRect(0, 0, 18, 12), Qt::AlignCenter, QString::number(number));
    return picture;
}

// The x of the middle of the drawing area, in global coordinates, at the height of the value.
QPoint spectrum_onScreen(QKXPlotInterfaceImpl *canvas, double x, double y)
{
    const QPoint inArea(qRound(canvas->canvasMap(QwtPlot::xBottom).transform(x)),
                        qRound(canvas->canvasMap(QwtPlot::yLeft).transform(y)));
    return canvas->canvas()->mapToGlobal(inArea);
}

// A finger's stroke over the drawing area, in steps a finger sends.
void spectrum_stroke(QWidget *area, const QPoint &from, const QPoint &to)
{
    ScreenRunner::touch(area, QEvent::MouseButtonPress, from);
    for (int i = 1; i <= 6; ++i) {
        ScreenRunner::touch(area, QEvent::MouseMove, from + (to - from) * i / 6);
    }
    ScreenRunner::touch(area, QEvent::MouseButtonRelease, to);
    ScreenRunner::settle();
}

// Waits for the replot tick that brings the axes' labels up to the ranges set on them, then takes
// the picture.
bool spectrum_snapshot(ScreenRunner &runner, QKXPlotInterfaceImpl *canvas, const QString &name)
{
    runner.waitFor([canvas] {
        for (int axis : {int(QwtPlot::xBottom), int(QwtPlot::yLeft)}) {
            if (!(canvas->axisWidget(axis)->scaleDraw()->scaleDiv() == canvas->axisScaleDiv(axis))) {
                return false;
            }
        }
        return true;
    });
    return runner.snapshot(name);
}

QPair<double, double> spectrum_range(QKXPlotInterfaceImpl *canvas, int axis)
{
    const QwtScaleDiv div = canvas->axisScaleDiv(axis);
    return qMakePair(div.lowerBound(), div.upperBound());
}

} // namespace

SpectrumScreen::SpectrumScreen()
    : sweep(new QTimer(this))
    , sweepCount(0)
    , markerIndex{500, 720}
{
    sweep->setInterval(50);
}

SpectrumScreen::~SpectrumScreen() = default;

QString SpectrumScreen::id() const
{
    return QStringLiteral("spectrum");
}

void SpectrumScreen::addAttributes(SimulatedEngine &engine)
{
    this->engine = &engine;
    // The trace itself is published, not held: the attribute names the topic.
    engine.addValue(spectrum_topic, spectrum_type);
    engine.addValue(QStringLiteral("RefLevel"), 0.0);
    engine.setLimits(QStringLiteral("RefLevel"), -150.0, 50.0);
    engine.addValue(QStringLiteral("ScaleDiv"), 10.0);
    engine.setLimits(QStringLiteral("ScaleDiv"), 0.01, 50.0);
    engine.addCommand(QStringLiteral("SaveSpectrum"), tr("Save spectrum"));
}

QWidget *SpectrumScreen::createPage()
{
    return formPage<Ui::SpectrumScreen>();
}

void SpectrumScreen::wire(PanelHost &host, QWidget *page)
{
    auto *shown = page->findChild<QKXPlotManager *>(QStringLiteral("spectrumPlot"));
    if (!shown || !host.wire(shown, [] { return nullptr; })) {
        return;
    }
    plot = shown;
    readouts[0] = page->findChild<QLabel *>(QStringLiteral("marker1Readout"));
    readouts[1] = page->findChild<QLabel *>(QStringLiteral("marker2Readout"));
    if (auto *save = plot->findChild<QKXSaveTraceButton *>()) {
        host.wire(save, [&host, save] { return host.commandFilter<QKXPushButtonEventFilter>(save); });
    }

    // The left axis is the engine's reference level and scale; a pan or zoom asks the engine for the
    // new ones.
    SimulatedEngine *target = host.engine();
    const auto followAxis = [this, target](const QString &name) {
        if (name == QLatin1String("RefLevel") || name == QLatin1String("ScaleDiv")) {
            plot->externalUpdateLeftYAxis(target->value(QStringLiteral("ScaleDiv")).toDouble(),
                                          target->value(QStringLiteral("RefLevel")).toDouble());
        }
    };
    connect(target, &SimulatedEngine::valueChanged, plot, followAxis);
    connect(target, &SimulatedEngine::valueConfirmed, plot, followAxis);
    followAxis(QStringLiteral("RefLevel"));
    connect(plot, &QKXPlotManager::topScaleVal, target,
            [target](double top) { target->requestValue(QStringLiteral("RefLevel"), top); });
    connect(plot, &QKXPlotManager::divisonVal, target,
            [target](double division) { target->requestValue(QStringLiteral("ScaleDiv"), division); });

    // A finger on a marker takes it (index -1) and drags it along the trace, point by point.
    connect(plot, &QKXPlotManager::moveMarker, this, [this](const QString &key, int index) {
        if (index < 0) {
            plot->setMarkerFocus(key, true);
        } else {
            placeMarker(key, index);
        }
    });

    // The simulated analyser publishes a sweep every 50 ms.
    plot->addTraceType(spectrum_type, spectrum_topic);
    showTrace(spectrum_sweep(0));
    for (int i = 0; i < 2; ++i) {
        const QString key = QLatin1String(spectrum_markers[i]);
        plot->createMarker(key, spectrum_markerPicture(i + 1), lastX.value(markerIndex[i]).toDouble(),
                           lastY.value(markerIndex[i]).toDouble());
        placeMarker(key, markerIndex[i]);
    }
    connect(sweep, &QTimer::timeout, this, [this] { showTrace(spectrum_sweep(++sweepCount)); });
    sweep->start();
    // A screen coming up asks for a sweep at once: a hidden plot takes none.
    plot->installEventFilter(this);
}

bool SpectrumScreen::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == plot && event->type() == QEvent::Show) {
        showTrace(spectrum_sweep(++sweepCount));
    }
    return PanelScreen::eventFilter(watched, event);
}

void SpectrumScreen::showTrace(const QVariant &trace)
{
    if (!plot) {
        return;
    }
    const QVariantList fields = trace.toList();
    lastX = fields.value(5).toList();
    lastY = fields.value(6).toList();
    plot->setTrace(spectrum_type, spectrum_topic, trace);
    // The markers ride on the trace: same point, new level.
    for (int i = 0; i < 2; ++i) {
        placeMarker(QLatin1String(spectrum_markers[i]), markerIndex[i]);
    }
}

void SpectrumScreen::placeMarker(const QString &key, int index)
{
    const int which = key == QLatin1String(spectrum_markers[0]) ? 0 : 1;
    index = qBound(0, index, lastX.size() - 1);
    if (index < 0) {
        return;
    }
    markerIndex[which] = index;
    const double x = lastX.at(index).toDouble();
    const double y = lastY.at(index).toDouble();
    plot->setMarker(key, x, y);
    if (readouts[which]) {
        readouts[which]->setText(QStringLiteral("%1  %2 MHz\n     %3 dBm").arg(key).arg(x, 0, 'f', 2).arg(y, 0, 'f', 1));
    }
}

bool SpectrumScreen::play(ScreenRunner &runner)
{
    if (!plot || !runner.showScreenOf(plot, QStringLiteral("the spectrum"))) {
        return plot ? false : runner.fail(QStringLiteral("the spectrum screen has no plot"));
    }
    QKXPlotInterfaceImpl *canvas = plot->getPlotInterface();
    QWidget *area = canvas->canvas();
    // The live trace: a few sweeps go by.
    const int sweeps = sweepCount;
    if (!runner.waitFor([this, sweeps] { return sweepCount >= sweeps + 3; })) {
        return runner.fail(QStringLiteral("no sweep arrived in the spectrum"));
    }
    if (!spectrum_snapshot(runner, canvas, QStringLiteral("spectrum-live"))) {
        return false;
    }

    // Marker 1 is taken a little above its point and dragged 60 pixels to the right.
    const int before = markerIndex[0];
    const QPoint grip = spectrum_onScreen(canvas, lastX.at(before).toDouble(), lastY.at(before).toDouble()) - QPoint(0, 8);
    spectrum_stroke(area, grip, grip + QPoint(60, 0));
    if (markerIndex[0] <= before + 30) {
        return runner.fail(QStringLiteral("marker M1 stayed at point %1 (now %2)").arg(before).arg(markerIndex[0]));
    }
    if (!spectrum_snapshot(runner, canvas, QStringLiteral("spectrum-marker"))) {
        return false;
    }

    // A pan in hand mode: the content follows the finger, down and to the left.
    const auto xBefore = spectrum_range(canvas, QwtPlot::xBottom);
    const QPoint start = area->mapToGlobal(QPoint(area->width() / 4, area->height() - 40));
    spectrum_stroke(area, start, start + QPoint(-80, 30));
    const auto xPanned = spectrum_range(canvas, QwtPlot::xBottom);
    if (!(xPanned.first > xBefore.first)) {
        return runner.fail(QStringLiteral("the pan left the frequency axis at %1 to %2").arg(xPanned.first).arg(xPanned.second));
    }
    if (!spectrum_snapshot(runner, canvas, QStringLiteral("spectrum-panned"))) {
        return false;
    }

    // The zoom tool, then a double-tap on the carrier: half the span around it.
    const QList<QPushButton *> tools = plot->findChildren<QPushButton *>(QStringLiteral("common_button"));
    ScreenRunner::tap(tools.at(1));
    const QPoint carrier = spectrum_onScreen(canvas, 2450.0, -60.0);
    for (QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease, QEvent::MouseButtonDblClick,
                              QEvent::MouseButtonRelease}) {
        ScreenRunner::touch(area, type, carrier);
    }
    ScreenRunner::settle();
    const auto xZoomed = spectrum_range(canvas, QwtPlot::xBottom);
    const double spanBefore = xPanned.second - xPanned.first;
    if (qAbs((xZoomed.second - xZoomed.first) - spanBefore / 2) > spanBefore * 1e-6) {
        return runner.fail(QStringLiteral("the zoom left a span of %1 MHz").arg(xZoomed.second - xZoomed.first));
    }
    if (!spectrum_snapshot(runner, canvas, QStringLiteral("spectrum-zoomed"))) {
        return false;
    }

    // Reload: the whole sweep again; back to the hand.
    ScreenRunner::tap(tools.at(4));
    ScreenRunner::tap(tools.at(0));
    ScreenRunner::settle();
    const auto xRestored = spectrum_range(canvas, QwtPlot::xBottom);
    if (xRestored.first != spectrum_first || xRestored.second != spectrum_last) {
        return runner.fail(QStringLiteral("reload left the frequency axis at %1 to %2").arg(xRestored.first).arg(xRestored.second));
    }
    return spectrum_snapshot(runner, canvas, QStringLiteral("spectrum-restored"));
}
