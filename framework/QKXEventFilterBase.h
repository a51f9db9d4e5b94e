// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXEVENTFILTERBASE_H
#define QKXEVENTFILTERBASE_H

#include "standaloneplugins_export.h"

#include <QObject>
#include <QScopedPointer>

class QKeyEvent;
class QMouseEvent;
class QKXEventFilterBasePrivate;

// The edit filter the host installs on a widget. It turns a tap into a request for the edit lock,
// rejecting drags and honouring the widget's ReadOnly property and the application's "guilocked"
// property; what follows a granted lock is each family's business (lockAcquired).
class STANDALONEPLUGINS_EXPORT QKXEventFilterBase : public QObject
{
    Q_OBJECT
public:
    // A press that travels further than this (Manhattan length, in pixels) is a drag, not a tap.
    static constexpr int DragThreshold = 30;

    explicit QKXEventFilterBase(QObject *parent);
    ~QKXEventFilterBase() override;

    bool eventFilter(QObject *watched, QEvent *event) override;

    // The widget the filter belongs to (its parent), or null when the parent is not a widget.
    QWidget *parentWidget() const;

    bool isMoved() const;
    QPoint pressPosition() const;

public Q_SLOTS:
    virtual void lockAcquired(QWidget *widget) = 0;
    virtual void forceClick();

Q_SIGNALS:
    void editStart(QObject *filter, QWidget *widget);
    void editEnd();
    void attemptSetLock(QWidget *widget, bool locked);
    void showGuiLockedMessage();

protected:
    QKXEventFilterBase(QKXEventFilterBasePrivate &dd, QObject *parent);

    virtual bool keyEventFilter(QObject *watched, QKeyEvent *event);
    virtual bool mousePressEventFilter(QObject *watched, QMouseEvent *event);
    virtual bool mouseMoveEventFilter(QObject *watched, QMouseEvent *event);
    // A release is inside when it falls in the rectangle of the object that received it: the widget,
    // or its input control, which fills the widget.
    virtual bool mouseReleaseEventFilter(QObject *watched, QMouseEvent *event);
    // The filter also watches the widget's input control, which is hidden with the widget; only the
    // widget's own Hide ends the edit, so that editEnd() comes once.
    virtual bool hideEventFilter(QObject *watched, QEvent *event);
    virtual void attempLockSendLockSignal(QWidget *widget, bool locked);

    // True while the application's "guilocked" property is set and true.
    static bool isGuiLocked();

    QScopedPointer<QKXEventFilterBasePrivate> d_ptr;

private:
    Q_DISABLE_COPY(QKXEventFilterBase)
    Q_DECLARE_PRIVATE(QKXEventFilterBase)
};

#endif // QKXEVENTFILTERBASE_H
