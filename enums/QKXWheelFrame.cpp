// SPDX-License-Identifier: BSD-3-Clause
#include "QKXWheelFrame.h"

#include "CSS.h"
#include "QKXComboListItem.h"

#include <QDebug>
#include <QElapsedTimer>
#include <QLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QTimer>
#include <QVariantAnimation>
#include <QVector>

#include <cmath>

namespace {

// A flick slower than this (pixels per millisecond) just settles on the nearest item.
const double FlickSpeed = 0.3;
// Only the finger's last stretch of movement counts towards a flick.
const qint64 FlickWindow = 100;
// The running wheel keeps this share of its speed per millisecond, so it comes to rest within about
// a second from a fast flick.
const double Friction = 0.996;
const double RestSpeed = 0.05;
const int FrameInterval = 16;
const int SettleDuration = 150;

struct Sample
{
    qint64 time;
    int top;
};

// The two lines that mark the selection band, laid over the turning column.
class BandMarker : public QWidget
{
public:
    explicit BandMarker(QWidget *parent) : QWidget(parent)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAttribute(Qt::WA_NoSystemBackground);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setPen(QPen(QColor(CSS::highlight()), 2));
        painter.drawLine(0, 1, width(), 1);
        painter.drawLine(0, height() - 1, width(), height() - 1);
    }
};

} // namespace

struct QKXWheelFrame::Data
{
    QString style;
    QPointer<QWidget> widget;
    QFrame *column = nullptr;
    BandMarker *band = nullptr;
    QElapsedTimer clock;
    QVector<Sample> samples;
    QTimer runOn;
    double speed = 0.0;        // pixels per millisecond, positive downwards
    double carried = 0.0;      // the part of a pixel not moved yet
    qint64 lastTick = 0;
    QVariantAnimation settle;

    int itemCount() const
    {
        return column->layout() ? column->layout()->count() : 0;
    }
    // The tops the column may take while it runs on and settles: from its end on the band's bottom
    // to its first item on the band. Resting any lower would leave it where a drag cannot move it.
    int lowestTop() const
    {
        return qMin(int(BandTop), BandBottom - column->height());
    }
};

QKXWheelFrame::QKXWheelFrame(QWidget *parent, QWidget *widget)
    : QFrame(parent)
    , m(new Data)
{
    m->style = styleTemplate();
    m->widget = widget;
    setObjectName(QStringLiteral("wheelFrame"));
    m->column = new QFrame(this);
    m->column->setObjectName(QStringLiteral("listFrame"));
    m->column->move(ColumnX, 0);
    m->band = new BandMarker(this);
    m->band->raise();
    setStyleSheet(m->style);
    m->clock.start();

    m->runOn.setInterval(FrameInterval);
    connect(&m->runOn, &QTimer::timeout, this, [this] {
        const qint64 now = m->clock.elapsed();
        const qint64 dt = qMax<qint64>(1, now - m->lastTick);
        m->lastTick = now;
        m->carried += m->speed * dt;
        const int wanted = int(m->carried);
        m->carried -= wanted;
        const int top = m->column->y();
        const int target = qBound(m->lowestTop(), top + wanted, int(BandTop));
        m->column->move(m->column->x(), target);
        m->speed *= std::pow(Friction, double(dt));
        if (target != top + wanted || std::abs(m->speed) < RestSpeed) {
            m->runOn.stop();
            releaseDrag();
        }
    });
    m->settle.setDuration(SettleDuration);
    m->settle.setEasingCurve(QEasingCurve::OutCubic);
    connect(&m->settle, &QVariantAnimation::valueChanged, this, [this](const QVariant &top) {
        m->column->move(m->column->x(), top.toInt());
    });
}

QKXWheelFrame::~QKXWheelFrame() = default;

QString QKXWheelFrame::styleTemplate()
{
    return QStringLiteral(R"(QFrame#wheelFrame {
    min-width: 144px;
    min-height: 210 px;
    max-height: 210 px;
    color: transparent;
    border: 2px solid white;
    background-color: black;
}
QFrame#listFrame {
    border: 1px solid white;
    border-radius: 10px;
    min-width: 140px;
    margin: 0px;
    background-color: %1;
}
QPushButton#cbPushButton, QPushButton#lastPushButton {
    border: none;
    font-size: 26px;
    min-height: 42px;
    max-height: 42px;
    min-width: 60px;
    padding: 0px 0px 0px 9px;
    color: white;
    border-bottom: 1px dashed white;
}
QPushButton#lastPushButton {
    border-bottom: none;
}
QPushButton:pressed {
    color: #000;
}
)")
        .arg(CSS::accentRGBA());
}

void QKXWheelFrame::setWidget(QWidget *widget)
{
    m->widget = widget;
}

QWidget *QKXWheelFrame::widget() const
{
    return m->widget;
}

QFrame *QKXWheelFrame::column() const
{
    return m->column;
}

void QKXWheelFrame::addLayout(QLayout *layout)
{
    m->column->setLayout(layout);
}

void QKXWheelFrame::fitColumn()
{
    const QSize hint = m->column->sizeHint();
    m->column->resize(qMax(width() - 2 * ColumnX, hint.width()), hint.height());
}

void QKXWheelFrame::setCurIdx(int row)
{
    stopMotion();
    m->column->move(ColumnX, BandTop - QKXComboListItem::RowPitch * row);
}

void QKXWheelFrame::moveIt(const QPoint &delta)
{
    // Trace of the limit rule, read off the debug stream when a wheel misbehaves on a panel.
    qDebug("moveIt 1");
    qDebug("moveIt 2");
    qDebug("moveIt 3");
    qDebug("moveIt 5");
    const int top = m->column->y();
    const int bottom = top + m->column->height();
    int dy = delta.y();

    if (top < BandTop && bottom > BandBottom) {
        qDebug("moveIt 6");
        if (top + dy > BandTop) {
            dy = BandTop - top;
            qDebug("moveIt 7");
        } else if (bottom + dy < BandBottom) {
            dy = BandBottom - bottom;
            qDebug("moveIt 8");
        }
    } else if (top == BandTop && dy < 0) {
        qDebug("moveIt 9");
        if (bottom + dy < BandBottom) {
            dy = BandBottom - bottom;
            qDebug("moveIt 11");
        }
        m->column->move(m->column->x(), top + dy);
        qDebug("moveIt 12");
        m->samples.append({m->clock.elapsed(), m->column->y()});
        return;
    } else if (bottom == BandBottom && dy > 0) {
        qDebug("moveIt 13");
        if (top + dy > BandTop) {
            dy = BandTop - top;
            qDebug("moveIt 14");
        }
        qDebug("moveIt 16");
    } else {
        // Anywhere else the column stays. That includes the last item put on the band by setCurIdx():
        // the column's border leaves its end a pixel short of the band's, and hosts rely on the wheel
        // standing still there.
        return;
    }
    m->column->move(m->column->x(), top + dy);
    m->samples.append({m->clock.elapsed(), m->column->y()});
}

void QKXWheelFrame::releaseDrag()
{
    const qint64 now = m->clock.elapsed();
    double speed = 0.0;
    int first = -1;
    for (int i = 0; i < m->samples.size(); ++i) {
        if (now - m->samples.at(i).time <= FlickWindow) {
            first = i;
            break;
        }
    }
    if (first >= 0 && first < m->samples.size() - 1) {
        const Sample &a = m->samples.at(first);
        const Sample &b = m->samples.constLast();
        speed = double(b.top - a.top) / double(qMax<qint64>(1, b.time - a.time));
    } else if (first >= 0 && first > 0) {
        // One recent move: measure it from the one before it.
        const Sample &a = m->samples.at(first - 1);
        const Sample &b = m->samples.at(first);
        speed = double(b.top - a.top) / double(qMax<qint64>(1, b.time - a.time));
    }
    m->samples.clear();

    if (std::abs(speed) >= FlickSpeed && !m->runOn.isActive()) {
        m->speed = speed;
        m->carried = 0.0;
        m->lastTick = now;
        m->runOn.start();
        return;
    }

    // Settle with the nearest item on the band.
    const int rows = qMax(1, m->itemCount());
    const int top = m->column->y();
    const int row = qBound(0, int(std::lround(double(BandTop - top) / QKXComboListItem::RowPitch)), rows - 1);
    const int target = qMax(BandTop - QKXComboListItem::RowPitch * row, m->lowestTop());
    if (target == top) {
        return;
    }
    m->settle.stop();
    m->settle.setStartValue(top);
    m->settle.setEndValue(target);
    m->settle.start();
}

bool QKXWheelFrame::stopMotion()
{
    const bool wasMoving = isMoving();
    m->runOn.stop();
    m->settle.stop();
    m->samples.clear();
    m->speed = 0.0;
    return wasMoving;
}

bool QKXWheelFrame::isMoving() const
{
    return m->runOn.isActive() || m->settle.state() == QAbstractAnimation::Running;
}

void QKXWheelFrame::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    m->column->resize(width() - 2 * ColumnX, m->column->height());
    m->band->setGeometry(ColumnX, BandTop - 1, width() - 2 * ColumnX, BandBottom - BandTop + 2);
}

void QKXWheelFrame::hideEvent(QHideEvent *event)
{
    stopMotion();
    QFrame::hideEvent(event);
}

void QKXWheelFrame::mousePressEvent(QMouseEvent *event)
{
    // The wheel's own window is part of the wheel: a tap on it beside the column cancels nothing.
    event->accept();
}
