// SPDX-License-Identifier: BSD-3-Clause
#include "ContainerImpl.h"
#include "ContainerBase_p.h"

#include <QEvent>
#include <QFrame>
#include <QMouseEvent>
#include <QPushButton>
#include <QScreen>
#include <QShowEvent>
#include <QWindow>

struct ContainerImpl::Data
{
    QSize normalSize;
    bool draggable = true;
    bool dragging = false;
    QPoint pressGlobal;
    QPoint startPos;
};

ContainerImpl::ContainerImpl(QWidget *parent)
    : ContainerBase(parent)
    , m(new Data)
{
    if (!parent) {
        // Without a screen to float over, the popup is a window of its own, still without decoration:
        // the instrument's window manager has no title bars to offer.
        setWindowFlags(Qt::Tool | Qt::FramelessWindowHint);
    }
    // A popup opens only when asked; without this it would appear with its parent screen.
    hide();
}

ContainerImpl::~ContainerImpl() = default;

void ContainerImpl::setNormalSize(int width, int height)
{
    const QSize size(width, height);
    if (m->normalSize == size) {
        return;
    }
    m->normalSize = size;
    updateGeometry();
    if (isVisible() && !size.isEmpty()) {
        resize(size);
    }
}

QSize ContainerImpl::normalSize() const
{
    return m->normalSize;
}

int ContainerImpl::normalWidth() const
{
    return m->normalSize.width();
}

int ContainerImpl::normalHeight() const
{
    return m->normalSize.height();
}

void ContainerImpl::move(int x, int y)
{
    QWidget::move(x, y);
}

void ContainerImpl::setDraggable(bool draggable)
{
    if (m->draggable == draggable) {
        return;
    }
    m->draggable = draggable;
    m->dragging = false;
}

bool ContainerImpl::isDraggable() const
{
    return m->draggable;
}

void ContainerImpl::init()
{
    updateStyle();
    retranslate();
}

void ContainerImpl::updateStyle()
{
    ContainerBasePrivate::applyFrameStyleSheet(borderFrame(), hasBorder());
}

void ContainerImpl::retranslate()
{
    if (auto *closeKey = controlWidget()->findChild<QPushButton *>(QStringLiteral("ContainerClose"))) {
        closeKey->setText(ContainerBasePrivate::closeKeyText());
    }
}

void ContainerImpl::raise()
{
    QWidget::raise();
}

QSize ContainerImpl::sizeHint() const
{
    if (!m->normalSize.isEmpty()) {
        return m->normalSize;
    }
    return ContainerBase::sizeHint();
}

void ContainerImpl::showEvent(QShowEvent *event)
{
    if (!m->normalSize.isEmpty()) {
        resize(m->normalSize);
    }
    // Siblings created after the popup would otherwise cover it.
    raise();
    ContainerBase::showEvent(event);
}

void ContainerImpl::hideEvent(QHideEvent *event)
{
    m->dragging = false;
    ContainerBase::hideEvent(event);
}

void ContainerImpl::mousePressEvent(QMouseEvent *event)
{
    // The popup swallows every press that reaches it, so a tap on its empty area never falls through
    // to the screen behind.
    event->accept();
    if (!m->draggable || event->button() != Qt::LeftButton) {
        return;
    }
    m->dragging = true;
    m->pressGlobal = event->globalPos();
    m->startPos = pos();
}

void ContainerImpl::mouseMoveEvent(QMouseEvent *event)
{
    event->accept();
    if (!m->dragging || !(event->buttons() & Qt::LeftButton)) {
        return;
    }
    QPoint target = m->startPos + (event->globalPos() - m->pressGlobal);

    // Kept inside the area it floats over so that it can always be dragged back.
    QRect bounds;
    if (!isWindow() && parentWidget()) {
        bounds = parentWidget()->rect();
    } else if (windowHandle() && windowHandle()->screen()) {
        bounds = windowHandle()->screen()->availableGeometry();
    }
    if (bounds.isValid()) {
        const int maxX = qMax(bounds.left(), bounds.right() + 1 - width());
        const int maxY = qMax(bounds.top(), bounds.bottom() + 1 - height());
        target.setX(qBound(bounds.left(), target.x(), maxX));
        target.setY(qBound(bounds.top(), target.y(), maxY));
    }
    QWidget::move(target);
}

void ContainerImpl::mouseReleaseEvent(QMouseEvent *event)
{
    event->accept();
    if (event->button() == Qt::LeftButton) {
        m->dragging = false;
    }
}

void ContainerImpl::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
    ContainerBase::changeEvent(event);
}
