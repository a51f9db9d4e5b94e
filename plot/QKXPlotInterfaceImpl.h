// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXPLOTINTERFACEIMPL_H
#define QKXPLOTINTERFACEIMPL_H

#include "standaloneplugins_export.h"

#include <QImage>
#include <QScopedPointer>
#include <QStringList>
#include <qwt_plot.h>
#include <qwt_plot_curve.h>

class QKXPlotInterfaceImplPrivate;

// The drawing surface of every plot: one curve per trace topic, axis limits with their divisions,
// markers, and touch pan and zoom. It never replots on a change; it raises a request, and its replot
// thread's tick (every 33 ms) redraws at most once per tick.
//
// Choices of ours:
// - An axis range that is not a finite span above 1e-12 is ignored whole, its limits included, so
//   the limit getters keep reporting what the axis shows.
// - Creating a marker under a key that already has one replaces that marker; the old one goes.
// - A marker move request on a trace of one point or none asks for index 0.
// - Division counts outside 1 to 1000 are reported and not taken.
// - Gestures map the pointer into the drawing area's own coordinates before turning it into axis
//   values.
class STANDALONEPLUGINS_EXPORT QKXPlotInterfaceImpl : public QwtPlot
{
    Q_OBJECT
public:
    // The widget is only remembered; the canvas gets its Qt parent from the layout it is put in.
    explicit QKXPlotInterfaceImpl(QWidget *parent = nullptr);
    ~QKXPlotInterfaceImpl() override;

    virtual void addTraceType(const QString &type, const QString &topicName);
    virtual void retranslate();

    QwtPlotCurve *getTrace(const QString &topicName);
    QStringList getTraceList();
    void setTraceVisible(const QString &topicName, bool visible);

    void createMarker(const QString &key, const QImage &image, double x, double y);
    void setMarker(const QString &key, double x, double y);
    void removeMarker(const QString &key);
    void setMarkerFocus(const QString &key, bool focus);
    bool hasMarker(const QString &key) const;

    // Hand (pan) mode when true, zoom mode when false.
    void setMoveEnable(bool enable);
    bool isMoveEnabled() const;
    // The direction of a double-click zoom: out when true.
    void setZoomType(bool zoomOut);
    void enableAutoScale(bool enable);
    bool isAutoScale() const;
    bool isFixedGrid() const;
    bool isScreenLocked() const;
    void setUseTwoAxes(bool use);
    bool useTwoAxes() const;
    QwtPlotCurve::CurveStyle curveStyle() const;

    double xLines() const;
    double yLeftLines() const;
    double yRightLines() const;

    void setXBottomScaleLLimit(double limit);
    void setXBottomScaleULimit(double limit);
    void setYLeftScaleLLimit(double limit);
    void setYLeftScaleULimit(double limit);
    void setYRightScaleLLimit(double limit);
    void setYRightScaleULimit(double limit);
    double getXBottomScaleLLimit() const;
    double getXBottomScaleULimit() const;
    double getYLeftScaleLLimit() const;
    double getYLeftScaleULimit() const;
    double getYRightScaleLLimit() const;
    double getYRightScaleULimit() const;

    void setXBottomLabel(const QString &label);
    void setYLeftLabel(const QString &label);
    void setYRightLabel(const QString &label);
    void setXBottomUnits(const QString &units);
    void setYLeftUnits(const QString &units);
    void setYRightUnits(const QString &units);
    QString getXBottomLabel() const;
    QString getYLeftLabel() const;
    QString getYRightLabel() const;

    void setXBottomScaleEnable(bool enable);
    void setYLeftScaleEnable(bool enable);
    void setYRightScaleEnable(bool enable);
    bool getXBottomScaleEnable() const;
    bool getYLeftScaleEnable() const;
    bool getYRightScaleEnable() const;

    void initAxes();
    void moveGraph(QPoint distance);
    // Axis 0 is the left axis, 1 the right one, 2 the bottom one.
    void calculateAxis(int axis, double min, double max);

Q_SIGNALS:
    void replotTrace();
    void newXLimits(double ll, double ul);
    void newYLimits(int channel, double ll, double ul);
    void plotScaleUpdate(double, double, double, double);
    // The left axis's new lower and upper limit after a pan or zoom.
    void newTopDiv(double, double);
    void markerMoveRequest(const QString &marker, double value);
    void markerMoveEnable(const QString &marker, bool enable);
    // A marker should move to this point index of the trace (-1: the marker was taken).
    void moveMarker(const QString &marker, int index);
    // A touch gesture starts (true) or ends (false).
    void plotMoveEvent(bool);

public Q_SLOTS:
    // The replot tick: redraws when a replot was requested since the last one. It hides
    // QWidget::update() for whoever holds a QKXPlotInterfaceImpl.
    void update();
    void requestReplot();
    void RestoreBoundries();
    virtual void changeSize(const QString &size);
    void setScreenLocked(bool locked);
    void updatePlot(const QString &topicName, const double *x, const double *y, int size);
    void setXLines(int xLines);
    void setYLeftLines(int yLines);
    void setYRightLines(int yLines);
    void setYAxis(int channel, double ll, double ul);
    void setXAxis(double ll, double ul);
    void setCurveStyle(QwtPlotCurve::CurveStyle style);
    void reqMarkerMove(const QString &marker, double val);
    void markerMoveMode(const QString &marker, bool enable);
    void enableFixedGrid(bool enable);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;

    QScopedPointer<QKXPlotInterfaceImplPrivate> d_ptr;

private:
    Q_DISABLE_COPY(QKXPlotInterfaceImpl)
    Q_DECLARE_PRIVATE(QKXPlotInterfaceImpl)
};

#endif // QKXPLOTINTERFACEIMPL_H
