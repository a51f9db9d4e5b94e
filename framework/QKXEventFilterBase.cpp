// SPDX-License-Identifier: BSD-3-Clause
#include "QKXEventFilterBase.h"
#include "QKXEventFilterBase_p.h"

#include <QApplication>
#include <QMouseEvent>
#include <QVariant>
#include <QWidget>

QKXEventFilterBase::QKXEventFilterBase(QObject *parent)
    : QKXEventFilterBase(*new QKXEventFilterBasePrivate(this), parent)
{
}

QKXEventFilterBase::QKXEventFilterBase(QKXEventFilterBasePrivate &dd, QObject *parent)
    : QObject(parent)
    , d_ptr(&dd)
{
}

QKXEventFilterBase::~QKXEventFilterBase() = default;

QWidget *QKXEventFilterBase::parentWidget() const
{
    QObject *owner = parent();
    return owner && owner->isWidgetType() ? static_cast<QWidget *>(owner) : nullptr;
}

bool QKXEventFilterBase::isMoved() const
{
    Q_D(const QKXEventFilterBase);
    return d->moved;
}

QPoint QKXEventFilterBase::pressPosition() const
{
    Q_D(const QKXEventFilterBase);
    return d->pressPos;
}

bool QKXEventFilterBase::isGuiLocked()
{
    const QVariant guiLocked = qApp ? qApp->property("guilocked") : QVariant();
    return guiLocked.isValid() && guiLocked.toBool();
}

bool QKXEventFilterBase::eventFilter(QObject *watched, QEvent *event)
{
    QObject *owner = parent();
    if (owner && owner->property("ReadOnly").toBool()) {
        return QObject::eventFilter(watched, event);
    }
    switch (event->type()) {
    case QEvent::KeyPress:
        return keyEventFilter(watched, static_cast<QKeyEvent *>(event));
    case QEvent::MouseButtonPress:
        return mousePressEventFilter(watched, static_cast<QMouseEvent *>(event));
    case QEvent::MouseMove:
        return mouseMoveEventFilter(watched, static_cast<QMouseEvent *>(event));
    case QEvent::MouseButtonRelease:
        return mouseReleaseEventFilter(watched, static_cast<QMouseEvent *>(event));
    case QEvent::Hide:
        return hideEventFilter(watched, event);
    default:
        return QObject::eventFilter(watched, event);
    }
}

void QKXEventFilterBase::forceClick()
{
    if (QWidget *widget = parentWidget()) {
        attempLockSendLockSignal(widget, true);
    }
}

bool QKXEventFilterBase::keyEventFilter(QObject *watched, QKeyEvent *event)
{
    Q_UNUSED(watched);
    Q_UNUSED(event);
    return true;
}

bool QKXEventFilterBase::mousePressEventFilter(QObject *watched, QMouseEvent *event)
{
    Q_D(QKXEventFilterBase);
    d->pressPos = event->globalPos();
    d->moved = false;
    return QObject::eventFilter(watched, event);
}

bool QKXEventFilterBase::mouseMoveEventFilter(QObject *watched, QMouseEvent *event)
{
    Q_D(QKXEventFilterBase);
    if ((event->globalPos() - d->pressPos).manhattanLength() > DragThreshold) {
        d->moved = true;
    }
    return QObject::eventFilter(watched, event);
}

bool QKXEventFilterBase::mouseReleaseEventFilter(QObject *watched, QMouseEvent *event)
{
    Q_D(QKXEventFilterBase);
    QWidget *widget = parentWidget();
    // The release position is in the coordinates of whatever received it: the widget itself or its
    // input control, which fills it.
    QWidget *receiver = watched && watched->isWidgetType() ? static_cast<QWidget *>(watched) : widget;
    const bool inside = receiver && receiver->rect().contains(event->pos());
    if (inside && !d->moved) {
        if (isGuiLocked()) {
            emit showGuiLockedMessage();
        } else {
            attempLockSendLockSignal(widget, true);
        }
    }
    return QObject::eventFilter(watched, event);
}

bool QKXEventFilterBase::hideEventFilter(QObject *watched, QEvent *event)
{
    Q_UNUSED(event);
    // The filter also watches the widget's input control, which is hidden along with the widget:
    // one hidden widget ends the edit once.
    if (watched == parent()) {
        emit editEnd();
    }
    return true;
}

void QKXEventFilterBase::attempLockSendLockSignal(QWidget *widget, bool locked)
{
    emit attemptSetLock(widget, locked);
}
