// SPDX-License-Identifier: BSD-3-Clause
#include "QKXNumeric.h"
#include "QKXNumeric_p.h"

#include "KXNumberConversion_p.h"
#include "KXNumericLines_p.h"

#include "CSS.h"

#include <QDebug>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

#include <cmath>

// A double has no digit beyond its 1074th decimal, so more decimals only add zeros; Qt's formatter
// gives up altogether on the largest counts a form could write.
static constexpr int kx_maxShownDecimals = 1074;

QKXNumericPrivate::QKXNumericPrivate(QKXNumeric *q)
    : QKXWidgetBasePrivate(q)
    , precisionValue(0)
    , base(QKXNumeric::DEC)
    , numpad(true)
    , slider(true)
    , spinner(false)
    , currentValue(0.0)
    , lowerLimitValue(0.0)
    , upperLimitValue(0.0)
    , editingValue(false)
    , lineEdit(nullptr)
    , smallStyle(smallStyleTemplate())
    , largeStyle(largeStyleTemplate())
    , lockStyle(lockStyleTemplate())
    , readOnlyStyle(readOnlyStyleTemplate())
{
}

QKXNumericPrivate::~QKXNumericPrivate() = default;

// Themes and hosts match these sheets as text: the blanks inside them are part of the form.
QString QKXNumericPrivate::smallStyleTemplate()
{
    return QStringLiteral("QLineEdit {    padding: 1px 5px 0px 5px;    margin: 0px;    border: 2px solid #fff;"
                          "    border-radius: 10px;    /* font-family: Mono; */    font-size: 14px;    color: #000;"
                          "    min-height: 25px;    max-height: 25px;    background-color: #fff;"
                          "    selection-color: #000;    selection-background-color:")
        + CSS::highlight()
        + QStringLiteral(";}QLineEdit:disabled {    background: transparent;    border: 2px solid #fff;"
                         "    color: #fff;}QLabel#Label {    font-size: 12px;    padding: 4px 5px 0px 8px;"
                         "    margin: 0px 0px 0px 0px;    border: none;    color: #fff;    min-height: 12px;}");
}

QString QKXNumericPrivate::largeStyleTemplate()
{
    return QStringLiteral("QLineEdit {    padding: 1px 5px 0px 5px;    margin: 0px;    border: 2px solid #fff;"
                          "    border-radius: 10px;    /* font-family: Mono; */    font-size: 20px;    color: #000;"
                          "    min-height: 32px;    max-height: 32px;    background-color: #fff;"
                          "    selection-color: #000;    selection-background-color:")
        + CSS::highlight()
        + QStringLiteral(";}QLineEdit:disabled {    background: transparent;    border: 2px solid #fff;"
                         "    color: #fff;}QLabel#Label {    font-size: 16px;    padding: 4px 5px 0px 8px;"
                         "    margin: 0px 0px 0px 0px;    border: none;    color: #fff;    min-height: 12px;}");
}

QString QKXNumericPrivate::lockStyleTemplate()
{
    return QStringLiteral("QLineEdit:disabled {    background-image: url(:/images/lock_generic.png);"
                          "    background-position: top right;    background-repeat: no-repeat;}");
}

QString QKXNumericPrivate::readOnlyStyleTemplate()
{
    return QStringLiteral("QLineEdit:disabled {    border-color: ") + CSS::border() + QStringLiteral(";}");
}

void QKXNumericPrivate::init()
{
    // Runs inside the base constructor: only the QWidget side of q may be used here.
    auto *caption = new QLabel(q);
    caption->setObjectName(QStringLiteral("Label"));
    caption->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    setLabel(caption);

    lineEdit = new QLineEdit(q);
    // The display only takes input while the edit filter has an edit open.
    lineEdit->setEnabled(false);
    lineEdit->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);

    auto *layout = new QGridLayout;
    layout->addWidget(caption, 0, 0);
    layout->addWidget(lineEdit, 1, 0);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    q->setLayout(layout);
    q->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);

    updateStyle();
}

void QKXNumericPrivate::updateStyle()
{
    setOverlaidStyles(smallStyle, largeStyle, lockStyle, readOnlyStyle);
}

int QKXNumericPrivate::precision() const
{
    return precisionValue;
}

QString QKXNumericPrivate::decimalText(double value, int precision)
{
    return QString::number(value, 'f', qMin(precision, kx_maxShownDecimals));
}

void QKXNumericPrivate::setPrecision(int precision)
{
    if (precision > kx_maxShownDecimals) {
        qDebug().noquote() << "UserInterface -" << kxnumber::named(q) << "precision" << precision
                           << "out of range, showing" << kx_maxShownDecimals << "decimals";
    }
    precisionValue = precision;
    if (!editingValue) {
        // A precision change during an edit must not overwrite what the user is typing.
        setValue(currentValue);
    }
    emit q_func()->precisionChanged(precision);
}

QKXNumeric::BaseType QKXNumericPrivate::baseType() const
{
    return base;
}

void QKXNumericPrivate::setBaseType(QKXNumeric::BaseType baseType)
{
    switch (baseType) {
    case QKXNumeric::DEC:
    case QKXNumeric::HEX:
    case QKXNumeric::OCT:
    case QKXNumeric::BIN:
        // Shown from the next value on: hosts set the base before the first value arrives.
        base = baseType;
        return;
    }
    // A number the enum lacks: setProperty("Base", 7), or -1 from a form that names no enumerator.
    qDebug().noquote() << "UserInterface -" << kxnumber::named(q) << "has no number base" << int(baseType)
                       << "- base" << int(base) << "kept";
}

bool QKXNumericPrivate::hasSlider() const
{
    return slider;
}

void QKXNumericPrivate::setSlider(bool value)
{
    slider = value;
}

bool QKXNumericPrivate::hasSpinner() const
{
    return spinner;
}

void QKXNumericPrivate::setSpinner(bool value)
{
    spinner = value;
}

bool QKXNumericPrivate::hasNumpad() const
{
    return numpad;
}

void QKXNumericPrivate::setNumpad(bool value)
{
    numpad = value;
}

double QKXNumericPrivate::value() const
{
    return currentValue;
}

bool QKXNumericPrivate::showable(double value, double shown) const
{
    if (std::isfinite(shown)) {
        return true;
    }
    // The display keeps the last number the engine gave, and value() goes on answering with it.
    if (std::isfinite(value)) {
        qDebug().noquote() << "UserInterface -" << kxnumber::named(q) << "got" << value << "which shows as" << shown
                           << "- display and value kept";
    } else {
        qDebug().noquote() << "UserInterface -" << kxnumber::named(q) << "got" << value << "- display and value kept";
    }
    return false;
}

void QKXNumericPrivate::setValue(double value)
{
    Q_Q(QKXNumeric);
    if (!showable(value, value)) {
        return;
    }
    // Neither clamped nor rounded: the engine's value is the truth, the limits are for the editors.
    currentValue = value;
    setValueText(value);
    emit q->valueChanged(value);
    emit q->valueChanged(kxnumber::truncated(value));
}

void QKXNumericPrivate::setValueText(double value)
{
    const int radix = kxnumber::radixOf(int(base));
    if (radix == 10) {
        lineEdit->setText(decimalText(value, precisionValue));
        return;
    }
    if (!kxnumber::fitsInt(value)) {
        // A radix display has no text for it; a made-up number would be read as the engine's.
        qDebug().noquote() << "UserInterface -" << kxnumber::named(q) << "cannot show" << value << "in base" << radix
                           << "- display kept";
        return;
    }
    // The sign is written out: QString::number() shows negatives of other bases as two's complement.
    const qlonglong integer = kxnumber::truncated(value);
    const QString digits = QString::number(qAbs(integer), radix).toUpper();
    lineEdit->setText(integer < 0 ? QLatin1Char('-') + digits : digits);
}

QVariant QKXNumericPrivate::metaData() const
{
    return metaDataValue;
}

void QKXNumericPrivate::setMetaData(const QVariant &metaData)
{
    metaDataValue = metaData;
}

double QKXNumericPrivate::lowerLimit() const
{
    return lowerLimitValue;
}

void QKXNumericPrivate::setLowerLimit(double limit)
{
    lowerLimitValue = limit;
    emit q_func()->lowerLimitChanged(limit);
}

double QKXNumericPrivate::upperLimit() const
{
    return upperLimitValue;
}

void QKXNumericPrivate::setUpperLimit(double limit)
{
    upperLimitValue = limit;
    emit q_func()->upperLimitChanged(limit);
}

bool QKXNumericPrivate::editing() const
{
    return editingValue;
}

void QKXNumericPrivate::setEditing(bool editing)
{
    editingValue = editing;
}

QKXNumeric::QKXNumeric(QWidget *parent)
    : QKXWidgetBase(*new QKXNumericPrivate(this), parent)
{
}

QKXNumeric::QKXNumeric(QKXNumericPrivate &dd, QWidget *parent)
    : QKXWidgetBase(dd, parent)
{
}

QKXNumeric::~QKXNumeric() = default;

int QKXNumeric::precision() const
{
    Q_D(const QKXNumeric);
    return d->precision();
}

QKXNumeric::BaseType QKXNumeric::baseType() const
{
    Q_D(const QKXNumeric);
    return d->baseType();
}

bool QKXNumeric::hasNumpad() const
{
    Q_D(const QKXNumeric);
    return d->hasNumpad();
}

bool QKXNumeric::hasSlider() const
{
    Q_D(const QKXNumeric);
    return d->hasSlider();
}

bool QKXNumeric::hasSpinner() const
{
    Q_D(const QKXNumeric);
    return d->hasSpinner();
}

QVariant QKXNumeric::metaData() const
{
    Q_D(const QKXNumeric);
    return d->metaData();
}

double QKXNumeric::value() const
{
    Q_D(const QKXNumeric);
    return d->value();
}

double QKXNumeric::lowerLimit() const
{
    Q_D(const QKXNumeric);
    return d->lowerLimit();
}

double QKXNumeric::upperLimit() const
{
    Q_D(const QKXNumeric);
    return d->upperLimit();
}

bool QKXNumeric::editing() const
{
    Q_D(const QKXNumeric);
    return d->editing();
}

void QKXNumeric::setValue(const double &value)
{
    Q_D(QKXNumeric);
    d->setValue(value);
}

void QKXNumeric::setValue(const int &value)
{
    Q_D(QKXNumeric);
    d->setValue(double(value));
}

void QKXNumeric::setPrecision(const int &precision)
{
    Q_D(QKXNumeric);
    d->setPrecision(precision);
}

void QKXNumeric::setBaseType(const QKXNumeric::BaseType &base)
{
    Q_D(QKXNumeric);
    d->setBaseType(base);
}

void QKXNumeric::setSlider(const bool &slider)
{
    Q_D(QKXNumeric);
    d->setSlider(slider);
}

void QKXNumeric::setSpinner(const bool &spinner)
{
    Q_D(QKXNumeric);
    d->setSpinner(spinner);
}

void QKXNumeric::setNumpad(const bool &numpad)
{
    Q_D(QKXNumeric);
    d->setNumpad(numpad);
}

void QKXNumeric::setMetaData(const QVariant &metaData)
{
    Q_D(QKXNumeric);
    d->setMetaData(metaData);
}

void QKXNumeric::setLowerLimit(const double &limit)
{
    Q_D(QKXNumeric);
    d->setLowerLimit(limit);
}

void QKXNumeric::setLowerLimit(const int &limit)
{
    Q_D(QKXNumeric);
    d->setLowerLimit(double(limit));
}

void QKXNumeric::setUpperLimit(const double &limit)
{
    Q_D(QKXNumeric);
    d->setUpperLimit(limit);
}

void QKXNumeric::setUpperLimit(const int &limit)
{
    Q_D(QKXNumeric);
    d->setUpperLimit(double(limit));
}

void QKXNumeric::setEditing(const bool &editing)
{
    Q_D(QKXNumeric);
    d->setEditing(editing);
}
