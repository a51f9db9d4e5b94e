// SPDX-License-Identifier: BSD-3-Clause
#include "QKXNumericValueObj.h"
#include "QKXNumericValueObj_p.h"

#include "KXNumberConversion_p.h"
#include "KXNumericLines_p.h"

#include "CSS.h"
#include "QKXComboBox.h"
#include "QKXUtil.h"
#include "ValueHelper.h"

#include <QApplication>
#include <QDebug>
#include <QFontMetrics>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QStyle>

#include <cmath>

using Norvane::Value::Units;

const QString QKXNumericValueObjPrivate::neutralUnitString = QStringLiteral("0,0,0:0;0:0;0:0;0:0;0:0");

static QString kxunits_quoted(const QString &text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}

QKXNumericValueObjPrivate::QKXNumericValueObjPrivate(QKXNumericValueObj *q)
    : QKXNumericPrivate(q)
    , unitSelector(nullptr)
    , defaultUnitIndex(0)
    , unitIndexValue(-1)
    , baseUnitString(neutralUnitString)
    , baseUnits(ValueHelper::convertToUnits(neutralUnitString))
    , currentUnits(baseUnits)
    , unitSmallStyle(unitSmallStyleTemplate())
    , unitLargeStyle(unitLargeStyleTemplate())
    , unitLockStyle(unitLockStyleTemplate())
    , groupMode(QKXNumericValueObj::Convertable)
    , convertsUnitsValue(true)
    , drivingSelector(false)
{
    // The idle look of a read-only field frames the selector in the same colour as the value.
    readOnlyStyle = unitReadOnlyStyleTemplate();
}

QKXNumericValueObjPrivate::~QKXNumericValueObjPrivate() = default;

// The value display and the selector read as one rounded field: the display is its left half, the
// selector its right half. Themes match these sheets as text, blanks included.
QString QKXNumericValueObjPrivate::unitSmallStyleTemplate()
{
    return QStringLiteral("QLineEdit {    padding: 1px 5px 0px 5px;    margin: 0px;    border: 2px solid #000;"
                          "    border-right-width: 0px;    border-top-left-radius: 10px;"
                          "    border-bottom-left-radius: 10px;    /* font-family: Mono; */    font-size: 14px;"
                          "    color: #000;    min-height: 25px;    max-height: 25px;    background-color: #fff;"
                          "    selection-color: #000;    selection-background-color:")
        + CSS::highlight()
        + QStringLiteral(";}QLineEdit:disabled {    background: transparent;    border-color: #fff;    color: #fff;}"
                         "QLabel#Label {    font-size: 12px;    padding: 4px 5px 0px 8px;    margin: 0px 0px 0px 0px;"
                         "    border: none;    color: #fff;    min-height: 12px;}"
                         "QKXComboBox QLabel#ComboText {    min-height: 25px;    max-height: 25px;    font-size: 14px;"
                         "    color: #000;    background-color: #fff;    border: 2px solid #000;    border-left-width: 1px;"
                         "    border-top-right-radius: 10px;    border-bottom-right-radius: 10px;"
                         "    padding: 0px 5px 1px 5px;}"
                         "QKXComboBox QLabel#ComboText:disabled {    background-color: transparent;    border-color: #fff;"
                         "    border-left-width: 2px;    color: #fff;}");
}

QString QKXNumericValueObjPrivate::unitLargeStyleTemplate()
{
    return QStringLiteral("QLineEdit {    padding: 1px 5px 0px 5px;    margin: 0px;    border: 2px solid #000;"
                          "    border-right-width: 0px;    border-top-left-radius: 10px;"
                          "    border-bottom-left-radius: 10px;    /* font-family: Mono; */    font-size: 20px;"
                          "    color: #000;    min-height: 32px;    max-height: 32px;    background-color: #fff;"
                          "    selection-color: #000;    selection-background-color:")
        + CSS::highlight()
        + QStringLiteral(";}QLineEdit:disabled {    background: transparent;    border-color: #fff;    color: #fff;}"
                         "QLabel#Label {    font-size: 16px;    padding: 4px 5px 0px 8px;    margin: 0px 0px 0px 0px;"
                         "    border: none;    color: #fff;    min-height: 12px;}"
                         "QKXComboBox QLabel#ComboText {    min-height: 32px;    max-height: 32px;    font-size: 20px;"
                         "    color: #000;    background-color: #fff;    border: 2px solid #000;    border-left-width: 1px;"
                         "    border-top-right-radius: 10px;    border-bottom-right-radius: 10px;"
                         "    padding: 0px 5px 1px 5px;}"
                         "QKXComboBox QLabel#ComboText:disabled {    background-color: transparent;    border-color: #fff;"
                         "    border-left-width: 2px;    color: #fff;}");
}

QString QKXNumericValueObjPrivate::unitLockStyleTemplate()
{
    return QStringLiteral("QLineEdit:disabled {    background-image: url(:/images/lock_num_un.png);"
                          "    background-position: top right;    background-repeat: no-repeat;}");
}

QString QKXNumericValueObjPrivate::unitReadOnlyStyleTemplate()
{
    return QStringLiteral("QLineEdit:disabled {    border-color: ") + CSS::border()
        + QStringLiteral(";}QKXComboBox QLabel#ComboText:disabled {    border-color: ") + CSS::border()
        + QStringLiteral(";}");
}

void QKXNumericValueObjPrivate::init()
{
    // Runs inside the base constructor: only the QWidget side of q may be used here.
    QKXNumericPrivate::init();

    unitSelector = new QKXComboBox(q);
    unitSelector->setObjectName(QStringLiteral("unit_combobox"));
    unitSelector->removeCSS();
    if (QLabel *selectorCaption = unitSelector->findChild<QLabel *>(QStringLiteral("Label"))) {
        // The selector's Private keeps a plain pointer to its caption: clear it before the caption goes.
        QKXWidgetBasePrivate::get(unitSelector)->setLabel(nullptr);
        delete selectorCaption;
    }
    if (QLabel *unitText = unitSelector->findChild<QLabel *>(QStringLiteral("ComboText"))) {
        unitText->setEnabled(false);
        unitText->setTextFormat(Qt::RichText);
        unitText->setAlignment(Qt::AlignCenter);
    }
    unitSelector->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);

    if (auto *grid = qobject_cast<QGridLayout *>(q->layout())) {
        grid->removeWidget(labelWidget);
        grid->removeWidget(lineEdit);
        grid->addWidget(labelWidget, 0, 0, 1, 2);
        grid->addWidget(lineEdit, 1, 0);
        grid->addWidget(unitSelector, 1, 1);
        grid->setColumnStretch(0, 1);
    }

    updateStyle();
    connect(unitSelector, &QKXComboBox::currentIndexChanged, this, &QKXNumericValueObjPrivate::selectUnitIndex);
}

void QKXNumericValueObjPrivate::changeSize(const QString &size)
{
    const QString sheetBefore = q->styleSheet();
    QKXNumericPrivate::changeSize(size);
    if (!unitSelector) {
        return;
    }
    if (q->styleSheet() != sheetBefore) {
        // The unit text takes its look from this widget's sheet, through a selector that once had a
        // sheet of its own. Qt keeps the rules it read for the selector's labels while this widget
        // has not been shown yet (a screen not on top), so the new sheet is read again, here and for
        // the parts, or the unit keeps the look of the size before.
        QWidget *const parts[] = {q, unitSelector, unitSelector->findChild<QLabel *>(QStringLiteral("ComboText"))};
        for (QWidget *part : parts) {
            if (part) {
                q->style()->unpolish(part);
                q->style()->polish(part);
            }
        }
    }
    int pixelSize = 14;
    if (currentSizeName == QLatin1String("Max")) {
        pixelSize = 20;
    } else if (currentSizeName == QLatin1String("Thumb")) {
        pixelSize = 32;
    }
    QFont font = QApplication::font();
    font.setPixelSize(pixelSize);
    // The selector is as wide as its unit and no wider: the value takes the rest of the row.
    const int width = QKXUtil::calculateStringWidth(QFontMetrics(font), unitSelector->text()) + 22;
    unitSelector->setMinimumWidth(width);
    unitSelector->setMaximumWidth(width);
}

void QKXNumericValueObjPrivate::updateStyle()
{
    if (!unitSelector) {
        // The numeric set-up styles the field before the selector exists.
        QKXNumericPrivate::updateStyle();
        return;
    }
    if (!unitSelector->text().isEmpty()) {
        unitSelector->show();
        setOverlaidStyles(unitSmallStyle, unitLargeStyle, unitLockStyle, readOnlyStyle);
    } else {
        // A plain number shows no selector and looks like any numeric field.
        unitSelector->hide();
        setOverlaidStyles(smallStyle, largeStyle, lockStyle, readOnlyStyle);
    }
}

double QKXNumericValueObjPrivate::displayValue(double value) const
{
    return convertsUnitsValue ? ValueHelper::convertValue(value, baseUnits, currentUnits) : value;
}

void QKXNumericValueObjPrivate::emitValueSignals(double value, double shown)
{
    Q_Q(QKXNumericValueObj);
    emit q->displayValueChanged(shown);
    emit q->valueChanged(value, baseUnitString);
    emit q->valueChanged(kxnumber::truncated(value), baseUnitString);
}

void QKXNumericValueObjPrivate::setValue(double value)
{
    const double shown = displayValue(value);
    if (!showable(value, shown)) {
        return;
    }
    // The numeric field shows (and its plain signals carry) the converted number; the widget keeps
    // the engine's number, so that value() and a cancel answer in the base unit.
    QKXNumericPrivate::setValue(shown);
    currentValue = value;
    emitValueSignals(value, shown);
}

void QKXNumericValueObjPrivate::setValue(const int &value)
{
    const double shown = convertsUnitsValue ? ValueHelper::convertValue(long(value), baseUnits, currentUnits)
                                            : double(value);
    if (!showable(value, shown)) {
        return;
    }
    QKXNumericPrivate::setValue(shown);
    currentValue = value;
    emitValueSignals(value, shown);
}

void QKXNumericValueObjPrivate::takeBaseUnit(const QString &unit)
{
    if (unit == baseUnitString) {
        return;
    }
    const bool hadList = !unitsList.isEmpty();
    baseUnitString = unit;
    baseUnits = ValueHelper::convertToUnits(unit);
    populateList();
    if (hadList && groupMode != QKXNumericValueObj::None && offeredIndexes == QList<int>{-1}) {
        qDebug().noquote() << "UserInterface -" << kxnumber::named(q)
                           << "no unit of its list converts to"
                           << kxunits_quoted(ValueHelper::getUnitString(baseUnits))
                           << "- only the base unit is offered";
    }
}

void QKXNumericValueObjPrivate::setValue(const double &value, const QString &unit)
{
    // A value with no number to show changes nothing, its unit included.
    if (!showable(value, value)) {
        return;
    }
    takeBaseUnit(unit);
    setValue(value);
}

void QKXNumericValueObjPrivate::setValue(const int &value, const QString &unit)
{
    takeBaseUnit(unit);
    setValue(value);
}

void QKXNumericValueObjPrivate::setMetaData(const QVariant &metaData)
{
    QKXNumericPrivate::setMetaData(metaData);
}

QString QKXNumericValueObjPrivate::unitListString() const
{
    return unitList;
}

int QKXNumericValueObjPrivate::defaultUnit() const
{
    return defaultUnitIndex;
}

void QKXNumericValueObjPrivate::setUnitListString(const QString &list)
{
    Q_Q(QKXNumericValueObj);
    unitIndexValue = -2;
    unitList = list;
    unitsList.clear();
    const QStringList parts = list.split(QLatin1Char('|'));
    if (!parts.isEmpty()) {
        unitIndexValue = -1;
    }
    for (const QString &part : parts) {
        if (!ValueHelper::isValidUnits(part)) {
            // One bad part makes the whole list suspect: the field falls back to its base unit.
            if (!list.isEmpty()) {
                qDebug().noquote() << "UserInterface -" << kxnumber::named(q)
                                   << "unit list part" << kxunits_quoted(part)
                                   << "is no units string - only the base unit is offered";
            }
            unitsList.clear();
            break;
        }
        unitsList.append(ValueHelper::convertToUnits(part));
    }
    unitsByIndex.clear();
    for (int i = 0; i < unitsList.size(); ++i) {
        unitsByIndex.insert(i, unitsList.at(i));
    }
    emit q->unitListStringChanged(list);
    populateList();
    updateStyle();
}

void QKXNumericValueObjPrivate::setDefaultUnit(int index)
{
    defaultUnitIndex = index;
    // A default without a unit of the list behind it (forms set DefaultUnit before Units) waits for
    // the next list; the selector would otherwise show a unit the field does not use.
    if (index == -1 || unitsByIndex.contains(index)) {
        unitSelector->setIndex(index);
    }
}

QString QKXNumericValueObjPrivate::baseUnit() const
{
    return baseUnitString;
}

void QKXNumericValueObjPrivate::setBaseUnit(const QString &unit)
{
    if (!ValueHelper::isValidUnits(unit)) {
        qDebug().noquote() << "UserInterface -" << kxnumber::named(q)
                           << "base unit" << kxunits_quoted(unit) << "is no units string";
    }
    // The unit shown stays as it is until a unit is selected again, even while it is the old base.
    baseUnitString = unit;
    baseUnits = ValueHelper::convertToUnits(unit);
}

QString QKXNumericValueObjPrivate::currentUnit() const
{
    return ValueHelper::toString(currentUnits);
}

QString QKXNumericValueObjPrivate::currentUnitName() const
{
    return unitSelector ? unitSelector->text() : QString();
}

int QKXNumericValueObjPrivate::unitIndex() const
{
    return unitIndexValue;
}

bool QKXNumericValueObjPrivate::convertsUnits() const
{
    return convertsUnitsValue;
}

void QKXNumericValueObjPrivate::setConvertsUnits(bool converts)
{
    convertsUnitsValue = converts;
}

QKXNumericValueObj::Unit_Groups QKXNumericValueObjPrivate::groupUnits() const
{
    return groupMode;
}

void QKXNumericValueObjPrivate::selectGroupUnits(QKXNumericValueObj::Unit_Groups groups)
{
    groupMode = groups;
}

QVariantList QKXNumericValueObjPrivate::unitToEnum(const Units &units, int index)
{
    return QVariantList{index, ValueHelper::getUnitString(units), true, ValueHelper::toString(units)};
}

void QKXNumericValueObjPrivate::populateList()
{
    QVariantList list;
    offeredIndexes.clear();
    for (int i = 0; i < unitsList.size(); ++i) {
        const Units &unit = unitsList.at(i);
        bool offered = false;
        switch (groupMode) {
        case QKXNumericValueObj::Base:
            offered = ValueHelper::unitBaseMatches(unit, baseUnits);
            break;
        case QKXNumericValueObj::Convertable:
            offered = ValueHelper::unitsCanConvert(unit, baseUnits);
            break;
        case QKXNumericValueObj::None:
            break;
        }
        if (offered) {
            list.append(QVariant(unitToEnum(unit, i)));
            offeredIndexes.append(i);
        }
    }
    if (offeredIndexes.isEmpty()) {
        list.append(QVariant(unitToEnum(baseUnits, -1)));
        offeredIndexes.append(-1);
    }

    int chosen = offeredIndexes.contains(defaultUnitIndex) ? defaultUnitIndex : offeredIndexes.first();
    {
        QScopedValueRollback<bool> guard(drivingSelector, true);
        // The selector reports an index its record lacks: it is emptied and pointed at the chosen
        // unit before it gets the new record.
        unitSelector->setMetaData(QVariant());
        unitSelector->setIndex(chosen);
        unitSelector->setMetaData(list);
    }
    q->setProperty("UnitList", list);
    selectUnitIndex(chosen);
    updateStyle();
}

void QKXNumericValueObjPrivate::selectUnitIndex(int index)
{
    Q_Q(QKXNumericValueObj);
    if (drivingSelector) {
        return;
    }
    if (index != -1 && index == unitIndexValue) {
        return;
    }
    if (index != -1 && !unitsByIndex.contains(index)) {
        // Only -1, the base unit itself, and the units of the list have a record to show.
        qDebug().noquote() << "UserInterface -" << kxnumber::named(q)
                           << "offers no unit" << index << "- unit kept";
        if (unitSelector->currentIndex() != unitIndexValue && offeredIndexes.contains(unitIndexValue)) {
            // Someone turned the selector itself: it goes back to the unit in use.
            QScopedValueRollback<bool> guard(drivingSelector, true);
            unitSelector->setIndex(unitIndexValue);
        }
        return;
    }
    if (index == -1 && currentUnit() == baseUnitString) {
        return;
    }

    unitIndexValue = index;
    currentUnits = index == -1 ? baseUnits : unitsByIndex.value(index);
    {
        QScopedValueRollback<bool> guard(drivingSelector, true);
        unitSelector->setIndex(index);
    }

    // Rewritten from the stored engine value, never from the text: the text is rounded.
    const double shown = displayValue(currentValue);
    if (!std::isfinite(shown)) {
        showNoNumberInUnit();
    } else if (kxnumber::radixOf(int(base)) == 10) {
        const bool hadDecimals = lineEdit->text().contains(QLatin1Char('.'));
        lineEdit->setText(decimalText(shown, hadDecimals ? precisionValue : 0));
    } else {
        setValueText(shown);
    }
    changeSize(currentSizeName);

    emit q->unitChanged(index);
    emit q->unitChanged(currentUnit());
}

void QKXNumericValueObjPrivate::showNoNumberInUnit()
{
    Q_Q(QKXNumericValueObj);
    qDebug().noquote() << "UserInterface -" << kxnumber::named(q) << "has no number for" << currentValue << "in"
                       << kxunits_quoted(ValueHelper::getUnitString(currentUnits)) << "- display emptied";
    lineEdit->clear();
}

QKXNumericValueObj::QKXNumericValueObj(QWidget *parent)
    : QKXNumeric(*new QKXNumericValueObjPrivate(this), parent)
{
}

QKXNumericValueObj::QKXNumericValueObj(QKXNumericValueObjPrivate &dd, QWidget *parent)
    : QKXNumeric(dd, parent)
{
}

QKXNumericValueObj::~QKXNumericValueObj() = default;

QString QKXNumericValueObj::unitListString() const
{
    Q_D(const QKXNumericValueObj);
    return d->unitListString();
}

int QKXNumericValueObj::defaultUnit() const
{
    Q_D(const QKXNumericValueObj);
    return d->defaultUnit();
}

QString QKXNumericValueObj::baseUnit() const
{
    Q_D(const QKXNumericValueObj);
    return d->baseUnit();
}

QString QKXNumericValueObj::currentUnit() const
{
    Q_D(const QKXNumericValueObj);
    return d->currentUnit();
}

QString QKXNumericValueObj::currentUnitName() const
{
    Q_D(const QKXNumericValueObj);
    return d->currentUnitName();
}

int QKXNumericValueObj::unitIndex() const
{
    Q_D(const QKXNumericValueObj);
    return d->unitIndex();
}

QKXNumericValueObj::Unit_Groups QKXNumericValueObj::groupUnits() const
{
    Q_D(const QKXNumericValueObj);
    return d->groupUnits();
}

bool QKXNumericValueObj::convertsUnits() const
{
    Q_D(const QKXNumericValueObj);
    return d->convertsUnits();
}

void QKXNumericValueObj::setValue(const double &value)
{
    Q_D(QKXNumericValueObj);
    d->setValue(value);
}

void QKXNumericValueObj::setValue(const int &value)
{
    Q_D(QKXNumericValueObj);
    d->setValue(value);
}

void QKXNumericValueObj::setValue(const double &value, const QString &unit)
{
    Q_D(QKXNumericValueObj);
    d->setValue(value, unit);
}

void QKXNumericValueObj::setValue(const int &value, const QString &unit)
{
    Q_D(QKXNumericValueObj);
    d->setValue(value, unit);
}

void QKXNumericValueObj::setMetaData(const QVariant &metaData)
{
    Q_D(QKXNumericValueObj);
    d->setMetaData(metaData);
}

void QKXNumericValueObj::setUnitListString(const QString &unitList)
{
    Q_D(QKXNumericValueObj);
    d->setUnitListString(unitList);
}

void QKXNumericValueObj::setDefaultUnit(const int &index)
{
    Q_D(QKXNumericValueObj);
    d->setDefaultUnit(index);
}

void QKXNumericValueObj::setBaseUnit(const QString &unit)
{
    Q_D(QKXNumericValueObj);
    d->setBaseUnit(unit);
}

void QKXNumericValueObj::changeSize(QString size)
{
    Q_D(QKXNumericValueObj);
    d->changeSize(size);
}

void QKXNumericValueObj::setUnitIndex(int index)
{
    Q_D(QKXNumericValueObj);
    d->selectUnitIndex(index);
}

void QKXNumericValueObj::setGroupUnits(const QKXNumericValueObj::Unit_Groups &groups)
{
    Q_D(QKXNumericValueObj);
    d->selectGroupUnits(groups);
}

void QKXNumericValueObj::setConvertsUnits(const bool &converts)
{
    Q_D(QKXNumericValueObj);
    d->setConvertsUnits(converts);
}
