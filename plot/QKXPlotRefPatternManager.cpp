// SPDX-License-Identifier: BSD-3-Clause
#include "QKXPlotRefPatternManager.h"

#include <QBrush>
#include <QPen>
#include <qwt_plot.h>
#include <qwt_plot_marker.h>
#include <qwt_symbol.h>
#include <qwt_text.h>

#include <cmath>

static const char *const kx_pointTemplate = QT_TRANSLATE_NOOP("QKXPlotRefPatternManager", "P%1");
static const char *const kx_stateTemplate = QT_TRANSLATE_NOOP("QKXPlotRefPatternManager", "state %1");

struct QKXPlotRefPatternManager::Data
{
    int markerSize = 20;
    double radius = 3.0;
    QKXPlotManager::ReferencePattern pattern = QKXPlotManager::CONSTELLATION_16QAM;
    QList<QwtPlotMarker *> patterns;
    QString labelTemplate;
};

QKXPlotRefPatternManager::QKXPlotRefPatternManager(QObject *parent)
    : QObject(parent)
    , d(new Data)
{
}

QKXPlotRefPatternManager::~QKXPlotRefPatternManager()
{
    removeAllPatterns();
}

QList<QwtPlotMarker *> QKXPlotRefPatternManager::patternMarkers() const
{
    return d->patterns;
}

QKXPlotManager::ReferencePattern QKXPlotRefPatternManager::pattern() const
{
    return d->pattern;
}

int QKXPlotRefPatternManager::markerSize() const
{
    return d->markerSize;
}

double QKXPlotRefPatternManager::radius() const
{
    return d->radius;
}

void QKXPlotRefPatternManager::addPatterns(QwtPlot *plot, QKXPlotManager::ReferencePattern style,
                                           int markerSize, double radium)
{
    if (!d->patterns.isEmpty()) {
        removeAllPatterns();
    }
    d->markerSize = markerSize;
    d->radius = radium;
    d->pattern = style;
    switch (style) {
    case QKXPlotManager::CONSTELLATION_BPSK:
        createPSKPatterns(2);
        break;
    case QKXPlotManager::CONSTELLATION_8BPSK:
        createPSKPatterns(8);
        break;
    case QKXPlotManager::CONSTELLATION_4QAM:
        createQAMPatterns(4);
        break;
    case QKXPlotManager::CONSTELLATION_16QAM:
        createQAMPatterns(16);
        break;
    case QKXPlotManager::CONSTELLATION_64QAM:
        createQAMPatterns(64);
        break;
    case QKXPlotManager::CONSTELLATION_256QAM:
        createQAMPatterns(256);
        break;
    case QKXPlotManager::CONSTELLATION_FSK:
        createFSKPatterns(2);
        break;
    case QKXPlotManager::CONSTELLATION_4FSK:
        createFSKPatterns(4);
        break;
    default:
        break;
    }
    if (plot) {
        for (QwtPlotMarker *marker : qAsConst(d->patterns)) {
            marker->attach(plot);
        }
    }
    retranslate();
}

void QKXPlotRefPatternManager::removeAllPatterns()
{
    while (!d->patterns.isEmpty()) {
        QwtPlotMarker *marker = d->patterns.takeFirst();
        marker->detach();
        delete marker;
    }
}

void QKXPlotRefPatternManager::retranslate()
{
    const QString translated = tr(d->labelTemplate.toUtf8().constData());
    for (int i = 0; i < d->patterns.size(); ++i) {
        QwtText label = d->patterns.at(i)->label();
        label.setText(translated.arg(i));
        d->patterns.at(i)->setLabel(label);
    }
}

void QKXPlotRefPatternManager::createPSKPatterns(int n)
{
    d->labelTemplate = QLatin1String(kx_pointTemplate);
    const int step = 360 / n;
    for (int i = 0; i < n; ++i) {
        const int degrees = i * step;
        const double a = degrees * 3.14159265 / 180;
        // The label sits outside the circle.
        Qt::Alignment alignment;
        if (degrees == 90) {
            alignment = Qt::AlignTop | Qt::AlignHCenter;
        } else if (degrees == 270) {
            alignment = Qt::AlignBottom | Qt::AlignHCenter;
        } else if (degrees < 90 || degrees > 270) {
            alignment = Qt::AlignRight | Qt::AlignVCenter;
        } else {
            alignment = Qt::AlignLeft | Qt::AlignVCenter;
        }
        QwtPlotMarker *marker = createDiagramPattern(d->labelTemplate.arg(i), alignment,
                                                     QSize(d->markerSize, d->markerSize));
        marker->setValue(d->radius * std::cos(a), d->radius * std::sin(a));
        d->patterns.append(marker);
    }
}

void QKXPlotRefPatternManager::createQAMPatterns(int n)
{
    d->labelTemplate = QLatin1String(kx_stateTemplate);
    const int side = int(std::sqrt(double(n)));
    const double step = 2 * d->radius / (side - 1);
    int number = 0;
    for (int row = 0; row < side; ++row) {
        for (int column = 0; column < side; ++column) {
            QwtPlotMarker *marker = createDiagramPattern(d->labelTemplate.arg(number), Qt::AlignBottom | Qt::AlignHCenter,
                                                         QSize(d->markerSize, d->markerSize));
            marker->setValue(-d->radius + column * step, d->radius - row * step);
            d->patterns.append(marker);
            ++number;
        }
    }
}

void QKXPlotRefPatternManager::createFSKPatterns(int n)
{
    d->labelTemplate = QLatin1String(kx_pointTemplate);
    for (int i = 0; i < n; ++i) {
        QwtPlotMarker *marker = createDiagramPattern(d->labelTemplate.arg(i), Qt::AlignTop | Qt::AlignHCenter,
                                                     QSize(d->markerSize, d->markerSize));
        marker->setValue(-d->radius + i * 2 * d->radius / (n - 1), 0.0);
        d->patterns.append(marker);
    }
}

QwtPlotMarker *QKXPlotRefPatternManager::createDiagramPattern(const QString &label, Qt::Alignment alignment, QSize size)
{
    auto *marker = new QwtPlotMarker;
    marker->setLabelAlignment(alignment);
    marker->setSymbol(new QwtSymbol(QwtSymbol::Ellipse, QBrush(QColor(0, 80, 80)), QPen(Qt::white), size));
    QwtText text(label, QwtText::AutoText);
    // The canvas is black whatever paints it; a label without a colour would take the painter's.
    text.setColor(Qt::white);
    marker->setLabel(text);
    marker->setZ(-1);
    return marker;
}
