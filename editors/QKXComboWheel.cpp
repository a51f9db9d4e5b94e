// SPDX-License-Identifier: BSD-3-Clause
#include "QKXComboWheel.h"

#include "QKXComboListItem.h"
#include "QKXEnumRecord.h"
#include "QKXPopupPlacement.h"
#include "QKXWheelEnum.h"
#include "QKXWheelFrame.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QHash>
#include <QLabel>
#include <QVBoxLayout>

QKXComboWheel::QKXComboWheel(QWidget *parent)
    : QKXComboPopup(parent)
    , frame(new QKXWheelFrame(this, nullptr))
    , layout(new QVBoxLayout)
{
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    frame->addLayout(layout);
    // The items' ids are the values themselves; a tap sends the value and closes.
    const auto clicked = QOverload<QAbstractButton *>::of(&QButtonGroup::buttonClicked);
    connect(buttonGroup(), clicked, this, [this](QAbstractButton *item) { emit submit(idOf(item)); });
    connect(buttonGroup(), clicked, this, &QKXComboWheel::hideThis);
}

QKXComboWheel::~QKXComboWheel() = default;

QKXWheelFrame *QKXComboWheel::wheelFrame() const
{
    return frame;
}

QWidget *QKXComboWheel::columnFrame() const
{
    return frame->column();
}

QLayout *QKXComboWheel::columnLayout() const
{
    return layout;
}

bool QKXComboWheel::acceptsWidget(QWidget *widget) const
{
    return qobject_cast<QKXWheelEnum *>(widget) != nullptr;
}

void QKXComboWheel::attachWidget(QWidget *widget)
{
    frame->setWidget(widget);
}

void QKXComboWheel::fillColumn(const QVariant &record)
{
    const QVector<QKXEnumEntry> entries = QKXEnumRecord::read(record);
    // A value is one item on the wheel; listed twice, it sits where its last entry puts it, with that
    // entry's literal, as the widget shows it.
    QHash<int, int> lastEntry;
    for (int i = 0; i < entries.size(); ++i) {
        lastEntry.insert(entries.at(i).value, i);
    }
    QVector<QPair<int, QString>> items;
    items.reserve(lastEntry.size());
    for (int i = 0; i < entries.size(); ++i) {
        const QKXEnumEntry &entry = entries.at(i);
        if (lastEntry.value(entry.value) == i) {
            items.append({entry.value, entry.literal});
        }
    }
    setItems(items);

    QFrame *column = frame->column();
    frame->ensurePolished();
    column->ensurePolished();
    layout->activate();
    const int columnWidth = qMax(column->sizeHint().width(), column->minimumWidth());
    frame->resize(qMax(frame->minimumWidth(), columnWidth + 2 * QKXWheelFrame::ColumnX), frame->height());
    frame->fitColumn();
}

void QKXComboWheel::placeColumn(QWidget *widget)
{
    const QRect anchor = QKXPopupPlacement::rectIn(this, widget);
    bool overWidget = false;
    const int x = QKXPopupPlacement::besideX(anchor, frame->width(), width(), &overWidget);
    if (overWidget) {
        frame->resize(anchor.width(), frame->height());
    }

    const int current = static_cast<QKXWheelEnum *>(widget)->currentIndex();
    const QList<QKXComboListItem *> items = shownItems();
    int row = 0;
    for (int i = 0; i < items.size(); ++i) {
        if (idOf(items.at(i)) == current) {
            row = i;
            break;
        }
    }
    frame->setCurIdx(row);

    int y = anchor.y();
    if (const QLabel *field = widget->findChild<QLabel *>(QStringLiteral("ComboText"))) {
        y += field->mapTo(widget, QPoint(0, 0)).y();
    }
    y = QKXPopupPlacement::keepInside(y, frame->height(), height(), QKXPopupPlacement::KeepEnd);
    frame->move(x, y);
}
