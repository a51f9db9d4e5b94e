// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXSLIDERBAR_H
#define QKXSLIDERBAR_H

#include "QKXEntryBase.h"
#include "SingleSliderImpl.h"
#include "standaloneplugins_export.h"

#include <QScopedPointer>

class QLabel;
class QKXSliderBarPrivate;

// The slider popup of a numeric field: the host's slider with the field's limits, precision, value
// and unit, a step chosen from the value, and the unit shown beside the indicator. Every value the
// slider reaches while the popup is shown is submitted at once through the field's filter; confirming
// only ends the edit. Values the host shows while the popup is hidden are not submitted.
//
// A registration does not give up one made before: the host ends an edit before it hands the slider
// another. Text that is no number reaching the indicator is reported with the widget's name and
// submits nothing.
class STANDALONEPLUGINS_EXPORT QKXSliderBar : public SingleSliderImpl, public QKXEntryBase
{
    Q_OBJECT
    Q_PROPERTY(int Power READ power WRITE setPower)

public:
    explicit QKXSliderBar(QWidget *parent);
    ~QKXSliderBar() override;

    int power() const;

    void registerWidget(QObject *filter, QWidget *widget) override;
    // The step a value starts with, as the spinner chooses it.
    void calculatPowStep(double x);

    QLabel *unitLabel() const;
    QObject *registeredFilter() const;
    QWidget *registeredWidget() const;
    QString dataType() const;

public Q_SLOTS:
    void rotateButtonClicked();
    void changePrecision(int precision) override;
    void setMinimum(double minimum);
    void setMaximum(double maximum);
    void setPower(int power);
    // The user confirmed: the values are out already, the edit ends.
    void submit() override;
    // Ends the edit of a slider widget's filter; other filters cancel through the cancel key.
    void cancel();

Q_SIGNALS:
    void rotateEntry();
    void send(int value, QString units);
    void send(double value, QString units);
    void done();
    void editEnd();

protected Q_SLOTS:
    virtual void unregister();
    void updateIndicatorValue(const QString &value, const QString &unit) override;

protected:
    void showEvent(QShowEvent *event) override;

private:
    Q_DISABLE_COPY(QKXSliderBar)
    QScopedPointer<QKXSliderBarPrivate> d_ptr;
    Q_DECLARE_PRIVATE(QKXSliderBar)
};

#endif // QKXSLIDERBAR_H
