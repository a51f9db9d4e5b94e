// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXPLOTINTERFACEIMPL_P_H
#define QKXPLOTINTERFACEIMPL_P_H

//
//  W A R N I N G
//  -------------
// Not part of the library's public API: the plot manager keeps the canvas's trace range, point count
// and tool-bar flag up to date through this class.
//

#include "QKXPlotInterfaceImpl.h"

#include <QHash>
#include <QMutex>
#include <QPoint>
#include <QString>

class CustomMarker;
class QKXReplotThread;
class QwtPlotPicker;

class STANDALONEPLUGINS_EXPORT QKXPlotInterfaceImplPrivate
{
public:
    explicit QKXPlotInterfaceImplPrivate(QWidget *parentWidget);
    ~QKXPlotInterfaceImplPrivate();

    static QKXPlotInterfaceImplPrivate *get(QKXPlotInterfaceImpl *canvas) { return canvas->d_func(); }

    // Gestures other than dragging a marker need the tool bar and an unlocked screen.
    bool touchAllowed() const { return toolBarEnabled && !screenLocked; }
    double &lines(int axis);

    QWidget *parentWidget;
    QPoint pressPos;
    bool zoomOut;
    double moveOffsetX;
    double moveOffsetY;
    double unitsPerPixelX;
    double unitsPerPixelY;
    double xLines;
    double yLeftLines;
    double yRightLines;
    double pressXMin;
    double pressXMax;
    double traceXMin;
    double traceXMax;
    double pressYMin;
    double pressYMax;
    double xMin;
    double xMax;
    double yLeftMin;
    double yLeftMax;
    double yRightMin;
    double yRightMax;
    bool moveEnabled;
    bool screenLocked;
    bool toolBarEnabled;
    bool pressOutside;
    bool markerDragging;
    bool fixedGrid;
    bool autoScale;
    bool useTwoAxes;
    bool xBottomShown;
    bool yLeftShown;
    bool yRightShown;
    bool replotRequested;
    QString yLeftLabel;
    QString yLeftUnits;
    QString yRightLabel;
    QString yRightUnits;
    QString xBottomLabel;
    QString xBottomUnits;
    QString movingMarker;
    int pointCount;
    QwtPlotPicker *picker;
    QwtPlotCurve::CurveStyle curveStyle;
    QHash<QString, CustomMarker *> markers;
    QHash<QString, QwtPlotCurve *> traces;
    QMutex traceLock;
    QKXReplotThread *replotThread;
};

#endif // QKXPLOTINTERFACEIMPL_P_H
