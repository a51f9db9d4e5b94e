// SPDX-License-Identifier: BSD-3-Clause
#include "MeterBar_Bar.h"

#include "CSS.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPaintEvent>
#include <QPolygon>

#include <cmath>

namespace {

// The fills match the colours of the numeric meter readings' status overlays, so that a bar and
// the number beside it tell the same story.
const QColor meterbar_green(0x00, 0xc8, 0x3c);
const QColor meterbar_red(0xee, 0x00, 0x00);
const QColor meterbar_blue(0x00, 0x33, 0xdd);
const QColor meterbar_yellow(0xfe, 0xfe, 0x00);
const QColor meterbar_grey(0x70, 0x70, 0x70);

// Opaque, so that a reading repaints the bar alone and not the styled frames behind it.
const QColor meterbar_track(0x1f, 0x26, 0x2e);
const QColor meterbar_marks(255, 255, 255, 130);

int meterbar_knownState(int barState)
{
    switch (barState) {
    case MeterBar_Bar::Red:
    case MeterBar_Bar::Blue:
    case MeterBar_Bar::Empty:
    case MeterBar_Bar::Yellow:
    case MeterBar_Bar::Amber:
    case MeterBar_Bar::Grey:
    case MeterBar_Bar::Hatched:
        return barState;
    default:
        return MeterBar_Bar::Green;
    }
}

} // namespace

bool MeterBar_Bar::Geometry::operator==(const Geometry &other) const
{
    return origin == other.origin && end == other.end && zeroLine == other.zeroLine
        && belowRange == other.belowRange && aboveRange == other.aboveRange;
}

MeterBar_Bar::MeterBar_Bar(QWidget *parent)
    : QWidget(parent)
    , readingValue(0.0)
    , lowerLimit(0.0)
    , upperLimit(0.0)
    , state(Green)
    , horizontal(false)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

MeterBar_Bar::~MeterBar_Bar() = default;

bool MeterBar_Bar::isHorizontal() const
{
    return horizontal;
}

double MeterBar_Bar::value() const
{
    return readingValue;
}

double MeterBar_Bar::lower() const
{
    return lowerLimit;
}

double MeterBar_Bar::upper() const
{
    return upperLimit;
}

int MeterBar_Bar::barState() const
{
    return state;
}

QString MeterBar_Bar::unitText() const
{
    return unit;
}

QColor MeterBar_Bar::fillColor(int barState)
{
    switch (meterbar_knownState(barState)) {
    case Red:
        return meterbar_red;
    case Blue:
        return meterbar_blue;
    case Yellow:
        return meterbar_yellow;
    case Amber:
        return QColor(CSS::highlight());
    case Grey:
        return meterbar_grey;
    case Empty:
        return Qt::transparent;
    default:
        return meterbar_green;
    }
}

int MeterBar_Bar::length() const
{
    return horizontal ? width() : height();
}

MeterBar_Bar::Geometry MeterBar_Bar::geometryFor(double value, double lower, double upper) const
{
    const int pixels = length();
    const double span = upper - lower;
    // Where x falls along the track, as a fraction from the lower-limit end (beyond 0 to 1 when x
    // lies outside the limits); limits that coincide leave no track to place anything on.
    const auto fraction = [&](double x) {
        if (span == 0.0) {
            return x > lower ? 1.0 : 0.0;
        }
        return (x - lower) / span;
    };
    const auto position = [&](double f) {
        if (!(f > 0.0)) {   // NaN as well
            return 0;
        }
        return f >= 1.0 ? pixels : int(std::lround(f * pixels));
    };

    Geometry g;
    const double f = fraction(value);
    g.belowRange = f < 0.0;
    g.aboveRange = f > 1.0;
    g.end = position(f);
    const double zero = fraction(0.0);
    g.zeroLine = zero > 0.0 && zero < 1.0;
    g.origin = g.zeroLine ? position(zero) : 0;
    return g;
}

QRect MeterBar_Bar::spanRect(int a, int b) const
{
    const int from = qMin(a, b);
    const int to = qMax(a, b);
    if (horizontal) {
        return QRect(from, 0, to - from, height());
    }
    return QRect(0, height() - to, width(), to - from);
}

void MeterBar_Bar::updateReading(double value, double lower, double upper, int barState, const QString &unitText)
{
    const bool sameLook = meterbar_knownState(barState) == meterbar_knownState(state);
    readingValue = value;
    lowerLimit = lower;
    upperLimit = upper;
    state = barState;
    unit = unitText;

    const Geometry next = geometryFor(value, lower, upper);
    if (sameLook && next == shown) {
        return;
    }
    const bool onlyTheEndMoved = sameLook && next.origin == shown.origin && next.zeroLine == shown.zeroLine
        && next.belowRange == shown.belowRange && next.aboveRange == shown.aboveRange;
    const int previousEnd = shown.end;
    shown = next;
    if (onlyTheEndMoved) {
        // Only the pixels between the two ends change; the rest of the screen stays as it is.
        update(spanRect(previousEnd, next.end));
    } else {
        update();
    }
}

void MeterBar_Bar::setHorizontal(bool h)
{
    if (horizontal == h) {
        return;
    }
    horizontal = h;
    shown = geometryFor(readingValue, lowerLimit, upperLimit);
    updateGeometry();
    update();
}

QSize MeterBar_Bar::sizeHint() const
{
    return horizontal ? QSize(160, 24) : QSize(40, 160);
}

QSize MeterBar_Bar::minimumSizeHint() const
{
    return QSize(8, 8);
}

void MeterBar_Bar::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    shown = geometryFor(readingValue, lowerLimit, upperLimit);
    emit resized();
}

void MeterBar_Bar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QRect all = rect();
    const int drawnState = meterbar_knownState(state);
    painter.fillRect(all, meterbar_track);

    if (drawnState == Empty) {
        painter.fillRect(all, QBrush(QColor(255, 255, 255, 60), Qt::BDiagPattern));
    } else {
        const QRect fill = spanRect(shown.origin, shown.end);
        if (!fill.isEmpty()) {
            // Lit across the bar, so that it reads as a rod rather than a flat strip.
            const QColor colour = fillColor(drawnState);
            QLinearGradient light = horizontal ? QLinearGradient(0, 0, 0, height()) : QLinearGradient(0, 0, width(), 0);
            light.setColorAt(0.0, colour.lighter(135));
            light.setColorAt(0.45, colour);
            light.setColorAt(1.0, colour.darker(150));
            painter.fillRect(fill, light);
            if (drawnState == Hatched) {
                painter.fillRect(fill, QBrush(QColor(0, 0, 0, 110), Qt::BDiagPattern));
            }
        }
    }

    // Quarter marks along the edge where the scale labels sit.
    const int pixels = length();
    const int across = horizontal ? height() : width();
    const int markLength = qMax(3, across / 5);
    for (int quarter = 1; quarter < 4; ++quarter) {
        const int at = pixels * quarter / 4;
        if (horizontal) {
            painter.fillRect(QRect(at, height() - markLength, 1, markLength), meterbar_marks);
        } else {
            painter.fillRect(QRect(width() - markLength, height() - at, markLength, 1), meterbar_marks);
        }
    }

    if (shown.zeroLine) {
        const QRect line = horizontal ? QRect(shown.origin - 1, 0, 2, height()) : QRect(0, height() - shown.origin - 1, width(), 2);
        painter.fillRect(line, QColor(255, 255, 255, 210));
    }

    // A notch at the end the reading has gone past.
    if (shown.aboveRange || shown.belowRange) {
        const int size = qMax(4, qMin(across / 3, 10));
        const int middle = across / 2;
        QPolygon notch;
        if (horizontal) {
            const int x = shown.aboveRange ? width() - 1 : 0;
            const int inward = shown.aboveRange ? -size : size;
            notch << QPoint(x, middle - size) << QPoint(x + inward, middle) << QPoint(x, middle + size);
        } else {
            const int y = shown.aboveRange ? 0 : height() - 1;
            const int inward = shown.aboveRange ? size : -size;
            notch << QPoint(middle - size, y) << QPoint(middle, y + inward) << QPoint(middle + size, y);
        }
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(255, 255, 255, 230));
        painter.drawPolygon(notch);
    }
}
