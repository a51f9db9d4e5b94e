// SPDX-License-Identifier: BSD-3-Clause
#include "RotatableLabel.h"

#include <QPainter>
#include <QPaintEvent>
#include <QStyle>
#include <QStyleOption>

struct RotatableLabel::Data
{
    int angle = 0;
    QColor color;
};

// Whether the angle turns the text across the widget (a quarter turn, either way).
static bool rotatable_isQuarterTurn(int angle)
{
    const int a = ((angle % 360) + 360) % 360;
    return a == 90 || a == 270;
}

// The widget's alignment expressed in the turned frame the text is drawn in. A quarter turn clockwise
// makes the widget's top the text's left and the widget's left the text's bottom; the other way round
// for a quarter turn back.
static Qt::Alignment rotatable_turnedAlignment(Qt::Alignment align, int angle)
{
    const int a = ((angle % 360) + 360) % 360;
    if (a != 90 && a != 270) {
        return align;
    }
    const bool clockwise = a == 90;
    Qt::Alignment turned;
    if (align & Qt::AlignTop) {
        turned |= clockwise ? Qt::AlignLeft : Qt::AlignRight;
    } else if (align & Qt::AlignBottom) {
        turned |= clockwise ? Qt::AlignRight : Qt::AlignLeft;
    } else {
        turned |= Qt::AlignHCenter;
    }
    if (align & Qt::AlignLeft) {
        turned |= clockwise ? Qt::AlignBottom : Qt::AlignTop;
    } else if (align & Qt::AlignRight) {
        turned |= clockwise ? Qt::AlignTop : Qt::AlignBottom;
    } else {
        turned |= Qt::AlignVCenter;
    }
    return turned;
}

RotatableLabel::RotatableLabel(QWidget *parent)
    : QLabel(parent)
    , m(new Data)
{
}

RotatableLabel::RotatableLabel(const QString &text, int angle, QWidget *parent)
    : QLabel(text, parent)
    , m(new Data)
{
    m->angle = angle;
}

RotatableLabel::~RotatableLabel() = default;

int RotatableLabel::angle() const
{
    return m->angle;
}

void RotatableLabel::setAngle(int degrees)
{
    if (m->angle == degrees) {
        return;
    }
    const bool cellChanges = rotatable_isQuarterTurn(m->angle) != rotatable_isQuarterTurn(degrees);
    m->angle = degrees;
    if (cellChanges) {
        updateGeometry();
    }
    update();
}

QColor RotatableLabel::color() const
{
    return m->color;
}

void RotatableLabel::setColor(const QColor &color)
{
    if (m->color == color) {
        return;
    }
    m->color = color;
    update();
}

QSize RotatableLabel::sizeHint() const
{
    const QSize flat = QLabel::sizeHint();
    return rotatable_isQuarterTurn(m->angle) ? flat.transposed() : flat;
}

QSize RotatableLabel::minimumSizeHint() const
{
    const QSize flat = QLabel::minimumSizeHint();
    return rotatable_isQuarterTurn(m->angle) ? flat.transposed() : flat;
}

void RotatableLabel::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event);
    QPainter painter(this);
    // The frame, background and borders of a style sheet are the plain label's; only the text turns.
    QStyleOption option;
    option.initFrom(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);

    const QRect area = contentsRect();
    const bool quarter = rotatable_isQuarterTurn(m->angle);
    const QSize turned = quarter ? area.size().transposed() : area.size();
    painter.translate(QRectF(area).center());
    painter.rotate(m->angle);
    painter.setPen(m->color.isValid() ? m->color : palette().color(foregroundRole()));
    painter.setFont(font());
    const QRectF box(-turned.width() / 2.0, -turned.height() / 2.0, turned.width(), turned.height());
    painter.drawText(box, int(rotatable_turnedAlignment(alignment(), m->angle)) | Qt::TextSingleLine, text());
}
