// SPDX-License-Identifier: BSD-3-Clause
#include "QKXPlotInterfaceImpl.h"
#include "QKXPlotInterfaceImpl_p.h"

#include "CustomMarker.h"
#include "KXTraceCurve_p.h"
#include "QKXPrecisionLabel.h"
#include "QKXReplotThread.h"

#include <QCoreApplication>
#include <QDebug>
#include <QMouseEvent>
#include <QMutexLocker>
#include <qwt_picker_machine.h>
#include <qwt_plot_canvas.h>
#include <qwt_plot_layout.h>
#include <qwt_plot_picker.h>
#include <qwt_scale_div.h>
#include <qwt_scale_widget.h>

#include <algorithm>
#include <cmath>
#include <exception>

// Hosts' forms rely on this look: a black drawing area with white scales.
static const char kx_canvasStyle[] = "         QwtPlot {            border: none;        }        QwtPlotCanvas {            color: white;             border: none;             background-color: #000;         }         QwtScaleWidget {             color: white;         }         ";

static const int kx_maxLines = 1000;

// The ranges an axis can show: finite and wider than 1e-12.
static bool kx_isShowableRange(double min, double max)
{
    return std::isfinite(min) && std::isfinite(max) && std::isfinite(max - min) && max - min > 1e-12;
}

static bool kx_isTraceType(const QString &type)
{
    return type == QLatin1String("EngineBasicTrace") || type == QLatin1String("EngineReadingComplexTrace");
}

QKXPlotInterfaceImplPrivate::QKXPlotInterfaceImplPrivate(QWidget *parentWidget)
    : parentWidget(parentWidget)
    , pressPos(0, 0)
    , zoomOut(false)
    , moveOffsetX(0.0)
    , moveOffsetY(0.0)
    , unitsPerPixelX(0.0)
    , unitsPerPixelY(0.0)
    , xLines(10.0)
    , yLeftLines(8.0)
    , yRightLines(8.0)
    , pressXMin(0.0)
    , pressXMax(0.0)
    , traceXMin(0.0)
    , traceXMax(0.0)
    , pressYMin(0.0)
    , pressYMax(0.0)
    , xMin(0.0)
    , xMax(1000.0)
    , yLeftMin(-120.0)
    , yLeftMax(0.0)
    , yRightMin(-120.0)
    , yRightMax(0.0)
    , moveEnabled(true)
    , screenLocked(false)
    , toolBarEnabled(false)
    , pressOutside(false)
    , markerDragging(false)
    , fixedGrid(true)
    , autoScale(true)
    , useTwoAxes(true)
    , xBottomShown(false)
    , yLeftShown(false)
    , yRightShown(false)
    , replotRequested(false)
    , yLeftLabel(QStringLiteral("Left Label"))
    , yRightLabel(QStringLiteral("Right Label"))
    , xBottomLabel(QStringLiteral("Bottom Label"))
    , pointCount(0)
    , picker(nullptr)
    , curveStyle(QwtPlotCurve::Lines)
    , replotThread(nullptr)
{
}

QKXPlotInterfaceImplPrivate::~QKXPlotInterfaceImplPrivate() = default;

double &QKXPlotInterfaceImplPrivate::lines(int axis)
{
    if (axis == QwtPlot::yLeft) {
        return yLeftLines;
    }
    return axis == QwtPlot::yRight ? yRightLines : xLines;
}

QKXPlotInterfaceImpl::QKXPlotInterfaceImpl(QWidget *parent)
    : QwtPlot(nullptr)
    , d_ptr(new QKXPlotInterfaceImplPrivate(parent))
{
    Q_D(QKXPlotInterfaceImpl);
    // The canvas deletes the curves and markers it made itself; items that others attach (grid,
    // reference and pattern points) are only let go, so their owners can still delete them.
    setAutoDelete(false);

    setObjectName(QStringLiteral("QKXPlot"));
    setStyleSheet(QLatin1String(kx_canvasStyle));
    // With a style-sheet background, Qwt refills its backing store from every parent's background
    // on each replot, which costs twenty times what drawing a million-point trace does. Without
    // it the canvas draws its items straight onto the widget whenever it is painted.
    if (auto *area = qobject_cast<QwtPlotCanvas *>(canvas())) {
        area->setPaintAttribute(QwtPlotCanvas::BackingStore, false);
    }
    plotLayout()->setAlignCanvasToScales(true);
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Maximum);

    enableAxis(yLeft, false);
    enableAxis(xBottom, false);
    QwtScaleWidget *bottom = axisWidget(xBottom);
    bottom->setMinBorderDist(0, 2 * bottom->fontMetrics().height());
    axisWidget(yLeft)->setMinBorderDist(0, 0);

    setAxisScaleDraw(yLeft, new QKXPrecisionLabel(QStringLiteral("1")));
    setAxisScaleDraw(xBottom, new QKXPrecisionLabel(QStringLiteral("3")));
    axisScaleDraw(yLeft)->setMinimumExtent(60);

    d->picker = new QwtPlotPicker(xBottom, yLeft, QwtPicker::CrossRubberBand, QwtPicker::AlwaysOff, canvas());
    d->picker->setStateMachine(new QwtPickerDragPointMachine);
    d->picker->setEnabled(true);
    d->picker->setRubberBandPen(QColor(Qt::green));
    d->picker->setTrackerPen(QColor(Qt::white));

    connect(this, &QKXPlotInterfaceImpl::markerMoveEnable, this, &QKXPlotInterfaceImpl::markerMoveMode);
    connect(this, &QKXPlotInterfaceImpl::markerMoveRequest, this, &QKXPlotInterfaceImpl::reqMarkerMove);

    initAxes();
    replot();

    d->replotThread = new QKXReplotThread(this);
    connect(d->replotThread, &QKXReplotThread::update, this, &QKXPlotInterfaceImpl::update);
    d->replotThread->start(QThread::InheritPriority);
}

QKXPlotInterfaceImpl::~QKXPlotInterfaceImpl()
{
    Q_D(QKXPlotInterfaceImpl);
    // No tick may reach a canvas being destroyed: stop the clock, then drop the ticks it queued.
    d->replotThread->stop();
    QCoreApplication::removePostedEvents(this, QEvent::MetaCall);
    qDeleteAll(d->markers);
    d->markers.clear();
    QMutexLocker locker(&d->traceLock);
    qDeleteAll(d->traces);
    d->traces.clear();
}

void QKXPlotInterfaceImpl::addTraceType(const QString &type, const QString &topicName)
{
    Q_D(QKXPlotInterfaceImpl);
    if (!kx_isTraceType(type)) {
        qDebug() << "UserInterface - Expected a Trace type:  EngineBasicTrace or EngineReadingComplexTrace. But received:"
                 << type << ", (" << topicName << ")";
        return;
    }
    QMutexLocker locker(&d->traceLock);
    // A topic announced again gets a new curve in place of the old one.
    delete d->traces.take(topicName);
    auto *curve = new KXTraceCurve;
    if (d->useTwoAxes && !d->traces.isEmpty()) {
        curve->setPen(QColor(255, 255, 255));
        curve->setYAxis(yRight);
    } else {
        curve->setPen(QColor(0, 255, 0));
        curve->setYAxis(yLeft);
    }
    curve->setStyle(d->curveStyle);
    curve->attach(this);
    d->traces.insert(topicName, curve);
}

void QKXPlotInterfaceImpl::retranslate()
{
    Q_D(QKXPlotInterfaceImpl);
    const auto title = [](const QString &label, const QString &units) {
        const QString text = tr(label.toUtf8().constData());
        return units.isEmpty() ? text : text + QStringLiteral(" (") + units + QLatin1Char(')');
    };
    setAxisTitle(yLeft, title(d->yLeftLabel, d->yLeftUnits));
    setAxisTitle(yRight, title(d->yRightLabel, d->yRightUnits));
    setAxisTitle(xBottom, title(d->xBottomLabel, d->xBottomUnits));
}

QwtPlotCurve *QKXPlotInterfaceImpl::getTrace(const QString &topicName)
{
    Q_D(QKXPlotInterfaceImpl);
    QMutexLocker locker(&d->traceLock);
    return d->traces.value(topicName);
}

QStringList QKXPlotInterfaceImpl::getTraceList()
{
    Q_D(QKXPlotInterfaceImpl);
    QMutexLocker locker(&d->traceLock);
    return d->traces.keys();
}

void QKXPlotInterfaceImpl::setTraceVisible(const QString &topicName, bool visible)
{
    if (QwtPlotCurve *curve = getTrace(topicName)) {
        curve->setVisible(visible);
        requestReplot();
    }
}

void QKXPlotInterfaceImpl::createMarker(const QString &key, const QImage &image, double x, double y)
{
    Q_D(QKXPlotInterfaceImpl);
    auto *marker = new CustomMarker;
    marker->setValue(x, y);
    marker->setMarkerName(key);
    marker->setMyImage(image);
    marker->setIsFocused(false);
    marker->attach(this);
    marker->setLabelAlignment(Qt::AlignCenter);
    marker->setZ(35);
    marker->show();
    delete d->markers.value(key);
    d->markers.insert(key, marker);
    requestReplot();
}

void QKXPlotInterfaceImpl::setMarker(const QString &key, double x, double y)
{
    Q_D(QKXPlotInterfaceImpl);
    if (CustomMarker *marker = d->markers.value(key)) {
        marker->setValue(x, y);
        requestReplot();
    }
}

void QKXPlotInterfaceImpl::removeMarker(const QString &key)
{
    Q_D(QKXPlotInterfaceImpl);
    if (CustomMarker *marker = d->markers.take(key)) {
        marker->detach();
        marker->hide();
        delete marker;
        requestReplot();
    }
}

void QKXPlotInterfaceImpl::setMarkerFocus(const QString &key, bool focus)
{
    Q_D(QKXPlotInterfaceImpl);
    CustomMarker *named = d->markers.value(key);
    if (!named) {
        return;
    }
    named->setIsFocused(focus);
    named->setZ(30);
    if (focus) {
        for (CustomMarker *other : qAsConst(d->markers)) {
            if (other != named) {
                other->setIsFocused(false);
                other->setZ(35);
            }
        }
    }
    requestReplot();
}

bool QKXPlotInterfaceImpl::hasMarker(const QString &key) const
{
    Q_D(const QKXPlotInterfaceImpl);
    return d->markers.contains(key);
}

void QKXPlotInterfaceImpl::setMoveEnable(bool enable)
{
    Q_D(QKXPlotInterfaceImpl);
    d->moveEnabled = enable;
    if (d->markerDragging) {
        d->picker->setStateMachine(nullptr);
        d->picker->setRubberBand(QwtPicker::NoRubberBand);
    } else if (!enable) {
        d->picker->setStateMachine(new QwtPickerDragRectMachine);
        d->picker->setRubberBand(QwtPicker::RectRubberBand);
    } else {
        d->picker->setStateMachine(new QwtPickerDragPointMachine);
        d->picker->setRubberBand(QwtPicker::CrossRubberBand);
    }
}

bool QKXPlotInterfaceImpl::isMoveEnabled() const
{
    Q_D(const QKXPlotInterfaceImpl);
    return d->moveEnabled;
}

void QKXPlotInterfaceImpl::setZoomType(bool zoomOut)
{
    Q_D(QKXPlotInterfaceImpl);
    d->zoomOut = zoomOut;
}

void QKXPlotInterfaceImpl::enableAutoScale(bool enable)
{
    Q_D(QKXPlotInterfaceImpl);
    d->autoScale = enable;
    if (enable) {
        setAxisAutoScale(xBottom);
        setAxisAutoScale(yLeft);
        setAxisAutoScale(yRight);
        return;
    }
    const QwtScaleDiv bottom = axisScaleDiv(xBottom);
    const QwtScaleDiv left = axisScaleDiv(yLeft);
    calculateAxis(xBottom, bottom.lowerBound(), bottom.upperBound());
    calculateAxis(yLeft, left.lowerBound(), left.upperBound());
    updateAxes();
    requestReplot();
}

bool QKXPlotInterfaceImpl::isAutoScale() const
{
    Q_D(const QKXPlotInterfaceImpl);
    return d->autoScale;
}

bool QKXPlotInterfaceImpl::isFixedGrid() const
{
    Q_D(const QKXPlotInterfaceImpl);
    return d->fixedGrid;
}

bool QKXPlotInterfaceImpl::isScreenLocked() const
{
    Q_D(const QKXPlotInterfaceImpl);
    return d->screenLocked;
}

void QKXPlotInterfaceImpl::setUseTwoAxes(bool use)
{
    Q_D(QKXPlotInterfaceImpl);
    d->useTwoAxes = use;
}

bool QKXPlotInterfaceImpl::useTwoAxes() const
{
    Q_D(const QKXPlotInterfaceImpl);
    return d->useTwoAxes;
}

QwtPlotCurve::CurveStyle QKXPlotInterfaceImpl::curveStyle() const
{
    Q_D(const QKXPlotInterfaceImpl);
    return d->curveStyle;
}

double QKXPlotInterfaceImpl::xLines() const
{
    Q_D(const QKXPlotInterfaceImpl);
    return d->xLines;
}

double QKXPlotInterfaceImpl::yLeftLines() const
{
    Q_D(const QKXPlotInterfaceImpl);
    return d->yLeftLines;
}

double QKXPlotInterfaceImpl::yRightLines() const
{
    Q_D(const QKXPlotInterfaceImpl);
    return d->yRightLines;
}

void QKXPlotInterfaceImpl::setXBottomScaleLLimit(double limit)
{
    Q_D(QKXPlotInterfaceImpl);
    d->xMin = limit;
    setXAxis(d->xMin, d->xMax);
}

void QKXPlotInterfaceImpl::setXBottomScaleULimit(double limit)
{
    Q_D(QKXPlotInterfaceImpl);
    d->xMax = limit;
    setXAxis(d->xMin, d->xMax);
}

void QKXPlotInterfaceImpl::setYLeftScaleLLimit(double limit)
{
    Q_D(QKXPlotInterfaceImpl);
    d->yLeftMin = limit;
    setYAxis(0, d->yLeftMin, d->yLeftMax);
}

void QKXPlotInterfaceImpl::setYLeftScaleULimit(double limit)
{
    Q_D(QKXPlotInterfaceImpl);
    d->yLeftMax = limit;
    setYAxis(0, d->yLeftMin, d->yLeftMax);
}

void QKXPlotInterfaceImpl::setYRightScaleLLimit(double limit)
{
    Q_D(QKXPlotInterfaceImpl);
    d->yRightMin = limit;
    setYAxis(1, d->yRightMin, d->yRightMax);
}

void QKXPlotInterfaceImpl::setYRightScaleULimit(double limit)
{
    Q_D(QKXPlotInterfaceImpl);
    d->yRightMax = limit;
    setYAxis(1, d->yRightMin, d->yRightMax);
}

double QKXPlotInterfaceImpl::getXBottomScaleLLimit() const
{
    Q_D(const QKXPlotInterfaceImpl);
    return d->xMin;
}

double QKXPlotInterfaceImpl::getXBottomScaleULimit() const
{
    Q_D(const QKXPlotInterfaceImpl);
    return d->xMax;
}

double QKXPlotInterfaceImpl::getYLeftScaleLLimit() const
{
    Q_D(const QKXPlotInterfaceImpl);
    return d->yLeftMin;
}

double QKXPlotInterfaceImpl::getYLeftScaleULimit() const
{
    Q_D(const QKXPlotInterfaceImpl);
    return d->yLeftMax;
}

double QKXPlotInterfaceImpl::getYRightScaleLLimit() const
{
    Q_D(const QKXPlotInterfaceImpl);
    return d->yRightMin;
}

double QKXPlotInterfaceImpl::getYRightScaleULimit() const
{
    Q_D(const QKXPlotInterfaceImpl);
    return d->yRightMax;
}

// A label equal to the stored one, or an empty unit text equal to the stored one, changes nothing.
#define KX_TITLE_SETTER(Setter, field, skipWhenEqual)                                      \
    void QKXPlotInterfaceImpl::Setter(const QString &text)                                 \
    {                                                                                      \
        Q_D(QKXPlotInterfaceImpl);                                                         \
        if ((skipWhenEqual) && d->field == text) {                                         \
            return;                                                                        \
        }                                                                                  \
        d->field = text;                                                                   \
        retranslate();                                                                     \
    }

KX_TITLE_SETTER(setXBottomLabel, xBottomLabel, true)
KX_TITLE_SETTER(setYLeftLabel, yLeftLabel, true)
KX_TITLE_SETTER(setYRightLabel, yRightLabel, true)
KX_TITLE_SETTER(setXBottomUnits, xBottomUnits, text.isEmpty())
KX_TITLE_SETTER(setYLeftUnits, yLeftUnits, text.isEmpty())
KX_TITLE_SETTER(setYRightUnits, yRightUnits, text.isEmpty())
#undef KX_TITLE_SETTER

QString QKXPlotInterfaceImpl::getXBottomLabel() const
{
    Q_D(const QKXPlotInterfaceImpl);
    return d->xBottomLabel;
}

QString QKXPlotInterfaceImpl::getYLeftLabel() const
{
    Q_D(const QKXPlotInterfaceImpl);
    return d->yLeftLabel;
}

QString QKXPlotInterfaceImpl::getYRightLabel() const
{
    Q_D(const QKXPlotInterfaceImpl);
    return d->yRightLabel;
}

void QKXPlotInterfaceImpl::setXBottomScaleEnable(bool enable)
{
    Q_D(QKXPlotInterfaceImpl);
    if (d->xBottomShown != enable) {
        d->xBottomShown = enable;
        enableAxis(xBottom, enable);
    }
}

void QKXPlotInterfaceImpl::setYLeftScaleEnable(bool enable)
{
    Q_D(QKXPlotInterfaceImpl);
    if (d->yLeftShown != enable) {
        d->yLeftShown = enable;
        enableAxis(yLeft, enable);
    }
}

void QKXPlotInterfaceImpl::setYRightScaleEnable(bool enable)
{
    Q_D(QKXPlotInterfaceImpl);
    if (d->yRightShown != enable) {
        d->yRightShown = enable;
        enableAxis(yRight, enable);
    }
}

bool QKXPlotInterfaceImpl::getXBottomScaleEnable() const
{
    Q_D(const QKXPlotInterfaceImpl);
    return d->xBottomShown;
}

bool QKXPlotInterfaceImpl::getYLeftScaleEnable() const
{
    Q_D(const QKXPlotInterfaceImpl);
    return d->yLeftShown;
}

bool QKXPlotInterfaceImpl::getYRightScaleEnable() const
{
    Q_D(const QKXPlotInterfaceImpl);
    return d->yRightShown;
}

void QKXPlotInterfaceImpl::initAxes()
{
    Q_D(QKXPlotInterfaceImpl);
    setYAxis(0, d->yLeftMin, d->yLeftMax);
    setYAxis(1, d->yRightMin, d->yRightMax);
    setXAxis(d->xMin, d->xMax);
    setYLeftLabel(d->yLeftLabel);
    setYRightLabel(d->yRightLabel);
    setXBottomLabel(d->xBottomLabel);
    // The setters skip a label that did not change, and at start none has: put the titles up.
    retranslate();
}

void QKXPlotInterfaceImpl::moveGraph(QPoint distance)
{
    Q_D(QKXPlotInterfaceImpl);
    if (d->screenLocked) {
        return;
    }
    d->moveOffsetX = distance.x() * d->unitsPerPixelX;
    d->moveOffsetY = distance.y() * d->unitsPerPixelY;
    if (!d->moveEnabled) {
        return;
    }
    const double yLow = d->pressYMin + d->moveOffsetY;
    const double yHigh = d->pressYMax + d->moveOffsetY;
    emit newTopDiv(yLow, yHigh);
    setXAxis(d->pressXMin + d->moveOffsetX, d->pressXMax + d->moveOffsetX);
    setYAxis(0, yLow, yHigh);
}

void QKXPlotInterfaceImpl::calculateAxis(int axis, double min, double max)
{
    Q_D(QKXPlotInterfaceImpl);
    if (!kx_isShowableRange(min, max)) {
        return;
    }
    // Just below the span, so that the last computed tick stays short of max and max is not listed twice.
    const double r = (max - min) * (1 - 1e-6);
    const double lines = d->lines(axis);
    const double step = r / lines;
    if (!d->fixedGrid) {
        setAxisScale(axis, min, max, axis == xBottom ? 2 * step : step);
        requestReplot();
        return;
    }
    QList<double> ticks[QwtScaleDiv::NTickTypes];
    QList<double> &major = ticks[QwtScaleDiv::MajorTick];
    if (axis == xBottom) {
        // Labels at start, centre and stop; the grid shows every division.
        QList<double> &minor = ticks[QwtScaleDiv::MinorTick];
        major << min << min + r / 2;
        for (int i = 0; i < lines; ++i) {
            minor << min + i * step;
        }
        minor << max;
        major << max;
    } else {
        for (int i = 0; i < lines; ++i) {
            major << min + i * step;
        }
        major << max;
    }
    setAxisScaleDiv(axis, QwtScaleDiv(min, max, ticks));
    requestReplot();
}

void QKXPlotInterfaceImpl::update()
{
    Q_D(QKXPlotInterfaceImpl);
    if (!d->replotRequested) {
        return;
    }
    d->replotRequested = false;
    replot();
}

void QKXPlotInterfaceImpl::requestReplot()
{
    Q_D(QKXPlotInterfaceImpl);
    d->replotRequested = true;
}

void QKXPlotInterfaceImpl::RestoreBoundries()
{
    Q_D(QKXPlotInterfaceImpl);
    setAxisAutoScale(xBottom);
    setAxisAutoScale(yLeft);
    updateAxes();
    const QwtScaleDiv left = axisScaleDiv(yLeft);
    emit newTopDiv(left.lowerBound(), left.upperBound());
    setYAxis(0, left.lowerBound(), left.upperBound());
    setXAxis(d->traceXMin, d->traceXMax);
}

void QKXPlotInterfaceImpl::changeSize(const QString &size)
{
    Q_UNUSED(size)
}

void QKXPlotInterfaceImpl::setScreenLocked(bool locked)
{
    Q_D(QKXPlotInterfaceImpl);
    d->screenLocked = locked;
    d->picker->setEnabled(!locked);
}

void QKXPlotInterfaceImpl::updatePlot(const QString &topicName, const double *x, const double *y, int size)
{
    Q_D(QKXPlotInterfaceImpl);
    auto *curve = dynamic_cast<KXTraceCurve *>(getTrace(topicName));
    if (!curve) {
        return;
    }
    try {
        curve->setTrace(x, y, size);
        if (d->autoScale) {
            setAxisAutoScale(xBottom);
            setAxisAutoScale(yLeft);
            setAxisAutoScale(yRight);
        }
        requestReplot();
    } catch (...) {
        qDebug() << "UserInterface - Error updating display. \n";
    }
}

void QKXPlotInterfaceImpl::setXLines(int xLines)
{
    Q_D(QKXPlotInterfaceImpl);
    if (xLines < 1 || xLines > kx_maxLines) {
        qDebug().noquote() << "UserInterface - QKXPlotInterfaceImpl" << objectName() << ": XLines" << xLines
                           << "out of range 1 to 1000; keeping" << d->xLines;
        return;
    }
    d->xLines = xLines;
    calculateAxis(xBottom, d->xMin, d->xMax);
}

void QKXPlotInterfaceImpl::setYLeftLines(int yLines)
{
    Q_D(QKXPlotInterfaceImpl);
    if (yLines < 1 || yLines > kx_maxLines) {
        qDebug().noquote() << "UserInterface - QKXPlotInterfaceImpl" << objectName() << ": YLines" << yLines
                           << "out of range 1 to 1000; keeping" << d->yLeftLines;
        return;
    }
    d->yLeftLines = yLines;
    calculateAxis(yLeft, d->yLeftMin, d->yLeftMax);
}

void QKXPlotInterfaceImpl::setYRightLines(int yLines)
{
    Q_D(QKXPlotInterfaceImpl);
    if (yLines < 1 || yLines > kx_maxLines) {
        qDebug().noquote() << "UserInterface - QKXPlotInterfaceImpl" << objectName() << ": right YLines" << yLines
                           << "out of range 1 to 1000; keeping" << d->yRightLines;
        return;
    }
    d->yRightLines = yLines;
    calculateAxis(yRight, d->yRightMin, d->yRightMax);
}

void QKXPlotInterfaceImpl::setYAxis(int channel, double ll, double ul)
{
    Q_D(QKXPlotInterfaceImpl);
    if (!kx_isShowableRange(ll, ul)) {
        return;
    }
    if (channel == 0) {
        d->yLeftMin = ll;
        d->yLeftMax = ul;
        calculateAxis(yLeft, ll, ul);
    } else {
        d->yRightMin = ll;
        d->yRightMax = ul;
        calculateAxis(yRight, ll, ul);
    }
}

void QKXPlotInterfaceImpl::setXAxis(double ll, double ul)
{
    Q_D(QKXPlotInterfaceImpl);
    if (!kx_isShowableRange(ll, ul)) {
        return;
    }
    d->xMin = ll;
    d->xMax = ul;
    calculateAxis(xBottom, ll, ul);
}

void QKXPlotInterfaceImpl::setCurveStyle(QwtPlotCurve::CurveStyle style)
{
    Q_D(QKXPlotInterfaceImpl);
    {
        QMutexLocker locker(&d->traceLock);
        d->curveStyle = style;
        for (QwtPlotCurve *curve : qAsConst(d->traces)) {
            curve->setStyle(style);
        }
    }
    requestReplot();
}

void QKXPlotInterfaceImpl::reqMarkerMove(const QString &marker, double val)
{
    Q_D(QKXPlotInterfaceImpl);
    if (marker.isEmpty()) {
        return;
    }
    int index = 0;
    const int n = d->pointCount;
    if (val < 0) {
        index = -1;
    } else if (n > 1) {
        const double step = (d->traceXMax - d->traceXMin) / (n - 1);
        const auto reaches = [&](int k) { return d->traceXMin + (k + 2.0) * step >= val; };
        if (d->traceXMin + step >= val) {
            index = 0;
        } else if (step > 0) {
            // The smallest k that reaches val, at most n: the test grows with k, so search it.
            int low = 0;
            int high = n;
            while (low < high) {
                const int mid = low + (high - low) / 2;
                if (reaches(mid)) {
                    high = mid;
                } else {
                    low = mid + 1;
                }
            }
            index = low;
        } else {
            index = reaches(0) ? 0 : n;
        }
    }
    emit moveMarker(marker, index);
    requestReplot();
}

void QKXPlotInterfaceImpl::markerMoveMode(const QString &marker, bool enable)
{
    Q_D(QKXPlotInterfaceImpl);
    if (marker.isEmpty()) {
        return;
    }
    if (CustomMarker *named = d->markers.value(marker)) {
        named->setMoveEnable(enable);
    }
}

void QKXPlotInterfaceImpl::enableFixedGrid(bool enable)
{
    Q_D(QKXPlotInterfaceImpl);
    d->fixedGrid = enable;
    calculateAxis(xBottom, d->xMin, d->xMax);
    calculateAxis(yRight, d->yRightMin, d->yRightMax);
    calculateAxis(yLeft, d->yLeftMin, d->yLeftMax);
}

void QKXPlotInterfaceImpl::mousePressEvent(QMouseEvent *event)
{
    Q_D(QKXPlotInterfaceImpl);
    const QRect area = canvas()->geometry();
    if (!area.contains(event->pos())) {
        d->pressOutside = true;
        event->ignore();
        return;
    }
    d->pressOutside = false;
    d->pressPos = event->pos();

    // A focused marker wins over the others where hit boxes overlap; otherwise the first key.
    const QPoint inArea = event->pos() - area.topLeft();
    QString taken;
    QStringList keys = d->markers.keys();
    std::sort(keys.begin(), keys.end());
    for (const QString &key : qAsConst(keys)) {
        CustomMarker *marker = d->markers.value(key);
        if (marker->getHitBox().contains(inArea) && (taken.isEmpty() || marker->isFocused())) {
            taken = key;
        }
    }
    if (!taken.isEmpty()) {
        d->markerDragging = true;
        d->movingMarker = taken;
        setMoveEnable(d->moveEnabled);
        emit markerMoveRequest(taken, -1.0);
    }

    if (d->touchAllowed()) {
        emit plotMoveEvent(true);
        d->moveOffsetX = 0.0;
        d->moveOffsetY = 0.0;
        const QwtScaleMap xMap = canvasMap(xBottom);
        const QwtScaleMap yMap = canvasMap(yLeft);
        d->unitsPerPixelX = xMap.invTransform(0) - xMap.invTransform(1);
        d->unitsPerPixelY = yMap.invTransform(0) - yMap.invTransform(1);
        const QwtScaleDiv bottom = axisScaleDiv(xBottom);
        const QwtScaleDiv left = axisScaleDiv(yLeft);
        d->pressXMin = bottom.lowerBound();
        d->pressXMax = bottom.upperBound();
        d->pressYMin = left.lowerBound();
        d->pressYMax = left.upperBound();
    }
}

void QKXPlotInterfaceImpl::mouseMoveEvent(QMouseEvent *event)
{
    Q_D(QKXPlotInterfaceImpl);
    if (d->pressOutside) {
        return;
    }
    if (d->markerDragging) {
        int x = event->pos().x();
        if (d->yLeftShown) {
            x -= axisWidget(yLeft)->width();
        } else {
            x -= axisWidget(xBottom)->startBorderDist();
        }
        emit markerMoveRequest(d->movingMarker, canvasMap(xBottom).invTransform(x));
        return;
    }
    if (d->touchAllowed() && d->moveEnabled) {
        moveGraph(event->pos() - d->pressPos);
        requestReplot();
    }
}

void QKXPlotInterfaceImpl::mouseReleaseEvent(QMouseEvent *event)
{
    Q_D(QKXPlotInterfaceImpl);
    if (d->pressOutside) {
        return;
    }
    if (d->markerDragging) {
        d->markerDragging = false;
        emit markerMoveEnable(d->movingMarker, false);
        d->movingMarker.clear();
        setMoveEnable(d->moveEnabled);
        if (d->screenLocked) {
            return;
        }
    }
    if (!d->touchAllowed()) {
        return;
    }
    const QPoint end = event->pos();
    if (!d->moveEnabled && end.x() > d->pressPos.x() + 2 && end.y() > d->pressPos.y() + 2) {
        const QPoint origin = canvas()->geometry().topLeft();
        const QPoint from = d->pressPos - origin;
        const QPoint to = end - origin;
        const QwtScaleMap xMap = canvasMap(xBottom);
        const QwtScaleMap yMap = canvasMap(yLeft);
        const double xLow = xMap.invTransform(from.x());
        const double xHigh = xMap.invTransform(to.x());
        const double yHigh = yMap.invTransform(from.y());
        const double yLow = yMap.invTransform(to.y());
        emit newTopDiv(yLow, yHigh);
        setXAxis(xLow, xHigh);
        setYAxis(0, yLow, yHigh);
    }
    emit plotMoveEvent(false);
}

void QKXPlotInterfaceImpl::mouseDoubleClickEvent(QMouseEvent *event)
{
    Q_D(QKXPlotInterfaceImpl);
    if (!d->touchAllowed()) {
        return;
    }
    const QPoint point = event->pos() - canvas()->geometry().topLeft();
    const double x = canvasMap(xBottom).invTransform(point.x());
    const double y = canvasMap(yLeft).invTransform(point.y());
    const QwtScaleDiv bottom = axisScaleDiv(xBottom);
    const QwtScaleDiv left = axisScaleDiv(yLeft);
    const double spanX = bottom.upperBound() - bottom.lowerBound();
    const double spanY = left.upperBound() - left.lowerBound();
    // Half spans: re-centre in hand mode, half the span zooming in, one and a half zooming out.
    double factor = 0.5;
    if (!d->moveEnabled) {
        factor = d->zoomOut ? 0.75 : 0.25;
    }
    const double yLow = y - factor * spanY;
    const double yHigh = y + factor * spanY;
    emit newTopDiv(yLow, yHigh);
    setXAxis(x - factor * spanX, x + factor * spanX);
    setYAxis(0, yLow, yHigh);
    requestReplot();
}
