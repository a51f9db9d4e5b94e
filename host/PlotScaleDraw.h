// SPDX-License-Identifier: BSD-3-Clause
#ifndef PLOTSCALEDRAW_H
#define PLOTSCALEDRAW_H

#include "norvanehost_export.h"

#include <qwt_scale_draw.h>

// Axis labels with as many decimals as the spacing of the labelled ticks needs: two significant
// digits of the spacing, so neighbouring labels never read alike however far the user zooms in.
class NORVANEHOST_EXPORT PlotScaleDraw : public QwtScaleDraw
{
public:
    PlotScaleDraw();
    ~PlotScaleDraw() override;

    QwtText label(double value) const override;

    // The decimals that the labels of the current scale division get (0 to 9).
    int decimals() const;
};

#endif // PLOTSCALEDRAW_H
