// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXLISTDOUBLEVALUEOBJ_P_H
#define QKXLISTDOUBLEVALUEOBJ_P_H

//
//  W A R N I N G
//  -------------
// Not part of the library's public API.
//

#include "QKXListDoubleValueObj.h"
#include "QKXNumericValueObj_p.h"

class STANDALONEPLUGINS_EXPORT QKXListDoubleValueObjPrivate : public QKXNumericValueObjPrivate
{
    Q_OBJECT
public:
    explicit QKXListDoubleValueObjPrivate(QKXListDoubleValueObj *q);
    ~QKXListDoubleValueObjPrivate() override;

    void init() override;
    void setMetaData(const QVariant &data) override;
    virtual QString getParamType() const;

    QString paramType;

private:
    KX_DECLARE_PUBLIC(QKXListDoubleValueObj)
};

#endif // QKXLISTDOUBLEVALUEOBJ_P_H
