// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXWHEELENUM_H
#define QKXWHEELENUM_H

#include "QKXComboBox.h"

class QKXWheelEnumPrivate;

// The enumerated widget edited on the wheel popup. Unlike the combo box it shows each literal exactly
// as the record holds it (as plain text: markup shows its tags), and a value the record lacks leaves
// the field empty. It starts from the value 0, as the combo box does, so a record that lists 0 shows
// its literal before the host's first setIndex.
class STANDALONEPLUGINS_EXPORT QKXWheelEnum : public QKXComboBox
{
    Q_OBJECT

public:
    explicit QKXWheelEnum(QWidget *parent = nullptr);
    ~QKXWheelEnum() override;

    QVariant metaData() const override;
    Q_INVOKABLE int currentIndex() const override;
    Q_INVOKABLE QString text() const override;

    using QKXComboBox::currentIndexChanged;

public Q_SLOTS:
    void setMetaData(const QVariant &data) override;
    void setIndex(const int &val) override;
    void setText(const QString &text) override;

Q_SIGNALS:
    // Offered for forms that connect to it by name; the widget reports changes with the int form only.
    void currentIndexChanged(QString);

protected:
    QKXWheelEnum(QKXWheelEnumPrivate &dd, QWidget *parent);

private:
    Q_DISABLE_COPY(QKXWheelEnum)
    Q_DECLARE_PRIVATE(QKXWheelEnum)
};

#endif // QKXWHEELENUM_H
