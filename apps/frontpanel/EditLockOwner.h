// SPDX-License-Identifier: BSD-3-Clause
#ifndef EDITLOCKOWNER_H
#define EDITLOCKOWNER_H

#include <QObject>
#include <QPointer>

class QWidget;
class QKXEventFilterBase;

// The user-interface edit lock: at most one widget is being edited at a time. Filters ask for it
// with attemptSetLock(widget, true) and hand it back with attemptSetLock(widget, false); a grant is
// answered by calling the filter's lockAcquired(widget).
class EditLockOwner : public QObject
{
    Q_OBJECT
public:
    explicit EditLockOwner(QObject *parent = nullptr);
    ~EditLockOwner() override;

    // Answers the filter's lock requests from now on; the connection goes with the filter.
    void attach(QKXEventFilterBase *filter);

    // One request, as a filter's attemptSetLock would make it.
    void attemptSetLock(QObject *filter, QWidget *widget, bool locked);

    // The widget being edited, or null while the lock is free. A holder that is destroyed frees it.
    QWidget *holder() const;
    bool isFree() const;

Q_SIGNALS:
    void lockGranted(QWidget *widget);
    void lockRefused(QWidget *widget, QWidget *holder);
    void lockReleased(QWidget *widget);
    void logged(const QString &line);

private:
    void request(QObject *filter, QWidget *widget);
    void release(QWidget *widget);

    QPointer<QWidget> lockHolder;
};

#endif // EDITLOCKOWNER_H
