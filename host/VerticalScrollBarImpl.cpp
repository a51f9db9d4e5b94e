// SPDX-License-Identifier: BSD-3-Clause
#include "VerticalScrollBarImpl.h"

#include "CSS.h"

namespace Norvane {
namespace gui {

struct VerticalScrollBarImpl::Data
{
    // Whether the bar was at its end after the last change.
    bool atEnd = true;
};

// The table's bar in the same words (TableViewImpl), so that every scrolling view of the panel has
// one bar.
static QString kxscroll_styleSheet()
{
    return QStringLiteral(R"(QScrollBar:vertical {
    background: transparent;
    border: 2px solid %1;
    border-radius: 10px;
    width: %2px;
    margin: 0px;
}
QScrollBar::handle:vertical {
    background-color: %1;
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
        .arg(CSS::border())
        .arg(VerticalScrollBarImpl::BarWidth);
}

VerticalScrollBarImpl::VerticalScrollBarImpl(QWidget *parent)
    : QScrollBar(Qt::Vertical, parent)
    , m(new Data)
{
    setStyleSheet(kxscroll_styleSheet());
    // A finger on the bar must not take the focus from the field being edited elsewhere.
    setFocusPolicy(Qt::NoFocus);
}

VerticalScrollBarImpl::~VerticalScrollBarImpl() = default;

void VerticalScrollBarImpl::sliderChange(SliderChange change)
{
    // A new range arrives before the value is bound to it: the end the bar was at is still known here.
    if (change == SliderRangeChange && m->atEnd) {
        setValue(maximum());
    }
    QScrollBar::sliderChange(change);
    m->atEnd = value() >= maximum();
}

} // namespace gui
} // namespace Norvane
