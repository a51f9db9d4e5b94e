// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXCOMBOWHEEL_H
#define QKXCOMBOWHEEL_H

#include "QKXComboPopup.h"

class QKXWheelFrame;
class QVBoxLayout;

// The wheel popup of the wheel enum: the literals on a wheel beside the widget, exactly as the record
// spells them, the current value on the band. A tap on an item submits its value; a tap beside the
// wheel cancels.
// A value listed more than once is one item, placed where its last entry is, with that entry's
// literal; the list popup keeps one row per entry instead.
class STANDALONEPLUGINS_EXPORT QKXComboWheel : public QKXComboPopup
{
    Q_OBJECT
public:
    explicit QKXComboWheel(QWidget *parent = nullptr);
    ~QKXComboWheel() override;

    QKXWheelFrame *wheelFrame() const;

protected:
    QWidget *columnFrame() const override;
    QLayout *columnLayout() const override;
    bool acceptsWidget(QWidget *widget) const override;
    void attachWidget(QWidget *widget) override;
    void fillColumn(const QVariant &record) override;
    void placeColumn(QWidget *widget) override;

private:
    Q_DISABLE_COPY(QKXComboWheel)
    QKXWheelFrame *frame;
    QVBoxLayout *layout;
};

#endif // QKXCOMBOWHEEL_H
