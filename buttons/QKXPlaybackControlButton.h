// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXPLAYBACKCONTROLBUTTON_H
#define QKXPLAYBACKCONTROLBUTTON_H

#include "QKXWidgetBase.h"

class QKXPlaybackControlButtonPrivate;

// A square playback key showing a play triangle, a stop square or no symbol. It has no locked look,
// and a lock does not keep it from reporting clicks.
class STANDALONEPLUGINS_EXPORT QKXPlaybackControlButton : public QKXWidgetBase
{
    Q_OBJECT
    Q_PROPERTY(Button_Type ButtonType READ buttonType WRITE setButtonType DESIGNABLE true STORED true)

public:
    // Over int, so that any number a form or host writes is a value the key can hold.
    enum Button_Type : int { none = 0, play = 1, stop = 2 };
    Q_ENUM(Button_Type)

    explicit QKXPlaybackControlButton(QWidget *parent = nullptr);
    ~QKXPlaybackControlButton() override;

    virtual Button_Type buttonType() const;
    // Same as setButtonName(): the inner button's object name, reported by buttonPressed().
    void setButtonObjectName(const QString &name);

    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

public Q_SLOTS:
    virtual void setButtonName(QString bName);
    void setLocked(bool isL) override;
    // A value outside the enumeration is kept, reported, and leaves the key without a look.
    virtual void setButtonType(QKXPlaybackControlButton::Button_Type bType);

Q_SIGNALS:
    void clicked();
    void buttonPressed(QString);

private:
    Q_DISABLE_COPY(QKXPlaybackControlButton)
    Q_DECLARE_PRIVATE(QKXPlaybackControlButton)
};

#endif // QKXPLAYBACKCONTROLBUTTON_H
