// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXCONFIRMATIONPUSHBUTTON_H
#define QKXCONFIRMATIONPUSHBUTTON_H

#include "QKXPushButton.h"

class QKXConfirmationPushButtonPrivate;

// A command button whose command must be confirmed first. The four properties describe the prompt
// that its filter shows between the tap and the request for the edit lock.
class STANDALONEPLUGINS_EXPORT QKXConfirmationPushButton : public QKXPushButton
{
    Q_OBJECT
    Q_PROPERTY(QString DialogText READ dialogText WRITE setDialogText DESIGNABLE true STORED true)
    Q_PROPERTY(QString TitleText READ titleText WRITE setTitleText DESIGNABLE true STORED true)
    // 0: Cancel/OK, 1: No/Yes, 2: a notice with OK that does not confirm, 3: OK that confirms.
    Q_PROPERTY(int ButtonStyle READ buttonStyle WRITE setButtonStyle DESIGNABLE true STORED true)
    // 0: no prompt, greater than 0: prompt before the command, negative: prompt only (a notice).
    Q_PROPERTY(int PromptStyle READ promptStyle WRITE setPromptStyle DESIGNABLE true STORED true)

public:
    explicit QKXConfirmationPushButton(QWidget *parent = nullptr);
    ~QKXConfirmationPushButton() override;

    Q_INVOKABLE virtual QString dialogText() const;
    virtual void setDialogText(const QString &text);
    Q_INVOKABLE virtual QString titleText() const;
    virtual void setTitleText(const QString &text);
    Q_INVOKABLE virtual int buttonStyle() const;
    virtual void setButtonStyle(int style);
    Q_INVOKABLE virtual int promptStyle() const;
    virtual void setPromptStyle(int style);

private:
    Q_DISABLE_COPY(QKXConfirmationPushButton)
    Q_DECLARE_PRIVATE(QKXConfirmationPushButton)
};

#endif // QKXCONFIRMATIONPUSHBUTTON_H
