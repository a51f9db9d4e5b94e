// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXSPINNER_H
#define QKXSPINNER_H

#include "ContainerImpl.h"
#include "QKXEntryBase.h"
#include "standaloneplugins_export.h"

#include <QScopedPointer>

class QLineEdit;
class QKXSpinnerPrivate;

// The wheel editor: the user draws circles on the round "SpinWheel" area and every sustained turn
// moves the value one step of the marked digit, clockwise up and counter-clockwise down; "x10" and
// "/10" change the step, the round Enter key commits and Cancel cancels. Each step is submitted at
// once, in the form the filter's "DataType" calls for, so the engine follows the wheel.
//
// The finger's angle is sampled at every move; every sample past the fourth gives the mean angular
// speed of the last five, and a step is taken once five speeds in a row agree in sign and more than
// five analyses have passed since the last step. The speed's size only chooses between 1 and 4 steps;
// a speed of exactly 0 counts as counter-clockwise, so samples of the same millisecond turn it back.
// Samples are timed in whole milliseconds from the press by the events' own timestamps (by the
// clock for events that carry none).
//
// Where the rules leave it open:
// - A step that would leave the limits changes nothing and submits nothing: the engine holds the
//   value the display shows already.
// - When the digit a fractional step changes lies beyond the displayed text (the step is finer than
//   the decimals shown), the step moves to the last digit shown, which is the one marked.
// - Text that is no number (shown or submitted) is reported with the widget's name and leaves the
//   display and the value as they were.
class STANDALONEPLUGINS_EXPORT QKXSpinner : public ContainerImpl, public QKXEntryBase
{
    Q_OBJECT
public:
    // The limits a plain numeric field is edited within (fields with units bring their own), the
    // decimals, and the popup's fixed size.
    QKXSpinner(QWidget *parent, double minimum, double maximum, int precision, int width, int height);
    ~QKXSpinner() override;

    // Does not give up a registration already made: the host ends an edit before it hands the
    // spinner another.
    void registerWidget(QObject *filter, QWidget *widget) override;
    void changePrecision(int precision);
    void updateLimits(double minimum, double maximum);
    void resetStep();
    // The step becomes 10^(power + change) if that stays within what the value and its limits allow.
    void changeStep(double change);
    void ReCalculatPowStep(double x);
    // Selects in the display the digits up to the one a step changes.
    void updateCursorPosition();
    void analyzeSpeed();
    void moveMarker(double angle);
    bool withinCircle(const QPoint &point, int radius);
    // The angle of (x, y) from the wheel's centre, 0 to 2 pi, growing clockwise on the screen.
    double getRadians(int x, int y);

    void retranslate() override;

    double value() const;
    double power() const;
    double minimum() const;
    double maximum() const;
    int precision() const;
    QLineEdit *display() const;
    QObject *registeredFilter() const;
    QWidget *registeredWidget() const;
    QString dataType() const;

public Q_SLOTS:
    void setValue(QString value);
    void rotateButtonClicked();

Q_SIGNALS:
    // A sustained turn at that angular speed, in radians per millisecond.
    void updateValue(double speed);
    void valueChanged(QString value);
    void closeEntry();
    void cancelEntry();
    void editEnd();
    void rotateEntry();
    void submit(double value);
    void submit(int value);
    void submit(double value, QString units);
    void submit(int value, QString units);

protected Q_SLOTS:
    virtual void buttonSubmit();
    virtual void unregister();
    virtual void sendValue(QString value);

private Q_SLOTS:
    void wheelIncrement(double speed);
    void decrement();
    void increment();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    Q_DISABLE_COPY(QKXSpinner)
    QScopedPointer<QKXSpinnerPrivate> d_ptr;
    Q_DECLARE_PRIVATE(QKXSpinner)
};

#endif // QKXSPINNER_H
