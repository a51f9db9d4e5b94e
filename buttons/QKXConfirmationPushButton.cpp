// SPDX-License-Identifier: BSD-3-Clause
#include "QKXConfirmationPushButton.h"
#include "QKXPushButton_p.h"

#include "KXConfirmationPrompt_p.h"

class QKXConfirmationPushButtonPrivate : public QKXPushButtonPrivate
{
    Q_OBJECT
public:
    explicit QKXConfirmationPushButtonPrivate(QKXConfirmationPushButton *q) : QKXPushButtonPrivate(q) {}

    virtual QString dialogText() const { return prompt.dialogText; }
    virtual void setDialogText(const QString &text) { prompt.dialogText = text; }
    virtual QString titleText() const { return prompt.titleText; }
    virtual void setTitleText(const QString &text) { prompt.titleText = text; }
    virtual int buttonStyle() const { return prompt.buttonStyle; }
    virtual void setButtonStyle(int style) { prompt.buttonStyle = style; }
    virtual int promptStyle() const { return prompt.promptStyle; }
    virtual void setPromptStyle(int style) { prompt.promptStyle = style; }

    KXPromptSettings prompt;
};

QKXConfirmationPushButton::QKXConfirmationPushButton(QWidget *parent)
    : QKXPushButton(*new QKXConfirmationPushButtonPrivate(this), parent)
{
}

QKXConfirmationPushButton::~QKXConfirmationPushButton() = default;

QString QKXConfirmationPushButton::dialogText() const
{
    Q_D(const QKXConfirmationPushButton);
    return d->dialogText();
}

void QKXConfirmationPushButton::setDialogText(const QString &text)
{
    Q_D(QKXConfirmationPushButton);
    d->setDialogText(text);
}

QString QKXConfirmationPushButton::titleText() const
{
    Q_D(const QKXConfirmationPushButton);
    return d->titleText();
}

void QKXConfirmationPushButton::setTitleText(const QString &text)
{
    Q_D(QKXConfirmationPushButton);
    d->setTitleText(text);
}

int QKXConfirmationPushButton::buttonStyle() const
{
    Q_D(const QKXConfirmationPushButton);
    return d->buttonStyle();
}

void QKXConfirmationPushButton::setButtonStyle(int style)
{
    Q_D(QKXConfirmationPushButton);
    d->setButtonStyle(style);
}

int QKXConfirmationPushButton::promptStyle() const
{
    Q_D(const QKXConfirmationPushButton);
    return d->promptStyle();
}

void QKXConfirmationPushButton::setPromptStyle(int style)
{
    Q_D(QKXConfirmationPushButton);
    d->setPromptStyle(style);
}

#include "QKXConfirmationPushButton.moc"
