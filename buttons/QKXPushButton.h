// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXPUSHBUTTON_H
#define QKXPUSHBUTTON_H

#include "QKXWidgetBase.h"

class QKXPushButtonPrivate;

// The attribute-bound command button: a tap sends the attribute a command, with no value.
class STANDALONEPLUGINS_EXPORT QKXPushButton : public QKXWidgetBase
{
    Q_OBJECT
    // On a button the caption is the button's own text.
    Q_PROPERTY(QString LabelText READ buttonText WRITE setButtonText DESIGNABLE true STORED true)

public:
    explicit QKXPushButton(QWidget *parent = nullptr);
    ~QKXPushButton() override;

    Q_INVOKABLE virtual QString buttonText() const;
    Q_INVOKABLE virtual void setButtonText(QString text);

    // Same as setButtonName(): the inner button's object name, reported by buttonPressed().
    void setButtonObjectName(const QString &name);

    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

public Q_SLOTS:
    virtual void setButtonName(QString bName);
    void setLocked(bool isL) override;

Q_SIGNALS:
    void clicked();
    void buttonPressed(QString);

protected:
    QKXPushButton(QKXPushButtonPrivate &dd, QWidget *parent);

private:
    Q_DISABLE_COPY(QKXPushButton)
    Q_DECLARE_PRIVATE(QKXPushButton)
};

#endif // QKXPUSHBUTTON_H
