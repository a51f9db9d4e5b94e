// SPDX-License-Identifier: BSD-3-Clause
#include "QKXTableEnumEventFilter.h"

#include "QKXEventFilterBase_p.h"

#include <QMetaObject>
#include <QMouseEvent>
#include <QPointer>
#include <QTableView>
#include <QWidget>

class QKXTableEnumEventFilterPrivate : public QKXEventFilterBasePrivate
{
public:
    explicit QKXTableEnumEventFilterPrivate(QKXTableEnumEventFilter *q)
        : QKXEventFilterBasePrivate(q)
    {
    }

    QObject *widget = nullptr;
    QPointer<QObject> adapter;
    int current = 0;
    int pending = 0;
};

QKXTableEnumEventFilter::QKXTableEnumEventFilter(QObject *parent, QObject *adapter)
    : QKXEventFilterBase(*new QKXTableEnumEventFilterPrivate(this), parent)
{
    Q_D(QKXTableEnumEventFilter);
    d->widget = parent;
    d->adapter = adapter;
    if (adapter) {
        setAdapter(adapter);
    }
}

QKXTableEnumEventFilter::~QKXTableEnumEventFilter() = default;

void QKXTableEnumEventFilter::setAdapter(QObject *adapter)
{
    Q_D(QKXTableEnumEventFilter);
    d->widget = parent();
    d->adapter = adapter;
    int value = 0;
    if (adapter) {
        QMetaObject::invokeMethod(adapter, "get", Q_RETURN_ARG(int, value));
    } else if (d->widget) {
        QMetaObject::invokeMethod(d->widget, "currentIndex", Q_RETURN_ARG(int, value));
    }
    d->current = value;
    d->pending = value;
}

QObject *QKXTableEnumEventFilter::adapter() const
{
    Q_D(const QKXTableEnumEventFilter);
    return d->adapter;
}

int QKXTableEnumEventFilter::current() const
{
    Q_D(const QKXTableEnumEventFilter);
    return d->current;
}

int QKXTableEnumEventFilter::pending() const
{
    Q_D(const QKXTableEnumEventFilter);
    return d->pending;
}

void QKXTableEnumEventFilter::lockAcquired(QWidget *widget)
{
    Q_D(QKXTableEnumEventFilter);
    if (!widget || widget != parentWidget()) {
        return;
    }
    emit submit(d->pending);
    d->current = d->pending;
    emit attemptSetLock(widget, false);
}

bool QKXTableEnumEventFilter::mouseReleaseEventFilter(QObject *watched, QMouseEvent *event)
{
    Q_D(QKXTableEnumEventFilter);
    QWidget *widget = parentWidget();
    QWidget *receiver = watched && watched->isWidgetType() ? static_cast<QWidget *>(watched) : widget;
    if (!widget || !receiver || !receiver->rect().contains(event->pos()) || isMoved()) {
        return false;
    }
    if (isGuiLocked()) {
        emit showGuiLockedMessage();
        return false;
    }
    auto *view = widget->findChild<QTableView *>();
    if (!view) {
        return false;
    }
    QWidget *viewport = view->viewport();
    const QPoint at = receiver == viewport ? event->pos() : viewport->mapFromGlobal(receiver->mapToGlobal(event->pos()));
    const QModelIndex index = view->indexAt(at);
    // A tap beside the rows (the heading's edge, the empty space under the last row) chooses nothing.
    if (!index.isValid()) {
        return false;
    }
    int value = 0;
    QMetaObject::invokeMethod(widget, "getRowIndex", Q_RETURN_ARG(int, value), Q_ARG(int, index.row()));
    d->pending = value;
    if (!d->adapter) {
        emit submit(d->pending);
        d->current = d->pending;
    } else {
        attempLockSendLockSignal(widget, true);
    }
    return false;
}
