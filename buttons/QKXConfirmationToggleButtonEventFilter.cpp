#include "QKXConfirmationToggleButtonEventFilter.h"

#include "KXConfirmationPrompt_p.h"
#include "KXToggleAction_p.h"

#include <QDebug>
#include <QMouseEvent>
#include <QPointer>
#include <QWidget>

namespace {

// Whether switching away from the given state needs the user's word; an unknown state always does.
bool kx_guarded(int promptStyle, const QVariant &state)
{
    if (promptStyle < 0 || promptStyle >= 3 || !state.isValid()) {
        return true;
    }
    const bool on = state.toBool();
    return (promptStyle == 1 && !on) || (promptStyle == 2 && on);
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
    if (promptStyle > 3) {
        qDebug().noquote() << QStringLiteral("UserInterface - QKXConfirmationToggleButtonEventFilter::"
                                             "mouseReleaseEventFilter : PromptStyle %1 is none of 0 to 3; "
                                             "confirming both ways.")
                                  .arg(promptStyle);
    }
    const QVariant state = widget->property("State");
    if (promptStyle == 0 || !kx_guarded(promptStyle, state)) {
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
