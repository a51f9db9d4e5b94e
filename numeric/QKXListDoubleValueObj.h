// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXLISTDOUBLEVALUEOBJ_H
#define QKXLISTDOUBLEVALUEOBJ_H

#include "QKXNumericValueObj.h"

class QKXListDoubleValueObjPrivate;

// The numeric field with units of an attribute that takes only a few fixed values. Its metadata
// record names the parameter type ("List" makes the discrete value list offer the values) and the
// allowed values, each with its units property string.
class STANDALONEPLUGINS_EXPORT QKXListDoubleValueObj : public QKXNumericValueObj
{
    Q_OBJECT
public:
    explicit QKXListDoubleValueObj(QWidget *parent = nullptr);
    ~QKXListDoubleValueObj() override;

    Q_INVOKABLE virtual QString getParamType() const;

public Q_SLOTS:
    // [parameter type, [[value, units string], ...]]: the values become the metadata, the type the
    // parameter type. Nothing is shown or emitted. Anything else keeps the previous record, with a
    // debug line: the popup would otherwise offer values nobody gave it.
    void setMetaData(const QVariant &data) override;

protected:
    QKXListDoubleValueObj(QKXListDoubleValueObjPrivate &dd, QWidget *parent);

private:
    Q_DISABLE_COPY(QKXListDoubleValueObj)
    Q_DECLARE_PRIVATE(QKXListDoubleValueObj)
};

#endif // QKXLISTDOUBLEVALUEOBJ_H
