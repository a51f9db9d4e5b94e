// SPDX-License-Identifier: BSD-3-Clause
#include "TableViewImpl.h"

#include "CSS.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QScrollBar>
#include <QStyle>

namespace Norvane {
namespace gui {

// The distance at which the widgets' edit filters stop taking a press for a tap: a finger that
// travels less picks the row it rests on, so the rows do not move before it.
static const int kxtable_DragStart = 30;

struct TableViewImpl::Data
{
    bool pressed = false;
    bool dragging = false;
    int pressY = 0;
    int pressScroll = 0;
};

// Text margin: how far the item views draw a cell's text from its left edge. Indent: the extra
// distance of the first column's text, which the instrument's tables indent by three spaces.
static QString kxtable_styleSheet(int textMargin, int firstIndent)
{
    return QStringLiteral(R"(QTableView {
    background-color: transparent;
    border: none;
    color: white;
    font-size: 18px;
    selection-background-color: transparent;
    selection-color: #000;
}
QTableView::item {
    border: none;
    padding: 0px;
}
QTableView::item:selected {
    background-color: transparent;
    color: #000;
}
QHeaderView {
    background-color: transparent;
    border: none;
}
QHeaderView::section {
    background-color: %1;
    color: white;
    border: none;
    border-bottom: 2px solid %2;
    font-size: 16px;
    padding: 4px 4px 4px %3px;
}
QHeaderView::section:first {
    padding-left: %4px;
}
QScrollBar:vertical {
    background: transparent;
    border: 2px solid %2;
    border-radius: 10px;
    width: 44px;
    margin: 0px;
}
QScrollBar::handle:vertical {
    background-color: %2;
    border-radius: 8px;
    min-height: 42px;
    margin: 2px;
}
QScrollBar::add-line:vertical, QScrollBar::sub-line:vertical {
    height: 0px;
}
QScrollBar::add-page:vertical, QScrollBar::sub-page:vertical {
    background: none;
}
)")
        .arg(CSS::gradientMiddle(), CSS::border())
        .arg(textMargin)
        .arg(textMargin + firstIndent);
}

// The cells' font, as the sheet sets it.
static const int kxtable_CellFontPixels = 18;

TableViewImpl::TableViewImpl(QWidget *parent)
    : QTableView(parent)
    , m(new Data)
{
    // Measured before the sheet is set, on the style that draws the cells' text.
    const int textMargin = style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1;
    QFont cellFont = font();
    cellFont.setPixelSize(kxtable_CellFontPixels);
    setStyleSheet(kxtable_styleSheet(textMargin, QFontMetrics(cellFont).horizontalAdvance(QStringLiteral("   "))));
    setFrameShape(QFrame::NoFrame);
    setShowGrid(false);
    setWordWrap(false);
    setFocusPolicy(Qt::NoFocus);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(RowHeight);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    horizontalHeader()->setStretchLastSection(false);
    viewport()->setAutoFillBackground(false);
}

TableViewImpl::~TableViewImpl() = default;

bool TableViewImpl::isDragging() const
{
    return m->dragging;
}

void TableViewImpl::scrollTo(const QModelIndex &index, ScrollHint hint)
{
    QTableView::scrollTo(index, hint);
    // Onto the next whole row: the row asked for moves up, and stays in sight, by less than a row.
    QScrollBar *bar = verticalScrollBar();
    const int value = bar->value();
    if (value % RowHeight != 0) {
        bar->setValue(qMin(bar->maximum(), (value / RowHeight + 1) * RowHeight));
    }
}

void TableViewImpl::updateGeometries()
{
    QTableView::updateGeometries();
    // The last position shows the last row at the bottom; stretched to a whole row, it shows the rows
    // from a whole one down, with a little space under the last.
    QScrollBar *bar = verticalScrollBar();
    const int maximum = bar->maximum();
    if (maximum % RowHeight == 0) {
        return;
    }
    const bool atEnd = bar->value() == maximum;
    bar->setMaximum((maximum / RowHeight + 1) * RowHeight);
    if (atEnd && !m->dragging) {
        bar->setValue(bar->maximum());
    }
}

QItemSelectionModel::SelectionFlags TableViewImpl::selectionCommand(const QModelIndex &index,
                                                                    const QEvent *event) const
{
    // Taps and keys never select: the row shown as chosen is the one the engine confirmed.
    if (event) {
        switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseMove:
        case QEvent::KeyPress:
            return QItemSelectionModel::NoUpdate;
        default:
            break;
        }
    }
    return QTableView::selectionCommand(index, event);
}

void TableViewImpl::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        QTableView::mousePressEvent(event);
        return;
    }
    m->pressed = true;
    m->dragging = false;
    m->pressY = event->pos().y();
    m->pressScroll = verticalScrollBar()->value();
    event->accept();
}

void TableViewImpl::mouseMoveEvent(QMouseEvent *event)
{
    if (!m->pressed) {
        event->accept();
        return;
    }
    const int dy = event->pos().y() - m->pressY;
    if (!m->dragging && qAbs(dy) > kxtable_DragStart) {
        // From here on the rows follow the finger, without jumping by the distance already travelled.
        m->dragging = true;
        m->pressY = event->pos().y();
        event->accept();
        return;
    }
    if (m->dragging) {
        // Dragging down shows the rows above.
        verticalScrollBar()->setValue(m->pressScroll - dy);
    }
    event->accept();
}

void TableViewImpl::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton) {
        m->pressed = false;
        m->dragging = false;
    }
    event->accept();
}

void TableViewImpl::mouseDoubleClickEvent(QMouseEvent *event)
{
    // A quick second tap is another tap, not an edit request: the press half of it starts a drag.
    mousePressEvent(event);
}

} // namespace gui
} // namespace Norvane
