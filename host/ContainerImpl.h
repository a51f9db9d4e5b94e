// SPDX-License-Identifier: BSD-3-Clause
#ifndef CONTAINERIMPL_H
#define CONTAINERIMPL_H

#include "ContainerBase.h"

#include <QPoint>
#include <QSize>

// The popup container that the on-screen editors derive from. It floats over its parent widget
// (a child widget raised above the screen, so it stays inside the instrument's one window; without a
// parent it is a frameless top-level window), keeps a stored normal size that the editor chooses,
// and can be dragged around by presses the editor does not consume.
class NORVANEHOST_EXPORT ContainerImpl : public ContainerBase
{
    Q_OBJECT
public:
    explicit ContainerImpl(QWidget *parent = nullptr);
    ~ContainerImpl() override;

    // The size the popup takes each time it opens.
    void setNormalSize(int width, int height);
    void setNormalSize(const QSize &size) { setNormalSize(size.width(), size.height()); }
    QSize normalSize() const;
    int normalWidth() const;
    int normalHeight() const;

    // Top-left corner in the parent's coordinates.
    void move(int x, int y);
    void move(const QPoint &pos) { move(pos.x(), pos.y()); }

    // Whether a press-move-release on the container drags it (on by default).
    void setDraggable(bool draggable);
    bool isDraggable() const;

    virtual void init();
    virtual void updateStyle();
    virtual void retranslate();
    virtual void raise();
    QSize sizeHint() const override;

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    struct Data;
    QScopedPointer<Data> m;
};

#endif // CONTAINERIMPL_H
