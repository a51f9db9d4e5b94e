// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXSPINNERCORNERBUTTON_H
#define QKXSPINNERCORNERBUTTON_H

#include "standaloneplugins_export.h"

#include <QPushButton>
#include <QScopedPointer>

class QKXSpinnerCornerButtonPrivate;

// A key in a corner of the spinner, cut round the wheel: its visible area is a 50 x 50 square less
// a circle of diameter 230 that stands where the wheel is, so the keys hug the wheel's rim, and the
// circle's edge is drawn over the key.
class STANDALONEPLUGINS_EXPORT QKXSpinnerCornerButton : public QPushButton
{
    Q_OBJECT
public:
    enum Corner : int { TopLeft = 0, TopRight = 1, BottomLeft = 2, BottomRight = 3 };
    Q_ENUM(Corner)

    QKXSpinnerCornerButton(Corner corner, const QString &text, QWidget *parent);
    ~QKXSpinnerCornerButton() override;

    Corner corner() const;
    // The wheel's circle in the key's own coordinates.
    QRect circle() const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Q_DISABLE_COPY(QKXSpinnerCornerButton)
    QScopedPointer<QKXSpinnerCornerButtonPrivate> d_ptr;
    Q_DECLARE_PRIVATE(QKXSpinnerCornerButton)
};

#endif // QKXSPINNERCORNERBUTTON_H
