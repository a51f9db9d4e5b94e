// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXCONFIRMATIONPUSHBUTTONEVENTFILTER_H
#define QKXCONFIRMATIONPUSHBUTTONEVENTFILTER_H

#include "QKXEventFilterBase.h"

// Edit filter of a confirmation button: a tap shows the button's prompt, and only a confirming
// answer asks for the edit lock; the command then goes out as from a plain command button.
// The widget is read by name (buttonStyle, dialogText, titleText, PromptStyle), so any widget that
// offers those members can use it.
class STANDALONEPLUGINS_EXPORT QKXConfirmationPushButtonEventFilter : public QKXEventFilterBase
{
    Q_OBJECT
public:
    explicit QKXConfirmationPushButtonEventFilter(QObject *parent);
    ~QKXConfirmationPushButtonEventFilter() override;

public Q_SLOTS:
    void lockAcquired(QWidget *widget) override;
    // Modal: returns once the prompt is answered; true for the answer with code 1.
    bool displayPrompt(QWidget *widget);

Q_SIGNALS:
    void submit();

protected:
    bool mouseReleaseEventFilter(QObject *watched, QMouseEvent *event) override;

private:
    Q_DISABLE_COPY(QKXConfirmationPushButtonEventFilter)
};

#endif // QKXCONFIRMATIONPUSHBUTTONEVENTFILTER_H
