// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXTOGGLEBUTTONEVENTFILTER_H
#define QKXTOGGLEBUTTONEVENTFILTER_H

#include "QKXEventFilterBase.h"

// Edit filter of an on/off button: once the host grants the lock, the button shows its loading look,
// the opposite of its current state goes out and the lock is handed straight back.
class STANDALONEPLUGINS_EXPORT QKXToggleButtonEventFilter : public QKXEventFilterBase
{
    Q_OBJECT
public:
    explicit QKXToggleButtonEventFilter(QObject *parent);
    ~QKXToggleButtonEventFilter() override;

    // Kept for hosts that call it by name; the state only ever changes through the engine.
    Q_INVOKABLE void submitWidgetValue(bool state);

public Q_SLOTS:
    void lockAcquired(QWidget *source) override;
    void lockAcquired(QWidget *source, bool granted);

Q_SIGNALS:
    void submit(bool value);

protected:
    bool mousePressEventFilter(QObject *watched, QMouseEvent *event) override;
    bool mouseReleaseEventFilter(QObject *watched, QMouseEvent *event) override;

private:
    Q_DISABLE_COPY(QKXToggleButtonEventFilter)
};

#endif // QKXTOGGLEBUTTONEVENTFILTER_H
