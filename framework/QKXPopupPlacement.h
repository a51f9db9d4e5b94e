// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXPOPUPPLACEMENT_H
#define QKXPOPUPPLACEMENT_H

#include "standaloneplugins_export.h"

#include <QPoint>
#include <QRect>
#include <QSize>

class QWidget;

// Where a popup goes beside the widget it edits. Popups and the widgets they edit need not share a
// parent: a popup may float over the main window as its child or be a window of its own, so every
// position is worked out in one coordinate space, the one the popup (or its column) is moved in.
class STANDALONEPLUGINS_EXPORT QKXPopupPlacement
{
public:
    // Which end of a span stays visible when the span is longer than the space it is kept in.
    enum Priority {
        KeepStart,   // the start (top or left) stays visible
        KeepEnd      // the end (bottom or right) stays visible
    };

    // The widget's rectangle in the coordinates of space; with a null space, in screen coordinates.
    static QRect rectIn(const QWidget *space, const QWidget *widget);
    // A rectangle of the widget (in its own coordinates) in the coordinates of space.
    static QRect rectIn(const QWidget *space, const QWidget *widget, const QRect &part);

    // The area a popup may use: its parent's rectangle, or the screen's available geometry for a
    // popup that is a window of its own.
    static QRect areaFor(const QWidget *popup);

    // x of a popup of the given width opening beside the anchor in a space of the given width: to the
    // right of the anchor, else to its left, else (room on neither side) over the anchor itself, in
    // which case *overAnchor is set.
    static int besideX(const QRect &anchor, int popupWidth, int spaceWidth, bool *overAnchor = nullptr);

    // Moves a span of the given length so that it stays within [0, spaceLength).
    static int keepInside(int start, int length, int spaceLength, Priority priority);

    // Where a key pad of the given size opens for the widget it edits, in the coordinates that the
    // popup's move() takes (its parent's; the screen's for a popup without parent): 5 pixels right of
    // and below the widget's bottom-right corner, pushed up to stay inside the area, flipped to the
    // widget's left when it would leave the area on the right, and into the area's bottom-right corner
    // when neither side has room. A popup larger than the area overhangs its top and left edges.
    static QPoint besideWidget(const QWidget *popup, const QWidget *widget, const QSize &popupSize);

    // Lays a full-screen popup (a list that closes on taps beside its column) over the whole area it
    // may use: its parent's rectangle, or the host's desktop for a popup that is a window of its own.
    static void coverArea(QWidget *popup);

private:
    QKXPopupPlacement() = delete;
};

#endif // QKXPOPUPPLACEMENT_H
