// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXCOMPLEXTRACEPLOT_H
#define QKXCOMPLEXTRACEPLOT_H

#include "QKXPlotManager.h"

class QKXComplexTracePlotPrivate;

// The measured I/Q points of a constellation display: a plot that takes complex traces only.
class STANDALONEPLUGINS_EXPORT QKXComplexTracePlot : public QKXPlotManager
{
    Q_OBJECT
public:
    explicit QKXComplexTracePlot(QWidget *parent = nullptr);
    ~QKXComplexTracePlot() override;

public Q_SLOTS:
    void setTrace(const QString &type, const QString &topName, QVariant data) override;

private:
    Q_DISABLE_COPY(QKXComplexTracePlot)
    Q_DECLARE_PRIVATE(QKXComplexTracePlot)
};

#endif // QKXCOMPLEXTRACEPLOT_H
