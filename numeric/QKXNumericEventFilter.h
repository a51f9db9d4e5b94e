// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXNUMERICEVENTFILTER_H
#define QKXNUMERICEVENTFILTER_H

#include "QKXEditStateFilter.h"

class QLineEdit;
class QKXNumericEventFilterPrivate;

// The edit filter of a numeric field bound to an "Int" or "Double" attribute. It enables the field's
// display for the length of an edit, commits what is typed there on Return or Enter, and carries every
// commit out as submit(double) followed by submit(int); popup editors chain their own submits to it.
// The data type is published as the dynamic property "DataType", which the popups read.
class STANDALONEPLUGINS_EXPORT QKXNumericEventFilter : public QKXEditStateFilter
{
    Q_OBJECT
public:
    // The parent is the watched widget; the adapter (may be null) offers the engine's current value
    // through an invokable get() returning int or double, as the data type says.
    QKXNumericEventFilter(QObject *parent, const QString &dataType, QObject *adapter);
    ~QKXNumericEventFilter() override;

    QString dataType() const;
    // The value remembered when the current (or last) edit began; a cancel submits it again.
    double savedValue() const;
    // The watched widget's value display, or null while the filter has no widget with one.
    QLineEdit *display() const;

    // Replaces the adapter. A filter that has its widget by now also looks the display up again; a
    // filter made without a parent finds it here or, at the latest, on the machine's first state
    // entry after it has a parent widget, so startMachine() may come first.
    void setAdapter(QObject *adapter);

    // Emits submit(double) and submit(int) with the value; the edit, if any, goes on.
    Q_INVOKABLE void submitWidgetValue(double value);

Q_SIGNALS:
    void submit(double value);
    void submit(int value);

protected Q_SLOTS:
    void idleStateInit() override;
    void editStateInit() override;

protected:
    // Return or Enter commits the display's text read by QString::toInt in the widget's "Base"
    // ("Int": blanks around, a sign and in hex "0x" accepted, nothing beyond int) or by
    // QString::toDouble in the C locale ("Double": "nan", "inf" and overflow refused). Text that does
    // not read submits nothing and keeps the edit open for a correction, with a debug line.
    bool keyEventFilter(QObject *watched, QKeyEvent *event) override;
    void commitTypedText() override;
    // Hiding the field mid-edit cancels (the saved value goes out again) and ends the edit; the hide
    // handling every filter shares then emits editEnd() once more, with the machine already idle.
    bool hideEventFilter(QObject *watched, QEvent *event) override;
    void attempLockSendLockSignal(QWidget *widget, bool locked) override;
    // An adapter whose get() does not return the data type's type leaves 0 to give back, with a
    // debug line: a cancel then submits 0.
    void rememberValue() override;
    void restoreValue() override;

private:
    Q_DISABLE_COPY(QKXNumericEventFilter)
    Q_DECLARE_PRIVATE(QKXNumericEventFilter)
};

#endif // QKXNUMERICEVENTFILTER_H
