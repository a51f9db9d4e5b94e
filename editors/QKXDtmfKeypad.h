// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXDTMFKEYPAD_H
#define QKXDTMFKEYPAD_H

#include "QKXKeyPadBase.h"

// The key pad for DTMF dial strings: 0 to 9, "*", "#" and A to D in the telephone layout, typing into
// the registered text field and committing the whole string with Enter.
//
// Live (IsLive true), every key press sends the grown string at once through submit() and brackets the
// hold of the key with holding(true) and holding(false), so the host can sound the tone for as long as
// the key is held. A live string restarts from empty when a key is pressed on 20 characters or more.
class STANDALONEPLUGINS_EXPORT QKXDtmfKeypad : public QKXKeyPadBase
{
    Q_OBJECT
public:
    explicit QKXDtmfKeypad(QWidget *parent = nullptr);
    ~QKXDtmfKeypad() override;

    void setLive(bool live) override;
    // A field whose filter's "DataType" is not "TextString" still gets the pad, but its Enter
    // reaches nobody (with a debug line).
    void registerWidget(QObject *filter, QWidget *widget) override;

Q_SIGNALS:
    void holding(bool held);

protected Q_SLOTS:
    void buttonPress() override;
    virtual void buttonPush();
    virtual void buttonRelease();
    void buttonSubmit() override;

protected:
    void createNumpadButtons() override;
    virtual void handleButton(QPushButton *button);

private:
    Q_DISABLE_COPY(QKXDtmfKeypad)
    Q_DECLARE_PRIVATE(QKXKeyPadBase)
};

#endif // QKXDTMFKEYPAD_H
