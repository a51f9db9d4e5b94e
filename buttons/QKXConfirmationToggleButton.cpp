// SPDX-License-Identifier: BSD-3-Clause
#include "QKXConfirmationToggleButton.h"
#include "QKXToggleButton_p.h"

#include "KXConfirmationPrompt_p.h"

class QKXConfirmationToggleButtonPrivate : public QKXToggleButtonPrivate
{
    Q_OBJECT
public:
    explicit QKXConfirmationToggleButtonPrivate(QKXConfirmationToggleButton *q) : QKXToggleButtonPrivate(q) {}

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

QKXConfirmationToggleButton::QKXConfirmationToggleButton(QWidget *parent)
    : QKXToggleButton(*new QKXConfirmationToggleButtonPrivate(this), parent)
{
}

QKXConfirmationToggleButton::~QKXConfirmationToggleButton() = default;

QString QKXConfirmationToggleButton::dialogText() const
{
    Q_D(const QKXConfirmationToggleButton);
    return d->dialogText();
}

void QKXConfirmationToggleButton::setDialogText(const QString &text)
{
    Q_D(QKXConfirmationToggleButton);
    d->setDialogText(text);
}

QString QKXConfirmationToggleButton::titleText() const
{
    Q_D(const QKXConfirmationToggleButton);
    return d->titleText();
}

void QKXConfirmationToggleButton::setTitleText(const QString &text)
{
    Q_D(QKXConfirmationToggleButton);
    d->setTitleText(text);
}

int QKXConfirmationToggleButton::buttonStyle() const
{
    Q_D(const QKXConfirmationToggleButton);
    return d->buttonStyle();
}

void QKXConfirmationToggleButton::setButtonStyle(int style)
{
    Q_D(QKXConfirmationToggleButton);
    d->setButtonStyle(style);
}

int QKXConfirmationToggleButton::promptStyle() const
{
    Q_D(const QKXConfirmationToggleButton);
    return d->promptStyle();
}

void QKXConfirmationToggleButton::setPromptStyle(int style)
{
    Q_D(QKXConfirmationToggleButton);
    d->setPromptStyle(style);
}

#include "QKXConfirmationToggleButton.moc"
