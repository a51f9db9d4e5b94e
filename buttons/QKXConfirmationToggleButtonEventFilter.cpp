// SPDX-License-Identifier: BSD-3-Clause
#include "QKXConfirmationToggleButtonEventFilter.h"

#include "KXConfirmationPrompt_p.h"
#include "KXToggleAction_p.h"

#include <QDebug>
#include <QMouseEvent>
#include <QPointer>
#include <QWidget>

namespace {

enum class TapAnswer { AskForLock, Prompt, Nothing };

// What a tap does for the widget's PromptStyle and state. PromptStyle 1 guards switching on, 2
// switching off and 3 both ways; the direction a style does not guard switches at once, as
// PromptStyle 0 always does. Any other PromptStyle has no prompt to show, and the tap does nothing.
// A widget whose state cannot be read is always asked.
TapAnswer kx_tapAnswer(int promptStyle, const QVariant &state)
{
    if (promptStyle < 0 || promptStyle > 3) {
        return TapAnswer::Nothing;
    }
    if (promptStyle == 0) {
        return TapAnswer::AskForLock;
    }
    if (promptStyle == 3 || !state.isValid()) {
        return TapAnswer::Prompt;
    }
    const bool on = state.toBool();
    return (promptStyle == 1 && !on) || (promptStyle == 2 && on) ? TapAnswer::Prompt : TapAnswer::AskForLock;
}

} // namespace

QKXConfirmationToggleButtonEventFilter::QKXConfirmationToggleButtonEventFilter(QObject *parent)
    : QKXEventFilterBase(parent)
{
}

QKXConfirmationToggleButtonEventFilter::~QKXConfirmationToggleButtonEventFilter() = default;

void QKXConfirmationToggleButtonEventFilter::submitWidgetValue(bool state)
{
    Q_UNUSED(state);
}

void QKXConfirmationToggleButtonEventFilter::lockAcquired(QWidget *widget)
{
    if (!widget || widget != parentWidget()) {
        return;
    }
    bool state = false;
    if (KXToggleAction::readStateAndShowLoading(this, widget, state)) {
        emit submit(!state);
    }
    emit attemptSetLock(widget, false);
}

bool QKXConfirmationToggleButtonEventFilter::displayPrompt(QWidget *widget)
{
    return KXConfirmationPrompt::displayPrompt(this, widget);
}

bool QKXConfirmationToggleButtonEventFilter::mousePressEventFilter(QObject *watched, QMouseEvent *event)
{
    if (KXToggleAction::isDisabledControl(watched)) {
        return QObject::eventFilter(watched, event);
    }
    return QKXEventFilterBase::mousePressEventFilter(watched, event);
}

bool QKXConfirmationToggleButtonEventFilter::mouseReleaseEventFilter(QObject *watched, QMouseEvent *event)
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
    const TapAnswer answer = kx_tapAnswer(promptStyle, widget->property("State"));
    if (answer == TapAnswer::Nothing) {
        qDebug().noquote() << QStringLiteral("UserInterface - QKXConfirmationToggleButtonEventFilter::"
                                             "mouseReleaseEventFilter : PromptStyle %1 is none of 0 to 3; "
                                             "the tap does nothing.")
                                  .arg(promptStyle);
        return QObject::eventFilter(watched, event);
    }
    if (answer == TapAnswer::AskForLock) {
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
    if (confirmed) {
        attempLockSendLockSignal(widget, true);
    }
    return QObject::eventFilter(watched, event);
}
