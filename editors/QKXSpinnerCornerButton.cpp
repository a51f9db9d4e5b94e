// SPDX-License-Identifier: BSD-3-Clause
#include "QKXSpinnerCornerButton.h"

#include <QPainter>
#include <QRegion>

namespace {
const int kx_circleDiameter = 230;
const int kx_keySquare = 50;

const char *const CornerStyle =
    "QKXSpinnerCornerButton { border: 1px solid #fff; border-radius: 10px; color: #fff; }"
    "QKXSpinnerCornerButton:pressed { background-color: #fff; color: #000; }";
} // namespace

class QKXSpinnerCornerButtonPrivate
{
public:
    QKXSpinnerCornerButton::Corner corner;
    QPoint circleAt;
};

QKXSpinnerCornerButton::QKXSpinnerCornerButton(Corner corner, const QString &text, QWidget *parent)
    : QPushButton(text, parent)
    , d_ptr(new QKXSpinnerCornerButtonPrivate)
{
    Q_D(QKXSpinnerCornerButton);
    d->corner = corner;
    switch (corner) {
    case TopLeft:
        d->circleAt = QPoint(4, 4);
        break;
    case TopRight:
        d->circleAt = QPoint(-187, 4);
        break;
    case BottomLeft:
        d->circleAt = QPoint(4, -185);
        break;
    case BottomRight:
        d->circleAt = QPoint(-185, -185);
        break;
    }
    setStyleSheet(QString::fromLatin1(CornerStyle));
    setMask(QRegion(0, 0, kx_keySquare, kx_keySquare) - QRegion(circle(), QRegion::Ellipse));
}

QKXSpinnerCornerButton::~QKXSpinnerCornerButton() = default;

QKXSpinnerCornerButton::Corner QKXSpinnerCornerButton::corner() const
{
    Q_D(const QKXSpinnerCornerButton);
    return d->corner;
}

QRect QKXSpinnerCornerButton::circle() const
{
    Q_D(const QKXSpinnerCornerButton);
    return QRect(d->circleAt, QSize(kx_circleDiameter, kx_circleDiameter));
}

void QKXSpinnerCornerButton::paintEvent(QPaintEvent *event)
{
    QPushButton::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::white, 1));
    painter.setBrush(Qt::black);
    painter.drawEllipse(circle());
}
