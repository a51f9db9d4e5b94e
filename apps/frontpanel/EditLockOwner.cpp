// SPDX-License-Identifier: BSD-3-Clause
#include "EditLockOwner.h"

#include "QKXEventFilterBase.h"
#include "WidgetNaming.h"

#include <QTimer>
#include <QWidget>

EditLockOwner::EditLockOwner(QObject *parent)
    : QObject(parent)
{
    // The grant is a queued call by name; its argument type must be known to the meta-type system.
    qRegisterMetaType<QWidget *>();
}

EditLockOwner::~EditLockOwner() = default;

void EditLockOwner::attach(QKXEventFilterBase *filter)
{
    if (!filter) {
        return;
    }
    // The signal does not say who sent it; the grant must go back to this very filter.
    connect(filter, &QKXEventFilterBase::attemptSetLock, this,
            [this, filter](QWidget *widget, bool locked) { attemptSetLock(filter, widget, locked); });
}

void EditLockOwner::attemptSetLock(QObject *filter, QWidget *widget, bool locked)
{
    if (locked) {
        request(filter, widget);
    } else {
        release(widget);
    }
}

QWidget *EditLockOwner::holder() const
{
    return lockHolder.data();
}

bool EditLockOwner::isFree() const
{
    return lockHolder.isNull();
}

void EditLockOwner::request(QObject *filter, QWidget *widget)
{
    const QString name = WidgetNaming::describe(widget);
    emit logged(QStringLiteral("lock request %1").arg(name));
    if (!widget || !filter) {
        emit logged(QStringLiteral("lock refused %1 (no widget)").arg(name));
        emit lockRefused(widget, lockHolder.data());
        return;
    }
    // A second request from the holder (a double tap racing the grant) is granted again: refusing
    // it would leave the filter waiting for a grant it already has.
    if (lockHolder && lockHolder != widget) {
        emit logged(QStringLiteral("lock refused %1 (held by %2)").arg(name, WidgetNaming::describe(lockHolder)));
        emit lockRefused(widget, lockHolder.data());
        return;
    }
    lockHolder = widget;
    emit logged(QStringLiteral("lock granted %1").arg(name));
    emit lockGranted(widget);
    // Queued, as on the instrument: the filter is still inside its release handler when it asks, and
    // a button filter answers a grant by releasing at once. A widget that let go before the grant
    // arrives (a slider pressed and lifted at once) gets none: it would begin an edit nobody ends.
    const QPointer<QObject> asking(filter);
    const QPointer<QWidget> granted(widget);
    QTimer::singleShot(0, this, [this, asking, granted] {
        if (asking && granted && lockHolder == granted) {
            QMetaObject::invokeMethod(asking, "lockAcquired", Q_ARG(QWidget *, granted.data()));
        }
    });
}

void EditLockOwner::release(QWidget *widget)
{
    // Filters with an edit machine release on every return to idle, including the first one at
    // start-up; only the holder's release means anything.
    if (!widget || widget != lockHolder) {
        return;
    }
    lockHolder.clear();
    emit logged(QStringLiteral("lock released %1").arg(WidgetNaming::describe(widget)));
    emit lockReleased(widget);
}
