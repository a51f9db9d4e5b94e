// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXPUSHBUTTONEVENTFILTER_H
#define QKXPUSHBUTTONEVENTFILTER_H

#include "QKXEventFilterBase.h"

// Edit filter of a command button: once the host grants the lock, the command goes out and the lock
// is handed straight back.
class STANDALONEPLUGINS_EXPORT QKXPushButtonEventFilter : public QKXEventFilterBase
{
    Q_OBJECT
public:
    explicit QKXPushButtonEventFilter(QObject *parent);
    ~QKXPushButtonEventFilter() override;

    Q_INVOKABLE void submitWidgetVoid();

public Q_SLOTS:
    void lockAcquired(QWidget *widget) override;

Q_SIGNALS:
    void submit();

private:
    Q_DISABLE_COPY(QKXPushButtonEventFilter)
};

#endif // QKXPUSHBUTTONEVENTFILTER_H
