// SPDX-License-Identifier: BSD-3-Clause
#include "QKXToggleButtonEventFilter.h"

#include "KXToggleAction_p.h"

#include <QMouseEvent>
#include <QWidget>

QKXToggleButtonEventFilter::QKXToggleButtonEventFilter(QObject *parent)
    : QKXEventFilterBase(parent)
{
}

QKXToggleButtonEventFilter::~QKXToggleButtonEventFilter() = default;

void QKXToggleButtonEventFilter::submitWidgetValue(bool state)
{
    Q_UNUSED(state);
}

void QKXToggleButtonEventFilter::lockAcquired(QWidget *source)
{
    if (!source || source != parentWidget()) {
        return;
    }
    bool state = false;
    if (KXToggleAction::readStateAndShowLoading(this, source, state)) {
        emit submit(!state);
    }
    emit attemptSetLock(source, false);
}

void QKXToggleButtonEventFilter::lockAcquired(QWidget *source, bool granted)
{
    if (granted) {
        lockAcquired(source);
    }
}

bool QKXToggleButtonEventFilter::mousePressEventFilter(QObject *watched, QMouseEvent *event)
{
    if (KXToggleAction::isDisabledControl(watched)) {
        return QObject::eventFilter(watched, event);
    }
    return QKXEventFilterBase::mousePressEventFilter(watched, event);
}

bool QKXToggleButtonEventFilter::mouseReleaseEventFilter(QObject *watched, QMouseEvent *event)
{
    if (KXToggleAction::isDisabledControl(watched)) {
        return QObject::eventFilter(watched, event);
    }
    return QKXEventFilterBase::mouseReleaseEventFilter(watched, event);
}
