// SPDX-License-Identifier: BSD-3-Clause
#include "ValueObjectHelper.h"

#include "ValueHelper.h"

#include <QDebug>

using namespace Norvane::Value;

Units ValueObjectHelper::newUnits(bool flag, const SI_units &prefix, Unit_tuple *tuple)
{
    return ValueHelper::newUnits(flag, prefix, tuple);
}

bool ValueObjectHelper::unitBaseMatches(const Units &a, const Units &b)
{
    return ValueHelper::unitBaseMatches(a, b);
}

bool ValueObjectHelper::unitsCanConvert(const Units &from, const Units &to)
{
    return ValueHelper::unitsCanConvert(from, to);
}

double ValueObjectHelper::convertValue(double value, const Units &from, const Units &to)
{
    return ValueHelper::convertValue(value, from, to);
}

double ValueObjectHelper::convertValue(long value, const Units &from, const Units &to)
{
    return ValueHelper::convertValue(value, from, to);
}

Units ValueObjectHelper::bestFitUnit(const Value_object<double> &v)
{
    return ValueHelper::bestFitUnit(v);
}

Units ValueObjectHelper::bestFitUnit(const Value_object<double> &a, const Value_object<double> &b)
{
    return ValueHelper::bestFitUnit(a, b);
}

QString ValueObjectHelper::getUnitString(const Units &u)
{
    try {
        return ValueHelper::displayText(u);
    } catch (const Value_exception &) {
        qDebug() << "UserInterface - ValueObjectHelper: Failed to get unit string, Base Unit probably not initialized properly.";
        return QString();
    }
}

QString ValueObjectHelper::toString(const Units &u)
{
    return ValueHelper::toString(u);
}

Units ValueObjectHelper::convertToUnits(const QString &s)
{
    return ValueHelper::convertToUnits(s);
}

void ValueObjectHelper::printUnit(const Units &u)
{
    const QString text = getUnitString(u);
    qDebug() << "------------------\n";
    qDebug() << text << "\n------------------";
    qDebug() << u.flag << "\n" << static_cast<int>(u.prefix);
    for (const Unit_pair &pair : u.baseUnits)
        qDebug() << pair.unit << " ^ " << pair.power;
    qDebug() << "------------------\n";
}

void ValueObjectHelper::printUnit(const Value_object<long> &v)
{
    printUnit(v.Get_unit());
}

void ValueObjectHelper::printUnit(const Value_object<double> &v)
{
    printUnit(v.Get_unit());
}
