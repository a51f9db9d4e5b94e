// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXTEXTEVENTFILTER_H
#define QKXTEXTEVENTFILTER_H

#include "QKXEditStateFilter.h"

class QLineEdit;
class QKXTextEventFilterPrivate;

// The edit filter of a text field. It enables the field for the length of an edit with the cursor at
// the end of the text, commits the field's text on Return or Enter and puts the text of the edit's
// start back on Escape or a cancel. Popup editors chain their submit(QString) to its own; they find
// the field's data type, "TextString", in the dynamic property "DataType".
class STANDALONEPLUGINS_EXPORT QKXTextEventFilter : public QKXEditStateFilter
{
    Q_OBJECT
public:
    // The parent is the watched field; the adapter (may be null) offers the engine's current text
    // through an invokable get() returning QString. Without one a tap starts the edit at once.
    QKXTextEventFilter(QObject *parent, QObject *adapter);
    ~QKXTextEventFilter() override;

    // The text remembered when the current (or last) edit began.
    QString savedValue() const;
    // The watched field's line edit, or null while the filter has no field with one.
    QLineEdit *lineEdit() const;

    // Replaces the adapter; a filter that has its field by now also looks its line edit up again.
    void setAdapter(QObject *adapter);

    // Emits submit(value); the edit, if any, goes on.
    Q_INVOKABLE void submitWidgetValue(QString value);

Q_SIGNALS:
    void submit(QString value);

protected Q_SLOTS:
    void idleStateInit() override;
    void editStateInit() override;

protected:
    bool keyEventFilter(QObject *watched, QKeyEvent *event) override;
    void attempLockSendLockSignal(QWidget *widget, bool locked) override;
    void commitTypedText() override;
    // Without a get() on the adapter, or a text() on the field, nothing is remembered and a cancel
    // empties the field.
    void rememberValue() override;
    // Writes the remembered text through the field's "text" property, so the field announces it.
    void restoreValue() override;

private:
    Q_DISABLE_COPY(QKXTextEventFilter)
    Q_DECLARE_PRIVATE(QKXTextEventFilter)
};

#endif // QKXTEXTEVENTFILTER_H
