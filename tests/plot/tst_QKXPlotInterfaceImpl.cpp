// SPDX-License-Identifier: BSD-3-Clause
#define QTEST_QPA_MOUSE_HANDLING

#include "KXTestSupport.h"
#include "PlotTestSupport.h"
#include "QKXPlotInterfaceImpl.h"
#include "QKXPlotInterfaceImpl_p.h"
#include "QKXReplotThread.h"

#include <QPointer>
#include <qwt_plot_curve.h>
#include <qwt_scale_div.h>

#include <cmath>
#include <limits>

using namespace kxtest;

namespace {

// Counts the replots that actually happen.
class CountingCanvas : public QKXPlotInterfaceImpl
{
public:
    int replots = 0;
    void replot() override
    {
        ++replots;
        QKXPlotInterfaceImpl::replot();
    }
};

bool sameTicks(const QList<double> &actual, const QList<double> &expected)
{
    if (actual.size() != expected.size())
        return false;
    for (int i = 0; i < actual.size(); ++i) {
        if (std::fabs(actual.at(i) - expected.at(i)) > 1e-9 * qMax(1.0, std::fabs(expected.at(i))))
            return false;
    }
    return true;
}

QString text(const QList<double> &ticks)
{
    QStringList parts;
    for (double t : ticks)
        parts << QString::number(t, 'g', 12);
    return parts.join(QLatin1String(", "));
}

QPair<double, double> bounds(QwtPlot *plot, int axis)
{
    const QwtScaleDiv div = plot->axisScaleDiv(axis);
    return qMakePair(div.lowerBound(), div.upperBound());
}

// A canvas on screen, 0 ... 100 across and -100 ... 0 up, touch allowed, in hand mode.
struct Screen
{
    QKXPlotInterfaceImpl canvas;
    Screen()
    {
        canvas.resize(420, 320);
        canvas.setXAxis(0, 100);
        canvas.setYAxis(0, -100, 0);
        QKXPlotInterfaceImplPrivate::get(&canvas)->toolBarEnabled = true;
        canvas.show();
        QVERIFY(QTest::qWaitForWindowExposed(&canvas));
        canvas.replot();
    }
    // The axis values under a point of the drawing area.
    QPointF valueAt(QPoint inArea) const
    {
        return QPointF(canvas.canvasMap(QwtPlot::xBottom).invTransform(inArea.x()),
                       canvas.canvasMap(QwtPlot::yLeft).invTransform(inArea.y()));
    }
};

} // namespace

class tst_QKXPlotInterfaceImpl : public QObject
{
    Q_OBJECT

private slots:
    void fixedGridTicks_data();
    void fixedGridTicks();
    void rangesAnAxisCannotShowChangeNothing_data();
    void rangesAnAxisCannotShowChangeNothing();
    void requestsWithinOneTickGiveOneReplot();
    void theClockTicksUntilTheCanvasGoes();
    void panMovesTheContentWithTheFinger();
    void doubleClick_data();
    void doubleClick();
    void rectangleZoom_data();
    void rectangleZoom();
    void gesturesNeedTheToolBarAndAnUnlockedScreen_data();
    void gesturesNeedTheToolBarAndAnUnlockedScreen();
    void draggingAMarkerAsksForTracePoints();
    void markerIndex_data();
    void markerIndex();
    void traceCurvesAndTheirAxes_data();
    void traceCurvesAndTheirAxes();
    void curvesKeepTheirOwnCopyOfThePoints();
};

void tst_QKXPlotInterfaceImpl::fixedGridTicks_data()
{
    QTest::addColumn<int>("axis");
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<int>("lines");
    QTest::addColumn<QList<double>>("major");
    QTest::addColumn<QList<double>>("minor");

    // Bottom: labels at start, centre and stop; every division in the grid; max listed once.
    QTest::newRow("bottom 0 to 1000, 10 lines")
        << int(QwtPlot::xBottom) << 0.0 << 1000.0 << 10 << QList<double>{0, 499.9995, 1000}
        << QList<double>{0, 99.9999, 199.9998, 299.9997, 399.9996, 499.9995, 599.9994, 699.9993, 799.9992, 899.9991, 1000};
    QTest::newRow("left -120 to 0, 8 lines")
        << int(QwtPlot::yLeft) << -120.0 << 0.0 << 8
        << QList<double>{-120, -105.000015, -90.00003, -75.000045, -60.00006, -45.000075, -30.00009, -15.000105, 0}
        << QList<double>{};
    QTest::newRow("right -50 to 50, 4 lines")
        << int(QwtPlot::yRight) << -50.0 << 50.0 << 4 << QList<double>{-50, -25.000025, -0.00005, 24.999925, 50}
        << QList<double>{};
}

void tst_QKXPlotInterfaceImpl::fixedGridTicks()
{
    QFETCH(int, axis);
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(int, lines);
    QFETCH(QList<double>, major);
    QFETCH(QList<double>, minor);
    QKXPlotInterfaceImpl canvas;
    if (axis == QwtPlot::xBottom) {
        canvas.setXLines(lines);
        canvas.setXAxis(min, max);
    } else {
        axis == QwtPlot::yLeft ? canvas.setYLeftLines(lines) : canvas.setYRightLines(lines);
        canvas.setYAxis(axis == QwtPlot::yLeft ? 0 : 1, min, max);
    }
    const QwtScaleDiv div = canvas.axisScaleDiv(axis);
    QCOMPARE(bounds(&canvas, axis), qMakePair(min, max));
    QVERIFY2(sameTicks(div.ticks(QwtScaleDiv::MajorTick), major), qPrintable(text(div.ticks(QwtScaleDiv::MajorTick))));
    QVERIFY2(sameTicks(div.ticks(QwtScaleDiv::MinorTick), minor), qPrintable(text(div.ticks(QwtScaleDiv::MinorTick))));
}

void tst_QKXPlotInterfaceImpl::rangesAnAxisCannotShowChangeNothing_data()
{
    QTest::addColumn<double>("ll");
    QTest::addColumn<double>("ul");
    const double inf = std::numeric_limits<double>::infinity();
    QTest::newRow("empty") << 5.0 << 5.0;
    QTest::newRow("narrower than 1e-12") << 5.0 << 5.0 + 0.5e-12;
    QTest::newRow("inverted") << 5.0 << 4.0;
    QTest::newRow("NaN") << std::nan("") << 1.0;
    QTest::newRow("infinite") << 0.0 << inf;
    QTest::newRow("wider than a double") << -1.7e308 << 1.7e308;
}

void tst_QKXPlotInterfaceImpl::rangesAnAxisCannotShowChangeNothing()
{
    QFETCH(double, ll);
    QFETCH(double, ul);
    QKXPlotInterfaceImpl canvas;
    canvas.setXAxis(0, 1000);
    canvas.setYAxis(0, -120, 0);
    canvas.setXAxis(ll, ul);
    canvas.setYAxis(0, ll, ul);
    QCOMPARE(bounds(&canvas, QwtPlot::xBottom), qMakePair(0.0, 1000.0));
    QCOMPARE(bounds(&canvas, QwtPlot::yLeft), qMakePair(-120.0, 0.0));
    QCOMPARE(canvas.getXBottomScaleULimit(), 1000.0);
    QCOMPARE(canvas.getYLeftScaleLLimit(), -120.0);
}

void tst_QKXPlotInterfaceImpl::requestsWithinOneTickGiveOneReplot()
{
    CountingCanvas canvas;
    QCoreApplication::sendPostedEvents();   // Qwt replots once when first polished
    canvas.update();                        // and construction asked for one
    canvas.replots = 0;

    canvas.update();
    QCOMPARE(canvas.replots, 0);
    for (int i = 0; i < 10; ++i)
        canvas.requestReplot();
    canvas.update();
    QCOMPARE(canvas.replots, 1);
    canvas.update();
    QCOMPARE(canvas.replots, 1);
}

void tst_QKXPlotInterfaceImpl::theClockTicksUntilTheCanvasGoes()
{
    auto *canvas = new CountingCanvas;
    QPointer<QKXReplotThread> clock = canvas->findChild<QKXReplotThread *>();
    QVERIFY(clock && clock->isRunning());
    int ticks = 0;
    QObject receiver;
    connect(clock.data(), &QKXReplotThread::update, &receiver, [&ticks] { ++ticks; });

    QCoreApplication::sendPostedEvents();
    canvas->update();
    canvas->replots = 0;
    for (int i = 0; i < 10; ++i)
        canvas->requestReplot();
    QTRY_COMPARE(canvas->replots, 1);
    const int seen = ticks;
    QTRY_VERIFY(ticks >= seen + 3);
    QCOMPARE(canvas->replots, 1);

    // Ticks still queued for the canvas must die with it.
    canvas->requestReplot();
    delete canvas;
    QVERIFY(clock.isNull());
    const int last = ticks;
    QTest::qWait(3 * QKXReplotThread::TickMilliseconds);
    QCOMPARE(ticks, last);
}

void tst_QKXPlotInterfaceImpl::panMovesTheContentWithTheFinger()
{
    Screen s;
    QSignalSpy gesture(&s.canvas, &QKXPlotInterfaceImpl::plotMoveEvent);
    QSignalSpy topDiv(&s.canvas, &QKXPlotInterfaceImpl::newTopDiv);
    const QPoint start(200, 150);
    const QPoint end = start + QPoint(60, -40);
    const QPointF grabbed = s.valueAt(start);

    drag(&s.canvas, onPlot(&s.canvas, start), onPlot(&s.canvas, end));

    QCOMPARE(pixelOf(&s.canvas, grabbed.x(), grabbed.y()), end);
    QCOMPARE(gesture.size(), 2);
    QCOMPARE(gesture.first().first().toBool(), true);
    QCOMPARE(gesture.last().first().toBool(), false);
    const auto left = bounds(&s.canvas, QwtPlot::yLeft);
    QCOMPARE(topDiv.last().at(0).toDouble(), left.first);
    QCOMPARE(topDiv.last().at(1).toDouble(), left.second);
}

void tst_QKXPlotInterfaceImpl::doubleClick_data()
{
    QTest::addColumn<bool>("hand");
    QTest::addColumn<bool>("zoomOut");
    QTest::addColumn<double>("spanFactor");
    QTest::newRow("hand re-centres") << true << false << 1.0;
    QTest::newRow("zoom in halves") << false << false << 0.5;
    QTest::newRow("zoom out grows by half") << false << true << 1.5;
}

void tst_QKXPlotInterfaceImpl::doubleClick()
{
    QFETCH(bool, hand);
    QFETCH(bool, zoomOut);
    QFETCH(double, spanFactor);
    Screen s;
    s.canvas.setMoveEnable(hand);
    s.canvas.setZoomType(zoomOut);
    QSignalSpy topDiv(&s.canvas, &QKXPlotInterfaceImpl::newTopDiv);
    const QPoint point(100, 80);
    const QPointF centre = s.valueAt(point);

    QTest::mouseDClick(&s.canvas, Qt::LeftButton, Qt::NoModifier, onPlot(&s.canvas, point));

    const auto x = bounds(&s.canvas, QwtPlot::xBottom);
    const auto y = bounds(&s.canvas, QwtPlot::yLeft);
    QCOMPARE((x.first + x.second) / 2, centre.x());
    QCOMPARE((y.first + y.second) / 2, centre.y());
    QCOMPARE(x.second - x.first, 100 * spanFactor);
    QCOMPARE(y.second - y.first, 100 * spanFactor);
    QCOMPARE(topDiv.last().at(0).toDouble(), y.first);
    QCOMPARE(topDiv.last().at(1).toDouble(), y.second);
}

void tst_QKXPlotInterfaceImpl::rectangleZoom_data()
{
    QTest::addColumn<QPoint>("from");
    QTest::addColumn<QPoint>("to");
    QTest::addColumn<bool>("zooms");
    QTest::newRow("down and right") << QPoint(100, 80) << QPoint(300, 240) << true;
    QTest::newRow("up and left") << QPoint(300, 240) << QPoint(100, 80) << false;
    QTest::newRow("right only") << QPoint(100, 80) << QPoint(300, 82) << false;
    QTest::newRow("down only") << QPoint(100, 80) << QPoint(102, 240) << false;
}

void tst_QKXPlotInterfaceImpl::rectangleZoom()
{
    QFETCH(QPoint, from);
    QFETCH(QPoint, to);
    QFETCH(bool, zooms);
    Screen s;
    s.canvas.setMoveEnable(false);
    const QPointF corner = s.valueAt(from);
    const QPointF opposite = s.valueAt(to);

    drag(&s.canvas, onPlot(&s.canvas, from), onPlot(&s.canvas, to));

    const auto x = bounds(&s.canvas, QwtPlot::xBottom);
    const auto y = bounds(&s.canvas, QwtPlot::yLeft);
    if (zooms) {
        QCOMPARE(x, qMakePair(corner.x(), opposite.x()));
        QCOMPARE(y, qMakePair(opposite.y(), corner.y()));
    } else {
        QCOMPARE(x, qMakePair(0.0, 100.0));
        QCOMPARE(y, qMakePair(-100.0, 0.0));
    }
}

void tst_QKXPlotInterfaceImpl::gesturesNeedTheToolBarAndAnUnlockedScreen_data()
{
    QTest::addColumn<bool>("toolBar");
    QTest::addColumn<bool>("locked");
    QTest::newRow("no tool bar") << false << false;
    QTest::newRow("locked screen") << true << true;
}

void tst_QKXPlotInterfaceImpl::gesturesNeedTheToolBarAndAnUnlockedScreen()
{
    QFETCH(bool, toolBar);
    QFETCH(bool, locked);
    Screen s;
    QKXPlotInterfaceImplPrivate::get(&s.canvas)->toolBarEnabled = toolBar;
    s.canvas.setScreenLocked(locked);
    QSignalSpy gesture(&s.canvas, &QKXPlotInterfaceImpl::plotMoveEvent);
    QSignalSpy topDiv(&s.canvas, &QKXPlotInterfaceImpl::newTopDiv);

    drag(&s.canvas, onPlot(&s.canvas, QPoint(200, 150)), onPlot(&s.canvas, QPoint(260, 110)));
    QTest::mouseDClick(&s.canvas, Qt::LeftButton, Qt::NoModifier, onPlot(&s.canvas, QPoint(100, 80)));
    s.canvas.setMoveEnable(false);
    drag(&s.canvas, onPlot(&s.canvas, QPoint(100, 80)), onPlot(&s.canvas, QPoint(300, 240)));

    QCOMPARE(bounds(&s.canvas, QwtPlot::xBottom), qMakePair(0.0, 100.0));
    QCOMPARE(bounds(&s.canvas, QwtPlot::yLeft), qMakePair(-100.0, 0.0));
    QCOMPARE(gesture.size(), 0);
    QCOMPARE(topDiv.size(), 0);
}

void tst_QKXPlotInterfaceImpl::draggingAMarkerAsksForTracePoints()
{
    Screen s;
    s.canvas.setYLeftScaleEnable(true);
    QKXPlotInterfaceImplPrivate *d = QKXPlotInterfaceImplPrivate::get(&s.canvas);
    d->traceXMin = 0;
    d->traceXMax = 100;
    d->pointCount = 101;
    QImage picture(12, 12, QImage::Format_ARGB32);
    picture.fill(Qt::red);
    s.canvas.createMarker(QStringLiteral("M1"), picture, 50, -50);
    s.canvas.updateLayout();
    s.canvas.replot();
    QSignalSpy index(&s.canvas, &QKXPlotInterfaceImpl::moveMarker);
    QSignalSpy moveMode(&s.canvas, &QKXPlotInterfaceImpl::markerMoveEnable);

    // The picture stands on its point; the finger takes it a little above the point.
    const QPoint onMarker = pixelOf(&s.canvas, 50, -50) - QPoint(0, 6);
    const QPoint target = pixelOf(&s.canvas, 30.5, -50);
    drag(&s.canvas, onPlot(&s.canvas, onMarker), onPlot(&s.canvas, target));

    QCOMPARE(index.first(), (QVariantList{QStringLiteral("M1"), -1}));
    QCOMPARE(index.last(), (QVariantList{QStringLiteral("M1"), 29}));
    QCOMPARE(moveMode.last(), (QVariantList{QStringLiteral("M1"), false}));
    // A marker drag is not a pan.
    QCOMPARE(bounds(&s.canvas, QwtPlot::xBottom), qMakePair(0.0, 100.0));
}

void tst_QKXPlotInterfaceImpl::markerIndex_data()
{
    QTest::addColumn<int>("points");
    QTest::addColumn<double>("first");
    QTest::addColumn<double>("last");
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("index");
    QTest::newRow("negative value") << 101 << 0.0 << 100.0 << -0.5 << -1;
    QTest::newRow("10.5") << 101 << 0.0 << 100.0 << 10.5 << 9;
    QTest::newRow("0.5") << 101 << 0.0 << 100.0 << 0.5 << 0;
    QTest::newRow("1.7") << 101 << 0.0 << 100.0 << 1.7 << 0;
    QTest::newRow("past the end") << 101 << 0.0 << 100.0 << 1000.0 << 101;
    QTest::newRow("one point") << 1 << 5.0 << 5.0 << 7.0 << 0;
    QTest::newRow("no point") << 0 << 0.0 << 0.0 << 7.0 << 0;
    QTest::newRow("falling x") << 11 << 10.0 << 0.0 << 20.0 << 11;
}

void tst_QKXPlotInterfaceImpl::markerIndex()
{
    QFETCH(int, points);
    QFETCH(double, first);
    QFETCH(double, last);
    QFETCH(double, value);
    QFETCH(int, index);
    QKXPlotInterfaceImpl canvas;
    QKXPlotInterfaceImplPrivate *d = QKXPlotInterfaceImplPrivate::get(&canvas);
    d->pointCount = points;
    d->traceXMin = first;
    d->traceXMax = last;
    QSignalSpy moved(&canvas, &QKXPlotInterfaceImpl::moveMarker);
    canvas.reqMarkerMove(QStringLiteral("M"), value);
    QCOMPARE(moved.size(), 1);
    QCOMPARE(moved.first().at(1).toInt(), index);
}

void tst_QKXPlotInterfaceImpl::traceCurvesAndTheirAxes_data()
{
    QTest::addColumn<QString>("secondType");
    QTest::addColumn<bool>("twoAxes");
    QTest::addColumn<int>("secondAxis");
    QTest::addColumn<QColor>("secondPen");
    QTest::addColumn<QStringList>("lines");
    QTest::newRow("two axes") << QStringLiteral("EngineReadingComplexTrace") << true << int(QwtPlot::yRight)
                              << QColor(255, 255, 255) << QStringList();
    QTest::newRow("one axis") << QStringLiteral("EngineBasicTrace") << false << int(QwtPlot::yLeft)
                              << QColor(0, 255, 0) << QStringList();
    QTest::newRow("unknown type") << QStringLiteral("EngineScalar") << true << -1 << QColor()
                                  << QStringList{QStringLiteral(
                                         "UserInterface - Expected a Trace type:  EngineBasicTrace or EngineReadingComplexTrace. "
                                         "But received: \"EngineScalar\" , ( \"second\" )")};
}

void tst_QKXPlotInterfaceImpl::traceCurvesAndTheirAxes()
{
    QFETCH(QString, secondType);
    QFETCH(bool, twoAxes);
    QFETCH(int, secondAxis);
    QFETCH(QColor, secondPen);
    QFETCH(QStringList, lines);
    DebugLines debug;
    QKXPlotInterfaceImpl canvas;
    canvas.setUseTwoAxes(twoAxes);
    canvas.addTraceType(QStringLiteral("EngineBasicTrace"), QStringLiteral("first"));
    canvas.addTraceType(secondType, QStringLiteral("second"));

    QwtPlotCurve *first = canvas.getTrace(QStringLiteral("first"));
    QCOMPARE(first->yAxis(), int(QwtPlot::yLeft));
    QCOMPARE(first->pen().color(), QColor(0, 255, 0));
    QwtPlotCurve *second = canvas.getTrace(QStringLiteral("second"));
    QCOMPARE(second != nullptr, secondAxis >= 0);
    if (second) {
        QCOMPARE(second->yAxis(), secondAxis);
        QCOMPARE(second->pen().color(), secondPen);
    }
    QCOMPARE(DebugLines::lines(), lines);
}

void tst_QKXPlotInterfaceImpl::curvesKeepTheirOwnCopyOfThePoints()
{
    QKXPlotInterfaceImpl canvas;
    canvas.addTraceType(QStringLiteral("EngineBasicTrace"), QStringLiteral("t"));
    QVector<double> x{1, 2, 3};
    QVector<double> y{-10, -20, -30};
    canvas.updatePlot(QStringLiteral("t"), x.constData(), y.constData(), 3);
    x.fill(0);
    y.fill(0);
    QwtPlotCurve *curve = canvas.getTrace(QStringLiteral("t"));
    QCOMPARE(int(curve->dataSize()), 3);
    QCOMPARE(curve->sample(2), QPointF(3, -30));
    // A topic without a curve takes nothing, and says nothing.
    DebugLines debug;
    canvas.updatePlot(QStringLiteral("unknown"), x.constData(), y.constData(), 3);
    QVERIFY(DebugLines::lines().isEmpty());
}

QTEST_MAIN(tst_QKXPlotInterfaceImpl)
#include "tst_QKXPlotInterfaceImpl.moc"
