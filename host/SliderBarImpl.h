// SPDX-License-Identifier: BSD-3-Clause
#ifndef SLIDERBARIMPL_H
#define SLIDERBARIMPL_H

#include "norvanehost_export.h"

#include <QScopedPointer>
#include <QWidget>

// The bar of the host's slider popup: a groove between the two limits, filled up to the value, with
// a thumb the finger drags. Values the finger chooses lie on the step grid (whole multiples of
// 10^power) and within the limits, rounded to the precision; the limits are written under the ends.
class NORVANEHOST_EXPORT SliderBarImpl : public QWidget
{
    Q_OBJECT
public:
    explicit SliderBarImpl(QWidget *parent = nullptr);
    ~SliderBarImpl() override;

    double minimum() const;
    double maximum() const;
    void setRange(double minimum, double maximum);

    // Where the thumb stands; a value beyond the limits puts it at the nearer end.
    double value() const;
    void setValue(double value);

    // Decimal exponent of one step: a step changes the value by 10^power.
    double power() const;
    void setPower(double power);
    double step() const;

    int precision() const;
    // Takes a new number of decimals for the value and the limits and shows them with it.
    void changePrecisionAndUpdate(int precision);

    // The value under a point of the bar, on the step grid and within the limits.
    double valueAt(int x) const;

    QSize sizeHint() const override;

Q_SIGNALS:
    // A value the finger chose, pressing or dragging.
    void valueDragged(double value);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    struct Data;
    QScopedPointer<Data> m;
};

#endif // SLIDERBARIMPL_H
