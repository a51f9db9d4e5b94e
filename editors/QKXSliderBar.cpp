// SPDX-License-Identifier: BSD-3-Clause
#include "QKXSliderBar.h"

#include "KXNumberConversion_p.h"
#include "KXStepPower_p.h"
#include "QKXNumeric.h"
#include "QKXNumericValueObj.h"
#include "QKXPopupChain.h"
#include "QKXPopupPlacement.h"
#include "QKXSliderEventFilter.h"
#include "ValueObjectHelper.h"

#include "SliderBarImpl.h"

#include <QDebug>
#include <QFontMetrics>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>

#include <cmath>

namespace {
const QString kx_intType = QStringLiteral("Int");
const QString kx_doubleType = QStringLiteral("Double");
const QString kx_valueDoubleType = QStringLiteral("ValueDouble");
const QString kx_valueLongType = QStringLiteral("ValueLong");

// The unit's half of the indicator box: the indicator's white outline continues round it.
const char *const UnitLabelStyle = "QLabel {    background-color: transparent;    border: 2px solid white;    border-top-right-radius: 10px;    border-bottom-right-radius: 10px;    border-left-width: 0px;    font: 40px;    min-height: 40px;    max-height: 40px;    padding: 3px 0px -3px 0px;    color: white;}";
} // namespace

class QKXSliderBarPrivate
{
public:
    QPointer<QObject> filter;
    QString dataType;
    QString unitString;
    double value = 0.0;
    double savedValue = 0.0;
    int precision = 0;
    QString baseUnitString;
    QLabel *unitLabel = nullptr;
    QPointer<QWidget> widget;
    QPointer<QLineEdit> entry;
};

QKXSliderBar::QKXSliderBar(QWidget *parent)
    : SingleSliderImpl(parent, 100.0, 0.0, 200.0, 0)
    , d_ptr(new QKXSliderBarPrivate)
{
    Q_D(QKXSliderBar);
    d->unitLabel = new QLabel(indicator()->parentWidget());
    d->unitLabel->setStyleSheet(QString::fromLatin1(UnitLabelStyle));
    d->unitLabel->hide();
    borderFrame()->setStyleSheet(QStringLiteral("QFrame#BorderFrame { background-color: transparent; border: none; }"));
    connect(this, &SingleSliderImpl::rotateEntryMechanism, this, &QKXSliderBar::rotateButtonClicked);
}

QKXSliderBar::~QKXSliderBar() = default;

int QKXSliderBar::power() const
{
    return int(sliderBar()->power());
}

void QKXSliderBar::registerWidget(QObject *filter, QWidget *widget)
{
    Q_D(QKXSliderBar);
    QKXPopupChain::unchainAll(this, d->filter);   // a registration still held, if any
    d->filter = filter;
    d->widget = widget;
    d->entry = widget ? widget->findChild<QLineEdit *>() : nullptr;
    d->dataType = filter ? filter->property("DataType").toString() : QString();

    QKXPopupChain::chain(this, filter, SIGNAL(cancelEntry()), SIGNAL(done()));

    d->precision = widget ? widget->property("Precision").toInt() : 0;
    changePrecision(d->precision);
    if (widget) {
        updateLimits(widget->property("LowerLimit").toDouble(), widget->property("UpperLimit").toDouble());
    }

    if (auto *units = qobject_cast<QKXNumericValueObj *>(widget)) {
        d->baseUnitString = units->baseUnit();
        d->unitString = units->currentUnit();
        const Norvane::Value::Units base = ValueObjectHelper::convertToUnits(d->baseUnitString);
        const Norvane::Value::Units shown = ValueObjectHelper::convertToUnits(d->unitString);
        d->value = ValueObjectHelper::convertValue(units->value(), base, shown);
        calculatPowStep(d->value);
        updateValue(QString::number(d->value, 'f', d->precision), units->currentUnitName());
        updateLimits(ValueObjectHelper::convertValue(units->lowerLimit(), base, shown),
                     ValueObjectHelper::convertValue(units->upperLimit(), base, shown));
    } else if (auto *numeric = qobject_cast<QKXNumeric *>(widget)) {
        d->baseUnitString.clear();
        d->unitString.clear();
        d->value = numeric->value();
        calculatPowStep(d->value);
        updateValue(QString::number(d->value, 'f', d->precision), QString());
    }
    d->savedValue = d->value;

    if (!unit().isEmpty()) {
        QFont font = d->unitLabel->font();
        font.setPixelSize(40);
        const int width = QFontMetrics(font).boundingRect(unit()).width() + 11;
        d->unitLabel->setText(unit());
        d->unitLabel->setGeometry(this->width() - 10 - width, 10, width, 40);
        d->unitLabel->raise();
        d->unitLabel->show();
    } else {
        d->unitLabel->hide();
    }

    if (d->dataType == kx_intType) {
        QKXPopupChain::forward(this, SIGNAL(send(int,QString)), filter, SIGNAL(submit(int)));
    } else if (d->dataType == kx_doubleType) {
        QKXPopupChain::forward(this, SIGNAL(send(double,QString)), filter, SIGNAL(submit(double)));
    } else if (d->dataType == kx_valueDoubleType) {
        QKXPopupChain::forward(this, SIGNAL(send(double,QString)), filter, SIGNAL(submit(double,QString)));
    } else if (d->dataType == kx_valueLongType) {
        QKXPopupChain::forward(this, SIGNAL(send(int,QString)), filter, SIGNAL(submit(int,QString)));
    } else {
        qDebug() << "UserInterface - QKXSlider attempting to register unknown data type:" << d->dataType
                 << "Widget:" << widget;
    }
    show();
}

void QKXSliderBar::calculatPowStep(double x)
{
    Q_D(QKXSliderBar);
    const double power = kxstep::initialPower(x, d->precision);
    setPower(int(power));
    setStep(std::pow(10.0, power));
}

QLabel *QKXSliderBar::unitLabel() const
{
    Q_D(const QKXSliderBar);
    return d->unitLabel;
}

QObject *QKXSliderBar::registeredFilter() const
{
    Q_D(const QKXSliderBar);
    return d->filter;
}

QWidget *QKXSliderBar::registeredWidget() const
{
    Q_D(const QKXSliderBar);
    return d->widget;
}

QString QKXSliderBar::dataType() const
{
    Q_D(const QKXSliderBar);
    return d->dataType;
}

void QKXSliderBar::rotateButtonClicked()
{
    emit rotateEntry();
}

void QKXSliderBar::changePrecision(int precision)
{
    if (SliderBarImpl *bar = sliderBar()) {
        bar->changePrecisionAndUpdate(precision);
    }
    update();
}

void QKXSliderBar::setMinimum(double minimum)
{
    updateLimits(minimum, SingleSliderImpl::maximum());
}

void QKXSliderBar::setMaximum(double maximum)
{
    updateLimits(SingleSliderImpl::minimum(), maximum);
}

void QKXSliderBar::setPower(int power)
{
    sliderBar()->setPower(power);
    updateCursorPosition();
}

void QKXSliderBar::submit()
{
    emit done();
}

void QKXSliderBar::cancel()
{
    Q_D(QKXSliderBar);
    if (auto *sliderFilter = qobject_cast<QKXSliderEventFilter *>(d->filter)) {
        sliderFilter->cancel();
    }
}

void QKXSliderBar::unregister()
{
    Q_D(QKXSliderBar);
    QKXPopupChain::unchainAll(this, d->filter);
    d->widget = nullptr;
    d->entry = nullptr;
    d->filter = nullptr;
    hide();
    emit editEnd();
}

void QKXSliderBar::updateIndicatorValue(const QString &value, const QString &unit)
{
    Q_UNUSED(unit);
    Q_D(QKXSliderBar);
    indicator()->setText(value);
    updateCursorPosition();
    double v = 0.0;
    if (!kxnumber::readNumber(value, kxnumber::NumberForm::Real, 10, &v)) {
        qDebug().noquote() << "UserInterface - QKXSliderBar:" << (d->widget ? d->widget->objectName() : QStringLiteral("(no widget)"))
                           << (QLatin1Char('"') + value + QLatin1Char('"')) << "is not a number - nothing submitted";
        return;
    }
    if (isVisible()) {
        emit send(v, d->unitString);
        emit send(kxnumber::truncated(v), d->unitString);
    }
}

void QKXSliderBar::showEvent(QShowEvent *event)
{
    Q_D(QKXSliderBar);
    if (d->widget) {
        const QPoint place = QKXPopupPlacement::besideWidget(this, d->widget, size());
        move(place.x(), place.y());
    }
    if (d->entry) {
        indicator()->setText(d->entry->text());
    }
    if (auto *units = qobject_cast<QKXNumericValueObj *>(d->widget)) {
        double shown = 0.0;
        if (kxnumber::readNumber(indicator()->text(), kxnumber::NumberForm::Real, 10, &shown)) {
            updateValue(QString::number(shown, 'f', d->precision), units->currentUnitName());
        }
    }
    updateCursorPosition();
    SingleSliderImpl::showEvent(event);
}
