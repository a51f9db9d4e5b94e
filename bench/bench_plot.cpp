// SPDX-License-Identifier: BSD-3-Clause
// Time per frame of a spectrum-like trace of 1 000, 100 000 and 1 000 000 points, fed to our plot
// canvas, to a plain QwtPlot with a plain curve and to QCustomPlot, each drawn offscreen at 800 x 480
// with a bottom and a left axis. One frame: hand over the points, replot, grab the widget's picture.
// Prints the median time per frame of each, as processor time of the drawing thread (what the frame
// costs, however busy the machine is) and as wall-clock time, and how many times longer the other
// two take than ours. Run with QT_QPA_PLATFORM=offscreen (`./kx bench-plot` does).

#include "QKXPlotInterfaceImpl.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QVector>
#include <qcustomplot.h>
#include <qwt_plot.h>
#include <qwt_plot_curve.h>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <ctime>

namespace {

const QSize FrameSize(800, 480);
const QColor Trace(0, 255, 0);

struct Points
{
    QVector<double> x;
    QVector<double> y;
};

Points spectrum(int count)
{
    QRandomGenerator random(1);
    Points p;
    p.x.resize(count);
    p.y.resize(count);
    for (int i = 0; i < count; ++i) {
        const double offset = (i - count / 2) / (count / 50.0);
        p.x[i] = i;
        p.y[i] = -90.0 + 10.0 * random.generateDouble() + 60.0 / (1.0 + offset * offset);
    }
    return p;
}

void showAndSettle(QWidget &widget)
{
    widget.resize(FrameSize);
    widget.show();
    for (int i = 0; i < 5; ++i)
        QCoreApplication::processEvents();
}

double threadMilliseconds()
{
    timespec now;
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return now.tv_sec * 1e3 + now.tv_nsec / 1e6;
}

struct Cost
{
    double cpu;    // median processor milliseconds per frame
    double wall;   // median wall-clock milliseconds per frame
};

double median(QVector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

// After two frames to warm up.
Cost perFrame(int frames, const std::function<void()> &frame)
{
    frame();
    frame();
    QVector<double> cpu;
    QVector<double> wall;
    QElapsedTimer clock;
    for (int i = 0; i < frames; ++i) {
        const double start = threadMilliseconds();
        clock.start();
        frame();
        wall << clock.nsecsElapsed() / 1e6;
        cpu << threadMilliseconds() - start;
    }
    return Cost{median(cpu), median(wall)};
}

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    std::printf("milliseconds per frame: processor time of the drawing thread (wall-clock time)\n");
    std::printf("%10s %16s %16s %16s %9s %9s\n", "points", "ours", "plain Qwt", "QCustomPlot", "Qwt/ours",
                "QCP/ours");
    Cost oursAtMillion{0.0, 0.0};
    for (int count : {1000, 100000, 1000000}) {
        const Points p = spectrum(count);
        const int frames = count >= 1000000 ? 9 : 21;

        QKXPlotInterfaceImpl canvas;
        canvas.enableAutoScale(false);
        canvas.setXBottomScaleEnable(true);
        canvas.setYLeftScaleEnable(true);
        canvas.addTraceType(QStringLiteral("EngineBasicTrace"), QStringLiteral("trace"));
        canvas.setXAxis(0, count - 1);
        canvas.setYAxis(0, -100, -20);
        showAndSettle(canvas);
        const Cost ours = perFrame(frames, [&] {
            canvas.updatePlot(QStringLiteral("trace"), p.x.constData(), p.y.constData(), count);
            canvas.update();   // the replot tick
            canvas.grab();
        });

        QwtPlot plain;
        QwtPlotCurve curve;
        curve.setPen(Trace);
        curve.attach(&plain);
        plain.setAxisScale(QwtPlot::xBottom, 0, count - 1);
        plain.setAxisScale(QwtPlot::yLeft, -100, -20);
        showAndSettle(plain);
        const Cost qwt = perFrame(frames, [&] {
            curve.setSamples(p.x.constData(), p.y.constData(), count);
            plain.replot();
            plain.grab();
        });

        QCustomPlot custom;
        QCPGraph *graph = custom.addGraph();
        graph->setPen(QPen(Trace));
        custom.xAxis->setRange(0, count - 1);
        custom.yAxis->setRange(-100, -20);
        showAndSettle(custom);
        const Cost qcp = perFrame(frames, [&] {
            graph->setData(p.x, p.y, true);
            custom.replot();
            custom.grab();
        });

        std::printf("%10d %7.2f (%6.2f) %7.2f (%6.2f) %7.2f (%6.2f) %9.1f %9.1f\n", count, ours.cpu, ours.wall, qwt.cpu,
                    qwt.wall, qcp.cpu, qcp.wall, qwt.cpu / ours.cpu, qcp.cpu / ours.cpu);
        if (count == 1000000)
            oursAtMillion = ours;
    }
    std::printf("a million points updated and drawn in %.2f ms (%.2f ms wall-clock): %s the 5 ms target\n",
                oursAtMillion.cpu, oursAtMillion.wall, oursAtMillion.cpu <= 5.0 ? "within" : "over");
    return 0;
}
