// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXDPAD_H
#define QKXDPAD_H

#include "standaloneplugins_export.h"

#include <QScopedPointer>
#include <QWidget>

class QKXDPadPrivate;

// Steps a numeric field from a four-way direction pad and its select key, which the host forwards
// as key codes: 0 one step up, 1 one step down, 2 a ten times larger step, 3 a ten times smaller one,
// 4 commits. The value is typed into the field's own display, the digit a step changes is selected
// there, and every step is submitted at once through the field's filter. The pad draws nothing; it
// is "shown" while it steps a field, from the first key to the select key.
//
// Where the rules leave it open: a filter whose data type is not one of "Int", "Double",
// "ValueDouble" and "ValueLong" is reported with the widget, as the popups report it, and connects
// nothing; key codes other than 0 to 4, and keys while no field is registered, are reported and do
// nothing.
class STANDALONEPLUGINS_EXPORT QKXDPad : public QWidget
{
    Q_OBJECT
public:
    explicit QKXDPad(QWidget *parent);
    ~QKXDPad() override;

    virtual void increment();
    virtual void decrement();
    virtual void incrementStep();
    virtual void decrementStep();
    virtual void calculatePowStep(double x);

    // Takes a value (text in the field's decimals) and its units string without showing or sending it.
    void setValue(const QString &value, const QString &unit);
    // The value reached: the number becomes the pad's value and is shown and sent.
    void updateValue(const QString &value, const QString &unit);
    // Shows the text in the field and sends its number, with the units string when there is one.
    void updateIndicatorValue(const QString &value, const QString &unit);
    // The value as the field now holds it, without showing or sending it.
    void updateLastValue(double value);
    // The number in fixed-point notation with the field's decimals.
    QString fixDecPlaces(double value);

    double value() const;
    double power() const;
    double minimum() const;
    double maximum() const;
    QObject *registeredFilter() const;
    QWidget *registeredWidget() const;

public Q_SLOTS:
    virtual void registerWidget(QObject *filter, QWidget *widget);
    virtual void unregister();
    virtual void submit();
    void dPadKeyPressed(int key);

Q_SIGNALS:
    void done();
    void editEnd();
    void valueChanged(double value);
    void valueChanged(QString value);
    void valueChanged(QString value, QString unit);
    void send(double value);
    void send(int value);
    void send(double value, QString units);
    void send(int value, QString units);
    void reconnect();
    void dPadPressed();

protected Q_SLOTS:
    virtual void changeStep(double power);
    void updateCursorPosition();

private:
    Q_DISABLE_COPY(QKXDPad)
    QScopedPointer<QKXDPadPrivate> d_ptr;
    Q_DECLARE_PRIVATE(QKXDPad)
};

#endif // QKXDPAD_H
