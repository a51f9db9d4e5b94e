// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXPLOTREFPATTERNMANAGER_H
#define QKXPLOTREFPATTERNMANAGER_H

#include "QKXPlotManager.h"

#include <QList>
#include <QObject>
#include <QScopedPointer>
#include <QSize>

class QwtPlot;
class QwtPlotMarker;

// The ideal symbol positions of a digital modulation, drawn over a constellation plot: points on a
// circle for phase-shift keying, a square grid for QAM, points on the in-phase axis for FSK. Each
// point is a marker with a small round symbol and a label, behind the traces.
class STANDALONEPLUGINS_EXPORT QKXPlotRefPatternManager : public QObject
{
    Q_OBJECT
public:
    explicit QKXPlotRefPatternManager(QObject *parent = nullptr);
    ~QKXPlotRefPatternManager() override;

    // The markers drawn, in their numbering order.
    QList<QwtPlotMarker *> patternMarkers() const;
    QKXPlotManager::ReferencePattern pattern() const;
    int markerSize() const;
    double radius() const;

public Q_SLOTS:
    void addPatterns(QwtPlot *plot, QKXPlotManager::ReferencePattern style, int markerSize, double radium);
    void removeAllPatterns();
    virtual void retranslate();

protected:
    void createPSKPatterns(int n);
    void createQAMPatterns(int n);
    void createFSKPatterns(int n);
    QwtPlotMarker *createDiagramPattern(const QString &label, Qt::Alignment alignment, QSize size);

private:
    Q_DISABLE_COPY(QKXPlotRefPatternManager)
    struct Data;
    QScopedPointer<Data> d;
};

#endif // QKXPLOTREFPATTERNMANAGER_H
