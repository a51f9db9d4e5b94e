// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXNUMERIC_P_H
#define QKXNUMERIC_P_H

//
//  W A R N I N G
//  -------------
// Not part of the library's public API: the numeric widgets with units build on this Private.
//

#include "QKXNumeric.h"
#include "QKXWidgetBase_p.h"

class QLineEdit;

class STANDALONEPLUGINS_EXPORT QKXNumericPrivate : public QKXWidgetBasePrivate
{
    Q_OBJECT
public:
    explicit QKXNumericPrivate(QKXNumeric *q);
    ~QKXNumericPrivate() override;

    void init() override;
    void updateStyle() override;

    virtual int precision() const;
    virtual void setPrecision(int precision);
    virtual QKXNumeric::BaseType baseType() const;
    virtual void setBaseType(QKXNumeric::BaseType base);
    virtual bool hasSlider() const;
    virtual void setSlider(bool slider);
    virtual bool hasSpinner() const;
    virtual void setSpinner(bool spinner);
    virtual bool hasNumpad() const;
    virtual void setNumpad(bool numpad);
    virtual double value() const;
    virtual void setValue(double value);
    virtual QVariant metaData() const;
    virtual void setMetaData(const QVariant &metaData);
    virtual double lowerLimit() const;
    virtual void setLowerLimit(double limit);
    virtual double upperLimit() const;
    virtual void setUpperLimit(double limit);
    virtual bool editing() const;
    virtual void setEditing(bool editing);

    // The compact and large sheets and the two overlays, in the form hosts and themes rely on.
    // The value in fixed-point notation with the given decimals, as QString::number() writes it.
    static QString decimalText(double value, int precision);

    static QString smallStyleTemplate();
    static QString largeStyleTemplate();
    static QString lockStyleTemplate();
    static QString readOnlyStyleTemplate();

    int precisionValue;
    QKXNumeric::BaseType base;
    bool numpad;
    bool slider;
    bool spinner;
    double currentValue;
    QVariant metaDataValue;
    double lowerLimitValue;
    double upperLimitValue;
    bool editingValue;
    QLineEdit *lineEdit;   // child of the widget
    QString smallStyle;
    QString largeStyle;
    QString lockStyle;
    QString readOnlyStyle;

protected:
    // False, with a debug line, when there is no number to show: NaN or an infinity from the engine,
    // or a finite engine value whose shown form (in another unit) is neither.
    bool showable(double value, double shown) const;

protected Q_SLOTS:
    virtual void setValueText(double value);

private:
    KX_DECLARE_PUBLIC(QKXNumeric)
};

#endif // QKXNUMERIC_P_H
