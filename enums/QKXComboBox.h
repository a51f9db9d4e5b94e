// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXCOMBOBOX_H
#define QKXCOMBOBOX_H

#include "QKXWidgetBase.h"

#include <QSize>
#include <QVariant>

class QKXComboBoxPrivate;

// The widget of an enumerated attribute: a caption above a rounded field showing the literal of the
// current value. The host gives it the enumeration record (setMetaData) and the value (setIndex); the
// user picks a new value in a popup, and the choice leaves through the edit filter, never from here.
class STANDALONEPLUGINS_EXPORT QKXComboBox : public QKXWidgetBase
{
    Q_OBJECT
    Q_PROPERTY(QString Text READ text WRITE setText DESIGNABLE true SCRIPTABLE true STORED true)

public:
    explicit QKXComboBox(QWidget *parent = nullptr);
    ~QKXComboBox() override;

    // The record exactly as the host gave it; the popups read their entries from here.
    virtual QVariant metaData() const;
    // The current value: one of the record's codes, not a position in the record.
    Q_INVOKABLE virtual int currentIndex() const;
    // The untranslated literal of the current value.
    Q_INVOKABLE virtual QString text() const;
    // Drops the widget's own look so that it shows the plain platform style.
    virtual void removeCSS();

    // Never narrower than the field's frame and ten average characters of the field's font: a field
    // without a literal (a widget just placed on a form, a record not yet given) would otherwise be
    // as narrow as its rounded border, 21 pixels. Ten characters hold most literals ("Continuous").
    QSize sizeHint() const override;

public Q_SLOTS:
    virtual void setMetaData(const QVariant &data);
    virtual void setIndex(const int &val);
    virtual void setText(const QString &text);

Q_SIGNALS:
    // Emitted on every setIndex and every accepted setText, also when the value did not change.
    void currentIndexChanged(int);

protected:
    QKXComboBox(QKXComboBoxPrivate &dd, QWidget *parent);

private:
    Q_DISABLE_COPY(QKXComboBox)
    Q_DECLARE_PRIVATE(QKXComboBox)
};

#endif // QKXCOMBOBOX_H
