// SPDX-License-Identifier: BSD-3-Clause
#include "QKXComplexTracePattern.h"

#include "QKXComplexTracePlot.h"
#include "QKXPlotInterfaceImpl.h"
#include "QKXWidgetBase_p.h"

#include <QDebug>
#include <qwt_plot_marker.h>
#include <qwt_symbol.h>

class QKXComplexTracePatternPrivate : public QKXWidgetBasePrivate
{
    Q_OBJECT
public:
    explicit QKXComplexTracePatternPrivate(QKXComplexTracePattern *q)
        : QKXWidgetBasePrivate(q)
    {
    }

    ~QKXComplexTracePatternPrivate() override { removeAllPatterns(); }

    QwtSymbol::Style convertToQwtSymbolStyle(QKXComplexTracePattern::PatternStyle style) const;
    QwtSymbol *newSymbol() const;
    void changeMarkers();
    void removeAllPatterns();

    QString traceType;
    QString topicName;
    bool enabled = false;
    int patternSize = 20;
    QKXComplexTracePattern::PatternStyle patternStyle = QKXComplexTracePattern::ELLIPSE;
    QKXComplexTracePattern::ReferencePattern refPattern = QKXComplexTracePattern::SIMPLE_LINE;
    QList<QwtPlotMarker *> patterns;

private:
    KX_DECLARE_PUBLIC(QKXComplexTracePattern)
};

QwtSymbol::Style QKXComplexTracePatternPrivate::convertToQwtSymbolStyle(QKXComplexTracePattern::PatternStyle style) const
{
    switch (style) {
    case QKXComplexTracePattern::ELLIPSE:
        return QwtSymbol::Ellipse;
    case QKXComplexTracePattern::DIAMOND:
        return QwtSymbol::Diamond;
    case QKXComplexTracePattern::XCROSS:
        return QwtSymbol::XCross;
    case QKXComplexTracePattern::STAR:
        return QwtSymbol::Star1;
    }
    qDebug().nospace() << "UserInterface - Unknown pattern style: " << int(style);
    return QwtSymbol::Ellipse;
}

QwtSymbol *QKXComplexTracePatternPrivate::newSymbol() const
{
    return new QwtSymbol(convertToQwtSymbolStyle(patternStyle), QBrush(QColor(0, 80, 80)), QPen(Qt::white),
                         QSize(patternSize, patternSize));
}

void QKXComplexTracePatternPrivate::changeMarkers()
{
    for (QwtPlotMarker *marker : qAsConst(patterns)) {
        marker->detach();
        marker->setSymbol(newSymbol());
    }
    emit q_func()->patternChanged();
}

void QKXComplexTracePatternPrivate::removeAllPatterns()
{
    while (!patterns.isEmpty()) {
        QwtPlotMarker *marker = patterns.takeFirst();
        marker->detach();
        marker->hide();
        delete marker;
    }
}

QKXComplexTracePattern::QKXComplexTracePattern(QWidget *parent)
    : QKXWidgetBase(*new QKXComplexTracePatternPrivate(this), parent)
{
}

QKXComplexTracePattern::~QKXComplexTracePattern() = default;

bool QKXComplexTracePattern::isTracePatternEnabled() const
{
    Q_D(const QKXComplexTracePattern);
    return d->enabled;
}

int QKXComplexTracePattern::getTracePatternSize() const
{
    Q_D(const QKXComplexTracePattern);
    return d->patternSize;
}

QKXComplexTracePattern::PatternStyle QKXComplexTracePattern::getPatternStyle() const
{
    Q_D(const QKXComplexTracePattern);
    return d->patternStyle;
}

QKXComplexTracePattern::ReferencePattern QKXComplexTracePattern::currentRefPattern() const
{
    Q_D(const QKXComplexTracePattern);
    return d->refPattern;
}

void QKXComplexTracePattern::attach(QKXPlotInterfaceImpl *canvas)
{
    Q_D(QKXComplexTracePattern);
    if (!canvas) {
        return;
    }
    for (QwtPlotMarker *marker : qAsConst(d->patterns)) {
        marker->attach(canvas);
    }
    canvas->requestReplot();
}

QList<QwtPlotMarker *> QKXComplexTracePattern::getTracePatterns() const
{
    Q_D(const QKXComplexTracePattern);
    return d->patterns;
}

void QKXComplexTracePattern::enableTracePattern(bool b)
{
    Q_D(QKXComplexTracePattern);
    d->enabled = b;
    for (QwtPlotMarker *marker : qAsConst(d->patterns)) {
        marker->setVisible(b);
    }
    emit patternChanged();
}

void QKXComplexTracePattern::setTracePatternSize(int size)
{
    Q_D(QKXComplexTracePattern);
    d->patternSize = size;
    d->changeMarkers();
}

void QKXComplexTracePattern::setPatternStyle(PatternStyle style)
{
    Q_D(QKXComplexTracePattern);
    d->patternStyle = style;
    d->changeMarkers();
}

void QKXComplexTracePattern::setRefPattern(ReferencePattern pattern)
{
    Q_D(QKXComplexTracePattern);
    d->removeAllPatterns();
    d->refPattern = pattern;
}

void QKXComplexTracePattern::addTraceType(QString type, QString topName)
{
    Q_D(QKXComplexTracePattern);
    if (type != QLatin1String("EngineReadingComplexTrace")) {
        qDebug() << "UserInterface - EngineReadingComplexTrace. But received:" << type << ", (" << topName << ")";
        return;
    }
    d->traceType = type;
    d->topicName = topName;
}

void QKXComplexTracePattern::setTrace(QString type, QString topName, QVariant data)
{
    Q_D(QKXComplexTracePattern);
    Q_UNUSED(type)
    const QVariantList trace = data.toList();
    const int count = trace.size() < 3 ? 0 : trace.at(0).toString().toInt();
    const QVariantList xs = trace.value(1).toList();
    const QVariantList ys = trace.value(2).toList();
    if (trace.size() < 3 || count < 0 || xs.size() < count || ys.size() < count) {
        qDebug().noquote() << "UserInterface - QKXComplexTracePattern" << (QLatin1Char('"') + objectName() + QLatin1Char('"'))
                           << "topic" << (QLatin1Char('"') + topName + QLatin1Char('"')) << ":" << trace.size()
                           << "elements," << count << "points announced," << xs.size() << "x and" << ys.size()
                           << "y values; pattern kept";
        return;
    }
    d->removeAllPatterns();
    for (int i = 0; i < count; ++i) {
        auto *marker = new QwtPlotMarker;
        marker->setSymbol(d->newSymbol());
        marker->setZ(-1);
        marker->setValue(xs.at(i).toDouble(), ys.at(i).toDouble());
        marker->setVisible(d->enabled);
        d->patterns.append(marker);
    }
    if (d->enabled) {
        emit patternChanged();
    }
}

void QKXComplexTracePattern::attachPlot(QKXComplexTracePlot *plot)
{
    if (plot) {
        attach(plot->getPlotInterface());
    }
}

#include "QKXComplexTracePattern.moc"
