// SPDX-License-Identifier: BSD-3-Clause
#ifndef CUSTOMMARKER_H
#define CUSTOMMARKER_H

#include "norvanehost_export.h"

#include <QImage>
#include <QRect>
#include <QScopedPointer>
#include <QString>
#include <qwt_plot_marker.h>

// A marker that the host places on a trace: a picture standing on the marked point, framed while it
// has the focus, that the user can take with a finger and drag along the trace.
class NORVANEHOST_EXPORT CustomMarker : public QwtPlotMarker
{
public:
    CustomMarker();
    ~CustomMarker() override;

    void setMarkerName(const QString &name);
    QString markerName() const;

    // The picture is drawn with its lower edge's centre on the marked point; without one a small
    // diamond stands for it.
    void setMyImage(const QImage &image);
    QImage myImage() const;

    void setIsFocused(bool focused);
    bool isFocused() const;

    // True while the marker follows a finger.
    void setMoveEnable(bool enable);
    bool isMoveEnabled() const;

    // Where a touch takes the marker, in the canvas's coordinates: the picture's rectangle, grown to
    // at least a fingertip (40 x 40). Empty while the marker is not attached to a plot.
    QRect getHitBox() const;

    void draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
              const QRectF &canvasRect) const override;

private:
    Q_DISABLE_COPY(CustomMarker)
    QRectF pictureRect(const QPointF &point) const;

    struct Data;
    QScopedPointer<Data> d;
};

#endif // CUSTOMMARKER_H
