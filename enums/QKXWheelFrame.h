// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXWHEELFRAME_H
#define QKXWHEELFRAME_H

#include "standaloneplugins_export.h"

#include <QFrame>
#include <QScopedPointer>

class QLayout;

// The window of the wheel popup: a black frame with a selection band across it, and inside it the
// column of items that turns like a wheel. A drag turns it within limits that keep the band covered;
// a flick lets it run on and slow down, and it always comes to rest with an item on the band, at the
// end no lower than where a drag can turn it back.
class STANDALONEPLUGINS_EXPORT QKXWheelFrame : public QFrame
{
    Q_OBJECT
public:
    // The selection band, in the window's coordinates.
    static constexpr int BandTop = 81;
    static constexpr int BandBottom = 126;
    // Where the column sits across the window.
    static constexpr int ColumnX = 2;

    QKXWheelFrame(QWidget *parent, QWidget *widget);
    ~QKXWheelFrame() override;

    static QString styleTemplate();

    void setWidget(QWidget *widget);
    QWidget *widget() const;
    QFrame *column() const;

    // Installs the layout of the column.
    void addLayout(QLayout *layout);
    // Sizes the column to its items, across the window's inside.
    void fitColumn();

    // Turns the wheel so that the item of this row sits at the top of the band.
    void setCurIdx(int row);
    // Turns the wheel by the vertical part of delta, within the limits.
    // Where setCurIdx() puts the last item, the column's border leaves its end a pixel short of the
    // band's, and a drag does not move it from there.
    virtual void moveIt(const QPoint &delta);

    // The finger that was turning the wheel has let go: run on if it was flicked, then settle.
    void releaseDrag();
    // A finger came down on the wheel: it stops at once. True when it was running on or settling.
    bool stopMotion();
    // Whether the wheel is still running on or settling after a drag.
    bool isMoving() const;

protected:
    void resizeEvent(QResizeEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    Q_DISABLE_COPY(QKXWheelFrame)
    struct Data;
    QScopedPointer<Data> m;
};

#endif // QKXWHEELFRAME_H
