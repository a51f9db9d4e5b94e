// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXCOMPLEXTRACERANGE_H
#define QKXCOMPLEXTRACERANGE_H

#include "QKXWidgetBase.h"

#include <QVariant>

class QKXComplexTraceRangePrivate;

// The axis range of a constellation display as the engine publishes it: a complex trace whose first
// two points are the lower and upper limits. The widget itself shows nothing.
class STANDALONEPLUGINS_EXPORT QKXComplexTraceRange : public QKXWidgetBase
{
    Q_OBJECT
    Q_PROPERTY(double XMin READ getXMin WRITE setXMin DESIGNABLE true STORED true)
    Q_PROPERTY(double XMax READ getXMax WRITE setXMax DESIGNABLE true STORED true)
    Q_PROPERTY(double YMin READ getYMin WRITE setYMin DESIGNABLE true STORED true)
    Q_PROPERTY(double YMax READ getYMax WRITE setYMax DESIGNABLE true STORED true)

public:
    explicit QKXComplexTraceRange(QWidget *parent = nullptr);
    ~QKXComplexTraceRange() override;

    double getXMin() const;
    double getXMax() const;
    double getYMin() const;
    double getYMax() const;

public Q_SLOTS:
    void addTraceType(QString type, QString topName);
    void setTrace(QString type, QString topName, QVariant data);
    void setXMin(double value);
    void setXMax(double value);
    void setYMin(double value);
    void setYMax(double value);

Q_SIGNALS:
    // After every range trace, changed or not, so that the plot re-applies the range.
    void traceRangeChanged();

private:
    Q_DISABLE_COPY(QKXComplexTraceRange)
    Q_DECLARE_PRIVATE(QKXComplexTraceRange)
};

#endif // QKXCOMPLEXTRACERANGE_H
