// SPDX-License-Identifier: BSD-3-Clause
#include "KXTestSupport.h"
#include "PlotTestSupport.h"
#include "QKXComplexTraceManager.h"
#include "QKXComplexTracePattern.h"
#include "QKXComplexTracePlot.h"
#include "QKXComplexTraceRange.h"
#include "QKXPlotInterfaceImpl.h"

#include <qwt_plot_curve.h>
#include <qwt_plot_marker.h>
#include <qwt_scale_div.h>
#include <qwt_symbol.h>

using namespace kxtest;

namespace {

const QString Complex = QStringLiteral("EngineReadingComplexTrace");

QVariantList numbers(std::initializer_list<double> values)
{
    QVariantList list;
    for (double v : values)
        list << v;
    return list;
}

QPair<double, double> axis(QKXComplexTraceManager &manager, int id)
{
    const QwtScaleDiv div = manager.getTracePlot()->getPlotInterface()->axisScaleDiv(id);
    return qMakePair(div.lowerBound(), div.upperBound());
}

QList<QwtPlotMarker *> markersOn(QKXComplexTraceManager &manager)
{
    QList<QwtPlotMarker *> markers;
    for (QwtPlotItem *item : manager.getTracePlot()->getPlotInterface()->itemList(QwtPlotItem::Rtti_PlotMarker))
        markers << static_cast<QwtPlotMarker *>(item);
    return markers;
}

const QVariantList FourPoints{4, numbers({-1, 1, -1, 1}), numbers({1, 1, -1, -1})};

} // namespace

class tst_QKXComplexTraceManager : public QObject
{
    Q_OBJECT

private slots:
    void rangeTraces_data();
    void rangeTraces();
    void patternPointsFollowTheirSettings();
    void patternTraceThatDoesNotHoldItsPoints_data();
    void patternTraceThatDoesNotHoldItsPoints();
    void unknownPatternStyleDrawsEllipses();
    void theMeasuredPointsTakeComplexTracesOnly();
    void otherTraceTypesAreReported();
};

void tst_QKXComplexTraceManager::rangeTraces_data()
{
    QTest::addColumn<QVariant>("trace");
    QTest::addColumn<QPointF>("xRange");
    QTest::addColumn<QPointF>("yRange");
    QTest::addColumn<int>("lines");
    QTest::newRow("two points") << QVariant(QVariantList{2, numbers({-2, 2}), numbers({-3, 3})}) << QPointF(-2, 2)
                                << QPointF(-3, 3) << 0;
    QTest::newRow("one point") << QVariant(QVariantList{1, numbers({5}), numbers({5})}) << QPointF(-1.5, 1.5)
                               << QPointF(-1.5, 1.5) << 0;
    QTest::newRow("lists shorter than two") << QVariant(QVariantList{2, numbers({5}), numbers({5, 6})})
                                            << QPointF(-1.5, 1.5) << QPointF(-1.5, 1.5) << 1;
    QTest::newRow("two elements") << QVariant(QVariantList{2, numbers({-2, 2})}) << QPointF(-1.5, 1.5)
                                  << QPointF(-1.5, 1.5) << 1;
}

void tst_QKXComplexTraceManager::rangeTraces()
{
    QFETCH(QVariant, trace);
    QFETCH(QPointF, xRange);
    QFETCH(QPointF, yRange);
    QFETCH(int, lines);
    QKXComplexTraceManager manager;
    QCOMPARE(axis(manager, QwtPlot::xBottom), qMakePair(-1.5, 1.5));
    QCOMPARE(axis(manager, QwtPlot::yLeft), qMakePair(-1.5, 1.5));
    QSignalSpy changed(manager.getTraceRange(), &QKXComplexTraceRange::traceRangeChanged);
    DebugLines debug;
    manager.getTraceRange()->setTrace(Complex, QStringLiteral("range"), trace);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(axis(manager, QwtPlot::xBottom), qMakePair(xRange.x(), xRange.y()));
    QCOMPARE(axis(manager, QwtPlot::yLeft), qMakePair(yRange.x(), yRange.y()));
    QCOMPARE(DebugLines::lines().size(), lines);
}

void tst_QKXComplexTraceManager::patternPointsFollowTheirSettings()
{
    QKXComplexTraceManager manager;
    manager.setPatternStyle(QKXComplexTracePattern::DIAMOND);
    manager.setPatternSize(14);
    QKXComplexTracePattern *pattern = manager.getTracePlotPattern();

    // Disabled: built, not shown.
    pattern->setTrace(Complex, QStringLiteral("pattern"), FourPoints);
    QCOMPARE(pattern->getTracePatterns().size(), 4);
    QVERIFY(markersOn(manager).isEmpty());

    manager.enablePattern(true);
    QList<QwtPlotMarker *> shown = markersOn(manager);
    QCOMPARE(shown.size(), 4);
    QwtPlotMarker *last = pattern->getTracePatterns().last();
    QCOMPARE(QPointF(last->xValue(), last->yValue()), QPointF(1, -1));
    QCOMPARE(last->symbol()->style(), QwtSymbol::Diamond);
    QCOMPARE(last->symbol()->size(), QSize(14, 14));
    QVERIFY(last->isVisible());
    QCOMPARE(last->z(), -1.0);   // behind the measured points

    manager.setPatternStyle(QKXComplexTracePattern::STAR);
    QCOMPARE(markersOn(manager).size(), 4);
    QCOMPARE(last->symbol()->style(), QwtSymbol::Star1);
    QCOMPARE(QPointF(last->xValue(), last->yValue()), QPointF(1, -1));

    // The next pattern trace replaces the points.
    pattern->setTrace(Complex, QStringLiteral("pattern"), QVariantList{2, numbers({0, 1}), numbers({0, 1})});
    QCOMPARE(markersOn(manager).size(), 2);

    pattern->setRefPattern(QKXComplexTracePattern::CONSTELLATION_16QAM);
    QVERIFY(pattern->getTracePatterns().isEmpty());
    QVERIFY(markersOn(manager).isEmpty());
}

void tst_QKXComplexTraceManager::patternTraceThatDoesNotHoldItsPoints_data()
{
    QTest::addColumn<QVariant>("trace");
    QTest::newRow("short lists") << QVariant(QVariantList{5, numbers({1, 2}), numbers({1, 2})});
    QTest::newRow("two elements") << QVariant(QVariantList{2, numbers({1, 2})});
    QTest::newRow("negative count") << QVariant(QVariantList{-2, numbers({1, 2}), numbers({1, 2})});
    QTest::newRow("no list") << QVariant(QStringLiteral("4"));
}

void tst_QKXComplexTraceManager::patternTraceThatDoesNotHoldItsPoints()
{
    QFETCH(QVariant, trace);
    QKXComplexTraceManager manager;
    manager.enablePattern(true);
    QKXComplexTracePattern *pattern = manager.getTracePlotPattern();
    pattern->setTrace(Complex, QStringLiteral("pattern"), FourPoints);
    DebugLines debug;
    pattern->setTrace(Complex, QStringLiteral("pattern"), trace);
    QCOMPARE(markersOn(manager).size(), 4);
    QCOMPARE(DebugLines::lines().size(), 1);
    QVERIFY(DebugLines::lines().first().startsWith(QStringLiteral("UserInterface - QKXComplexTracePattern")));
}

void tst_QKXComplexTraceManager::unknownPatternStyleDrawsEllipses()
{
    QKXComplexTraceManager manager;
    manager.enablePattern(true);
    manager.getTracePlotPattern()->setTrace(Complex, QStringLiteral("pattern"), FourPoints);
    DebugLines debug;
    manager.setPatternStyle(QKXComplexTracePattern::PatternStyle(9));
    QCOMPARE(markersOn(manager).first()->symbol()->style(), QwtSymbol::Ellipse);
    QVERIFY(DebugLines::lines().contains(QStringLiteral("UserInterface - Unknown pattern style: 9")));
}

void tst_QKXComplexTraceManager::theMeasuredPointsTakeComplexTracesOnly()
{
    qApp->setProperty("state", QStringLiteral("initialized"));
    QKXComplexTraceManager manager;
    QKXComplexTracePlot *plot = manager.getTracePlot();
    plot->addTraceType(Complex, QStringLiteral("iq"));
    manager.show();
    QVERIFY(QTest::qWaitForWindowExposed(&manager));
    DebugLines debug;
    plot->setTrace(QStringLiteral("EngineBasicTrace"), QStringLiteral("iq"),
                   QVariantList{2, 0.0, 1.0, QString(), QString(), numbers({0, 1}), numbers({0, 1})});
    QCOMPARE(int(plot->getPlotInterface()->getTrace(QStringLiteral("iq"))->dataSize()), 0);
    QCOMPARE(DebugLines::lines(), QStringList{QStringLiteral(
        "UserInterface - EngineBasicTrace or EngineReadingComplexTrace. But received: \"EngineBasicTrace\" , ( \"iq\" )")});

    plot->setTrace(Complex, QStringLiteral("iq"), FourPoints);
    QCOMPARE(int(plot->getPlotInterface()->getTrace(QStringLiteral("iq"))->dataSize()), 4);
    qApp->setProperty("state", QVariant());
}

void tst_QKXComplexTraceManager::otherTraceTypesAreReported()
{
    QKXComplexTraceManager manager;
    DebugLines debug;
    manager.getTracePlotPattern()->addTraceType(Complex, QStringLiteral("pattern"));
    manager.getTraceRange()->addTraceType(Complex, QStringLiteral("range"));
    QVERIFY(DebugLines::lines().isEmpty());
    manager.getTracePlotPattern()->addTraceType(QStringLiteral("EngineScalar"), QStringLiteral("pattern"));
    manager.getTraceRange()->addTraceType(QStringLiteral("EngineScalar"), QStringLiteral("range"));
    QCOMPARE(DebugLines::lines(),
             (QStringList{QStringLiteral("UserInterface - EngineReadingComplexTrace. But received: \"EngineScalar\" , ( \"pattern\" )"),
                          QStringLiteral("UserInterface - EngineReadingComplexTrace. But received: \"EngineScalar\" , ( \"range\" )")}));
}

QTEST_MAIN(tst_QKXComplexTraceManager)
#include "tst_QKXComplexTraceManager.moc"
