// SPDX-License-Identifier: BSD-3-Clause
#include "CustomMarker.h"

#include <QPainter>
#include <qwt_plot.h>
#include <qwt_scale_map.h>

static const int customMarker_touchSize = 40;
static const QSize customMarker_defaultPicture(14, 14);

struct CustomMarker::Data
{
    QString name;
    QImage image;
    bool focused = false;
    bool moveEnabled = false;
};

CustomMarker::CustomMarker()
    : d(new Data)
{
}

CustomMarker::~CustomMarker() = default;

void CustomMarker::setMarkerName(const QString &name)
{
    d->name = name;
}

QString CustomMarker::markerName() const
{
    return d->name;
}

void CustomMarker::setMyImage(const QImage &image)
{
    d->image = image;
    itemChanged();
}

QImage CustomMarker::myImage() const
{
    return d->image;
}

void CustomMarker::setIsFocused(bool focused)
{
    if (d->focused == focused) {
        return;
    }
    d->focused = focused;
    itemChanged();
}

bool CustomMarker::isFocused() const
{
    return d->focused;
}

void CustomMarker::setMoveEnable(bool enable)
{
    if (d->moveEnabled == enable) {
        return;
    }
    d->moveEnabled = enable;
    itemChanged();
}

bool CustomMarker::isMoveEnabled() const
{
    return d->moveEnabled;
}

QRectF CustomMarker::pictureRect(const QPointF &point) const
{
    const QSizeF size = d->image.isNull() ? QSizeF(customMarker_defaultPicture) : QSizeF(d->image.size());
    return QRectF(point.x() - size.width() / 2.0, point.y() - size.height(), size.width(), size.height());
}

QRect CustomMarker::getHitBox() const
{
    const QwtPlot *owner = plot();
    if (!owner) {
        return QRect();
    }
    const QwtScaleMap xMap = owner->canvasMap(xAxis());
    const QwtScaleMap yMap = owner->canvasMap(yAxis());
    QRectF box = pictureRect(QPointF(xMap.transform(xValue()), yMap.transform(yValue())));
    const qreal growX = qMax<qreal>(0.0, (customMarker_touchSize - box.width()) / 2.0);
    const qreal growY = qMax<qreal>(0.0, (customMarker_touchSize - box.height()) / 2.0);
    box.adjust(-growX, -growY, growX, growY);
    return box.toAlignedRect();
}

void CustomMarker::draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
                        const QRectF &canvasRect) const
{
    const QPointF point(xMap.transform(xValue()), yMap.transform(yValue()));
    const QRectF picture = pictureRect(point);
    painter->save();
    if (d->image.isNull()) {
        const QPointF centre = picture.center();
        const qreal r = picture.width() / 2.0;
        const QPolygonF diamond({QPointF(centre.x(), centre.y() - r), QPointF(centre.x() + r, centre.y()),
                                 QPointF(centre.x(), centre.y() + r), QPointF(centre.x() - r, centre.y())});
        painter->setPen(Qt::NoPen);
        painter->setBrush(QColor(255, 200, 0));
        painter->drawPolygon(diamond);
    } else {
        painter->drawImage(picture.topLeft(), d->image);
    }
    if (d->focused || d->moveEnabled) {
        // Focus is a white frame; a marker under a finger gets a yellow one so it shows which one moves.
        painter->setPen(QPen(d->moveEnabled ? QColor(255, 200, 0) : QColor(Qt::white), 1));
        painter->setBrush(Qt::NoBrush);
        painter->drawRect(picture.adjusted(-2, -2, 1, 1));
    }
    painter->restore();
    // Lines and label, as any marker has them.
    QwtPlotMarker::draw(painter, xMap, yMap, canvasRect);
}
