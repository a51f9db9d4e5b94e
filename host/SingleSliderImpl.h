// SPDX-License-Identifier: BSD-3-Clause
#ifndef SINGLESLIDERIMPL_H
#define SINGLESLIDERIMPL_H

#include "ContainerImpl.h"

#include <QScopedPointer>

class QLineEdit;
class QPushButton;
class SliderBarImpl;

// The host's slider popup: a value indicator the user may also type into, a bar with a thumb the
// finger drags, keys that step the value down and up and make the step ten times smaller or larger,
// a cancel key, a confirm key and a key that asks for another editor. Every change of the value,
// whoever makes it, goes through updateIndicatorValue(); editors built on the popup override it to
// pass the value on.
//
// The value moves only on the step grid and within the limits when the user moves it; a value the
// owner gives with updateValue() is shown as given.
class NORVANEHOST_EXPORT SingleSliderImpl : public ContainerImpl
{
    Q_OBJECT
public:
    // The value shown at first, the limits and the number of decimals.
    SingleSliderImpl(QWidget *parent, double value, double minimum, double maximum, int precision);
    ~SingleSliderImpl() override;

    void updateLimits(double minimum, double maximum);
    double minimum() const;
    double maximum() const;

    // Shows a value given as text, with the unit text that goes with it. Only a change of either is
    // announced through updateIndicatorValue(); text that is no number is ignored.
    void updateValue(const QString &value, const QString &unit);
    double value() const;
    QString unit() const;

    // The amount one step key moves the value: 10^power of the bar; a step between two powers of ten
    // takes the nearer.
    void setStep(double step);
    double step() const;

    QLineEdit *indicator() const;
    SliderBarImpl *sliderBar() const;
    QPushButton *key(const QString &name) const;

public Q_SLOTS:
    virtual void changePrecision(int precision);
    // The confirm key. The popup on its own just closes.
    virtual void submit();
    // Marks in the indicator the digit that one step changes, and brings the thumb to the value.
    virtual void updateCursorPosition();

Q_SIGNALS:
    // The cancel key.
    void cancelEntry();
    // The rotate key, with the popup's object name: another editor is wanted in its place.
    void rotateEntryMechanism(QString mechanism);

protected Q_SLOTS:
    // Every change of the value, as text with its unit text. The popup shows it.
    virtual void updateIndicatorValue(const QString &value, const QString &unit);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    struct Data;
    QScopedPointer<Data> m;
};

#endif // SINGLESLIDERIMPL_H
