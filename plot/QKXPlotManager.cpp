// SPDX-License-Identifier: BSD-3-Clause
#include "QKXPlotManager.h"
#include "QKXPlotManager_p.h"

#include "CSS.h"
#include "PlotScaleDraw.h"
#include "QKXPlotInterfaceImpl.h"
#include "QKXPlotInterfaceImpl_p.h"
#include "QKXPlotRefPatternManager.h"
#include "QKXPrecisionLabel.h"
#include "QKXSaveTraceButton.h"

#include <QDebug>
#include <QFile>
#include <QFrame>
#include <QHBoxLayout>
#include <QIcon>
#include <QPushButton>
#include <QVBoxLayout>
#include <qwt_plot_grid.h>
#include <qwt_plot_layout.h>
#include <qwt_scale_draw.h>

#include <cmath>
#include <exception>

// Hosts' style sheets and forms select the children by these names and the BorderVisible property.
static const char kx_styleBeforeBorder[] = " QPushButton#common_button {    background-color: rgba(0,0,0,128);    background-repeat: no-repeat;    background-position: center center;    border: none;}QPushButton:checked#common_button {    background-color: rgba(200,200,200,200);    border-radius: 5px;}QPushButton:pressed#common_button {    background-color: rgba(200,200,200,200);    border-radius: 10px;}QFrame#zoomToolBox {    margin: 2px 0px 0px 0px;}*[BorderVisible=true] > QFrame#container_type {    background-repeat: no-repeat;    background-position: center center;    background-color: transparent;    background-color: rgba(0,0,0,128);    border: 2px solid ";
static const char kx_styleAfterBorder[] = "}*[BorderVisible=false] > QFrame#container_type {    background-repeat: no-repeat;    background-position: center center;    background-color: transparent;    background-color: rgba(0,0,0,128);    border: none;}";

QKXPlotManagerPrivate::QKXPlotManagerPrivate(QKXPlotManager *q)
    : QKXWidgetBasePrivate(q)
    , canvas(nullptr)
    , refPatterns(nullptr)
    , refPattern(QKXPlotManager::SIMPLE_LINE)
    , preciseScaleDraw(new PlotScaleDraw)
    , defaultScaleDraw(nullptr)
    , grid(new QwtPlotGrid)
    , yPrecise(false)
    , plotLocked(false)
    , zoomAllVisible(true)
    , styleSheet(QLatin1String(kx_styleBeforeBorder) + CSS::border() + QLatin1String(kx_styleAfterBorder))
    , zoomMode(false)
    , handButton(nullptr)
    , zoomButton(nullptr)
    , zoomInButton(nullptr)
    , zoomOutButton(nullptr)
    , reloadButton(nullptr)
    , saveTraceButton(nullptr)
    , toolBox(nullptr)
    , toolBarEnabled(false)
    , borderVisible(false)
    , traceXMin(0.0)
    , traceXMax(0.0)
    , refPatternEnabled(false)
    , patternSize(20)
    , refRadius(3.0)
    , pointCount(0)
    , moveInProgress(false)
    , drawnOnce(false)
    , xData(nullptr)
    , yData(nullptr)
    , divisionValue(0.0)
    , topValue(0.0)
{
    preciseScaleDraw->setMinimumExtent(60);
}

QKXPlotManagerPrivate::~QKXPlotManagerPrivate()
{
    // Runs before the widget's children go: the canvas still holds what is detached here.
    freePoints();
    if (refPatterns) {
        refPatterns->removeAllPatterns();
    }
    grid->detach();
    delete grid;
    if (!canvas || canvas->axisScaleDraw(QwtPlot::yLeft) != preciseScaleDraw) {
        delete preciseScaleDraw;
    }
}

void QKXPlotManagerPrivate::init()
{
    // Runs inside the base constructor: only the QWidget side of q may be used here.
    canvas = new QKXPlotInterfaceImpl(q);
    canvas->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    refPatterns = new QKXPlotRefPatternManager(q);
    refPattern = QKXPlotManager::SIMPLE_LINE;

    grid->setMajorPen(QPen(QColor(0, 255, 255), 0, Qt::SolidLine));
    grid->setMinorPen(QPen(QColor(0, 255, 255), 0, Qt::DotLine));
    grid->attach(canvas);
    grid->enableXMin(true);
    canvas->plotLayout()->setCanvasMargin(0, QwtPlot::xBottom);
    canvas->plotLayout()->setCanvasMargin(0, QwtPlot::yLeft);

    // The pictures are the application's resources; without them the buttons stay blank.
    const auto toolButton = [this](const char *icon, bool checkable) {
        auto *button = new QPushButton(q);
        button->setObjectName(QStringLiteral("common_button"));
        button->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Minimum);
        button->setIconSize(QSize(32, 32));
        if (QFile::exists(QLatin1String(icon))) {
            button->setIcon(QIcon(QLatin1String(icon)));
        }
        button->setCheckable(checkable);
        return button;
    };
    handButton = toolButton(":/images/svg/handMove.svg", true);
    zoomButton = toolButton(":/images/svg/magnify.svg", true);
    zoomInButton = toolButton(":/images/svg/magnifyIn.svg", true);
    if (zoomAllVisible) {
        zoomInButton->setChecked(true);
        zoomInButton->hide();
    }
    zoomOutButton = toolButton(":/images/svg/magnifyOut.svg", true);
    zoomOutButton->hide();
    reloadButton = toolButton(":/images/svg/reload.svg", false);
    saveTraceButton = new QKXSaveTraceButton(q);
    saveTraceButton->hide();

    toolBox = new QFrame(q);
    toolBox->setObjectName(QStringLiteral("zoomToolBox"));
    auto *tools = new QHBoxLayout(toolBox);
    tools->setSpacing(2);
    tools->setContentsMargins(0, 0, 0, 0);
    tools->addSpacing(80);
    tools->addWidget(handButton);
    tools->addWidget(zoomButton);
    tools->addWidget(zoomInButton);
    tools->addWidget(zoomOutButton);
    tools->addStretch();
    tools->addWidget(saveTraceButton);
    tools->addSpacing(25);
    tools->addWidget(reloadButton);
    tools->addSpacing(25);
    auto *canvasLayout = new QVBoxLayout(canvas);
    canvasLayout->setSpacing(0);
    canvasLayout->setContentsMargins(0, 0, 0, 0);

    auto *container = new QFrame;
    container->setObjectName(QStringLiteral("container_type"));
    auto *inner = new QVBoxLayout(container);
    inner->setSpacing(0);
    inner->setContentsMargins(0, 0, 0, 0);
    inner->addWidget(toolBox, 0);
    inner->addWidget(canvas, 9);
    auto *outer = new QVBoxLayout(q);
    outer->setSpacing(0);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(container);
    toolBox->hide();

    qRegisterMetaType<QVector<double>>("QVector<double>");

    connect(handButton, &QPushButton::clicked, this, &QKXPlotManagerPrivate::selectHand);
    connect(zoomButton, &QPushButton::clicked, this, &QKXPlotManagerPrivate::selectZoom);
    connect(zoomOutButton, &QPushButton::clicked, this, &QKXPlotManagerPrivate::selectZoomOut);
    connect(zoomInButton, &QPushButton::clicked, this, &QKXPlotManagerPrivate::selectZoomIn);
    connectCanvas();

    selectHand();
    QKXPlotInterfaceImplPrivate *canvasData = QKXPlotInterfaceImplPrivate::get(canvas);
    canvasData->traceXMin = traceXMin;
    canvasData->traceXMax = traceXMax;
    canvas->setAxisAutoScale(QwtPlot::xBottom);
    canvas->setAxisAutoScale(QwtPlot::yLeft);
    canvas->setAxisAutoScale(QwtPlot::yRight);
    canvas->setAutoReplot(false);
    updateStyle();
    defaultScaleDraw = canvas->axisScaleDraw(QwtPlot::yLeft);
    canvas->requestReplot();
}

void QKXPlotManagerPrivate::connectCanvas()
{
    connect(this, &QKXPlotManagerPrivate::replotTrace, canvas, &QKXPlotInterfaceImpl::requestReplot);
    connect(reloadButton, &QPushButton::clicked, canvas, &QKXPlotInterfaceImpl::RestoreBoundries);
    connect(canvas, &QKXPlotInterfaceImpl::moveMarker, this, &QKXPlotManagerPrivate::reqMarkerMove);
    connect(canvas, &QKXPlotInterfaceImpl::plotMoveEvent, this, &QKXPlotManagerPrivate::plotMoveEvent);
    connect(canvas, &QKXPlotInterfaceImpl::newTopDiv, this, &QKXPlotManagerPrivate::setNewTopDiv);
}

void QKXPlotManagerPrivate::changeSize(const QString &size)
{
    QKXWidgetBasePrivate::changeSize(size);
    canvas->retranslate();
}

void QKXPlotManagerPrivate::updateStyle()
{
    styles.insert(QStringLiteral("Min"), styleSheet);
    styles.insert(QStringLiteral("Max"), styleSheet);
    changeSize(currentSizeName);
}

void QKXPlotManagerPrivate::setXAxis(double ll, double ul)
{
    canvas->setXAxis(ll, ul);
}

void QKXPlotManagerPrivate::addTraceType(const QString &type, const QString &topicName)
{
    canvas->addTraceType(type, topicName);
}

void QKXPlotManagerPrivate::setTrace(const QString &type, const QString &topName, QVariant data)
{
    if (data.isNull() || !data.isValid()) {
        return;
    }
    if (type == QLatin1String("EngineBasicTrace")) {
        setBasicTrace(topName, data);
    } else if (type == QLatin1String("EngineReadingComplexTrace")) {
        setComplexTrace(topName, data);
    } else {
        qDebug() << "UserInterface - EngineBasicTrace or EngineReadingComplexTrace. But received:" << type
                 << ", (" << topName << ")";
    }
}

void QKXPlotManagerPrivate::freePoints()
{
    delete[] xData;
    delete[] yData;
    xData = nullptr;
    yData = nullptr;
}

bool QKXPlotManagerPrivate::acceptPointCount(const QString &topicName, const QVariantList &trace, int count,
                                       int xIndex, int yIndex)
{
    const QVariantList xs = trace.at(xIndex).toList();
    const QVariantList ys = trace.at(yIndex).toList();
    if (count < 0 || xs.size() < count || ys.size() < count) {
        qDebug().noquote() << "UserInterface - QKXPlotManager" << (QLatin1Char('"') + q->objectName() + QLatin1Char('"'))
                           << "topic" << (QLatin1Char('"') + topicName + QLatin1Char('"')) << ":" << count
                           << "points announced," << xs.size() << "x and" << ys.size() << "y values; trace dropped";
        return false;
    }
    pointCount = count;
    QKXPlotInterfaceImplPrivate::get(canvas)->pointCount = count;
    return true;
}

void QKXPlotManagerPrivate::setBasicTrace(const QString &topicName, const QVariant &data)
{
    if (!canvas->isVisible() && drawnOnce) {
        return;
    }
    try {
        freePoints();
        const QVariantList trace = data.toList();
        if (trace.size() < 7) {
            qDebug() << "UserInterface - setBasicTrace data is bad!";
            return;
        }
        const int count = trace.at(0).toString().toInt(nullptr, 10);
        if (!acceptPointCount(topicName, trace, count, 5, 6)) {
            return;
        }
        const double first = trace.at(1).toDouble();
        const double last = trace.at(2).toDouble();
        if (first != traceXMin || last != traceXMax) {
            traceXMin = first;
            traceXMax = last;
            QKXPlotInterfaceImplPrivate *canvasData = QKXPlotInterfaceImplPrivate::get(canvas);
            canvasData->traceXMin = first;
            canvasData->traceXMax = last;
            setXAxis(traceXMin, traceXMax);
        }
        canvas->setYLeftUnits(trace.at(4).toString());
        canvas->setXBottomUnits(trace.at(3).toString());
        const QVariantList xs = trace.at(5).toList();
        const QVariantList ys = trace.at(6).toList();
        xData = new double[pointCount + 1];
        yData = new double[pointCount + 1];
        for (int i = 0; i < pointCount; ++i) {
            xData[i] = xs.at(i).toDouble();
            yData[i] = ys.at(i).toDouble();
        }
        drawnOnce = true;
        if (isApplicationInitialized()) {
            canvas->updatePlot(topicName, xData, yData, pointCount);
        }
    } catch (const std::exception &e) {
        qDebug() << "UserInterface - std::exception: setBasicTrace" << e.what() << " - " << topicName;
    } catch (...) {
        qDebug() << "UserInterface - setBasicTrace generic get exception -" << topicName;
    }
}

void QKXPlotManagerPrivate::setComplexTrace(const QString &topicName, const QVariant &data)
{
    if (!canvas->isVisible() && drawnOnce) {
        return;
    }
    freePoints();
    const QVariantList trace = data.toList();
    if (trace.size() < 3) {
        qDebug().noquote() << "UserInterface - QKXPlotManager" << (QLatin1Char('"') + q->objectName() + QLatin1Char('"'))
                           << "topic" << (QLatin1Char('"') + topicName + QLatin1Char('"')) << ": complex trace of"
                           << trace.size() << "elements, 3 expected; trace dropped";
        return;
    }
    if (!acceptPointCount(topicName, trace, trace.at(0).toInt(), 1, 2)) {
        return;
    }
    const QVariantList xs = trace.at(1).toList();
    const QVariantList ys = trace.at(2).toList();
    xData = new double[pointCount + 1];
    yData = new double[pointCount + 1];
    for (int i = 0; i < pointCount; ++i) {
        xData[i] = xs.at(i).toDouble();
        yData[i] = ys.at(i).toDouble();
    }
    drawnOnce = true;
    if (isApplicationInitialized()) {
        canvas->updatePlot(topicName, xData, yData, pointCount);
    }
}

void QKXPlotManagerPrivate::setRefPattern(QKXPlotManager::ReferencePattern pattern)
{
    refPatterns->removeAllPatterns();
    refPattern = pattern;
    showRefPatterns();
}

void QKXPlotManagerPrivate::enableRefPattern(bool enable)
{
    if (refPatternEnabled) {
        refPatterns->removeAllPatterns();
    }
    refPatternEnabled = enable;
    showRefPatterns();
}

void QKXPlotManagerPrivate::setPatternSize(int size)
{
    patternSize = size;
    showRefPatterns();
}

void QKXPlotManagerPrivate::setRefRadius(double radius)
{
    refRadius = radius;
    showRefPatterns();
}

void QKXPlotManagerPrivate::showRefPatterns()
{
    if (refPatternEnabled && refPattern != QKXPlotManager::SIMPLE_LINE && refPattern != QKXPlotManager::EYE_DIAGRAM) {
        refPatterns->addPatterns(canvas, refPattern, patternSize, refRadius);
    }
    canvas->requestReplot();
}

void QKXPlotManagerPrivate::setYPrecise(bool precise)
{
    yPrecise = precise;
    // The axis deletes the scale draw it gives up, so each switch hands it a new one.
    QwtScaleDraw *current = canvas->axisScaleDraw(QwtPlot::yLeft);
    if (precise) {
        if (preciseScaleDraw && current == preciseScaleDraw) {
            return;
        }
        if (!preciseScaleDraw) {
            preciseScaleDraw = new PlotScaleDraw;
            preciseScaleDraw->setMinimumExtent(60);
        }
        canvas->setAxisScaleDraw(QwtPlot::yLeft, preciseScaleDraw);
        defaultScaleDraw = nullptr;
    } else {
        if (defaultScaleDraw && current == defaultScaleDraw) {
            return;
        }
        if (!defaultScaleDraw) {
            defaultScaleDraw = new QKXPrecisionLabel(QStringLiteral("1"));
            defaultScaleDraw->setMinimumExtent(60);
        }
        canvas->setAxisScaleDraw(QwtPlot::yLeft, defaultScaleDraw);
        preciseScaleDraw = nullptr;
    }
    canvas->requestReplot();
}

void QKXPlotManagerPrivate::setZoomAllVisible(bool visible)
{
    zoomAllVisible = visible;
    zoomButton->setVisible(visible);
    zoomInButton->setVisible(!visible);
}

void QKXPlotManagerPrivate::enableToolBar(bool enable)
{
    if (enable == toolBarEnabled) {
        return;
    }
    toolBarEnabled = enable;
    toolBox->setVisible(enable);
    QKXPlotInterfaceImplPrivate::get(canvas)->toolBarEnabled = enable;
}

void QKXPlotManagerPrivate::setBorderVisible(bool visible)
{
    borderVisible = visible;
    // Setting the sheet again makes the BorderVisible selectors look at the property anew.
    q->setStyleSheet(styleSheet);
}

void QKXPlotManagerPrivate::setSaveTraceCmd(const QString &command)
{
    // The default attribute name means no command: no button.
    saveTraceButton->setVisible(command != QLatin1String("AttributeName"));
    saveTraceButton->setAttributeName(command);
}

void QKXPlotManagerPrivate::reqMarkerMove(QString marker, int pos)
{
    emit q_func()->moveMarker(marker, pos);
}

void QKXPlotManagerPrivate::plotMoveEvent(bool moveInProggress)
{
    moveInProgress = moveInProggress;
}

void QKXPlotManagerPrivate::externalUpdateUlLeftYAxis(double ul)
{
    topValue = ul;
    if (!moveInProgress) {
        canvas->setYAxis(0, ul - canvas->yLeftLines() * divisionValue, ul);
    }
}

void QKXPlotManagerPrivate::externalUpdateLlLeftYAxis(double ll)
{
    divisionValue = ll;
    if (!moveInProgress) {
        canvas->setYLeftScaleLLimit(canvas->getYLeftScaleULimit() - canvas->yLeftLines() * ll);
    }
}

void QKXPlotManagerPrivate::externalUpdateLeftYAxis(double ll, double ul)
{
    divisionValue = ll;
    topValue = ul;
    if (!moveInProgress) {
        canvas->setYAxis(0, ul - canvas->yLeftLines() * ll, ul);
    }
}

void QKXPlotManagerPrivate::setNewTopDiv(double ll, double ul)
{
    Q_Q(QKXPlotManager);
    emit q->topScaleVal(ul);
    emit q->divisonVal(std::fabs((ul - ll) / canvas->yLeftLines()));
}

void QKXPlotManagerPrivate::selectHand()
{
    canvas->setMoveEnable(true);
    if (zoomAllVisible) {
        if (zoomButton->isChecked()) {
            zoomButton->setChecked(false);
            zoomMode = false;
            zoomInButton->hide();
            zoomOutButton->hide();
        }
    } else if (zoomInButton->isChecked()) {
        zoomInButton->setChecked(false);
    }
    handButton->setChecked(true);
}

void QKXPlotManagerPrivate::selectZoom()
{
    zoomMode = true;
    canvas->setMoveEnable(false);
    if (handButton->isChecked()) {
        handButton->setChecked(false);
    }
    zoomInButton->show();
    zoomOutButton->show();
    zoomButton->setChecked(true);
}

void QKXPlotManagerPrivate::selectZoomIn()
{
    canvas->setZoomType(false);
    if (zoomAllVisible) {
        if (zoomOutButton->isChecked()) {
            zoomOutButton->setChecked(false);
        }
    } else if (handButton->isChecked()) {
        handButton->setChecked(false);
        canvas->setMoveEnable(false);
    }
    zoomInButton->setChecked(true);
}

void QKXPlotManagerPrivate::selectZoomOut()
{
    canvas->setZoomType(true);
    if (zoomInButton->isChecked()) {
        zoomInButton->setChecked(false);
    }
    zoomOutButton->setChecked(true);
}

QKXPlotManager::QKXPlotManager(QWidget *parent)
    : QKXPlotManager(*new QKXPlotManagerPrivate(this), parent)
{
}

QKXPlotManager::QKXPlotManager(QKXPlotManagerPrivate &dd, QWidget *parent)
    : QKXWidgetBase(dd, parent)
{
}

QKXPlotManager::~QKXPlotManager() = default;

QSize QKXPlotManager::sizeHint() const
{
    return QSize(640, 480);
}

void QKXPlotManager::showEvent(QShowEvent *event)
{
    Q_D(QKXPlotManager);
    emit d->replotTrace();
    QKXWidgetBase::showEvent(event);
}

int QKXPlotManager::getXLines() const
{
    Q_D(const QKXPlotManager);
    return int(d->canvas->xLines());
}

void QKXPlotManager::setXLines(int lines)
{
    Q_D(QKXPlotManager);
    d->canvas->setXLines(lines);
}

int QKXPlotManager::getYLines() const
{
    Q_D(const QKXPlotManager);
    return int(d->canvas->yLeftLines());
}

void QKXPlotManager::setYLines(int lines)
{
    Q_D(QKXPlotManager);
    d->canvas->setYLeftLines(lines);
}

bool QKXPlotManager::isXGridEnabled() const
{
    Q_D(const QKXPlotManager);
    return d->grid->xEnabled();
}

void QKXPlotManager::setXGridEnable(bool enable)
{
    Q_D(QKXPlotManager);
    d->grid->enableX(enable);
    d->canvas->requestReplot();
}

bool QKXPlotManager::isYGridEnabled() const
{
    Q_D(const QKXPlotManager);
    return d->grid->yEnabled();
}

void QKXPlotManager::setYGridEnable(bool enable)
{
    Q_D(QKXPlotManager);
    d->grid->enableY(enable);
    d->canvas->requestReplot();
}

bool QKXPlotManager::getUseTwoAxes() const
{
    Q_D(const QKXPlotManager);
    return d->canvas->useTwoAxes();
}

void QKXPlotManager::setUseTwoAxes(bool use)
{
    Q_D(QKXPlotManager);
    d->canvas->setUseTwoAxes(use);
}

bool QKXPlotManager::isAutoScale() const
{
    Q_D(const QKXPlotManager);
    return d->canvas->isAutoScale();
}

void QKXPlotManager::enableAutoScale(bool enable)
{
    Q_D(QKXPlotManager);
    d->canvas->enableAutoScale(enable);
}

bool QKXPlotManager::ToolBar() const
{
    Q_D(const QKXPlotManager);
    return d->toolBarEnabled;
}

void QKXPlotManager::enableToolBar(bool enable)
{
    Q_D(QKXPlotManager);
    d->enableToolBar(enable);
}

bool QKXPlotManager::isFixedGrid() const
{
    Q_D(const QKXPlotManager);
    return d->canvas->isFixedGrid();
}

void QKXPlotManager::enableFixedGrid(bool enable)
{
    Q_D(QKXPlotManager);
    d->canvas->enableFixedGrid(enable);
}

bool QKXPlotManager::isBorderVisible() const
{
    Q_D(const QKXPlotManager);
    return d->borderVisible;
}

void QKXPlotManager::setBorderVisible(bool visible)
{
    Q_D(QKXPlotManager);
    d->setBorderVisible(visible);
}

QString QKXPlotManager::getYLeftLabel() const
{
    Q_D(const QKXPlotManager);
    return d->canvas->getYLeftLabel();
}

void QKXPlotManager::setYLeftLabel(const QString &label)
{
    Q_D(QKXPlotManager);
    d->canvas->setYLeftLabel(label);
}

QString QKXPlotManager::getYRightLabel() const
{
    Q_D(const QKXPlotManager);
    return d->canvas->getYRightLabel();
}

void QKXPlotManager::setYRightLabel(const QString &label)
{
    Q_D(QKXPlotManager);
    d->canvas->setYRightLabel(label);
}

QString QKXPlotManager::getXBottomLabel() const
{
    Q_D(const QKXPlotManager);
    return d->canvas->getXBottomLabel();
}

void QKXPlotManager::setXBottomLabel(const QString &label)
{
    Q_D(QKXPlotManager);
    d->canvas->setXBottomLabel(label);
}

bool QKXPlotManager::getYLeftScaleEnable() const
{
    Q_D(const QKXPlotManager);
    return d->canvas->getYLeftScaleEnable();
}

void QKXPlotManager::setYLeftScaleEnable(bool enable)
{
    Q_D(QKXPlotManager);
    d->canvas->setYLeftScaleEnable(enable);
}

bool QKXPlotManager::getYRightScaleEnable() const
{
    Q_D(const QKXPlotManager);
    return d->canvas->getYRightScaleEnable();
}

void QKXPlotManager::setYRightScaleEnable(bool enable)
{
    Q_D(QKXPlotManager);
    d->canvas->setYRightScaleEnable(enable);
}

bool QKXPlotManager::getXBottomScaleEnable() const
{
    Q_D(const QKXPlotManager);
    return d->canvas->getXBottomScaleEnable();
}

void QKXPlotManager::setXBottomScaleEnable(bool enable)
{
    Q_D(QKXPlotManager);
    d->canvas->setXBottomScaleEnable(enable);
}

double QKXPlotManager::getYLeftScaleLLimit() const
{
    Q_D(const QKXPlotManager);
    return d->canvas->getYLeftScaleLLimit();
}

void QKXPlotManager::setYLeftScaleLLimit(double limit)
{
    Q_D(QKXPlotManager);
    d->canvas->setYLeftScaleLLimit(limit);
}

double QKXPlotManager::getYLeftScaleULimit() const
{
    Q_D(const QKXPlotManager);
    return d->canvas->getYLeftScaleULimit();
}

void QKXPlotManager::setYLeftScaleULimit(double limit)
{
    Q_D(QKXPlotManager);
    d->canvas->setYLeftScaleULimit(limit);
}

double QKXPlotManager::getYRightScaleLLimit() const
{
    Q_D(const QKXPlotManager);
    return d->canvas->getYRightScaleLLimit();
}

void QKXPlotManager::setYRightScaleLLimit(double limit)
{
    Q_D(QKXPlotManager);
    d->canvas->setYRightScaleLLimit(limit);
}

double QKXPlotManager::getYRightScaleULimit() const
{
    Q_D(const QKXPlotManager);
    return d->canvas->getYRightScaleULimit();
}

void QKXPlotManager::setYRightScaleULimit(double limit)
{
    Q_D(QKXPlotManager);
    d->canvas->setYRightScaleULimit(limit);
}

double QKXPlotManager::getXBottomScaleLLimit() const
{
    Q_D(const QKXPlotManager);
    return d->canvas->getXBottomScaleLLimit();
}

void QKXPlotManager::setXBottomScaleLLimit(double limit)
{
    Q_D(QKXPlotManager);
    d->canvas->setXBottomScaleLLimit(limit);
}

double QKXPlotManager::getXBottomScaleULimit() const
{
    Q_D(const QKXPlotManager);
    return d->canvas->getXBottomScaleULimit();
}

void QKXPlotManager::setXBottomScaleULimit(double limit)
{
    Q_D(QKXPlotManager);
    d->canvas->setXBottomScaleULimit(limit);
}

QString QKXPlotManager::getSaveTraceCmd() const
{
    Q_D(const QKXPlotManager);
    return d->saveTraceButton->attributeName();
}

void QKXPlotManager::setSaveTraceCmd(const QString &command)
{
    Q_D(QKXPlotManager);
    d->setSaveTraceCmd(command);
}

bool QKXPlotManager::yIsPrecise() const
{
    Q_D(const QKXPlotManager);
    return d->yPrecise;
}

void QKXPlotManager::setYPrecise(bool precise)
{
    Q_D(QKXPlotManager);
    d->setYPrecise(precise);
}

bool QKXPlotManager::zoomAllIsVisible() const
{
    Q_D(const QKXPlotManager);
    return d->zoomAllVisible;
}

void QKXPlotManager::setZoomAllVisible(bool visible)
{
    Q_D(QKXPlotManager);
    d->setZoomAllVisible(visible);
}

bool QKXPlotManager::plotIsLocked() const
{
    Q_D(const QKXPlotManager);
    return d->plotLocked;
}

void QKXPlotManager::setPlotLocked(bool locked)
{
    Q_D(QKXPlotManager);
    d->plotLocked = locked;
    d->canvas->setScreenLocked(locked);
}

QKXPlotManager::PlotCurveStyle QKXPlotManager::getCurveStyle() const
{
    Q_D(const QKXPlotManager);
    return d->canvas->curveStyle() == QwtPlotCurve::Dots ? DOTS_STYLE : LINES_STYLE;
}

void QKXPlotManager::setCurveStyle(PlotCurveStyle style)
{
    Q_D(QKXPlotManager);
    d->canvas->setCurveStyle(style == DOTS_STYLE ? QwtPlotCurve::Dots : QwtPlotCurve::Lines);
}

QKXPlotManager::ReferencePattern QKXPlotManager::displayRefPattern() const
{
    Q_D(const QKXPlotManager);
    return d->refPattern;
}

void QKXPlotManager::setRefPattern(ReferencePattern pattern)
{
    Q_D(QKXPlotManager);
    d->setRefPattern(pattern);
}

bool QKXPlotManager::isRefPatternEnabled() const
{
    Q_D(const QKXPlotManager);
    return d->refPatternEnabled;
}

int QKXPlotManager::patternSize() const
{
    Q_D(const QKXPlotManager);
    return d->patternSize;
}

double QKXPlotManager::refRadius() const
{
    Q_D(const QKXPlotManager);
    return d->refRadius;
}

void QKXPlotManager::replot()
{
    Q_D(QKXPlotManager);
    emit d->replotTrace();
}

void QKXPlotManager::setTraceVisible(QString topicName, bool visible)
{
    Q_D(QKXPlotManager);
    d->canvas->setTraceVisible(topicName, visible);
}

QKXPlotInterfaceImpl *QKXPlotManager::getPlotInterface() const
{
    Q_D(const QKXPlotManager);
    return d->canvas;
}

void QKXPlotManager::SetPlotterObject(QKXPlotInterfaceImpl *canvas)
{
    Q_D(QKXPlotManager);
    if (!canvas || canvas == d->canvas) {
        return;
    }
    QKXPlotInterfaceImpl *previous = d->canvas;
    d->refPatterns->removeAllPatterns();
    d->grid->detach();
    if (previous->axisScaleDraw(QwtPlot::yLeft) == d->preciseScaleDraw) {
        d->preciseScaleDraw = nullptr;
    }
    previous->parentWidget()->layout()->replaceWidget(previous, canvas);
    delete previous;
    d->canvas = canvas;
    canvas->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    d->grid->attach(canvas);
    d->defaultScaleDraw = canvas->axisScaleDraw(QwtPlot::yLeft);
    d->connectCanvas();
    QKXPlotInterfaceImplPrivate *canvasData = QKXPlotInterfaceImplPrivate::get(canvas);
    canvasData->traceXMin = d->traceXMin;
    canvasData->traceXMax = d->traceXMax;
    canvasData->toolBarEnabled = d->toolBarEnabled;
    canvasData->pointCount = d->pointCount;
    canvas->setScreenLocked(d->plotLocked);
    if (d->yPrecise) {
        d->setYPrecise(true);
    }
    d->showRefPatterns();
}

void QKXPlotManager::addTraceType(const QString &type, const QString &topicName)
{
    Q_D(QKXPlotManager);
    d->addTraceType(type, topicName);
}

void QKXPlotManager::setTrace(const QString &type, const QString &topName, QVariant data)
{
    Q_D(QKXPlotManager);
    d->setTrace(type, topName, data);
}

void QKXPlotManager::createMarker(QString key, QImage image, double xVal, double yVal)
{
    Q_D(QKXPlotManager);
    d->canvas->createMarker(key, image, xVal, yVal);
}

void QKXPlotManager::setMarker(QString key, double xVal, double yVal)
{
    Q_D(QKXPlotManager);
    d->canvas->setMarker(key, xVal, yVal);
}

void QKXPlotManager::removeMarker(QString key)
{
    Q_D(QKXPlotManager);
    d->canvas->removeMarker(key);
}

void QKXPlotManager::setMarkerFocus(QString key, bool focus)
{
    Q_D(QKXPlotManager);
    d->canvas->setMarkerFocus(key, focus);
}

void QKXPlotManager::setYAxis(int channel, double ll, double ul)
{
    Q_D(QKXPlotManager);
    d->canvas->setYAxis(channel, ll, ul);
}

void QKXPlotManager::setXAxis(double ll, double ul)
{
    Q_D(QKXPlotManager);
    d->canvas->setXAxis(ll, ul);
}

void QKXPlotManager::externalUpdateUlLeftYAxis(double ul)
{
    Q_D(QKXPlotManager);
    d->externalUpdateUlLeftYAxis(ul);
}

void QKXPlotManager::externalUpdateLlLeftYAxis(double ll)
{
    Q_D(QKXPlotManager);
    d->externalUpdateLlLeftYAxis(ll);
}

void QKXPlotManager::externalUpdateLeftYAxis(double ll, double ul)
{
    Q_D(QKXPlotManager);
    d->externalUpdateLeftYAxis(ll, ul);
}

void QKXPlotManager::replotTrace()
{
    Q_D(QKXPlotManager);
    emit d->replotTrace();
}

void QKXPlotManager::enableRefPattern(bool enable)
{
    Q_D(QKXPlotManager);
    d->enableRefPattern(enable);
}

void QKXPlotManager::setPatternSize(int size)
{
    Q_D(QKXPlotManager);
    d->setPatternSize(size);
}

void QKXPlotManager::setRefRadius(double size)
{
    Q_D(QKXPlotManager);
    d->setRefRadius(size);
}

QStringList QKXPlotManager::getTraceList()
{
    Q_D(QKXPlotManager);
    return d->canvas->getTraceList();
}
