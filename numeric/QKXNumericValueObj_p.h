// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXNUMERICVALUEOBJ_P_H
#define QKXNUMERICVALUEOBJ_P_H

//
//  W A R N I N G
//  -------------
// Not part of the library's public API: the discrete value list and the meter reading build on it.
//

#include "QKXNumericValueObj.h"
#include "QKXNumeric_p.h"

#include "Units.h"

#include <QHash>
#include <QList>
#include <QVariantList>

class QKXComboBox;

class STANDALONEPLUGINS_EXPORT QKXNumericValueObjPrivate : public QKXNumericPrivate
{
    Q_OBJECT
public:
    explicit QKXNumericValueObjPrivate(QKXNumericValueObj *q);
    ~QKXNumericValueObjPrivate() override;

    void init() override;
    void changeSize(const QString &size) override;
    void updateStyle() override;
    void setValue(double value) override;
    void setMetaData(const QVariant &metaData) override;

    using QKXNumericPrivate::setValue;
    virtual QString unitListString() const;
    virtual int defaultUnit() const;
    virtual void setValue(const double &value, const QString &unit);
    virtual void setValue(const int &value);
    virtual void setValue(const int &value, const QString &unit);
    virtual void setUnitListString(const QString &unitList);
    virtual void setDefaultUnit(int index);
    virtual QString baseUnit() const;
    virtual void setBaseUnit(const QString &unit);
    virtual QString currentUnit() const;
    virtual QString currentUnitName() const;
    virtual int unitIndex() const;
    virtual bool convertsUnits() const;
    virtual void setConvertsUnits(bool converts);
    virtual QKXNumericValueObj::Unit_Groups groupUnits() const;
    virtual void selectGroupUnits(QKXNumericValueObj::Unit_Groups groups);
    virtual QVariantList unitToEnum(const Norvane::Value::Units &units, int index);
    // The selector is pointed at the chosen unit before it gets the new record, so that it never
    // holds an index its record lacks (which it would report).
    virtual void populateList();

    static QString unitSmallStyleTemplate();
    static QString unitLargeStyleTemplate();
    static QString unitLockStyleTemplate();
    static QString unitReadOnlyStyleTemplate();

    static const QString neutralUnitString;

    QKXComboBox *unitSelector;   // child of the widget
    QString unitList;
    int defaultUnitIndex;
    int unitIndexValue;
    QString baseUnitString;
    Norvane::Value::Units baseUnits;
    Norvane::Value::Units currentUnits;
    QList<Norvane::Value::Units> unitsList;
    QHash<int, Norvane::Value::Units> unitsByIndex;
    QString unitSmallStyle;
    QString unitLargeStyle;
    QString unitLockStyle;
    QKXNumericValueObj::Unit_Groups groupMode;
    bool convertsUnitsValue;

    // The indexes the selector offers now (-1 when the base unit stands alone).
    QList<int> offeredIndexes;
    // Set while the widget itself drives the selector, whose every setIndex echoes back. The echoes
    // are ignored, which also ends the echo of a base unit string that toString() writes otherwise.
    bool drivingSelector;

public Q_SLOTS:
    virtual void selectUnitIndex(int index);

protected:
    // A unit change whose unit has no number for the stored value (0 W in dBm): the field is emptied,
    // since any number left in it would now read as one in the new unit.
    virtual void showNoNumberInUnit();
    // Makes the unit the base unit and rebuilds the offered list. A malformed string is read as far
    // as its shape allows (and reported by the units helper): the engine's unit is the truth.
    void takeBaseUnit(const QString &unit);
    // The number to show for a value in the base unit.
    double displayValue(double value) const;
    void emitValueSignals(double value, double shown);

private:
    KX_DECLARE_PUBLIC(QKXNumericValueObj)
};

#endif // QKXNUMERICVALUEOBJ_P_H
