// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXCOMBOBOXLIST_H
#define QKXCOMBOBOXLIST_H

#include "QKXComboPopup.h"

#include <QMap>
#include <QVariant>

class QKXComboListFrame;
class QVBoxLayout;

// The list popup of the combo box: every literal of the record in a column beside the widget,
// translated, the current value's row level with the widget's field. A tap on a row submits the value
// of that row; a tap beside the column cancels.
class STANDALONEPLUGINS_EXPORT QKXComboBoxList : public QKXComboPopup
{
    Q_OBJECT
public:
    explicit QKXComboBoxList(QWidget *parent = nullptr);
    ~QKXComboBoxList() override;

    QKXComboListFrame *listFrame() const;
    // The value of a row of the column, or the fallback for a row the column lacks.
    int valueOfRow(int row, int fallback = 0) const;

public Q_SLOTS:
    // Submits the value of the tapped row.
    virtual void translateButtonId(int id);
    virtual void processMetaData(QVariant record);

Q_SIGNALS:
    void WindowOpened();
    void WindowClosed();

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

    QWidget *columnFrame() const override;
    QLayout *columnLayout() const override;
    bool acceptsWidget(QWidget *widget) const override;
    void attachWidget(QWidget *widget) override;
    void fillColumn(const QVariant &record) override;
    void placeColumn(QWidget *widget) override;

private:
    Q_DISABLE_COPY(QKXComboBoxList)
    QKXComboListFrame *frame;
    QVBoxLayout *layout;
    QMap<int, int> valueById;
};

#endif // QKXCOMBOBOXLIST_H
