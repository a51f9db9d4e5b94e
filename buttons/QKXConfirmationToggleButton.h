// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXCONFIRMATIONTOGGLEBUTTON_H
#define QKXCONFIRMATIONTOGGLEBUTTON_H

#include "QKXToggleButton.h"

class QKXConfirmationToggleButtonPrivate;

// An on/off button whose switching must be confirmed first. The four properties describe the prompt
// that its filter shows between the tap and the request for the edit lock.
class STANDALONEPLUGINS_EXPORT QKXConfirmationToggleButton : public QKXToggleButton
{
    Q_OBJECT
    Q_PROPERTY(QString DialogText READ dialogText WRITE setDialogText DESIGNABLE true STORED true)
    Q_PROPERTY(QString TitleText READ titleText WRITE setTitleText DESIGNABLE true STORED true)
    // 0: Cancel/OK, 1: No/Yes, 2: a notice with OK that does not confirm, 3: OK that confirms.
    Q_PROPERTY(int ButtonStyle READ buttonStyle WRITE setButtonStyle DESIGNABLE true STORED true)
    // 0: no prompt, 1: confirm switching on, 2: confirm switching off, 3: confirm both ways,
    // negative: prompt only (a notice).
    Q_PROPERTY(int PromptStyle READ promptStyle WRITE setPromptStyle DESIGNABLE true STORED true)

public:
    explicit QKXConfirmationToggleButton(QWidget *parent = nullptr);
    ~QKXConfirmationToggleButton() override;

    Q_INVOKABLE virtual QString dialogText() const;
    virtual void setDialogText(const QString &text);
    Q_INVOKABLE virtual QString titleText() const;
    virtual void setTitleText(const QString &text);
    Q_INVOKABLE virtual int buttonStyle() const;
    virtual void setButtonStyle(int style);
    Q_INVOKABLE virtual int promptStyle() const;
    virtual void setPromptStyle(int style);

private:
    Q_DISABLE_COPY(QKXConfirmationToggleButton)
    Q_DECLARE_PRIVATE(QKXConfirmationToggleButton)
};

#endif // QKXCONFIRMATIONTOGGLEBUTTON_H
