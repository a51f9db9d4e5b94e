// SPDX-License-Identifier: BSD-3-Clause
#define QTEST_QPA_MOUSE_HANDLING

#include "KXTestSupport.h"
#include "PlotScaleDraw.h"
#include "PlotTestSupport.h"
#include "QKXPlotInterfaceImpl.h"
#include "QKXPlotManager.h"
#include "QKXPrecisionLabel.h"
#include "QKXSaveTraceButton.h"

#include <QPushButton>
#include <qwt_plot_curve.h>
#include <qwt_scale_div.h>

#include <cmath>
#include <limits>

using namespace kxtest;

namespace {

const QString Basic = QStringLiteral("EngineBasicTrace");
const QString Complex = QStringLiteral("EngineReadingComplexTrace");

QVariantList numbers(std::initializer_list<double> values)
{
    QVariantList list;
    for (double v : values)
        list << v;
    return list;
}

QVariantList basicTrace(const QVariant &count, const QVariantList &x, const QVariantList &y, double first = 0,
                        double last = 100)
{
    return QVariantList{count, first, last, QStringLiteral("Hz"), QStringLiteral("dBm"), x, y};
}

// A plot on screen, after start-up, with a basic and a complex topic announced.
struct Screen
{
    QKXPlotManager plot;
    explicit Screen(bool initialized = true)
    {
        qApp->setProperty("state", initialized ? QVariant(QStringLiteral("initialized")) : QVariant());
        plot.setObjectName(QStringLiteral("plot"));
        plot.addTraceType(Basic, QStringLiteral("spectrum"));
        plot.addTraceType(Complex, QStringLiteral("iq"));
        plot.resize(640, 480);
        plot.show();
        QVERIFY(QTest::qWaitForWindowExposed(&plot));
    }
    ~Screen() { qApp->setProperty("state", QVariant()); }
    QKXPlotInterfaceImpl *canvas() const { return plot.getPlotInterface(); }
    int points(const QString &topic) const { return int(canvas()->getTrace(topic)->dataSize()); }
    QPair<double, double> axis(int id) const
    {
        const QwtScaleDiv div = canvas()->axisScaleDiv(id);
        return qMakePair(div.lowerBound(), div.upperBound());
    }
    QList<QPushButton *> tools() const { return plot.findChildren<QPushButton *>(QStringLiteral("common_button")); }
};

} // namespace

class tst_QKXPlotManager : public QObject
{
    Q_OBJECT

private slots:
    void traceIntake_data();
    void traceIntake();
    void tracesWaitForStartUpAndAShownPlot();
    void traceRangeSetsTheAxisOnlyWhenItChanges();
    void leftAxisFromTopAndDivision_data();
    void leftAxisFromTopAndDivision();
    void panReportsTopAndDivision();
    void toolLogic();
    void zoomInWithoutZoomAll();
    void saveTraceCommand_data();
    void saveTraceCommand();
    void curveStyleReadsBack_data();
    void curveStyleReadsBack();
    void precisionSwitchingKeepsALiveScaleDraw();
    void referencePatterns_data();
    void referencePatterns();
    void engineDataLandsWhereTheAxesSay();
};

void tst_QKXPlotManager::traceIntake_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("topic");
    QTest::addColumn<QVariant>("data");
    QTest::addColumn<int>("points");   // on the topic's curve afterwards; 2 means the earlier trace stays
    QTest::addColumn<QPointF>("firstPoint");
    QTest::addColumn<QStringList>("lines");   // each caught line starts with its entry

    const QString spectrum = QStringLiteral("spectrum");
    const QString iq = QStringLiteral("iq");
    const QPointF earlier(1, -1);
    const QVariantList three = numbers({10, 20, 30});
    const QString dropped = QStringLiteral("UserInterface - QKXPlotManager \"plot\" topic ");
    const double nan = std::nan("");

    QTest::newRow("basic") << Basic << spectrum << QVariant(basicTrace(3, three, numbers({-1, -2, -3}))) << 3
                           << QPointF(10, -1) << QStringList();
    QTest::newRow("basic, count as text, more elements")
        << Basic << spectrum << QVariant(basicTrace(QStringLiteral("3"), three, numbers({-1, -2, -3})) << 7 << 8)
        << 3 << QPointF(10, -1) << QStringList();
    QTest::newRow("basic, longer lists than the count")
        << Basic << spectrum << QVariant(basicTrace(2, three, numbers({-1, -2, -3}))) << 2 << QPointF(10, -1) << QStringList();
    QTest::newRow("basic, entries that are no numbers read as 0")
        << Basic << spectrum << QVariant(basicTrace(2, QVariantList{QStringLiteral("a"), 5}, numbers({-1, -2})))
        << 2 << QPointF(0, -1) << QStringList();
    QTest::newRow("basic, not a number is a point")
        << Basic << spectrum << QVariant(basicTrace(2, numbers({1, 2}), numbers({nan, -2}))) << 2 << QPointF(1, nan)
        << QStringList();
    QTest::newRow("basic, six elements")
        << Basic << spectrum << QVariant(basicTrace(3, three, three).mid(0, 6)) << 2 << earlier
        << QStringList{QStringLiteral("UserInterface - setBasicTrace data is bad!")};
    QTest::newRow("basic, fewer x than announced")
        << Basic << spectrum << QVariant(basicTrace(4, three, numbers({-1, -2, -3, -4}))) << 2 << earlier
        << QStringList{dropped + QStringLiteral("\"spectrum\" : 4 points announced, 3 x and 4 y values")};
    QTest::newRow("basic, fewer y than announced")
        << Basic << spectrum << QVariant(basicTrace(3, three, numbers({-1}))) << 2 << earlier
        << QStringList{dropped + QStringLiteral("\"spectrum\" : 3 points announced, 3 x and 1 y values")};
    QTest::newRow("basic, negative count")
        << Basic << spectrum << QVariant(basicTrace(-1, three, three)) << 2 << earlier
        << QStringList{dropped + QStringLiteral("\"spectrum\" : -1 points announced")};
    QTest::newRow("basic, huge count")
        << Basic << spectrum << QVariant(basicTrace(std::numeric_limits<int>::max(), three, three)) << 2 << earlier
        << QStringList{dropped + QStringLiteral("\"spectrum\" : 2147483647 points announced")};
    QTest::newRow("basic, lists that are no lists")
        << Basic << spectrum << QVariant(basicTrace(3, QVariantList(), QVariantList()).mid(0, 5) << 1.0 << 2.0) << 2
        << earlier << QStringList{dropped + QStringLiteral("\"spectrum\" : 3 points announced, 0 x and 0 y values")};
    QTest::newRow("complex") << Complex << iq << QVariant(QVariantList{3, three, numbers({-1, -2, -3})}) << 3
                             << QPointF(10, -1) << QStringList();
    QTest::newRow("complex, two elements")
        << Complex << iq << QVariant(QVariantList{3, three}) << 2 << earlier
        << QStringList{QStringLiteral("UserInterface - QKXPlotManager \"plot\" topic \"iq\" : complex trace of 2 elements")};
    QTest::newRow("complex, short list")
        << Complex << iq << QVariant(QVariantList{3, three, numbers({1, 2})}) << 2 << earlier
        << QStringList{dropped + QStringLiteral("\"iq\" : 3 points announced, 3 x and 2 y values")};
    QTest::newRow("another type")
        << QStringLiteral("EngineScalar") << spectrum << QVariant(basicTrace(3, three, three)) << 2 << earlier
        << QStringList{QStringLiteral("UserInterface - EngineBasicTrace or EngineReadingComplexTrace. But received: "
                                      "\"EngineScalar\" , ( \"spectrum\" )")};
    QTest::newRow("no data") << Basic << spectrum << QVariant() << 2 << earlier << QStringList();
    // A topic never announced has no curve: the trace is taken and draws nothing, silently.
    QTest::newRow("unknown topic") << Basic << QStringLiteral("other") << QVariant(basicTrace(3, three, three)) << 2
                                   << earlier << QStringList();
}

void tst_QKXPlotManager::traceIntake()
{
    QFETCH(QString, type);
    QFETCH(QString, topic);
    QFETCH(QVariant, data);
    QFETCH(int, points);
    QFETCH(QPointF, firstPoint);
    QFETCH(QStringList, lines);
    Screen s;
    const QString shown = type == Complex ? QStringLiteral("iq") : QStringLiteral("spectrum");
    if (type == Complex)
        s.plot.setTrace(Complex, shown, QVariantList{2, numbers({1, 2}), numbers({-1, -2})});
    else
        s.plot.setTrace(Basic, shown, basicTrace(2, numbers({1, 2}), numbers({-1, -2})));
    QCOMPARE(s.points(shown), 2);

    DebugLines debug;
    s.plot.setTrace(type, topic, data);

    QCOMPARE(s.points(shown), points);
    const QPointF first = s.canvas()->getTrace(shown)->sample(0);
    QCOMPARE(first.x(), firstPoint.x());
    QCOMPARE(std::isnan(first.y()), std::isnan(firstPoint.y()));
    if (!std::isnan(firstPoint.y()))
        QCOMPARE(first.y(), firstPoint.y());
    QCOMPARE(DebugLines::lines().size(), lines.size());
    for (int i = 0; i < lines.size(); ++i)
        QVERIFY2(DebugLines::lines().at(i).startsWith(lines.at(i)), qPrintable(DebugLines::lines().at(i)));
}

void tst_QKXPlotManager::tracesWaitForStartUpAndAShownPlot()
{
    Screen s(false);
    const QVariantList trace = basicTrace(2, numbers({1, 2}), numbers({-1, -2}));
    s.plot.setTrace(Basic, QStringLiteral("spectrum"), trace);
    QCOMPARE(s.points(QStringLiteral("spectrum")), 0);

    qApp->setProperty("state", QStringLiteral("initialized"));
    s.plot.setTrace(Basic, QStringLiteral("spectrum"), trace);
    QCOMPARE(s.points(QStringLiteral("spectrum")), 2);

    // Once a trace has been taken, a hidden plot takes no more.
    s.plot.hide();
    s.plot.setTrace(Basic, QStringLiteral("spectrum"), basicTrace(3, numbers({1, 2, 3}), numbers({-1, -2, -3})));
    QCOMPARE(s.points(QStringLiteral("spectrum")), 2);
    s.plot.show();
    s.plot.setTrace(Basic, QStringLiteral("spectrum"), basicTrace(3, numbers({1, 2, 3}), numbers({-1, -2, -3})));
    QCOMPARE(s.points(QStringLiteral("spectrum")), 3);
}

void tst_QKXPlotManager::traceRangeSetsTheAxisOnlyWhenItChanges()
{
    Screen s;
    s.plot.enableAutoScale(false);
    const QVariantList x = numbers({0, 50, 100});
    const QVariantList y = numbers({-1, -2, -3});
    s.plot.setTrace(Basic, QStringLiteral("spectrum"), basicTrace(3, x, y, 0, 100));
    QCOMPARE(s.axis(QwtPlot::xBottom), qMakePair(0.0, 100.0));

    s.plot.setXAxis(10, 20);   // the user looks closer
    s.plot.setTrace(Basic, QStringLiteral("spectrum"), basicTrace(3, x, y, 0, 100));
    QCOMPARE(s.axis(QwtPlot::xBottom), qMakePair(10.0, 20.0));

    s.plot.setTrace(Basic, QStringLiteral("spectrum"), basicTrace(3, x, y, 0, 200));
    QCOMPARE(s.axis(QwtPlot::xBottom), qMakePair(0.0, 200.0));

    // A topic nobody announced draws nothing, but its range is still the plot's.
    s.plot.setTrace(Basic, QStringLiteral("other"), basicTrace(3, x, y, 0, 300));
    QCOMPARE(s.axis(QwtPlot::xBottom), qMakePair(0.0, 300.0));
    QCOMPARE(s.points(QStringLiteral("spectrum")), 3);
}

void tst_QKXPlotManager::leftAxisFromTopAndDivision_data()
{
    QTest::addColumn<int>("update");   // 0: top and division, 1: top, 2: division
    QTest::addColumn<bool>("duringGesture");
    QTest::addColumn<double>("lower");
    QTest::addColumn<double>("upper");
    QTest::newRow("top 10 / division 5") << 0 << false << -40.0 << 10.0;
    QTest::newRow("top 5") << 1 << false << -95.0 << 5.0;
    QTest::newRow("division 5") << 2 << false << -50.0 << 0.0;
    QTest::newRow("top 10 / division 5 during a gesture") << 0 << true << -100.0 << 0.0;
    QTest::newRow("top 5 during a gesture") << 1 << true << -100.0 << 0.0;
    QTest::newRow("division 5 during a gesture") << 2 << true << -100.0 << 0.0;
}

void tst_QKXPlotManager::leftAxisFromTopAndDivision()
{
    QFETCH(int, update);
    QFETCH(bool, duringGesture);
    QFETCH(double, lower);
    QFETCH(double, upper);
    Screen s;
    s.plot.setYLines(10);
    s.plot.externalUpdateLeftYAxis(10, 0);
    QCOMPARE(s.axis(QwtPlot::yLeft), qMakePair(-100.0, 0.0));

    if (duringGesture)
        emit s.canvas()->plotMoveEvent(true);
    if (update == 0)
        s.plot.externalUpdateLeftYAxis(5, 10);
    else if (update == 1)
        s.plot.externalUpdateUlLeftYAxis(5);
    else
        s.plot.externalUpdateLlLeftYAxis(5);
    QCOMPARE(s.axis(QwtPlot::yLeft), qMakePair(lower, upper));

    // What the engine sent during the gesture is used by the next update after it.
    emit s.canvas()->plotMoveEvent(false);
    s.plot.externalUpdateUlLeftYAxis(update == 2 ? 0 : update == 0 ? 10 : 5);
    const double division = update == 1 ? 10 : 5;
    const double top = update == 2 ? 0 : update == 0 ? 10 : 5;
    QCOMPARE(s.axis(QwtPlot::yLeft), qMakePair(top - 10 * division, top));
}

void tst_QKXPlotManager::panReportsTopAndDivision()
{
    Screen s;
    s.plot.setYLines(10);
    s.plot.enableToolBar(true);
    s.plot.externalUpdateLeftYAxis(10, 0);
    s.canvas()->replot();
    QSignalSpy top(&s.plot, &QKXPlotManager::topScaleVal);
    QSignalSpy division(&s.plot, &QKXPlotManager::divisonVal);
    // Drag the content down by the height of 5 dB.
    const QwtScaleMap yMap = s.canvas()->canvasMap(QwtPlot::yLeft);
    const QPoint from = onPlot(s.canvas(), QPoint(100, qRound(yMap.transform(-60))));
    const QPoint to = onPlot(s.canvas(), QPoint(100, qRound(yMap.transform(-65))));
    drag(s.canvas(), from, to);

    const auto left = s.axis(QwtPlot::yLeft);
    QVERIFY(qAbs(left.second - 5) < 0.5);
    QCOMPARE(top.last().first().toDouble(), left.second);
    QCOMPARE(division.last().first().toDouble(), 10.0);
}

void tst_QKXPlotManager::toolLogic()
{
    Screen s;
    s.plot.enableToolBar(true);
    const QList<QPushButton *> tools = s.tools();
    QPushButton *hand = tools.at(0);
    QPushButton *zoom = tools.at(1);
    QPushButton *zoomIn = tools.at(2);
    QPushButton *zoomOut = tools.at(3);
    const auto state = [&] {
        return QList<bool>{hand->isChecked(), zoom->isChecked(), zoomIn->isVisible(), zoomOut->isVisible(),
                           s.canvas()->isMoveEnabled()};
    };
    QCOMPARE(state(), (QList<bool>{true, false, false, false, true}));

    QTest::mouseClick(zoom, Qt::LeftButton);
    QCOMPARE(state(), (QList<bool>{false, true, true, true, false}));
    QTest::mouseClick(zoomOut, Qt::LeftButton);
    QVERIFY(zoomOut->isChecked() && !zoomIn->isChecked());
    QTest::mouseClick(zoomOut, Qt::LeftButton);   // a second click leaves it on
    QVERIFY(zoomOut->isChecked());
    QTest::mouseClick(zoomIn, Qt::LeftButton);
    QVERIFY(zoomIn->isChecked() && !zoomOut->isChecked());
    QTest::mouseClick(hand, Qt::LeftButton);
    QCOMPARE(state(), (QList<bool>{true, false, false, false, true}));
    QTest::mouseClick(hand, Qt::LeftButton);
    QCOMPARE(state(), (QList<bool>{true, false, false, false, true}));
}

void tst_QKXPlotManager::zoomInWithoutZoomAll()
{
    Screen s;
    s.plot.enableToolBar(true);
    s.plot.setZoomAllVisible(false);
    const QList<QPushButton *> tools = s.tools();
    QVERIFY(tools.at(0)->isVisible() && !tools.at(1)->isVisible() && tools.at(2)->isVisible());
    QTest::mouseClick(tools.at(2), Qt::LeftButton);
    QVERIFY(!tools.at(0)->isChecked());
    QVERIFY(tools.at(2)->isChecked());
    QVERIFY(!s.canvas()->isMoveEnabled());
}

void tst_QKXPlotManager::saveTraceCommand_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<bool>("shown");
    QTest::newRow("none") << QStringLiteral("AttributeName") << false;
    QTest::newRow("a command") << QStringLiteral("SaveSpectrum") << true;
}

void tst_QKXPlotManager::saveTraceCommand()
{
    QFETCH(QString, command);
    QFETCH(bool, shown);
    Screen s;
    s.plot.enableToolBar(true);
    s.plot.setProperty("SaveTraceCommand", command);
    QCOMPARE(s.plot.findChild<QKXSaveTraceButton *>()->isVisible(), shown);
    QCOMPARE(s.plot.property("SaveTraceCommand").toString(), command);
}

void tst_QKXPlotManager::curveStyleReadsBack_data()
{
    QTest::addColumn<int>("written");
    QTest::addColumn<int>("read");
    QTest::addColumn<int>("curveStyle");
    QTest::newRow("dots") << int(QKXPlotManager::DOTS_STYLE) << int(QKXPlotManager::DOTS_STYLE) << int(QwtPlotCurve::Dots);
    QTest::newRow("lines") << int(QKXPlotManager::LINES_STYLE) << int(QKXPlotManager::LINES_STYLE) << int(QwtPlotCurve::Lines);
    QTest::newRow("7") << 7 << int(QKXPlotManager::LINES_STYLE) << int(QwtPlotCurve::Lines);
}

void tst_QKXPlotManager::curveStyleReadsBack()
{
    QFETCH(int, written);
    QFETCH(int, read);
    QFETCH(int, curveStyle);
    QKXPlotManager plot;
    plot.addTraceType(Basic, QStringLiteral("spectrum"));
    plot.setCurveStyle(QKXPlotManager::DOTS_STYLE);
    plot.setCurveStyle(QKXPlotManager::PlotCurveStyle(written));
    QCOMPARE(int(plot.getCurveStyle()), read);
    QCOMPARE(int(plot.getPlotInterface()->getTrace(QStringLiteral("spectrum"))->style()), curveStyle);
}

void tst_QKXPlotManager::precisionSwitchingKeepsALiveScaleDraw()
{
    Screen s;
    s.plot.setYLeftScaleEnable(true);
    for (bool precise : {true, false, true, true, false, false, true}) {
        s.plot.setYPrecise(precise);
        const QwtScaleDraw *draw = s.canvas()->axisScaleDraw(QwtPlot::yLeft);
        QCOMPARE(dynamic_cast<const PlotScaleDraw *>(draw) != nullptr, precise);
        QCOMPARE(dynamic_cast<const QKXPrecisionLabel *>(draw) != nullptr, !precise);
        QVERIFY(!s.plot.grab().isNull());
    }
}

void tst_QKXPlotManager::referencePatterns_data()
{
    QTest::addColumn<int>("pattern");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<int>("markers");
    QTest::newRow("16QAM on") << int(QKXPlotManager::CONSTELLATION_16QAM) << true << 16;
    QTest::newRow("16QAM off") << int(QKXPlotManager::CONSTELLATION_16QAM) << false << 0;
    QTest::newRow("eye diagram") << int(QKXPlotManager::EYE_DIAGRAM) << true << 0;
    QTest::newRow("simple line") << int(QKXPlotManager::SIMPLE_LINE) << true << 0;
}

void tst_QKXPlotManager::referencePatterns()
{
    QFETCH(int, pattern);
    QFETCH(bool, enabled);
    QFETCH(int, markers);
    QKXPlotManager plot;
    QwtPlot *canvas = plot.getPlotInterface();
    plot.setRefPattern(QKXPlotManager::CONSTELLATION_4QAM);
    plot.enableRefPattern(true);
    QCOMPARE(canvas->itemList(QwtPlotItem::Rtti_PlotMarker).size(), 4);
    plot.enableRefPattern(enabled);
    plot.setRefPattern(QKXPlotManager::ReferencePattern(pattern));
    QCOMPARE(canvas->itemList(QwtPlotItem::Rtti_PlotMarker).size(), markers);
    // A new size redraws them in place rather than adding more.
    plot.setPatternSize(10);
    QCOMPARE(canvas->itemList(QwtPlotItem::Rtti_PlotMarker).size(), markers);
}

void tst_QKXPlotManager::engineDataLandsWhereTheAxesSay()
{
    Screen s;
    s.plot.enableAutoScale(false);
    s.plot.setXBottomScaleEnable(true);
    s.plot.setYLeftScaleEnable(true);
    s.plot.setYLines(10);
    s.plot.externalUpdateLeftYAxis(10, 0);
    // A flat noise floor at -80 dBm with a carrier at -20 dBm from 400 to 600 Hz.
    QVariantList x;
    QVariantList y;
    for (int i = 0; i <= 1000; ++i) {
        x << double(i);
        y << ((i >= 400 && i <= 600) ? -20.0 : -80.0);
    }
    s.plot.setTrace(Basic, QStringLiteral("spectrum"), basicTrace(1001, x, y, 0, 1000));
    s.canvas()->update();   // the replot tick
    const QImage screen = s.plot.grab().toImage();

    const QwtPlot *canvas = s.canvas();
    const QwtScaleMap xMap = canvas->canvasMap(QwtPlot::xBottom);
    const QwtScaleMap yMap = canvas->canvasMap(QwtPlot::yLeft);
    const auto onScreen = [&](double xValue, double yValue) {
        const QPoint inArea(qRound(xMap.transform(xValue)), qRound(yMap.transform(yValue)));
        return canvas->canvas()->mapTo(&s.plot, inArea);
    };
    const QRgb green = qRgb(0, 255, 0);
    for (double xValue : {50.0, 250.0, 750.0, 950.0}) {
        QCOMPARE(screen.pixel(onScreen(xValue, -80)), green);
        QVERIFY(screen.pixel(onScreen(xValue, -20)) != green);
    }
    for (double xValue : {450.0, 500.0, 550.0}) {
        QCOMPARE(screen.pixel(onScreen(xValue, -20)), green);
        QVERIFY(screen.pixel(onScreen(xValue, -80)) != green);
    }
    // The carrier's edges rise between the pixels of neighbouring points at 400 and 600.
    for (double edge : {400.0, 600.0}) {
        const QPoint p = onScreen(edge, -50);
        QVERIFY(screen.pixel(p - QPoint(1, 0)) == green || screen.pixel(p) == green || screen.pixel(p + QPoint(1, 0)) == green);
    }
}

QTEST_MAIN(tst_QKXPlotManager)
#include "tst_QKXPlotManager.moc"
