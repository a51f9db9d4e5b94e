// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXCONFIRMATIONTOGGLEBUTTONEVENTFILTER_H
#define QKXCONFIRMATIONTOGGLEBUTTONEVENTFILTER_H

#include "QKXEventFilterBase.h"

// Edit filter of a confirmation toggle: a tap in a direction that PromptStyle guards shows the
// button's prompt first, and only a confirming answer asks for the edit lock; the switch then goes
// out as from a plain toggle (loading look, opposite state submitted). PromptStyle 1 guards switching
// on, 2 switching off, 3 both ways; the direction a style leaves unguarded asks for the lock at once,
// as the push twin does after a prompt, so that every style can switch both ways. A widget whose
// "State" cannot be read is always asked.
class STANDALONEPLUGINS_EXPORT QKXConfirmationToggleButtonEventFilter : public QKXEventFilterBase
{
    Q_OBJECT
public:
    explicit QKXConfirmationToggleButtonEventFilter(QObject *parent);
    ~QKXConfirmationToggleButtonEventFilter() override;

    // Kept for hosts that call it by name; the state only ever changes through the engine.
    Q_INVOKABLE void submitWidgetValue(bool state);

public Q_SLOTS:
    void lockAcquired(QWidget *widget) override;
    // Modal: returns once the prompt is answered; true for the answer with code 1.
    bool displayPrompt(QWidget *widget);

Q_SIGNALS:
    void submit(bool value);

protected:
    bool mousePressEventFilter(QObject *watched, QMouseEvent *event) override;
    bool mouseReleaseEventFilter(QObject *watched, QMouseEvent *event) override;

private:
    Q_DISABLE_COPY(QKXConfirmationToggleButtonEventFilter)
};

#endif // QKXCONFIRMATIONTOGGLEBUTTONEVENTFILTER_H
