// SPDX-License-Identifier: BSD-3-Clause
#include "QKXComplexTraceManager.h"

#include "QKXComplexTracePlot.h"
#include "QKXComplexTraceRange.h"
#include "QKXPlotInterfaceImpl.h"

#include <QVBoxLayout>

struct QKXComplexTraceManager::Data
{
    QKXComplexTracePlot *tracePlot = nullptr;
    QKXComplexTracePattern *tracePattern = nullptr;
    QKXComplexTraceRange *traceRange = nullptr;
};

QKXComplexTraceManager::QKXComplexTraceManager(QWidget *parent)
    : QFrame(parent)
    , d(new Data)
{
    setObjectName(QStringLiteral("ContainerFrame"));
    auto *layout = new QVBoxLayout(this);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    d->tracePlot = new QKXComplexTracePlot(this);
    d->tracePattern = new QKXComplexTracePattern(this);
    d->traceRange = new QKXComplexTraceRange(this);
    layout->addWidget(d->tracePlot);
    layout->addWidget(d->tracePattern);
    layout->addWidget(d->traceRange);
    d->tracePattern->hide();
    d->traceRange->hide();

    connect(d->tracePattern, &QKXComplexTracePattern::patternChanged, this, &QKXComplexTraceManager::showTracePatternsInPlot);
    connect(d->traceRange, &QKXComplexTraceRange::traceRangeChanged, this, &QKXComplexTraceManager::setPlotRange);
    setPlotRange();
}

QKXComplexTraceManager::~QKXComplexTraceManager() = default;

QKXComplexTracePlot *QKXComplexTraceManager::getTracePlot() const
{
    return d->tracePlot;
}

QKXComplexTracePattern *QKXComplexTraceManager::getTracePlotPattern() const
{
    return d->tracePattern;
}

QKXComplexTraceRange *QKXComplexTraceManager::getTraceRange() const
{
    return d->traceRange;
}

void QKXComplexTraceManager::showTracePatternsInPlot()
{
    if (d->tracePlot && d->tracePattern && d->tracePattern->isTracePatternEnabled()) {
        d->tracePattern->attach(d->tracePlot->getPlotInterface());
    }
}

void QKXComplexTraceManager::requestReplotPlot()
{
    d->tracePlot->getPlotInterface()->requestReplot();
}

void QKXComplexTraceManager::setPlotRange()
{
    d->tracePlot->setXBottomScaleLLimit(d->traceRange->getXMin());
    d->tracePlot->setXBottomScaleULimit(d->traceRange->getXMax());
    d->tracePlot->setYLeftScaleLLimit(d->traceRange->getYMin());
    d->tracePlot->setYLeftScaleULimit(d->traceRange->getYMax());
    requestReplotPlot();
}

QString QKXComplexTraceManager::getPlotAttribName() const { return d->tracePlot->attributeName(); }
QString QKXComplexTraceManager::getRangeAttribName() const { return d->traceRange->attributeName(); }
QString QKXComplexTraceManager::getPatternAttribName() const { return d->tracePattern->attributeName(); }
int QKXComplexTraceManager::getPlotXLines() const { return d->tracePlot->getXLines(); }
int QKXComplexTraceManager::getPlotYLines() const { return d->tracePlot->getYLines(); }
bool QKXComplexTraceManager::isPlotXGridEnabled() const { return d->tracePlot->isXGridEnabled(); }
bool QKXComplexTraceManager::isPlotYGridEnabled() const { return d->tracePlot->isYGridEnabled(); }
bool QKXComplexTraceManager::isPlotAutoScaled() const { return d->tracePlot->isAutoScale(); }
bool QKXComplexTraceManager::getPlotYLeftScaleEnable() const { return d->tracePlot->getYLeftScaleEnable(); }
bool QKXComplexTraceManager::isPlotBorderVisibled() const { return d->tracePlot->isBorderVisible(); }
bool QKXComplexTraceManager::plotIsLocked() const { return d->tracePlot->plotIsLocked(); }
QKXPlotManager::PlotCurveStyle QKXComplexTraceManager::getPlotCurveStyle() const { return d->tracePlot->getCurveStyle(); }
bool QKXComplexTraceManager::isPatternEnabled() const { return d->tracePattern->isTracePatternEnabled(); }
int QKXComplexTraceManager::getPatternSize() const { return d->tracePattern->getTracePatternSize(); }
QKXComplexTracePattern::PatternStyle QKXComplexTraceManager::getPatternStyle() const { return d->tracePattern->getPatternStyle(); }
double QKXComplexTraceManager::getRangeXMin() const { return d->traceRange->getXMin(); }
double QKXComplexTraceManager::getRangeXMax() const { return d->traceRange->getXMax(); }
double QKXComplexTraceManager::getRangeYMin() const { return d->traceRange->getYMin(); }
double QKXComplexTraceManager::getRangeYMax() const { return d->traceRange->getYMax(); }

void QKXComplexTraceManager::setPlotAttribName(const QString &name) { d->tracePlot->setAttributeName(name); }
void QKXComplexTraceManager::setRangeAttribName(const QString &name) { d->traceRange->setAttributeName(name); }
void QKXComplexTraceManager::setPatternAttribName(const QString &name) { d->tracePattern->setAttributeName(name); }
void QKXComplexTraceManager::setPlotXLines(int lines) { d->tracePlot->setXLines(lines); }
void QKXComplexTraceManager::setPlotYLines(int lines) { d->tracePlot->setYLines(lines); }
void QKXComplexTraceManager::setPlotXGridEnable(bool enable) { d->tracePlot->setXGridEnable(enable); }
void QKXComplexTraceManager::setPlotYGridEnable(bool enable) { d->tracePlot->setYGridEnable(enable); }
void QKXComplexTraceManager::enablePlotAutoScale(bool enable) { d->tracePlot->enableAutoScale(enable); }
void QKXComplexTraceManager::setPlotYLeftScaleEnable(bool enable) { d->tracePlot->setYLeftScaleEnable(enable); }
void QKXComplexTraceManager::setPlotBorderVisible(bool visible) { d->tracePlot->setBorderVisible(visible); }
void QKXComplexTraceManager::setPlotLocked(bool locked) { d->tracePlot->setPlotLocked(locked); }
void QKXComplexTraceManager::setPlotCurveStyle(QKXPlotManager::PlotCurveStyle style) { d->tracePlot->setCurveStyle(style); }
void QKXComplexTraceManager::enablePattern(bool enable) { d->tracePattern->enableTracePattern(enable); }
void QKXComplexTraceManager::setPatternSize(int size) { d->tracePattern->setTracePatternSize(size); }
void QKXComplexTraceManager::setPatternStyle(QKXComplexTracePattern::PatternStyle style) { d->tracePattern->setPatternStyle(style); }
void QKXComplexTraceManager::setRangeXMin(double value) { d->traceRange->setXMin(value); }
void QKXComplexTraceManager::setRangeXMax(double value) { d->traceRange->setXMax(value); }
void QKXComplexTraceManager::setRangeYMin(double value) { d->traceRange->setYMin(value); }
void QKXComplexTraceManager::setRangeYMax(double value) { d->traceRange->setYMax(value); }
