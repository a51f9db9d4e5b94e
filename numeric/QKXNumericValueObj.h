// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXNUMERICVALUEOBJ_H
#define QKXNUMERICVALUEOBJ_H

#include "QKXNumeric.h"

class QKXNumericValueObjPrivate;

// The numeric field of an attribute with a physical unit. The engine deals in the attribute's base
// unit; the field shows the value in the unit the user picked in the selector to the right of the
// value, and tags every value it reports with a units property string.
class STANDALONEPLUGINS_EXPORT QKXNumericValueObj : public QKXNumeric
{
    Q_OBJECT
    Q_PROPERTY(QString Units READ unitListString WRITE setUnitListString DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(int DefaultUnit READ defaultUnit WRITE setDefaultUnit DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(QString BaseUnit READ baseUnit WRITE setBaseUnit DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(QString CurrentUnit READ currentUnit DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(int UnitIndex READ unitIndex WRITE setUnitIndex DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(Unit_Groups GroupUnits READ groupUnits WRITE setGroupUnits DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(bool ConvertsUnits READ convertsUnits WRITE setConvertsUnits DESIGNABLE true SCRIPTABLE true STORED true)

public:
    // Which units of the list the selector offers: none, those with the base unit's five pairs
    // (prefixes of it), or every unit the base unit converts to.
    enum Unit_Groups : int { None = 0, Base = 1, Convertable = 2 };
    Q_ENUM(Unit_Groups)

    explicit QKXNumericValueObj(QWidget *parent = nullptr);
    ~QKXNumericValueObj() override;

    virtual QString unitListString() const;
    virtual int defaultUnit() const;
    Q_INVOKABLE virtual QString baseUnit() const;
    virtual QString currentUnit() const;
    // The selector's text: the unit the value is shown in.
    Q_INVOKABLE virtual QString currentUnitName() const;
    Q_INVOKABLE virtual int unitIndex() const;
    Q_INVOKABLE virtual QKXNumericValueObj::Unit_Groups groupUnits() const;
    virtual bool convertsUnits() const;

    using QKXNumeric::valueChanged;

public Q_SLOTS:
    void setValue(const double &value) override;
    void setValue(const int &value) override;
    // A value in the unit the string names; a new unit becomes the base unit and rebuilds the list.
    // When none of the list converts to it, only the base unit is offered, with a debug line.
    virtual void setValue(const double &value, const QString &unit);
    virtual void setValue(const int &value, const QString &unit);
    void setMetaData(const QVariant &metaData) override;
    // One part that is no units string (malformed, an unknown unit, a prefix on a level) empties the
    // list, with a debug line; an empty string is no list and is not reported.
    virtual void setUnitListString(const QString &unitList);
    // A default without a unit of the list behind it only waits for the next list: forms set
    // DefaultUnit before Units.
    virtual void setDefaultUnit(const int &index);
    virtual void setBaseUnit(const QString &unit);
    void changeSize(QString size) override;
    // -1 (the base unit) or a unit of the list; any other index is refused with a debug line and the
    // selector goes back to the unit in use.
    virtual void setUnitIndex(int index);
    virtual void setGroupUnits(const QKXNumericValueObj::Unit_Groups &groups);
    virtual void setConvertsUnits(const bool &converts);

Q_SIGNALS:
    // The value in the base unit, with the base unit's string.
    void valueChanged(double value, QString unit);
    void valueChanged(int value, QString unit);
    void unitChanged(int index);
    void unitChanged(QString unit);
    // The number the field shows, in the selected unit.
    void displayValueChanged(double value);
    void unitListStringChanged(QString unitList);

protected:
    QKXNumericValueObj(QKXNumericValueObjPrivate &dd, QWidget *parent);

private:
    Q_DISABLE_COPY(QKXNumericValueObj)
    Q_DECLARE_PRIVATE(QKXNumericValueObj)
};

#endif // QKXNUMERICVALUEOBJ_H
