// SPDX-License-Identifier: BSD-3-Clause
#include "QKXPopupPlacement.h"

#include "GlobalImpl.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

QRect QKXPopupPlacement::rectIn(const QWidget *space, const QWidget *widget)
{
    return widget ? rectIn(space, widget, widget->rect()) : QRect();
}

QRect QKXPopupPlacement::rectIn(const QWidget *space, const QWidget *widget, const QRect &part)
{
    if (!widget) {
        return QRect();
    }
    QPoint topLeft;
    if (space && space->isAncestorOf(widget)) {
        // Exact even while the window is not shown yet and has no place on the screen.
        topLeft = widget->mapTo(space, part.topLeft());
    } else {
        topLeft = widget->mapToGlobal(part.topLeft());
        if (space) {
            topLeft = space->mapFromGlobal(topLeft);
        }
    }
    return QRect(topLeft, part.size());
}

QRect QKXPopupPlacement::areaFor(const QWidget *popup)
{
    if (popup && !popup->isWindow() && popup->parentWidget()) {
        return popup->parentWidget()->rect();
    }
    QScreen *screen = popup && popup->screen() ? popup->screen() : QGuiApplication::primaryScreen();
    return screen ? screen->availableGeometry() : QRect();
}

int QKXPopupPlacement::besideX(const QRect &anchor, int popupWidth, int spaceWidth, bool *overAnchor)
{
    if (overAnchor) {
        *overAnchor = false;
    }
    int x = anchor.x() + anchor.width();
    if (x + popupWidth > spaceWidth) {
        x = anchor.x() - popupWidth;
    }
    if (x < 0) {
        x = anchor.x();
        if (overAnchor) {
            *overAnchor = true;
        }
    }
    return x;
}

int QKXPopupPlacement::keepInside(int start, int length, int spaceLength, Priority priority)
{
    if (priority == KeepStart) {
        if (start + length > spaceLength) {
            start = spaceLength - length;
        }
        if (start < 0) {
            start = 0;
        }
    } else {
        if (start < 0) {
            start = 0;
        }
        if (start + length > spaceLength) {
            start = spaceLength - length;
        }
    }
    return start;
}

QPoint QKXPopupPlacement::besideWidget(const QWidget *popup, const QWidget *widget, const QSize &popupSize)
{
    const QWidget *area = popup->isWindow() ? nullptr : popup->parentWidget();
    QRect bounds;
    QRect target;
    if (area) {
        bounds = area->rect();
        target = rectIn(area, widget);
    } else {
        // A pad of its own opens on the screen the widget is on, which need not be the pad's yet.
        QScreen *screen = widget->screen() ? widget->screen() : QGuiApplication::primaryScreen();
        bounds = screen ? screen->availableGeometry() : QRect(QPoint(0, 0), popupSize);
        target = rectIn(nullptr, widget);
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
    // A pad larger than its area hangs off its top and left edges: its place is the rule's, not clamped.
    return QPoint(x, y);
}

void QKXPopupPlacement::coverArea(QWidget *popup)
{
    if (!popup->isWindow() && popup->parentWidget()) {
        popup->setGeometry(popup->parentWidget()->rect());
        return;
    }
    if (QWidget *desktop = GlobalImpl::getInstance()->desktop()) {
        popup->setGeometry(desktop->isWindow() ? desktop->geometry()
                                               : QRect(desktop->mapToGlobal(QPoint(0, 0)), desktop->size()));
    }
}
