// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXFLAGSTATUS_H
#define QKXFLAGSTATUS_H

#include "QKXWidgetBase.h"

class QKXFlagStatusPrivate;

// A read-only lamp for a boolean engine flag: dark while clear, lit in the tripped colour while set,
// and, in blink mode, alternating once a second while set.
class STANDALONEPLUGINS_EXPORT QKXFlagStatus : public QKXWidgetBase
{
    Q_OBJECT
    Q_PROPERTY(QString TrippedLedColor READ getTrippedLedColor WRITE setTrippedLedColor DESIGNABLE true STORED true)
    Q_PROPERTY(bool ConfigureBlinkMode READ getBlinkMode WRITE setBlinkMode DESIGNABLE true STORED true)
    Q_PROPERTY(bool Value READ value WRITE setValue DESIGNABLE true STORED true)

public:
    explicit QKXFlagStatus(QWidget *parent = nullptr);
    ~QKXFlagStatus() override;

    Q_INVOKABLE bool value() const;
    // The caption, shown as given (hosts pass it already translated).
    Q_INVOKABLE void updateFlagStatusLabel(QString label);
    // A colour in style-sheet syntax; the lamp takes it at its next change or blink.
    Q_INVOKABLE void setTrippedLedColor(QString colorString);
    Q_INVOKABLE QString getTrippedLedColor() const;
    Q_INVOKABLE bool getBlinkMode() const;
    Q_INVOKABLE void setBlinkMode(bool enable);

public Q_SLOTS:
    // The lamp has a single size.
    void changeSize(QString size) override;
    void toggleLed();
    void setValue(bool value);

Q_SIGNALS:
    void valueChanged(bool value);

private:
    Q_DISABLE_COPY(QKXFlagStatus)
    Q_DECLARE_PRIVATE(QKXFlagStatus)
};

#endif // QKXFLAGSTATUS_H
