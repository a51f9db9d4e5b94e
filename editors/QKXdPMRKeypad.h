// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXDPMRKEYPAD_H
#define QKXDPMRKEYPAD_H

#include "QKXKeyPadBase.h"

// The key pad for dPMR strings: 0 to 9 and "*", typing into the registered text field and committing
// the whole string with Enter. It has no live mode: IsLive is only stored.
class STANDALONEPLUGINS_EXPORT QKXdPMRKeypad : public QKXKeyPadBase
{
    Q_OBJECT
public:
    explicit QKXdPMRKeypad(QWidget *parent = nullptr);
    ~QKXdPMRKeypad() override;

    // A field whose filter's "DataType" is not "TextString" still gets the pad, but its Enter
    // reaches nobody (with a debug line).
    void registerWidget(QObject *filter, QWidget *widget) override;

public Q_SLOTS:
    void createNumpadButtons() override;

protected Q_SLOTS:
    void buttonPress() override;
    void buttonSubmit() override;

private:
    Q_DISABLE_COPY(QKXdPMRKeypad)
    Q_DECLARE_PRIVATE(QKXKeyPadBase)
};

#endif // QKXDPMRKEYPAD_H
