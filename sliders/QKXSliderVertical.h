// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXSLIDERVERTICAL_H
#define QKXSLIDERVERTICAL_H

#include "QKXWidgetBase.h"

class QKXSliderVerticalPrivate;

// A vertical slider with its caption turned a quarter beside it, standing for one integer attribute.
// Unlike the horizontal slider it announces a drag only once, when the finger lifts, and setValue()
// announces the (clamped) value exactly once.
//
// The caption is a turned label of its own, right of the slider reading downward or left of it
// reading upward. LabelText sets its text, as it sets every other widget's caption: a form author
// who names the attribute expects to see the name, not the placeholder "V Slider".
class STANDALONEPLUGINS_EXPORT QKXSliderVertical : public QKXWidgetBase
{
    Q_OBJECT
    Q_PROPERTY(int LowerLimit READ lowerLimit WRITE setLowerLimit DESIGNABLE true STORED true)
    Q_PROPERTY(int UpperLimit READ upperLimit WRITE setUpperLimit DESIGNABLE true STORED true)
    Q_PROPERTY(int Value READ value WRITE setValue DESIGNABLE true STORED true)
    Q_PROPERTY(bool LabelLeftPosition READ isLabelLeft WRITE setLabelLeft DESIGNABLE true STORED true)

public:
    explicit QKXSliderVertical(QWidget *parent = nullptr);
    ~QKXSliderVertical() override;

    Q_INVOKABLE virtual int value() const;
    virtual int lowerLimit() const;
    virtual int upperLimit() const;
    virtual bool isLabelLeft() const;

public Q_SLOTS:
    virtual void setValue(const int &value);
    virtual void setLowerLimit(const int &lowerLimit);
    virtual void setUpperLimit(const int &upperLimit);
    virtual void setLabelLeft(bool b);
    void installEventFilter(QObject *filter) override;

Q_SIGNALS:
    void valueChanged(int value);

protected:
    QKXSliderVertical(QKXSliderVerticalPrivate &dd, QWidget *parent);

private:
    Q_DISABLE_COPY(QKXSliderVertical)
    Q_DECLARE_PRIVATE(QKXSliderVertical)
};

#endif // QKXSLIDERVERTICAL_H
