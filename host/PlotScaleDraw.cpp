// SPDX-License-Identifier: BSD-3-Clause
#include "PlotScaleDraw.h"

#include <qwt_text.h>

#include <cmath>
#include <limits>

PlotScaleDraw::PlotScaleDraw() = default;

PlotScaleDraw::~PlotScaleDraw() = default;

int PlotScaleDraw::decimals() const
{
    const QList<double> ticks = scaleDiv().ticks(QwtScaleDiv::MajorTick);
    double spacing = std::numeric_limits<double>::infinity();
    for (int i = 1; i < ticks.size(); ++i) {
        const double gap = std::fabs(ticks.at(i) - ticks.at(i - 1));
        if (gap > 0.0 && gap < spacing) {
            spacing = gap;
        }
    }
    if (!std::isfinite(spacing)) {
        return 1;
    }
    const int wanted = 1 - static_cast<int>(std::floor(std::log10(spacing)));
    return qBound(0, wanted, 9);
}

QwtText PlotScaleDraw::label(double value) const
{
    return QwtText(QString::number(value, 'f', decimals()), QwtText::PlainText);
}
