// SPDX-License-Identifier: BSD-3-Clause
#include "QKXListDoubleValueObj.h"
#include "QKXListDoubleValueObj_p.h"

#include "KXNumericLines_p.h"

#include <QDebug>

QKXListDoubleValueObjPrivate::QKXListDoubleValueObjPrivate(QKXListDoubleValueObj *q)
    : QKXNumericValueObjPrivate(q)
{
}

QKXListDoubleValueObjPrivate::~QKXListDoubleValueObjPrivate() = default;

void QKXListDoubleValueObjPrivate::init()
{
    QKXNumericValueObjPrivate::init();
    updateStyle();
}

void QKXListDoubleValueObjPrivate::setMetaData(const QVariant &data)
{
    const QVariantList record = data.toList();
    if (data.userType() != QMetaType::QVariantList || record.size() != 2
        || record.at(1).userType() != QMetaType::QVariantList) {
        // The popup would offer values nobody gave it: the previous record stays.
        qDebug().noquote() << "UserInterface -" << kxnumber::named(q)
                           << "metadata is not [type, [[value, units], ...]] - previous record kept";
        return;
    }
    QKXNumericValueObjPrivate::setMetaData(record.at(1));
    paramType = record.at(0).toString();
}

QString QKXListDoubleValueObjPrivate::getParamType() const
{
    return paramType;
}

QKXListDoubleValueObj::QKXListDoubleValueObj(QWidget *parent)
    : QKXNumericValueObj(*new QKXListDoubleValueObjPrivate(this), parent)
{
}

QKXListDoubleValueObj::QKXListDoubleValueObj(QKXListDoubleValueObjPrivate &dd, QWidget *parent)
    : QKXNumericValueObj(dd, parent)
{
}

QKXListDoubleValueObj::~QKXListDoubleValueObj() = default;

QString QKXListDoubleValueObj::getParamType() const
{
    Q_D(const QKXListDoubleValueObj);
    return d->getParamType();
}

void QKXListDoubleValueObj::setMetaData(const QVariant &data)
{
    Q_D(QKXListDoubleValueObj);
    d->setMetaData(data);
}
