// SPDX-License-Identifier: BSD-3-Clause
#ifndef KXTRACECURVE_P_H
#define KXTRACECURVE_P_H

//
//  W A R N I N G
//  -------------
// Not part of the library's public API: the canvas's curve for one trace topic.
//

#include <QPair>
#include <QVector>

#include <vector>
#include <qwt_plot_curve.h>
#include <qwt_series_data.h>

// The points of one trace, every one of them kept: zooming and panning act on the whole trace.
class KXTraceData : public QwtSeriesData<QPointF>
{
public:
    // Copies size points; null arrays or a negative size give an empty trace.
    KXTraceData(const double *x, const double *y, int size);
    // Takes another trace in place of this one, in the memory this one had where it suffices: a
    // trace of a million points arriving 20 times a second should not cost fresh pages every time.
    void assign(const double *x, const double *y, int size);

    size_t size() const override;
    QPointF sample(size_t i) const override;
    // The span of the finite values, for automatic scaling; invalid when there are none.
    QRectF boundingRect() const override;

    const double *xValues() const { return xs.data(); }
    const double *yValues() const { return ys.data(); }
    // Every x is finite and none is smaller than the one before: a spectrum or a time trace rather
    // than a scatter of I/Q points.
    bool isSortedByX() const { return sortedByX; }
    // First and last index of each stretch of points whose x and y are both finite. A point that
    // is not finite is a gap in the line.
    const QVector<QPair<int, int>> &finiteRuns() const { return runs; }
    // The smallest and largest y of points first to last; for a long stretch of a finite trace it
    // reads the summaries of 64-point blocks made when the trace came, not every point.
    void yRange(int first, int last, double &low, double &high) const;

private:
    std::vector<double> xs;
    std::vector<double> ys;
    std::vector<double> blockLow;
    std::vector<double> blockHigh;
    QVector<QPair<int, int>> runs;
    QRectF bounds;
    bool sortedByX = true;
    // What the x values last taken were found to be, kept for a trace with the same ones.
    bool xFinite = false;
    bool xSorted = true;
    double xLow = 0.0;
    double xHigh = 0.0;
};

// A curve that draws a trace of any length in about the time a screen width of points takes.
//
// For a trace sorted by x, only the pixel columns of the canvas are visited: per column a few of the
// trace's own points at its start and end and the highest and lowest of those between make the
// line, and the set of distinct pixels makes the dots. The pixels are those that drawing every point
// as one line sets: each point is mapped and rounded exactly as the plain curve maps it, the segments
// between columns are the original ones, and within a column the original segments cover the span
// between their highest and lowest point. The line goes to the painter whole and unclipped: Qt
// clips each segment itself, and Qwt's own clipping and cutting into pieces would add joints whose
// pixels depend on where they fall. Scatters (I/Q points), curves with a brush or a fitter,
// antialiased or vector painters take the plain curve's road.
class KXTraceCurve : public QwtPlotCurve
{
public:
    KXTraceCurve();
    ~KXTraceCurve() override;

    void setTrace(const double *x, const double *y, int size);

protected:
    void drawLines(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
                   const QRectF &canvasRect, int from, int to) const override;
    void drawDots(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
                  const QRectF &canvasRect, int from, int to) const override;

private:
    const KXTraceData *trace() const;
};

#endif // KXTRACECURVE_P_H
