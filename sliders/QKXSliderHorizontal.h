// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXSLIDERHORIZONTAL_H
#define QKXSLIDERHORIZONTAL_H

#include "QKXWidgetBase.h"

class QKXSliderHorizontalPrivate;

// A caption above a horizontal slider, standing for one integer attribute. The value the widget
// reports is the last one given to setValue(), clamped to the limits; while the user drags, the
// handle reports each new position through valueChanged() and the host decides what to make of it
// (its edit filter submits the values while the finger is down).
//
// valueChanged() comes from the handle itself: at every change of its position and again when the
// finger lifts, and from setValue() once more after the handle's own change, so a setValue() that
// moves the handle announces the value twice. Hosts that echo engine values back through setValue()
// rely on seeing that second announcement.
class STANDALONEPLUGINS_EXPORT QKXSliderHorizontal : public QKXWidgetBase
{
    Q_OBJECT
    Q_PROPERTY(int LowerLimit READ lowerLimit WRITE setLowerLimit DESIGNABLE true STORED true)
    Q_PROPERTY(int UpperLimit READ upperLimit WRITE setUpperLimit DESIGNABLE true STORED true)
    Q_PROPERTY(int Value READ value WRITE setValue DESIGNABLE true STORED true)

public:
    explicit QKXSliderHorizontal(QWidget *parent = nullptr);
    ~QKXSliderHorizontal() override;

    Q_INVOKABLE virtual int value() const;
    virtual int lowerLimit() const;
    virtual int upperLimit() const;

public Q_SLOTS:
    virtual void setValue(const int &value);
    // The limits are the handle's range; the value already set is not clamped again.
    virtual void setLowerLimit(const int &lowerLimit);
    virtual void setUpperLimit(const int &upperLimit);
    // Also installs the filter on the handle, so that it sees the finger on the handle.
    void installEventFilter(QObject *filter) override;

Q_SIGNALS:
    void valueChanged(int value);

protected:
    QKXSliderHorizontal(QKXSliderHorizontalPrivate &dd, QWidget *parent);

private:
    Q_DISABLE_COPY(QKXSliderHorizontal)
    Q_DECLARE_PRIVATE(QKXSliderHorizontal)
};

#endif // QKXSLIDERHORIZONTAL_H
