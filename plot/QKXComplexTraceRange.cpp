// SPDX-License-Identifier: BSD-3-Clause
#include "QKXComplexTraceRange.h"

#include "QKXWidgetBase_p.h"

#include <QDebug>

class QKXComplexTraceRangePrivate : public QKXWidgetBasePrivate
{
    Q_OBJECT
public:
    explicit QKXComplexTraceRangePrivate(QKXComplexTraceRange *q)
        : QKXWidgetBasePrivate(q)
    {
    }

    QString traceType;
    QString topicName;
    double xMin = -1.5;
    double xMax = 1.5;
    double yMin = -1.5;
    double yMax = 1.5;

private:
    KX_DECLARE_PUBLIC(QKXComplexTraceRange)
};

QKXComplexTraceRange::QKXComplexTraceRange(QWidget *parent)
    : QKXWidgetBase(*new QKXComplexTraceRangePrivate(this), parent)
{
}

QKXComplexTraceRange::~QKXComplexTraceRange() = default;

double QKXComplexTraceRange::getXMin() const
{
    Q_D(const QKXComplexTraceRange);
    return d->xMin;
}

double QKXComplexTraceRange::getXMax() const
{
    Q_D(const QKXComplexTraceRange);
    return d->xMax;
}

double QKXComplexTraceRange::getYMin() const
{
    Q_D(const QKXComplexTraceRange);
    return d->yMin;
}

double QKXComplexTraceRange::getYMax() const
{
    Q_D(const QKXComplexTraceRange);
    return d->yMax;
}

void QKXComplexTraceRange::addTraceType(QString type, QString topName)
{
    if (type != QLatin1String("EngineReadingComplexTrace")) {
        qDebug() << "UserInterface - EngineReadingComplexTrace. But received:" << type << ", (" << topName << ")";
    }
}

void QKXComplexTraceRange::setTrace(QString type, QString topName, QVariant data)
{
    Q_D(QKXComplexTraceRange);
    d->traceType = type;
    d->topicName = topName;
    const QVariantList trace = data.toList();
    const int count = trace.value(0).toInt();
    const QVariantList xs = trace.value(1).toList();
    const QVariantList ys = trace.value(2).toList();
    if (trace.size() < 3 || (count > 1 && (xs.size() < 2 || ys.size() < 2))) {
        qDebug().noquote() << "UserInterface - QKXComplexTraceRange" << (QLatin1Char('"') + objectName() + QLatin1Char('"'))
                           << "topic" << (QLatin1Char('"') + topName + QLatin1Char('"')) << ":" << trace.size()
                           << "elements," << count << "points announced," << xs.size() << "x and" << ys.size()
                           << "y values; range kept";
    } else if (count > 1) {
        d->xMin = xs.at(0).toDouble();
        d->xMax = xs.at(1).toDouble();
        d->yMin = ys.at(0).toDouble();
        d->yMax = ys.at(1).toDouble();
    }
    emit traceRangeChanged();
}

void QKXComplexTraceRange::setXMin(double value)
{
    Q_D(QKXComplexTraceRange);
    d->xMin = value;
}

void QKXComplexTraceRange::setXMax(double value)
{
    Q_D(QKXComplexTraceRange);
    d->xMax = value;
}

void QKXComplexTraceRange::setYMin(double value)
{
    Q_D(QKXComplexTraceRange);
    d->yMin = value;
}

void QKXComplexTraceRange::setYMax(double value)
{
    Q_D(QKXComplexTraceRange);
    d->yMax = value;
}

#include "QKXComplexTraceRange.moc"
