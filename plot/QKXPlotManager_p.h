// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXPLOTMANAGER_P_H
#define QKXPLOTMANAGER_P_H

//
//  W A R N I N G
//  -------------
// Not part of the library's public API: the complex-trace plot builds on this Private.
//

#include "QKXPlotManager.h"
#include "QKXWidgetBase_p.h"

class PlotScaleDraw;
class QFrame;
class QKXPlotRefPatternManager;
class QKXSaveTraceButton;
class QPushButton;
class QwtPlotGrid;
class QwtScaleDraw;

class STANDALONEPLUGINS_EXPORT QKXPlotManagerPrivate : public QKXWidgetBasePrivate
{
    Q_OBJECT
public:
    explicit QKXPlotManagerPrivate(QKXPlotManager *q);
    ~QKXPlotManagerPrivate() override;

    static QKXPlotManagerPrivate *get(QKXPlotManager *manager) { return manager->d_func(); }

    void init() override;
    void changeSize(const QString &size) override;
    void updateStyle() override;

    virtual void setXAxis(double ll, double ul);
    virtual void addTraceType(const QString &type, const QString &topicName);
    virtual void setTrace(const QString &type, const QString &topName, QVariant data);

    void setBasicTrace(const QString &topicName, const QVariant &data);
    void setComplexTrace(const QString &topicName, const QVariant &data);
    void setRefPattern(QKXPlotManager::ReferencePattern pattern);
    void enableRefPattern(bool enable);
    void setPatternSize(int size);
    void setRefRadius(double radius);
    void setYPrecise(bool precise);
    void setZoomAllVisible(bool visible);
    void enableToolBar(bool enable);
    void setBorderVisible(bool visible);
    void setSaveTraceCmd(const QString &command);
    // Wires a canvas into the tool box, the grid and the manager's slots.
    void connectCanvas();

    QKXPlotInterfaceImpl *canvas;
    QKXPlotRefPatternManager *refPatterns;
    QKXPlotManager::ReferencePattern refPattern;
    PlotScaleDraw *preciseScaleDraw;
    QwtScaleDraw *defaultScaleDraw;
    QwtPlotGrid *grid;
    bool yPrecise;
    bool plotLocked;
    bool zoomAllVisible;
    QString styleSheet;
    bool zoomMode;
    QPushButton *handButton;
    QPushButton *zoomButton;
    QPushButton *zoomInButton;
    QPushButton *zoomOutButton;
    QPushButton *reloadButton;
    QKXSaveTraceButton *saveTraceButton;
    QFrame *toolBox;
    bool toolBarEnabled;
    bool borderVisible;
    double traceXMin;
    double traceXMax;
    bool refPatternEnabled;
    int patternSize;
    double refRadius;
    int pointCount;
    bool moveInProgress;
    bool drawnOnce;
    double *xData;
    double *yData;
    double divisionValue;
    double topValue;

Q_SIGNALS:
    void replotTrace();
    void moveMarker(QString, int);
    void updateTrace(QString, const double *, const double *, int);
    void plotScaleUpdate(double, double, double, double);
    void xScaleUpdate(double, double);
    void updateXAxis(double, double);
    void updateYAxis(int, double, double);

public Q_SLOTS:
    void reqMarkerMove(QString marker, int pos);
    void plotMoveEvent(bool moveInProggress);
    void externalUpdateUlLeftYAxis(double ul);
    void externalUpdateLlLeftYAxis(double ll);
    void externalUpdateLeftYAxis(double ll, double ul);
    void setNewTopDiv(double ll, double ul);

private Q_SLOTS:
    void selectHand();
    void selectZoom();
    void selectZoomIn();
    void selectZoomOut();
    void showRefPatterns();

private:
    // Takes the trace's point count when its two lists hold that many points; otherwise writes a
    // line naming what is wrong and answers false, leaving the previous count and display.
    bool acceptPointCount(const QString &topicName, const QVariantList &trace, int count, int xIndex, int yIndex);
    void freePoints();

    KX_DECLARE_PUBLIC(QKXPlotManager)
};

#endif // QKXPLOTMANAGER_P_H
