// SPDX-License-Identifier: BSD-3-Clause
#include "PlotTestSupport.h"
#include "QKXPlotInterfaceImpl.h"

#include <qwt_painter.h>
#include <qwt_plot_curve.h>

#include <cmath>

using namespace kxtest;

// The canvas's curves draw a long trace from a few points per pixel column. What the user sees must
// not change: every case compares the canvas's drawing with that of a plain curve given every point
// and handing them to the painter as one line, as the canvas does. (Qwt's default cuts a line into
// pieces of a few points and clips it itself, which moves a few pixels wherever the pieces and the
// clip points happen to fall.)
class tst_KXTraceCurve : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void drawsThePixelsOfEveryPoint_data();
    void drawsThePixelsOfEveryPoint();
    void aPointThatIsNotANumberBreaksTheLine();

private:
    Trace trace;
    Trace steps;
};

void tst_KXTraceCurve::initTestCase()
{
    QwtPainter::setPolylineSplitting(false);
    trace = noisyTrace(200000);
    // Levels in quarter dB on unevenly spaced x: many points one pixel apart, which is where the
    // rasterizer's choices at a joint depend most on the segments before it.
    steps = noisyTrace(150000, 11);
    for (int i = 0; i < steps.x.size(); ++i) {
        steps.x[i] = i * 0.37 + (i % 3) * 0.1;
        steps.y[i] = std::round(steps.y[i] * 4) / 4;
    }
}

void tst_KXTraceCurve::drawsThePixelsOfEveryPoint_data()
{
    QTest::addColumn<bool>("stepped");
    QTest::addColumn<int>("style");
    QTest::addColumn<QPointF>("xRange");
    QTest::addColumn<QPointF>("yRange");

    const QList<QPair<const char *, int>> styles{{"lines", QwtPlotCurve::Lines}, {"dots", QwtPlotCurve::Dots}};
    for (const auto &style : styles) {
        // Whole trace; 2000 points on the screen; fewer points than pixel columns; trace starting
        // and ending off screen and running off the top and bottom.
        QTest::addRow("%s, full", style.first) << false << style.second << QPointF(0, 199999) << QPointF(-110, -10);
        QTest::addRow("%s, zoomed", style.first) << false << style.second << QPointF(50000, 52000) << QPointF(-80, -40);
        QTest::addRow("%s, zoomed past the points", style.first) << false << style.second << QPointF(1000.3, 1300.7) << QPointF(-90, -30);
        QTest::addRow("%s, panned", style.first) << false << style.second << QPointF(-60000, 140000) << QPointF(-70, 30);
        QTest::addRow("%s, panned down", style.first) << false << style.second << QPointF(120000, 320000) << QPointF(-150, -50);
    }
    // Views anywhere, at any zoom, on both traces.
    QRandomGenerator random(3);
    for (int i = 0; i < 24; ++i) {
        const bool stepped = i % 2;
        const double end = stepped ? 55500 : 200000;   // the last x
        const double span = end * std::pow(10.0, -3.0 * random.generateDouble());
        const Trace &t = stepped ? steps : trace;
        const int centre = random.bounded(t.x.size());
        const double start = t.x[centre] - span / 2;
        // Around the level at the centre, reaching past it on one side or both.
        const double bottom = t.y[centre] - 5 - 60 * random.generateDouble();
        const double top = t.y[centre] + 5 + 60 * random.generateDouble();
        QTest::addRow("view %d", i) << stepped << (i % 3 ? int(QwtPlotCurve::Lines) : int(QwtPlotCurve::Dots))
                                    << QPointF(start, start + span) << QPointF(bottom, top);
    }
}

void tst_KXTraceCurve::drawsThePixelsOfEveryPoint()
{
    QFETCH(bool, stepped);
    QFETCH(int, style);
    QFETCH(QPointF, xRange);
    QFETCH(QPointF, yRange);
    const Trace &trace = stepped ? steps : this->trace;
    QKXPlotInterfaceImpl canvas;
    canvas.resize(800, 480);
    canvas.enableAutoScale(false);
    canvas.setCurveStyle(QwtPlotCurve::CurveStyle(style));
    canvas.addTraceType(QStringLiteral("EngineBasicTrace"), QStringLiteral("t"));
    canvas.updatePlot(QStringLiteral("t"), trace.x.constData(), trace.y.constData(), trace.x.size());
    canvas.setXAxis(xRange.x(), xRange.y());
    canvas.setYAxis(0, yRange.x(), yRange.y());
    canvas.show();
    QVERIFY(QTest::qWaitForWindowExposed(&canvas));
    QwtPlotCurve *ours = canvas.getTrace(QStringLiteral("t"));
    const QImage decimated = drawingArea(&canvas);

    QwtPlotCurve plain;
    plain.setStyle(ours->style());
    plain.setPen(ours->pen());
    plain.setPaintAttribute(QwtPlotCurve::ClipPolygons, false);
    plain.setSamples(trace.x, trace.y);
    plain.attach(&canvas);
    ours->hide();
    const QImage everyPoint = drawingArea(&canvas);
    plain.detach();

    const QRgb green = qRgb(0, 255, 0);
    QVERIFY(countColour(everyPoint, green) > 0);
    int differ = 0;
    for (int y = 0; y < everyPoint.height(); ++y)
        for (int x = 0; x < everyPoint.width(); ++x)
            differ += decimated.pixel(x, y) != everyPoint.pixel(x, y);
    QVERIFY2(differ == 0, qPrintable(QStringLiteral("%1 pixels differ").arg(differ)));
}

void tst_KXTraceCurve::aPointThatIsNotANumberBreaksTheLine()
{
    QKXPlotInterfaceImpl canvas;
    canvas.resize(400, 300);
    canvas.addTraceType(QStringLiteral("EngineBasicTrace"), QStringLiteral("t"));
    canvas.enableAutoScale(false);
    QVector<double> x(101);
    QVector<double> y(101, -50.0);
    for (int i = 0; i <= 100; ++i)
        x[i] = i;
    y[50] = std::nan("");
    x[80] = std::numeric_limits<double>::infinity();
    canvas.updatePlot(QStringLiteral("t"), x.constData(), y.constData(), x.size());
    canvas.setXAxis(0, 100);
    canvas.setYAxis(0, -100, 0);
    canvas.show();
    QVERIFY(QTest::qWaitForWindowExposed(&canvas));
    const QImage area = drawingArea(&canvas);
    const auto greenAt = [&](double value) {
        const QPoint p = pixelOf(&canvas, value, -50);
        return area.pixel(p) == qRgb(0, 255, 0);
    };
    QVERIFY(greenAt(25));
    QVERIFY(greenAt(65));
    QVERIFY(greenAt(90));
    QVERIFY(!greenAt(50));
    QVERIFY(!greenAt(80));
    QCOMPARE(canvas.getTrace(QStringLiteral("t"))->boundingRect(), QRectF(QPointF(0, -50), QPointF(100, -50)));
}

QTEST_MAIN(tst_KXTraceCurve)
#include "tst_KXTraceCurve.moc"
