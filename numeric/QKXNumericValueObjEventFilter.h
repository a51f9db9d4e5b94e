// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXNUMERICVALUEOBJEVENTFILTER_H
#define QKXNUMERICVALUEOBJEVENTFILTER_H

#include "QKXEditStateFilter.h"

class QLabel;
class QLineEdit;
class QKXNumericValueObjEventFilterPrivate;

// The edit filter of a numeric field with units ("ValueDouble" or "ValueLong"). Every commit leaves
// tagged with the units property string of the unit the user entered it in; a cancel gives the
// engine back the value the edit started from, in the base unit. While no edit is under way the
// host's unit filter sits on the unit selector, so the unit can only be changed between edits.
class STANDALONEPLUGINS_EXPORT QKXNumericValueObjEventFilter : public QKXEditStateFilter
{
    Q_OBJECT
public:
    // The parent is the watched widget; the unit filter (may be null) is the host's filter for the
    // unit selector; the adapter (may be null) offers the engine's value through an invokable get().
    QKXNumericValueObjEventFilter(QObject *parent, const QString &dataType, QObject *unitFilter, QObject *adapter);
    ~QKXNumericValueObjEventFilter() override;

    QString dataType() const;
    double savedValue() const;
    // The units string remembered when the current (or last) edit began.
    QString unitString() const;
    QLineEdit *display() const;
    QLabel *unitLabel() const;
    QObject *unitFilter() const;

    void setAdapter(QObject *adapter);
    void setUnitFilter(QObject *unitFilter);
    // The units property string of the unit the selector shows: the "UnitList" entry whose text is
    // the text on the unit label, or "" when none is.
    QString getUnitString() const;

    Q_INVOKABLE void submitWidgetValue(double value, QString unit);

public Q_SLOTS:
    // Submits a value in the unit the selector shows, as a popup that edits live would.
    void enterVale(double value);

Q_SIGNALS:
    void submit(double value, QString unit);
    void submit(int value, QString unit);

protected Q_SLOTS:
    void idleStateInit() override;
    void editStateInit() override;

protected:
    bool keyEventFilter(QObject *watched, QKeyEvent *event) override;
    void commitTypedText() override;
    // Hiding the field mid-edit cancels once and ends the edit. The hide of a field being destroyed
    // cancels nothing: there is no engine value left to give back, and the host's slots may be gone.
    bool hideEventFilter(QObject *watched, QEvent *event) override;
    void attempLockSendLockSignal(QWidget *widget, bool locked) override;
    void rememberValue() override;
    void restoreValue() override;

private:
    Q_DISABLE_COPY(QKXNumericValueObjEventFilter)
    Q_DECLARE_PRIVATE(QKXNumericValueObjEventFilter)
};

#endif // QKXNUMERICVALUEOBJEVENTFILTER_H
