// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXCOMBOPOPUP_H
#define QKXCOMBOPOPUP_H

#include "standaloneplugins_export.h"

#include <QHash>
#include <QPointer>
#include <QSet>
#include <QVector>
#include <QWidget>

class QAbstractButton;
class QButtonGroup;
class QKXComboListItem;
class QLayout;
struct QKXEnumEntry;

// What the list and wheel popups of the enumerated widgets share: a transparent overlay over the whole
// screen with a column of items beside the widget, the chaining to the widget's edit filter, the pool
// of items kept between openings, and cancelling by a tap beside the column.
class STANDALONEPLUGINS_EXPORT QKXComboPopup : public QWidget
{
    Q_OBJECT
public:
    ~QKXComboPopup() override;

    QObject *filter() const;
    QWidget *widget() const;
    QButtonGroup *buttonGroup() const;
    // The items in the column, in column order.
    QList<QKXComboListItem *> shownItems() const;
    int spareItemCount() const;
    // The id an item of the column was given: its row in the list, its value on the wheel. Read here
    // rather than from the button group, which cannot hold the id -1 (a value like any other).
    int idOf(QAbstractButton *item) const;

public Q_SLOTS:
    // Fills the column from the widget's enumeration record, opens over the screen and places the
    // column beside the widget, its current item level with the widget's field. A widget this popup
    // cannot edit leaves it closed, with a debug line, and the filter's edit is cancelled, which hands
    // the lock back.
    virtual void registerWidget(QObject *filter, QWidget *widget);
    virtual void hideThis();
    // Unchains the filter and closes. Called by the filter's editEnd().
    virtual void unregister();

Q_SIGNALS:
    void cancelEntry();
    void submit(int value);

protected:
    explicit QKXComboPopup(QWidget *parent);

    // The column the items go into, and its layout.
    virtual QWidget *columnFrame() const = 0;
    virtual QLayout *columnLayout() const = 0;
    // Whether this popup edits widgets of this kind.
    virtual bool acceptsWidget(QWidget *widget) const = 0;
    // Gives the column's frame the registered widget.
    virtual void attachWidget(QWidget *widget) = 0;
    // Fills the column from the record, and moves the column beside the widget.
    virtual void fillColumn(const QVariant &record) = 0;
    virtual void placeColumn(QWidget *widget) = 0;

    // Fills the column with one item per id and text, in this order; the items are kept between
    // openings and reused.
    void setItems(const QVector<QPair<int, QString>> &items);

    void mousePressEvent(QMouseEvent *event) override;

private:
    Q_DISABLE_COPY(QKXComboPopup)
    void chain(QObject *filter);
    void releaseItems();
    QKXComboListItem *takeItem(int id);

    QPointer<QObject> registeredFilter;
    QPointer<QWidget> registeredWidget;
    QButtonGroup *group;
    QVector<QKXComboListItem *> shown;
    QSet<QKXComboListItem *> spare;
    QHash<int, QKXComboListItem *> itemById;
    QHash<QAbstractButton *, int> idByItem;
};

#endif // QKXCOMBOPOPUP_H
