// SPDX-License-Identifier: BSD-3-Clause
#include "KXTestSupport.h"
#include "QKXPlotRefPatternManager.h"

#include <qwt_plot.h>
#include <qwt_plot_marker.h>
#include <qwt_symbol.h>
#include <qwt_text.h>

using namespace kxtest;

namespace {

int attachedMarkers(QwtPlot *plot)
{
    return plot->itemList(QwtPlotItem::Rtti_PlotMarker).size();
}

} // namespace

class tst_QKXPlotRefPatternManager : public QObject
{
    Q_OBJECT

private slots:
    void points_data();
    void points();
    void aNewPatternReplacesTheOld_data();
    void aNewPatternReplacesTheOld();
    void labelsFollowTheLanguage();
};

void tst_QKXPlotRefPatternManager::points_data()
{
    QTest::addColumn<int>("pattern");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("index");
    QTest::addColumn<QPointF>("position");
    QTest::addColumn<int>("alignment");
    QTest::addColumn<QString>("label");

    const int right = Qt::AlignRight | Qt::AlignVCenter;
    const int left = Qt::AlignLeft | Qt::AlignVCenter;
    const int above = Qt::AlignTop | Qt::AlignHCenter;
    const int below = Qt::AlignBottom | Qt::AlignHCenter;
    using M = QKXPlotManager;
    QTest::newRow("BPSK 0") << int(M::CONSTELLATION_BPSK) << 2 << 0 << QPointF(3, 0) << right << "P0";
    QTest::newRow("BPSK 1") << int(M::CONSTELLATION_BPSK) << 2 << 1 << QPointF(-3, 0) << left << "P1";
    QTest::newRow("8PSK 1") << int(M::CONSTELLATION_8BPSK) << 8 << 1 << QPointF(2.12132, 2.12132) << right << "P1";
    QTest::newRow("8PSK 2") << int(M::CONSTELLATION_8BPSK) << 8 << 2 << QPointF(0, 3) << above << "P2";
    QTest::newRow("8PSK 5") << int(M::CONSTELLATION_8BPSK) << 8 << 5 << QPointF(-2.12132, -2.12132) << left << "P5";
    QTest::newRow("8PSK 6") << int(M::CONSTELLATION_8BPSK) << 8 << 6 << QPointF(0, -3) << below << "P6";
    QTest::newRow("4QAM 0") << int(M::CONSTELLATION_4QAM) << 4 << 0 << QPointF(-3, 3) << below << "state 0";
    QTest::newRow("4QAM 1") << int(M::CONSTELLATION_4QAM) << 4 << 1 << QPointF(3, 3) << below << "state 1";
    QTest::newRow("4QAM 3") << int(M::CONSTELLATION_4QAM) << 4 << 3 << QPointF(3, -3) << below << "state 3";
    QTest::newRow("16QAM 5") << int(M::CONSTELLATION_16QAM) << 16 << 5 << QPointF(-1, 1) << below << "state 5";
    QTest::newRow("16QAM 15") << int(M::CONSTELLATION_16QAM) << 16 << 15 << QPointF(3, -3) << below << "state 15";
    QTest::newRow("64QAM 9") << int(M::CONSTELLATION_64QAM) << 64 << 9 << QPointF(-3 + 6.0 / 7, 3 - 6.0 / 7) << below << "state 9";
    QTest::newRow("256QAM 255") << int(M::CONSTELLATION_256QAM) << 256 << 255 << QPointF(3, -3) << below << "state 255";
    QTest::newRow("FSK 1") << int(M::CONSTELLATION_FSK) << 2 << 1 << QPointF(3, 0) << above << "P1";
    QTest::newRow("4FSK 1") << int(M::CONSTELLATION_4FSK) << 4 << 1 << QPointF(-1, 0) << above << "P1";
    QTest::newRow("4FSK 2") << int(M::CONSTELLATION_4FSK) << 4 << 2 << QPointF(1, 0) << above << "P2";
}

void tst_QKXPlotRefPatternManager::points()
{
    QFETCH(int, pattern);
    QFETCH(int, count);
    QFETCH(int, index);
    QFETCH(QPointF, position);
    QFETCH(int, alignment);
    QFETCH(QString, label);
    QwtPlot plot;
    QKXPlotRefPatternManager patterns;
    patterns.addPatterns(&plot, QKXPlotManager::ReferencePattern(pattern), 12, 3.0);

    const QList<QwtPlotMarker *> markers = patterns.patternMarkers();
    QCOMPARE(markers.size(), count);
    QCOMPARE(attachedMarkers(&plot), count);
    const QwtPlotMarker *marker = markers.at(index);
    QVERIFY(qAbs(marker->xValue() - position.x()) < 1e-5);
    QVERIFY(qAbs(marker->yValue() - position.y()) < 1e-5);
    QCOMPARE(int(marker->labelAlignment()), alignment);
    QCOMPARE(marker->label().text(), label);
    // Round symbols of the given size, behind the traces.
    QCOMPARE(marker->symbol()->style(), QwtSymbol::Ellipse);
    QCOMPARE(marker->symbol()->size(), QSize(12, 12));
    QCOMPARE(marker->symbol()->brush().color(), QColor(0, 80, 80));
    QCOMPARE(marker->z(), -1.0);
}

void tst_QKXPlotRefPatternManager::aNewPatternReplacesTheOld_data()
{
    QTest::addColumn<int>("second");
    QTest::addColumn<int>("count");
    QTest::newRow("4QAM") << int(QKXPlotManager::CONSTELLATION_4QAM) << 4;
    QTest::newRow("simple line") << int(QKXPlotManager::SIMPLE_LINE) << 0;
    QTest::newRow("eye diagram") << int(QKXPlotManager::EYE_DIAGRAM) << 0;
}

void tst_QKXPlotRefPatternManager::aNewPatternReplacesTheOld()
{
    QFETCH(int, second);
    QFETCH(int, count);
    QwtPlot plot;
    QKXPlotRefPatternManager patterns;
    patterns.addPatterns(&plot, QKXPlotManager::CONSTELLATION_16QAM, 20, 3.0);
    patterns.addPatterns(&plot, QKXPlotManager::ReferencePattern(second), 20, 3.0);
    QCOMPARE(patterns.patternMarkers().size(), count);
    QCOMPARE(attachedMarkers(&plot), count);
}

void tst_QKXPlotRefPatternManager::labelsFollowTheLanguage()
{
    QwtPlot plot;
    QKXPlotRefPatternManager patterns;
    patterns.addPatterns(&plot, QKXPlotManager::CONSTELLATION_4QAM, 20, 3.0);
    WordTranslator german("state %1", "Zustand %1");
    QCoreApplication::installTranslator(&german);
    patterns.retranslate();
    QCoreApplication::removeTranslator(&german);
    QCOMPARE(patterns.patternMarkers().at(3)->label().text(), QStringLiteral("Zustand 3"));
    patterns.retranslate();
    QCOMPARE(patterns.patternMarkers().at(3)->label().text(), QStringLiteral("state 3"));
}

QTEST_MAIN(tst_QKXPlotRefPatternManager)
#include "tst_QKXPlotRefPatternManager.moc"
