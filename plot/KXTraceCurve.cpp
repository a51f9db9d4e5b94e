// SPDX-License-Identifier: BSD-3-Clause
#include "KXTraceCurve_p.h"

#include <QPainter>
#include <QPolygon>
#include <QPolygonF>
#include <QVarLengthArray>
#include <qwt_painter.h>
#include <qwt_scale_map.h>

#include <algorithm>
#include <climits>
#include <cstring>
#include <limits>
#include <cmath>
#include <vector>

// Points per summarised block of a trace.
static const int kx_blockSize = 64;

KXTraceData::KXTraceData(const double *x, const double *y, int size)
{
    assign(x, y, size);
}

void KXTraceData::assign(const double *x, const double *y, int size)
{
    bounds = QRectF(1.0, 1.0, -2.0, -2.0);
    sortedByX = true;
    runs.clear();
    blockLow.clear();
    blockHigh.clear();
    if (!x || !y || size <= 0) {
        xs.clear();
        ys.clear();
        xFinite = false;
        return;
    }
    // The usual trace, every value finite, takes one pass over x and one over y: copy, check and,
    // for y, summarise each block. A spectrum keeps its x values from one trace to the next; found
    // unchanged, they need neither copy nor check.
    const bool sameX = xFinite && size == int(xs.size())
        && std::memcmp(x, xs.data(), size_t(size) * sizeof(double)) == 0;
    if (!sameX) {
        xs.resize(size_t(size));
        bool finite = true;
        bool sorted = true;
        double previous = x[0];
        for (int i = 0; i < size; ++i) {
            const double xi = x[i];
            xs[size_t(i)] = xi;
            finite &= std::fabs(xi) <= std::numeric_limits<double>::max();
            sorted &= xi >= previous;
            previous = xi;
        }
        xFinite = finite;
        xSorted = sorted;
        if (finite && sorted) {
            xLow = x[0];
            xHigh = x[size - 1];
        } else if (finite) {
            const auto span = std::minmax_element(x, x + size);
            xLow = *span.first;
            xHigh = *span.second;
        }
    }
    ys.resize(size_t(size));
    const int blocks = (size + kx_blockSize - 1) / kx_blockSize;
    blockLow.resize(size_t(blocks));
    blockHigh.resize(size_t(blocks));
    bool yFinite = true;
    for (int b = 0; b < blocks; ++b) {
        const int begin = b * kx_blockSize;
        const int end = std::min(size, begin + kx_blockSize);
        double low = y[begin];
        double high = y[begin];
        for (int i = begin; i < end; ++i) {
            const double yi = y[i];
            ys[size_t(i)] = yi;
            yFinite &= std::fabs(yi) <= std::numeric_limits<double>::max();
            low = yi < low ? yi : low;
            high = yi > high ? yi : high;
        }
        blockLow[size_t(b)] = low;
        blockHigh[size_t(b)] = high;
    }
    if (xFinite && yFinite) {
        sortedByX = xSorted;
        runs.append(qMakePair(0, size - 1));
        const double yMin = *std::min_element(blockLow.begin(), blockLow.end());
        const double yMax = *std::max_element(blockHigh.begin(), blockHigh.end());
        bounds = QRectF(QPointF(xLow, yMin), QPointF(xHigh, yMax));
        return;
    }
    // Summaries that may hold a value that is not finite are no use.
    blockLow.clear();
    blockHigh.clear();

    double xMin = std::numeric_limits<double>::infinity();
    double xMax = -xMin;
    double yMin = xMin;
    double yMax = -xMin;
    int runStart = -1;
    double previousX = -std::numeric_limits<double>::infinity();
    for (int i = 0; i < size; ++i) {
        const double xi = x[i];
        const double yi = y[i];
        const bool xFinite = std::isfinite(xi);
        const bool yFinite = std::isfinite(yi);
        if (xFinite) {
            xMin = std::min(xMin, xi);
            xMax = std::max(xMax, xi);
        }
        if (yFinite) {
            yMin = std::min(yMin, yi);
            yMax = std::max(yMax, yi);
        }
        if (!xFinite || xi < previousX) {
            sortedByX = false;
        }
        previousX = xi;
        if (xFinite && yFinite) {
            if (runStart < 0) {
                runStart = i;
            }
        } else if (runStart >= 0) {
            runs.append(qMakePair(runStart, i - 1));
            runStart = -1;
        }
    }
    if (runStart >= 0) {
        runs.append(qMakePair(runStart, size - 1));
    }
    if (xMin <= xMax && yMin <= yMax) {
        bounds = QRectF(QPointF(xMin, yMin), QPointF(xMax, yMax));
    }
}

size_t KXTraceData::size() const
{
    return static_cast<size_t>(xs.size());
}

QPointF KXTraceData::sample(size_t i) const
{
    return QPointF(xs[i], ys[i]);
}

QRectF KXTraceData::boundingRect() const
{
    return bounds;
}

void KXTraceData::yRange(int first, int last, double &low, double &high) const
{
    low = ys[size_t(first)];
    high = low;
    const auto scan = [&](int from, int to) {
        for (int i = from; i <= to; ++i) {
            const double value = ys[size_t(i)];
            low = value < low ? value : low;
            high = value > high ? value : high;
        }
    };
    const int firstBlock = (first + kx_blockSize - 1) / kx_blockSize;
    const int endBlock = (last + 1) / kx_blockSize;
    if (blockLow.empty() || endBlock <= firstBlock) {
        scan(first, last);
        return;
    }
    scan(first, firstBlock * kx_blockSize - 1);
    for (int b = firstBlock; b < endBlock; ++b) {
        low = blockLow[size_t(b)] < low ? blockLow[size_t(b)] : low;
        high = blockHigh[size_t(b)] > high ? blockHigh[size_t(b)] : high;
    }
    scan(endBlock * kx_blockSize, last);
}

namespace {

// The plain curve's rounding for lines (half away from zero, kept as a double) and for dots (qRound).
inline double kx_lineRound(double value)
{
    return value >= 0.0 ? std::floor(value + 0.5) : std::ceil(value - 0.5);
}

// Pixel columns of a sorted trace, searched rather than visited point by point. Mapping and rounding
// are monotonic, so "column of point i >= c" is a monotonic predicate over i.
template <typename Column>
int kx_firstAtOrAfter(int from, int end, double column, Column columnOf)
{
    int count = end - from;
    while (count > 0) {
        const int half = count / 2;
        const int mid = from + half;
        if (columnOf(mid) < column) {
            from = mid + 1;
            count -= half + 1;
        } else {
            count = half;
        }
    }
    return from;
}

// The same search started from a guess: the columns of an evenly spaced trace hold about as many
// points as the one before, so the next column usually starts within a step of the guess, in memory
// the last column already brought in.
template <typename Column>
int kx_firstAtOrAfterNear(int from, int end, int guess, double column, Column columnOf)
{
    guess = qBound(from, guess, end);
    int step = 1;
    if (guess < end && columnOf(guess) < column) {
        int low = guess + 1;
        int high = guess + 1;
        while (high < end && columnOf(high) < column) {
            low = high + 1;
            step = int(qMin(2 * qint64(step), qint64(end - guess)));
            high = guess + step;
        }
        return kx_firstAtOrAfter(low, qMin(high, end), column, columnOf);
    }
    int high = guess;
    int low = guess - 1;
    while (low > from && columnOf(low) >= column) {
        high = low;
        step = int(qMin(2 * qint64(step), qint64(guess - from)));
        low = guess - step;
    }
    return kx_firstAtOrAfter(qMax(low, from), high, column, columnOf);
}

// Points of a pixel column taken as they are at its start and at its end. The rasterizer's choice
// at a joint looks back two segments; one more is margin.
const int kx_keptPoints = 3;

inline void kx_append(QPolygonF &line, const QPointF &point)
{
    if (line.isEmpty() || line.constLast() != point) {
        line.append(point);
    }
}

bool kx_increasing(const QwtScaleMap &map)
{
    return map.p1() < map.p2() && map.s1() < map.s2();
}

} // namespace

KXTraceCurve::KXTraceCurve() = default;

KXTraceCurve::~KXTraceCurve() = default;

void KXTraceCurve::setTrace(const double *x, const double *y, int size)
{
    if (auto *points = dynamic_cast<KXTraceData *>(data())) {
        points->assign(x, y, size);
        dataChanged();
        return;
    }
    setData(new KXTraceData(x, y, size));
}

const KXTraceData *KXTraceCurve::trace() const
{
    return dynamic_cast<const KXTraceData *>(data());
}

void KXTraceCurve::drawLines(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
                             const QRectF &canvasRect, int from, int to) const
{
    const KXTraceData *points = trace();
    const bool plainRoad = !points || !QwtPainter::roundingAlignment(painter)
        || testCurveAttribute(Fitted) || brush().style() != Qt::NoBrush;
    if (plainRoad) {
        QwtPlotCurve::drawLines(painter, xMap, yMap, canvasRect, from, to);
        return;
    }
    if (from > to) {
        return;
    }
    const double *xs = points->xValues();
    const double *ys = points->yValues();
    const qreal pw = qMax(qreal(1.0), painter->pen().widthF());
    const bool decimate = points->isSortedByX() && kx_increasing(xMap);
    // Columns beyond these lie outside the drawing area even for a wide pen; the point just outside
    // on each side stays, so the segments that cross into view are the original ones.
    const double leftColumn = std::floor(canvasRect.left() - pw) - 1.0;
    const double rightColumn = std::ceil(canvasRect.right() + pw) + 1.0;
    const auto columnOf = [&](int i) { return kx_lineRound(xMap.transform(xs[i])); };
    const auto pointAt = [&](int i) { return QPointF(columnOf(i), kx_lineRound(yMap.transform(ys[i]))); };

    const auto rowOf = [&](double value) { return kx_lineRound(yMap.transform(value)); };
    // One pixel column, points first to next - 1. Its pixels are the span between its highest and
    // its lowest point. The rasterizer also decides the pixels next to a joint by the last few
    // segments before it (their direction, the pixel they ended on, whether they drew anything), so
    // the column starts and ends with the trace's own points and sweeps the span in between.
    const auto appendColumn = [&](QPolygonF &line, double column, int first, int next) {
        // The trace's own first distinct rows of the column, as they come.
        int k = first;
        for (int kept = 0; k < next && kept < kx_keptPoints; ++k) {
            const QPointF point(column, rowOf(ys[k]));
            if (line.isEmpty() || line.constLast() != point) {
                line.append(point);
                ++kept;
            }
        }
        // Its last distinct rows, found from the end.
        QVarLengthArray<double, kx_keptPoints> tail;
        int m = next - 1;
        for (; m >= k && tail.size() < kx_keptPoints; --m) {
            const double row = rowOf(ys[m]);
            if (tail.isEmpty() || tail.last() != row) {
                tail.append(row);
            }
        }
        // Points k to m lie between them: only their highest and lowest rows matter.
        if (k <= m) {
            double low;
            double high;
            points->yRange(k, m, low, high);
            kx_append(line, QPointF(column, rowOf(low)));
            kx_append(line, QPointF(column, rowOf(high)));
        }
        for (int t = tail.size() - 1; t >= 0; --t) {
            kx_append(line, QPointF(column, tail.at(t)));
        }
    };

    QPolygonF line;
    for (const QPair<int, int> &run : points->finiteRuns()) {
        const int first = qMax(run.first, from);
        const int last = qMin(run.second, to);
        if (first > last) {
            continue;
        }
        line.clear();
        if (!decimate) {
            line.reserve(last - first + 1);
            for (int i = first; i <= last; ++i) {
                kx_append(line, pointAt(i));
            }
        } else {
            const int begin = kx_firstAtOrAfter(first, last + 1, leftColumn, columnOf);
            const int end = kx_firstAtOrAfter(begin, last + 1, rightColumn + 1.0, columnOf);
            line.reserve(4 * int(rightColumn - leftColumn + 1.0) + 2);
            if (begin > first) {
                kx_append(line, pointAt(begin - 1));
            }
            for (int i = begin, width = 1; i < end;) {
                const double column = columnOf(i);
                const int next = kx_firstAtOrAfterNear(i + 1, end, i + width, column + 1.0, columnOf);
                appendColumn(line, column, i, next);
                width = next - i;
                i = next;
            }
            if (end <= last) {
                kx_append(line, pointAt(end));
            }
        }
        painter->drawPolyline(line);
    }
}

void KXTraceCurve::drawDots(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
                            const QRectF &canvasRect, int from, int to) const
{
    const KXTraceData *points = trace();
    const QPen pen = painter->pen();
    // Only where the plain curve itself draws each distinct pixel once (an opaque pen, no
    // antialiasing, points filtered) is the set of pixels all that counts.
    const bool plainRoad = !points || !QwtPainter::roundingAlignment(painter)
        || brush().style() != Qt::NoBrush || testPaintAttribute(ImageBuffer)
        || testPaintAttribute(MinimizeMemory) || !testPaintAttribute(FilterPoints)
        || pen.color().alpha() != 255 || painter->testRenderHint(QPainter::Antialiasing);
    if (plainRoad) {
        QwtPlotCurve::drawDots(painter, xMap, yMap, canvasRect, from, to);
        return;
    }
    if (pen.style() == Qt::NoPen || from > to || points->size() == 0) {
        return;
    }
    from = qMax(from, 0);
    to = qMin(to, int(points->size()) - 1);
    const double *xs = points->xValues();
    const double *ys = points->yValues();
    const QRect area = canvasRect.toAlignedRect();
    if (area.isEmpty()) {
        return;
    }
    const int left = area.left();
    const int top = area.top();
    const int width = area.width();
    const int height = area.height();
    // Values far outside the area are rejected before rounding, so no rounding overflows an int.
    const auto inRange = [](double pixel, int low, int size) { return pixel >= low - 1.0 && pixel <= low + size + 1.0; };
    std::vector<quint8> taken(size_t(width) * size_t(height), 0);
    QPolygon dots;
    const auto take = [&](int column, double yPixel) {
        if (!inRange(yPixel, top, height)) {
            return;
        }
        const int row = qRound(yPixel) - top;
        const int col = column - left;
        if (row < 0 || row >= height || col < 0 || col >= width) {
            return;
        }
        quint8 &cell = taken[size_t(row) * size_t(width) + size_t(col)];
        if (!cell) {
            cell = 1;
            dots.append(QPoint(column, row + top));
        }
    };

    if (points->isSortedByX() && kx_increasing(xMap)) {
        const auto columnOf = [&](int i) {
            const double pixel = xMap.transform(xs[i]);
            if (pixel < left - 1.0) {
                return double(left - 1);
            }
            if (pixel > left + width + 1.0) {
                return double(left + width + 1);
            }
            return double(qRound(pixel));
        };
        const int begin = kx_firstAtOrAfter(from, to + 1, double(left), columnOf);
        const int end = kx_firstAtOrAfter(begin, to + 1, double(left + width), columnOf);
        for (int i = begin, width = 1; i < end;) {
            const int column = int(columnOf(i));
            const int next = kx_firstAtOrAfterNear(i + 1, end, i + width, column + 1.0, columnOf);
            for (int k = i; k < next; ++k) {
                take(column, yMap.transform(ys[k]));
            }
            width = next - i;
            i = next;
        }
    } else {
        for (int i = from; i <= to; ++i) {
            const double xPixel = xMap.transform(xs[i]);
            if (inRange(xPixel, left, width)) {
                take(qRound(xPixel), yMap.transform(ys[i]));
            }
        }
    }
    QwtPainter::drawPoints(painter, dots);
}
