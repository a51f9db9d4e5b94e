// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXNUMERICMETERREADING_H
#define QKXNUMERICMETERREADING_H

#include "QKXNumericValueObj.h"

class QKXNumericMeterReadingPrivate;

// One measured reading as a number with its unit, in the look of the numeric field with units. It
// takes the meters' reading lists: it shows the reading type chosen by ReadingType in the unit
// chosen from its unit list, "---" while status flag 1 says there is no reading, " ?" after a
// reading in doubt (flag 2), and colours the field by the status flags (3 yellow, 5 grey, 4 and 7
// green, 4 red, 7 blue). Display only.
//
// A reading list it cannot read whole (fewer than eight elements, flags that are no booleans, a
// reading type that is no [name, value record] pair, a value record too short or without numbers,
// a value that is no finite number) is reported on the debug stream with the object name and keeps
// the previous display. With status flag 1 the reading's value record is not read at all: "---"
// needs nothing of it. While there is no reading the field keeps the last value it was given.
class STANDALONEPLUGINS_EXPORT QKXNumericMeterReading : public QKXNumericValueObj
{
    Q_OBJECT
    Q_PROPERTY(int ReadingType READ readingTypeIndex WRITE setReadingTypeIndex DESIGNABLE true SCRIPTABLE true STORED true)

public:
    explicit QKXNumericMeterReading(QWidget *parent = nullptr);
    ~QKXNumericMeterReading() override;

    Q_INVOKABLE virtual int readingTypeIndex() const;
    // The [index, name] pairs of the reading types of the first reading list.
    Q_INVOKABLE virtual QVariant readingTypes() const;

    using QKXNumericValueObj::setValue;

public Q_SLOTS:
    virtual void setValue(const QVariant &readingList);
    // Takes effect with the next reading list.
    virtual void setReadingTypeIndex(int index);
    void setReadOnly(bool isRO) override;

private:
    Q_DISABLE_COPY(QKXNumericMeterReading)
    Q_DECLARE_PRIVATE(QKXNumericMeterReading)
};

#endif // QKXNUMERICMETERREADING_H
