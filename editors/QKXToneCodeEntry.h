// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXTONECODEENTRY_H
#define QKXTONECODEENTRY_H

#include "QKXNumpad.h"

// The key pad for tone codes: 0 to 9, A to F and "-", on the numeric pad's hexadecimal layout without
// a decimal point or sign. Keys type into the registered text field; the hex page's Enter commits
// the whole code as text, whatever the field's filter calls its data type.
class STANDALONEPLUGINS_EXPORT QKXToneCodeEntry : public QKXNumpad
{
    Q_OBJECT
public:
    explicit QKXToneCodeEntry(QWidget *parent = nullptr);
    ~QKXToneCodeEntry() override;

public Q_SLOTS:
    void registerWidget(QObject *filter, QWidget *widget) override;

protected:
    virtual void createToneCodeButtons();

private:
    Q_DISABLE_COPY(QKXToneCodeEntry)
    Q_DECLARE_PRIVATE(QKXKeyPadBase)
};

#endif // QKXTONECODEENTRY_H
