// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXNUMERIC_H
#define QKXNUMERIC_H

#include "QKXWidgetBase.h"

#include <QVariant>

class QKXNumericPrivate;

// The numeric field of the front panel: a caption over a one-line display of one integer or
// floating-point attribute. It formats the value but never edits or clamps it; its edit filter and
// the popup editors do the editing and read the limits, base and editor flags from its properties.
class STANDALONEPLUGINS_EXPORT QKXNumeric : public QKXWidgetBase
{
    Q_OBJECT
    Q_PROPERTY(int Precision READ precision WRITE setPrecision DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(BaseType Base READ baseType WRITE setBaseType DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(double LowerLimit READ lowerLimit WRITE setLowerLimit DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(double UpperLimit READ upperLimit WRITE setUpperLimit DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(bool Editing READ editing WRITE setEditing DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(bool Numpad READ hasNumpad WRITE setNumpad DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(bool Slider READ hasSlider WRITE setSlider DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(bool Spinner READ hasSpinner WRITE setSpinner DESIGNABLE true SCRIPTABLE true STORED true)

public:
    // The radix of the display and of typed text.
    // Over int, so that any number a form or host writes is a value the field can hold.
    enum BaseType : int { DEC = 10, HEX = 16, OCT = 8, BIN = 2 };
    Q_ENUM(BaseType)

    explicit QKXNumeric(QWidget *parent = nullptr);
    ~QKXNumeric() override;

    virtual int precision() const;
    virtual BaseType baseType() const;
    Q_INVOKABLE virtual bool hasNumpad() const;
    Q_INVOKABLE virtual bool hasSlider() const;
    Q_INVOKABLE virtual bool hasSpinner() const;
    virtual QVariant metaData() const;
    Q_INVOKABLE virtual double value() const;
    virtual double lowerLimit() const;
    virtual double upperLimit() const;
    virtual bool editing() const;

public Q_SLOTS:
    // Base 10 shows exactly what QString::number(v, 'f', precision) writes, "nan" and "inf" included.
    // Another base has no text for a value without a 32-bit integer form (NaN, infinity, beyond int):
    // the display keeps its text and says so on the debug stream, while the value is stored and
    // announced as usual. Negatives show a minus sign and the magnitude ("-FF"), never two's complement.
    virtual void setValue(const double &value);
    virtual void setValue(const int &value);
    // Any precision is shown as QString::number() shows it, up to the 1074 decimals a double can
    // have; beyond them, with 1074 and a line on the debug stream.
    virtual void setPrecision(const int &precision);
    virtual void setBaseType(const QKXNumeric::BaseType &base);
    virtual void setSlider(const bool &slider);
    virtual void setSpinner(const bool &spinner);
    virtual void setNumpad(const bool &numpad);
    virtual void setMetaData(const QVariant &metaData);
    virtual void setLowerLimit(const double &limit);
    virtual void setLowerLimit(const int &limit);
    virtual void setUpperLimit(const double &limit);
    virtual void setUpperLimit(const int &limit);
    virtual void setEditing(const bool &editing);

Q_SIGNALS:
    void valueChanged(double value);
    void valueChanged(int value);
    void lowerLimitChanged(double lowerLimit);
    void upperLimitChanged(double upperLimit);
    void precisionChanged(int precision);

protected:
    QKXNumeric(QKXNumericPrivate &dd, QWidget *parent);

private:
    Q_DISABLE_COPY(QKXNumeric)
    Q_DECLARE_PRIVATE(QKXNumeric)
};

#endif // QKXNUMERIC_H
