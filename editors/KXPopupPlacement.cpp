#include "KXPopupPlacement_p.h"

#include <QGuiApplication>
#include <QRect>
#include <QScreen>
#include <QWidget>

QPoint kxpopup::besideWidget(const QWidget *popup, const QWidget *widget, const QSize &popupSize)
{
    const QWidget *area = popup->isWindow() ? nullptr : popup->parentWidget();
    QRect bounds;
    QRect target;
    if (area) {
        bounds = area->rect();
        const QPoint topLeft = area->isAncestorOf(widget) ? widget->mapTo(area, QPoint(0, 0))
                                                          : area->mapFromGlobal(widget->mapToGlobal(QPoint(0, 0)));
        target = QRect(topLeft, widget->size());
    } else {
        QScreen *screen = widget->screen() ? widget->screen() : QGuiApplication::primaryScreen();
        bounds = screen ? screen->availableGeometry() : QRect(QPoint(0, 0), popupSize);
        target = QRect(widget->mapToGlobal(QPoint(0, 0)), widget->size());
    }

    const int areaRight = bounds.x() + bounds.width();
    const int areaBottom = bounds.y() + bounds.height();
    const int w = popupSize.width();
    const int h = popupSize.height();

    int x = target.x() + target.width() + 5;
    int y = target.y() + target.height() + 5;
    if (y + h > areaBottom) {
        y = areaBottom - h;
    }
    if (x + w >= areaRight) {
        x = target.x() - 5 - w;
        if (x <= bounds.x()) {
            x = areaRight - w;
            y = areaBottom - h;
        }
    }
    // Only a popup larger than its area gets here: its keys start at the top-left, so those stay visible.
    x = qMax(x, bounds.x());
    y = qMax(y, bounds.y());
    return QPoint(x, y);
}
