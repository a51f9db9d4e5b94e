// SPDX-License-Identifier: BSD-3-Clause
#include "QKXDPad.h"

#include "KXNumberConversion_p.h"
#include "KXStepPower_p.h"
#include "QKXNumeric.h"
#include "QKXNumericValueObj.h"
#include "QKXPopupChain.h"
#include "ValueObjectHelper.h"

#include <QDebug>
#include <QLineEdit>
#include <QPointer>

#include <cmath>

namespace {
const QString kx_intType = QStringLiteral("Int");
const QString kx_doubleType = QStringLiteral("Double");
const QString kx_valueDoubleType = QStringLiteral("ValueDouble");
const QString kx_valueLongType = QStringLiteral("ValueLong");
} // namespace

class QKXDPadPrivate
{
public:
    QString widgetName() const { return widget ? widget->objectName() : QStringLiteral("(no widget)"); }

    QPointer<QObject> filter;
    QString dataType;
    QString unitString;
    double value = 0.0;
    int precision = 0;
    QString baseUnitString;
    QPointer<QWidget> widget;
    QPointer<QLineEdit> entry;
    double power = 0.0;
    double minimum = 0.0;
    double maximum = 0.0;
};

QKXDPad::QKXDPad(QWidget *parent)
    : QWidget(parent)
    , d_ptr(new QKXDPadPrivate)
{
    setObjectName(QStringLiteral("DPad"));
    // Nothing to see and nothing to tap: the pad only stands for the keys while it steps a field.
    setAttribute(Qt::WA_TransparentForMouseEvents);
    resize(0, 0);
    hide();
}

QKXDPad::~QKXDPad() = default;

void QKXDPad::registerWidget(QObject *filter, QWidget *widget)
{
    Q_D(QKXDPad);
    QKXPopupChain::unchainAll(this, d->filter);   // a registration still held, if any
    if (d->widget) {
        disconnect(d->widget, nullptr, this, nullptr);
    }
    d->filter = filter;
    d->widget = widget;
    d->entry = widget ? widget->findChild<QLineEdit *>() : nullptr;
    if (d->entry) {
        d->entry->setEnabled(true);
    }
    d->dataType = filter ? filter->property("DataType").toString() : QString();

    QKXPopupChain::chain(this, filter, nullptr, SIGNAL(done()));

    d->precision = widget ? widget->property("Precision").toInt() : 0;
    d->minimum = widget ? widget->property("LowerLimit").toDouble() : 0.0;
    d->maximum = widget ? widget->property("UpperLimit").toDouble() : 0.0;

    if (auto *units = qobject_cast<QKXNumericValueObj *>(widget)) {
        d->baseUnitString = units->baseUnit();
        d->unitString = units->currentUnit();
        const Norvane::Value::Units base = ValueObjectHelper::convertToUnits(d->baseUnitString);
        const Norvane::Value::Units shown = ValueObjectHelper::convertToUnits(d->unitString);
        d->value = ValueObjectHelper::convertValue(units->value(), base, shown);
        d->minimum = ValueObjectHelper::convertValue(d->minimum, base, shown);
        d->maximum = ValueObjectHelper::convertValue(d->maximum, base, shown);
        calculatePowStep(d->value);
        connect(units, QOverload<double, QString>::of(&QKXNumericValueObj::valueChanged), this,
                &QKXDPad::updateCursorPosition);
    } else if (auto *numeric = qobject_cast<QKXNumeric *>(widget)) {
        d->baseUnitString.clear();
        d->unitString.clear();
        d->value = numeric->value();
        calculatePowStep(d->value);
        connect(numeric, QOverload<double>::of(&QKXNumeric::valueChanged), this, &QKXDPad::updateCursorPosition);
    }

    if (d->dataType == kx_intType) {
        QKXPopupChain::forward(this, SIGNAL(send(int)), filter, SIGNAL(submit(int)));
    } else if (d->dataType == kx_doubleType) {
        QKXPopupChain::forward(this, SIGNAL(send(double)), filter, SIGNAL(submit(double)));
    } else if (d->dataType == kx_valueDoubleType) {
        QKXPopupChain::forward(this, SIGNAL(send(double,QString)), filter, SIGNAL(submit(double,QString)));
    } else if (d->dataType == kx_valueLongType) {
        QKXPopupChain::forward(this, SIGNAL(send(int,QString)), filter, SIGNAL(submit(int,QString)));
    } else {
        qDebug() << "UserInterface - QKXDPad attempting to register unknown data type:" << d->dataType
                 << "Widget:" << widget;
    }
}

void QKXDPad::unregister()
{
    Q_D(QKXDPad);
    QKXPopupChain::unchainAll(this, d->filter);
    if (d->widget) {
        disconnect(d->widget, nullptr, this, nullptr);
    }
    hide();
    d->filter = nullptr;
    d->widget = nullptr;
    d->entry = nullptr;
    emit editEnd();
}

void QKXDPad::submit()
{
    emit done();
}

void QKXDPad::dPadKeyPressed(int key)
{
    Q_D(QKXDPad);
    emit dPadPressed();
    if (!d->entry) {
        qDebug().noquote() << "UserInterface - QKXDPad: key" << key << "with no field registered - ignored";
        return;
    }
    if (key < 0 || key > 4) {
        qDebug().noquote() << "UserInterface - QKXDPad:" << d->widgetName() << "key" << key
                           << "is not a direction (0 to 4) - ignored";
        return;
    }
    if (isHidden()) {
        show();
        updateCursorPosition();
    }
    switch (key) {
    case 0:
        increment();
        break;
    case 1:
        decrement();
        break;
    case 2:
        incrementStep();
        break;
    case 3:
        decrementStep();
        break;
    case 4:
        hide();
        submit();
        break;
    }
}

void QKXDPad::increment()
{
    Q_D(QKXDPad);
    updateValue(fixDecPlaces(qMin(d->maximum, d->value + std::pow(10.0, d->power))), d->unitString);
}

void QKXDPad::decrement()
{
    Q_D(QKXDPad);
    updateValue(fixDecPlaces(qMax(d->minimum, d->value - std::pow(10.0, d->power))), d->unitString);
}

void QKXDPad::incrementStep()
{
    changeStep(+1);
    updateCursorPosition();
}

void QKXDPad::decrementStep()
{
    changeStep(-1);
    updateCursorPosition();
}

void QKXDPad::changeStep(double change)
{
    Q_D(QKXDPad);
    const double power = d->power + change;
    if (kxstep::powerAllowed(power, d->value, d->minimum, d->maximum, d->precision)) {
        d->power = power;
    }
}

void QKXDPad::calculatePowStep(double x)
{
    Q_D(QKXDPad);
    if (!std::isfinite(x) || d->precision == 0) {
        d->power = 0.0;
    } else if (x >= 1.0) {
        const double e = std::log10(x) + 1.0 - 3.0;
        d->power = e <= 0.0 ? -1.0 : std::trunc(e);
    } else {
        d->power = 1 - d->precision <= -3 ? -2.0 : double(1 - d->precision);
    }
}

void QKXDPad::setValue(const QString &value, const QString &unit)
{
    Q_D(QKXDPad);
    double number = 0.0;
    if (!kxnumber::readNumber(value, kxnumber::NumberForm::Real, 10, &number)) {
        qDebug().noquote() << "UserInterface - QKXDPad:" << d->widgetName() << (QLatin1Char('"') + value + QLatin1Char('"'))
                           << "is not a number - the pad keeps" << d->value;
        return;
    }
    d->value = number;
    d->unitString = unit;
}

void QKXDPad::updateValue(const QString &value, const QString &unit)
{
    Q_D(QKXDPad);
    if (auto *units = qobject_cast<QKXNumericValueObj *>(d->widget)) {
        d->unitString = units->currentUnit();
    }
    double number = 0.0;
    if (!kxnumber::readNumber(value, kxnumber::NumberForm::Real, 10, &number)) {
        qDebug().noquote() << "UserInterface - QKXDPad:" << d->widgetName() << (QLatin1Char('"') + value + QLatin1Char('"'))
                           << "is not a number - nothing sent";
        return;
    }
    d->value = number;
    updateIndicatorValue(value, unit);
}

void QKXDPad::updateIndicatorValue(const QString &value, const QString &unit)
{
    Q_UNUSED(unit);
    Q_D(QKXDPad);
    if (d->entry) {
        d->entry->setText(value);
    }
    double v = 0.0;
    if (!kxnumber::readNumber(value, kxnumber::NumberForm::Real, 10, &v)) {
        return;
    }
    if (!d->unitString.isEmpty()) {
        const QString units = ValueObjectHelper::toString(ValueObjectHelper::convertToUnits(d->unitString));
        emit send(v, units);
        emit send(kxnumber::truncated(v), units);
    } else {
        emit send(v);
        emit send(kxnumber::truncated(v));
    }
}

void QKXDPad::updateLastValue(double value)
{
    Q_D(QKXDPad);
    d->value = value;
}

QString QKXDPad::fixDecPlaces(double value)
{
    Q_D(QKXDPad);
    return QString::number(value, 'f', d->precision);
}

void QKXDPad::updateCursorPosition()
{
    Q_D(QKXDPad);
    if (isHidden() || !d->entry) {
        return;
    }
    const QString text = d->entry->text();
    int dot = text.indexOf(QLatin1Char('.'));
    int position = 0;
    if (d->power >= 0) {
        if (dot < 0) {
            dot = text.size();
        }
        position = int(std::trunc(dot - d->power));
    } else {
        position = int(std::trunc(dot - d->power + 1));
    }
    position = qBound(0, position, text.size());
    d->entry->setCursorPosition(position);
    d->entry->cursorBackward(true, 1);
}

double QKXDPad::value() const
{
    Q_D(const QKXDPad);
    return d->value;
}

double QKXDPad::power() const
{
    Q_D(const QKXDPad);
    return d->power;
}

double QKXDPad::minimum() const
{
    Q_D(const QKXDPad);
    return d->minimum;
}

double QKXDPad::maximum() const
{
    Q_D(const QKXDPad);
    return d->maximum;
}

QObject *QKXDPad::registeredFilter() const
{
    Q_D(const QKXDPad);
    return d->filter;
}

QWidget *QKXDPad::registeredWidget() const
{
    Q_D(const QKXDPad);
    return d->widget;
}
