// SPDX-License-Identifier: BSD-3-Clause
#include "SliderBarImpl.h"

#include "CSS.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

#include <cmath>

struct SliderBarImpl::Data
{
    double minimum = 0.0;
    double maximum = 100.0;
    double value = 0.0;
    double power = 0.0;
    int precision = 0;
    bool dragging = false;
};

// Geometry of the bar, in its own coordinates: the groove runs between the thumb's two half-widths so
// that the thumb stays whole at either end.
static const int sliderbar_thumbWidth = 28;
static const int sliderbar_grooveTop = 8;
static const int sliderbar_grooveHeight = 16;
static const int sliderbar_labelHeight = 18;

SliderBarImpl::SliderBarImpl(QWidget *parent)
    : QWidget(parent)
    , m(new Data)
{
    setObjectName(QStringLiteral("SliderBar"));
    setAttribute(Qt::WA_OpaquePaintEvent, false);
}

SliderBarImpl::~SliderBarImpl() = default;

double SliderBarImpl::minimum() const
{
    return m->minimum;
}

double SliderBarImpl::maximum() const
{
    return m->maximum;
}

void SliderBarImpl::setRange(double minimum, double maximum)
{
    m->minimum = minimum;
    m->maximum = maximum;
    update();
}

double SliderBarImpl::value() const
{
    return m->value;
}

void SliderBarImpl::setValue(double value)
{
    m->value = value;
    update();
}

double SliderBarImpl::power() const
{
    return m->power;
}

void SliderBarImpl::setPower(double power)
{
    m->power = power;
}

double SliderBarImpl::step() const
{
    return std::pow(10.0, m->power);
}

int SliderBarImpl::precision() const
{
    return m->precision;
}

void SliderBarImpl::changePrecisionAndUpdate(int precision)
{
    m->precision = qBound(0, precision, 15);
    update();
}

double SliderBarImpl::valueAt(int x) const
{
    const int span = width() - sliderbar_thumbWidth;
    const double fraction = span > 0 ? qBound(0.0, double(x - sliderbar_thumbWidth / 2) / span, 1.0) : 0.0;
    const double raw = m->minimum + fraction * (m->maximum - m->minimum);
    const double step = this->step();
    double snapped = step > 0.0 && std::isfinite(step) ? std::round(raw / step) * step : raw;
    // A grid point just beyond a limit that is not itself on the grid: the limit is the nearest value.
    snapped = qBound(qMin(m->minimum, m->maximum), snapped, qMax(m->minimum, m->maximum));
    const double scale = std::pow(10.0, m->precision);
    return std::round(snapped * scale) / scale;
}

QSize SliderBarImpl::sizeHint() const
{
    return QSize(300, sliderbar_grooveTop * 2 + sliderbar_grooveHeight + sliderbar_labelHeight);
}

void SliderBarImpl::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);

    const int half = sliderbar_thumbWidth / 2;
    const QRectF groove(half, sliderbar_grooveTop, width() - sliderbar_thumbWidth, sliderbar_grooveHeight);
    const double range = m->maximum - m->minimum;
    const double fraction = range != 0.0 && std::isfinite(m->value)
        ? qBound(0.0, (m->value - m->minimum) / range, 1.0) : 0.0;
    const double thumbX = groove.left() + fraction * groove.width();

    QPainterPath outline;
    outline.addRoundedRect(groove, sliderbar_grooveHeight / 2.0, sliderbar_grooveHeight / 2.0);
    painter.setPen(QPen(Qt::white, 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(outline);
    // The part up to the value, in the palette's highlight.
    painter.save();
    painter.setClipRect(QRectF(groove.left(), groove.top(), thumbX - groove.left(), groove.height()));
    painter.fillPath(outline, QColor(CSS::highlight()));
    painter.restore();

    const QRectF thumb(thumbX - half, 1, sliderbar_thumbWidth, sliderbar_grooveTop * 2 + sliderbar_grooveHeight - 2);
    QLinearGradient fill(thumb.topLeft(), thumb.bottomLeft());
    fill.setColorAt(0, QColor(CSS::gradientLight()));
    fill.setColorAt(1, QColor(CSS::gradientDark()));
    painter.setPen(QPen(QColor(CSS::border()), 1));
    painter.setBrush(fill);
    painter.drawRoundedRect(thumb, 6, 6);
    painter.setPen(QPen(Qt::white, 2));
    painter.drawLine(QPointF(thumbX, thumb.top() + 6), QPointF(thumbX, thumb.bottom() - 6));

    // The limits under the two ends of the groove.
    QFont small = font();
    small.setPixelSize(13);
    painter.setFont(small);
    painter.setPen(Qt::white);
    const QRectF labels(0, height() - sliderbar_labelHeight, width(), sliderbar_labelHeight);
    painter.drawText(labels, Qt::AlignLeft | Qt::AlignVCenter, QString::number(m->minimum, 'f', m->precision));
    painter.drawText(labels, Qt::AlignRight | Qt::AlignVCenter, QString::number(m->maximum, 'f', m->precision));
}

void SliderBarImpl::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    // The thumb jumps to the finger wherever it lands on the bar, then follows it.
    m->dragging = true;
    emit valueDragged(valueAt(event->pos().x()));
}

void SliderBarImpl::mouseMoveEvent(QMouseEvent *event)
{
    if (!m->dragging) {
        event->ignore();
        return;
    }
    emit valueDragged(valueAt(event->pos().x()));
}

void SliderBarImpl::mouseReleaseEvent(QMouseEvent *event)
{
    if (!m->dragging) {
        event->ignore();
        return;
    }
    m->dragging = false;
}
