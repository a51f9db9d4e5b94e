// SPDX-License-Identifier: BSD-3-Clause
#include "QKXPushButtonEventFilter.h"

#include <QWidget>

QKXPushButtonEventFilter::QKXPushButtonEventFilter(QObject *parent)
    : QKXEventFilterBase(parent)
{
}

QKXPushButtonEventFilter::~QKXPushButtonEventFilter() = default;

void QKXPushButtonEventFilter::submitWidgetVoid()
{
    emit submit();
}

void QKXPushButtonEventFilter::lockAcquired(QWidget *widget)
{
    if (!widget || widget != parentWidget()) {
        return;
    }
    // A command holds the lock only for as long as it takes to send it.
    emit submit();
    emit attemptSetLock(widget, false);
}
