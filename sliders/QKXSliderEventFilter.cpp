// SPDX-License-Identifier: BSD-3-Clause
#include "QKXSliderEventFilter.h"

#include "QKXEditStateFilter_p.h"

#include <QMouseEvent>
#include <QWidget>

class QKXSliderEventFilterPrivate : public QKXEditStateFilterPrivate
{
public:
    explicit QKXSliderEventFilterPrivate(QKXSliderEventFilter *q)
        : QKXEditStateFilterPrivate(q, nullptr, QKXEditStateFilter::AlwaysRequestLock,
                                    QKXEditStateFilter::StartOnRequest)
    {
    }

    bool editing = false;

private:
    Q_DECLARE_PUBLIC(QKXSliderEventFilter)
};

QKXSliderEventFilter::QKXSliderEventFilter(QObject *parent)
    : QKXEditStateFilter(*new QKXSliderEventFilterPrivate(this), parent)
{
}

QKXSliderEventFilter::~QKXSliderEventFilter() = default;

bool QKXSliderEventFilter::isSubmitting() const
{
    Q_D(const QKXSliderEventFilter);
    return d->editing;
}

void QKXSliderEventFilter::cancel()
{
    emit editEnd();
}

void QKXSliderEventFilter::lockAcquired(QWidget *widget)
{
    QKXEditStateFilter::lockAcquired(widget);
}

void QKXSliderEventFilter::submitWidgetValue(int index)
{
    Q_D(QKXSliderEventFilter);
    if (d->editing) {
        emit submit(index);
    }
}

void QKXSliderEventFilter::idleStateInit()
{
    Q_D(QKXSliderEventFilter);
    d->editing = false;
    QKXEditStateFilter::idleStateInit();
}

void QKXSliderEventFilter::editStateInit()
{
    Q_D(QKXSliderEventFilter);
    d->editing = true;
}

bool QKXSliderEventFilter::mousePressEventFilter(QObject *watched, QMouseEvent *event)
{
    // Keeps the press position and clears the drag mark; the press is passed on.
    const bool consumed = QKXEventFilterBase::mousePressEventFilter(watched, event);
    QWidget *widget = parentWidget();
    if (!widget) {
        return consumed;
    }
    // The press lands on the widget or on its handle; either way it is judged in the widget's rectangle.
    QPoint at = event->pos();
    if (watched != widget && watched && watched->isWidgetType()) {
        auto *child = static_cast<QWidget *>(watched);
        at = widget->isAncestorOf(child) ? child->mapTo(widget, at) : widget->mapFromGlobal(event->globalPos());
    }
    if (widget->rect().contains(at)) {
        if (isGuiLocked()) {
            emit showGuiLockedMessage();
        } else {
            attempLockSendLockSignal(widget, true);
        }
    }
    return consumed;
}

bool QKXSliderEventFilter::mouseReleaseEventFilter(QObject *watched, QMouseEvent *event)
{
    Q_D(QKXSliderEventFilter);
    d->moved = false;
    emit attemptSetLock(parentWidget(), false);
    emit editEnd();
    return QObject::eventFilter(watched, event);
}
