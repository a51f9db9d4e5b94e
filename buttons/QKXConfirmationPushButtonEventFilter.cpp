// SPDX-License-Identifier: BSD-3-Clause
#include "QKXConfirmationPushButtonEventFilter.h"

#include "KXConfirmationPrompt_p.h"

#include <QMouseEvent>
#include <QPointer>
#include <QWidget>

QKXConfirmationPushButtonEventFilter::QKXConfirmationPushButtonEventFilter(QObject *parent)
    : QKXEventFilterBase(parent)
{
}

QKXConfirmationPushButtonEventFilter::~QKXConfirmationPushButtonEventFilter() = default;

void QKXConfirmationPushButtonEventFilter::lockAcquired(QWidget *widget)
{
    if (!widget || widget != parentWidget()) {
        return;
    }
    emit submit();
    emit attemptSetLock(widget, false);
}

bool QKXConfirmationPushButtonEventFilter::displayPrompt(QWidget *widget)
{
    return KXConfirmationPrompt::displayPrompt(this, widget);
}

bool QKXConfirmationPushButtonEventFilter::mouseReleaseEventFilter(QObject *watched, QMouseEvent *event)
{
    QWidget *widget = parentWidget();
    if (!widget || !KXConfirmationPrompt::isTap(watched, widget, event, isMoved())) {
        return QObject::eventFilter(watched, event);
    }
    if (isGuiLocked()) {
        emit showGuiLockedMessage();
        KXConfirmationPrompt::releaseWithoutClick(watched);
        return true;
    }

    const int promptStyle = KXConfirmationPrompt::promptStyle(this, widget);
    if (promptStyle == 0) {
        attempLockSendLockSignal(widget, true);
        return QObject::eventFilter(watched, event);
    }

    QPointer<QObject> self(this);
    QPointer<QObject> receiver(watched);
    const bool confirmed = displayPrompt(widget);
    // The prompt runs an event loop: the button, and this filter with it, may be gone by now.
    if (!self || !receiver) {
        return true;
    }
    if (promptStyle > 0 && confirmed) {
        attempLockSendLockSignal(widget, true);
    }
    return QObject::eventFilter(watched, event);
}
