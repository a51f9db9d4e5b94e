// SPDX-License-Identifier: BSD-3-Clause
#ifndef ROTATABLELABEL_H
#define ROTATABLELABEL_H

#include "norvanehost_export.h"

#include <QColor>
#include <QLabel>
#include <QScopedPointer>

// A caption drawn turned by an angle in degrees: 90 reads downward, -90 upward, 0 as a plain label.
// Its size hints are those of the turned text, so a layout gives a quarter-turned caption a tall,
// narrow cell. The alignment is the widget's: AlignTop puts a downward caption's first letter at the
// top of its cell, AlignBottom an upward caption's first letter at the bottom.
class NORVANEHOST_EXPORT RotatableLabel : public QLabel
{
    Q_OBJECT
    Q_PROPERTY(int angle READ angle WRITE setAngle)
    Q_PROPERTY(QColor color READ color WRITE setColor)

public:
    explicit RotatableLabel(QWidget *parent = nullptr);
    RotatableLabel(const QString &text, int angle, QWidget *parent = nullptr);
    ~RotatableLabel() override;

    int angle() const;
    void setAngle(int degrees);

    // The text colour; an invalid colour draws in the palette's text colour (a style sheet's "color").
    QColor color() const;
    void setColor(const QColor &color);
    void setColor(const QString &color) { setColor(QColor(color)); }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    struct Data;
    QScopedPointer<Data> m;
};

#endif // ROTATABLELABEL_H
