// SPDX-License-Identifier: BSD-3-Clause
#include "QKXComboBoxList.h"

#include "QKXComboBox.h"
#include "QKXComboListFrame.h"
#include "QKXComboListItem.h"
#include "QKXEnumRecord.h"
#include "QKXPopupPlacement.h"
#include "QKXWidgetBase_p.h"

#include <QButtonGroup>
#include <QCoreApplication>
#include <QLabel>
#include <QVBoxLayout>

QKXComboBoxList::QKXComboBoxList(QWidget *parent)
    : QKXComboPopup(parent)
    , frame(new QKXComboListFrame(this, nullptr))
    , layout(new QVBoxLayout(frame))
{
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    connect(buttonGroup(), &QButtonGroup::idClicked, this, &QKXComboBoxList::translateButtonId);
    connect(buttonGroup(), &QButtonGroup::idClicked, this, &QKXComboBoxList::hideThis);
}

QKXComboBoxList::~QKXComboBoxList() = default;

QKXComboListFrame *QKXComboBoxList::listFrame() const
{
    return frame;
}

int QKXComboBoxList::valueOfRow(int row, int fallback) const
{
    return valueById.value(row, fallback);
}

void QKXComboBoxList::translateButtonId(int id)
{
    const auto value = valueById.constFind(id);
    if (value != valueById.constEnd()) {
        emit submit(value.value());
    }
}

void QKXComboBoxList::processMetaData(QVariant record)
{
    fillColumn(record);
}

void QKXComboBoxList::showEvent(QShowEvent *event)
{
    QKXComboPopup::showEvent(event);
    emit WindowOpened();
}

void QKXComboBoxList::hideEvent(QHideEvent *event)
{
    QKXComboPopup::hideEvent(event);
    emit WindowClosed();
}

QWidget *QKXComboBoxList::columnFrame() const
{
    return frame;
}

QLayout *QKXComboBoxList::columnLayout() const
{
    return layout;
}

bool QKXComboBoxList::acceptsWidget(QWidget *widget) const
{
    return qobject_cast<QKXComboBox *>(widget) != nullptr;
}

void QKXComboBoxList::attachWidget(QWidget *widget)
{
    frame->setWidget(widget);
}

void QKXComboBoxList::fillColumn(const QVariant &record)
{
    valueById.clear();
    const QVector<QKXEnumEntry> entries = QKXEnumRecord::read(record);
    const bool translate = !QKXWidgetBasePrivate::isCompactDisplayMode();
    QVector<QPair<int, QString>> items;
    items.reserve(entries.size());
    for (int row = 0; row < entries.size(); ++row) {
        const QKXEnumEntry &entry = entries.at(row);
        valueById.insert(row, entry.value);
        items.append({row, translate ? QCoreApplication::translate("QObject", entry.literal.toUtf8().constData())
                                     : entry.literal});
    }
    setItems(items);
    frame->ensurePolished();
    layout->activate();
    frame->resize(frame->sizeHint().expandedTo(frame->minimumSize()));
}

void QKXComboBoxList::placeColumn(QWidget *widget)
{
    const QRect anchor = QKXPopupPlacement::rectIn(this, widget);
    bool overWidget = false;
    const int x = QKXPopupPlacement::besideX(anchor, frame->width(), width(), &overWidget);
    if (overWidget && frame->width() < anchor.width()) {
        frame->resize(anchor.width(), frame->height());
    }

    const int current = static_cast<QKXComboBox *>(widget)->currentIndex();
    int row = 0;
    for (auto it = valueById.constBegin(); it != valueById.constEnd(); ++it) {
        if (it.value() == current) {
            row = it.key();
            break;
        }
    }
    int y = anchor.y();
    if (const QLabel *field = widget->findChild<QLabel *>(QStringLiteral("ComboText"))) {
        y = y - QKXComboListItem::RowPitch * row + field->mapTo(widget, QPoint(0, 0)).y();
    }
    y = QKXPopupPlacement::keepInside(y, frame->height(), height(), QKXPopupPlacement::KeepStart);
    frame->move(x, y);
}
