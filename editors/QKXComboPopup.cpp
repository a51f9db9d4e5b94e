// SPDX-License-Identifier: BSD-3-Clause
#include "QKXComboPopup.h"

#include "QKXPopupChain.h"
#include "QKXPopupPlacement.h"

#include "QKXComboBox.h"
#include "QKXComboListItem.h"

#include <QButtonGroup>
#include <QDebug>
#include <QLayout>
#include <QMouseEvent>
#include <QStyle>

QKXComboPopup::QKXComboPopup(QWidget *parent)
    : QWidget(parent)
    , group(new QButtonGroup(this))
{
    setObjectName(QStringLiteral("cancelFrame"));
    setStyleSheet(QStringLiteral("QFrame#cancelFrame {\tbackground-color: transparent;}"));
    group->setExclusive(false);
    if (!parent) {
        // Without a screen to cover, the overlay is a window of its own: undecorated, see-through.
        setWindowFlags(Qt::Tool | Qt::FramelessWindowHint);
        setAttribute(Qt::WA_TranslucentBackground);
    }
    QKXPopupPlacement::coverArea(this);
    // Opens only when a widget is registered, not with the screen it belongs to.
    hide();
}

QKXComboPopup::~QKXComboPopup()
{
    // Spare items have no parent while they wait for the next opening.
    qDeleteAll(spare);
}

QObject *QKXComboPopup::filter() const
{
    return registeredFilter;
}

QWidget *QKXComboPopup::widget() const
{
    return registeredWidget;
}

QButtonGroup *QKXComboPopup::buttonGroup() const
{
    return group;
}

QList<QKXComboListItem *> QKXComboPopup::shownItems() const
{
    return shown.toList();
}

int QKXComboPopup::spareItemCount() const
{
    return spare.size();
}

int QKXComboPopup::idOf(QAbstractButton *item) const
{
    return idByItem.value(item, -1);
}

void QKXComboPopup::registerWidget(QObject *filter, QWidget *widget)
{
    // One edit at a time: a popup still open for another widget lets go of it first.
    if (registeredFilter) {
        unregister();
    }
    auto *combo = qobject_cast<QKXComboBox *>(widget);
    if (!combo || !acceptsWidget(widget)) {
        qDebug().noquote() << QStringLiteral("UserInterface - %1::registerWidget - cannot edit this widget:")
                                  .arg(QLatin1String(metaObject()->className()))
                           << (widget ? widget->metaObject()->className() : "none");
        // The filter is in its edit state waiting for a popup: end the edit so the lock is let go.
        if (filter) {
            QMetaObject::invokeMethod(filter, "cancel");
        }
        return;
    }
    chain(filter);
    fillColumn(combo->metaData());
    QKXPopupPlacement::coverArea(this);
    show();
    raise();
    registeredWidget = widget;
    attachWidget(widget);
    placeColumn(widget);
}

void QKXComboPopup::chain(QObject *filter)
{
    registeredFilter = filter;
    // No closing signal: the list closes through the filter's editEnd().
    QKXPopupChain::chain(this, filter, SIGNAL(cancelEntry()), nullptr);
    QKXPopupChain::forward(this, filter, SIGNAL(submit(int)));
}

void QKXComboPopup::hideThis()
{
    hide();
}

void QKXComboPopup::unregister()
{
    QKXPopupChain::unchain(this, registeredFilter);
    registeredFilter = nullptr;
    hide();
}

void QKXComboPopup::mousePressEvent(QMouseEvent *event)
{
    // Only presses beside the column get here: the items and the column take their own.
    event->accept();
    emit cancelEntry();
    hide();
}

void QKXComboPopup::releaseItems()
{
    QLayout *layout = columnLayout();
    for (QKXComboListItem *item : qAsConst(shown)) {
        layout->removeWidget(item);
        item->setParent(nullptr);
        spare.insert(item);
    }
    shown.clear();
}

QKXComboListItem *QKXComboPopup::takeItem(int id)
{
    QKXComboListItem *item = itemById.value(id);
    if (item) {
        spare.remove(item);
        return item;
    }
    if (!spare.isEmpty()) {
        item = *spare.begin();
        spare.erase(spare.begin());
        itemById.remove(idByItem.value(item));
        // The group cannot take -1 and keeps the item's old id then; clicks are told apart by idOf().
        group->setId(item, id);
    } else {
        item = new QKXComboListItem();
        group->addButton(item, id);
    }
    itemById.insert(id, item);
    idByItem.insert(item, id);
    return item;
}

static void kxpopup_rename(QWidget *item, const QString &name)
{
    if (item->objectName() == name) {
        return;
    }
    item->setObjectName(name);
    // The column's sheet picks its rules by name; a renamed item is styled afresh.
    if (item->testAttribute(Qt::WA_WState_Polished)) {
        item->style()->unpolish(item);
        item->style()->polish(item);
    }
}

void QKXComboPopup::setItems(const QVector<QPair<int, QString>> &items)
{
    QWidget *column = columnFrame();
    column->setUpdatesEnabled(false);
    // Opening again on the same entries (the usual case) leaves the items where they are: taking
    // hundreds of items out of the column and putting them back costs a visible pause on the panel.
    bool same = items.size() == shown.size();
    for (int row = 0; same && row < items.size(); ++row) {
        same = itemById.value(items.at(row).first) == shown.at(row);
    }
    if (!same) {
        releaseItems();
        QLayout *layout = columnLayout();
        for (const auto &entry : items) {
            QKXComboListItem *item = takeItem(entry.first);
            layout->addWidget(item);
            shown.append(item);
        }
    }
    for (int row = 0; row < shown.size(); ++row) {
        QKXComboListItem *item = shown.at(row);
        kxpopup_rename(item, row == shown.size() - 1 ? QStringLiteral("lastPushButton") : QStringLiteral("cbPushButton"));
        item->setText(items.at(row).second);
        item->show();
    }
    column->setUpdatesEnabled(true);
}
