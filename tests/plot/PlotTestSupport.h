// SPDX-License-Identifier: BSD-3-Clause
#ifndef PLOTTESTSUPPORT_H
#define PLOTTESTSUPPORT_H

// What the plot tests share: real mouse gestures on a canvas, its drawing area as an image, and
// traces made up for the occasion.

#include <QtTest>

#include <QRandomGenerator>
#include <QVector>
#include <qwt_plot.h>
#include <qwt_plot_canvas.h>
#include <qwt_scale_map.h>

namespace kxtest {

// A point of the drawing area in the plot widget's coordinates.
inline QPoint onPlot(QwtPlot *plot, QPoint inArea)
{
    return plot->canvas()->geometry().topLeft() + inArea;
}

// The pixel at which the axes put a value.
inline QPoint pixelOf(QwtPlot *plot, double x, double y, int xAxis = QwtPlot::xBottom, int yAxis = QwtPlot::yLeft)
{
    return QPoint(qRound(plot->canvasMap(xAxis).transform(x)), qRound(plot->canvasMap(yAxis).transform(y)));
}

// A finger put down, moved in steps and lifted; the points are in the plot widget's coordinates.
inline void drag(QwtPlot *plot, QPoint from, QPoint to, int steps = 4)
{
    QTest::mousePress(plot, Qt::LeftButton, Qt::NoModifier, from);
    for (int i = 1; i <= steps; ++i)
        QTest::mouseMove(plot, from + (to - from) * i / steps);
    QTest::mouseRelease(plot, Qt::LeftButton, Qt::NoModifier, to);
}

// The drawing area as it is on screen, after one replot.
inline QImage drawingArea(QwtPlot *plot)
{
    plot->replot();
    return plot->canvas()->grab().toImage().convertToFormat(QImage::Format_RGB32);
}

// A spectrum-like trace: a slow walk with noise on every point, the same for the same seed.
struct Trace
{
    QVector<double> x;
    QVector<double> y;
};

inline Trace noisyTrace(int points, quint32 seed = 7)
{
    QRandomGenerator random(seed);
    Trace t;
    t.x.resize(points);
    t.y.resize(points);
    double level = -60.0;
    for (int i = 0; i < points; ++i) {
        level = qBound(-100.0, level + (random.generateDouble() - 0.5), -20.0);
        t.x[i] = i;
        t.y[i] = level + 8.0 * (random.generateDouble() - 0.5);
    }
    return t;
}

inline int countColour(const QImage &image, QRgb colour)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += image.pixel(x, y) == colour;
    return count;
}

} // namespace kxtest

#endif // PLOTTESTSUPPORT_H
