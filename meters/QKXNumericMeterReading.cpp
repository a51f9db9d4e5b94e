// SPDX-License-Identifier: BSD-3-Clause
#include "QKXNumericMeterReading.h"

#include "KXMeterReadingList_p.h"
#include "KXNumberConversion_p.h"
#include "QKXNumericValueObj_p.h"

#include "QKXComboBox.h"

#include <QDebug>
#include <QLineEdit>

#include <cmath>

class QKXNumericMeterReadingPrivate : public QKXNumericValueObjPrivate
{
    Q_OBJECT
public:
    explicit QKXNumericMeterReadingPrivate(QKXNumericMeterReading *q);

    void init() override;
    void updateStyle() override;
    void setReadOnly(bool readOnly) override;

    using QKXNumericValueObjPrivate::setValue;
    virtual void setValue(const double &value, const QString &unit, QList<bool> flags);
    virtual void setValue(const QVariant &readingList);
    virtual int readingTypeIndex() const;
    virtual void setReadingTypeIndex(int index);
    virtual QVariant readingTypes() const;
    // A unit the last reading has no number in (a huge value in a smaller unit, a level of nothing)
    // keeps the text shown before.
    void showNoNumberInUnit() override;

    int readingTypeIndexValue;
    bool noReading;
    bool flag4;
    bool flag7;
    bool flag3;
    bool flag5;
    QString redStyle;
    QString blueStyle;
    QString greenStyle;
    QString yellowStyle;
    QString greyStyle;
    QList<QVariant> readingTypeList;

    // Status flag 2 of the reading being shown: its text carries " ?".
    bool doubtful;
    // A reading's value has been shown.
    bool showsReading;
    // The read-only fragment of the plain numeric field: the meter's look has no selector frame to
    // colour.
    QString numericReadOnlyStyle;

protected Q_SLOTS:
    void setValueText(double value) override;

private:
    // Sets the display's text, " ?" appended for a reading in doubt. An unchanged text is left
    // alone: a line edit lays its text out anew on every setText.
    void showText(QString text);
    void reportIgnored(const QString &what) const;

    KX_DECLARE_PUBLIC(QKXNumericMeterReading)
};

QKXNumericMeterReadingPrivate::QKXNumericMeterReadingPrivate(QKXNumericMeterReading *q)
    : QKXNumericValueObjPrivate(q)
    , readingTypeIndexValue(0)
    , noReading(false)
    , flag4(false)
    , flag7(false)
    , flag3(false)
    , flag5(false)
    , redStyle(QStringLiteral("QLineEdit:disabled {  background-color: #E00;}"))
    , blueStyle(QStringLiteral("QLineEdit:disabled {  background-color: #03D;}"))
    , greenStyle(QStringLiteral("QLineEdit:disabled {  color: black;  background-color: #00FF00;}"))
    , yellowStyle(QStringLiteral("QLineEdit:disabled {  background-color: #FEFE00;  color: black;}"))
    , greyStyle(QStringLiteral("QLineEdit:disabled {  background-color: #707070;  color: #484848;}"))
    , doubtful(false)
    , showsReading(false)
    , numericReadOnlyStyle(QKXNumericPrivate::readOnlyStyleTemplate())
{
    precisionValue = 4;
}

void QKXNumericMeterReadingPrivate::init()
{
    QKXNumericValueObjPrivate::init();
    updateStyle();
}

void QKXNumericMeterReadingPrivate::updateStyle()
{
    if (!unitSelector) {
        // The numeric set-up styles the field before the selector exists.
        QKXNumericValueObjPrivate::updateStyle();
        return;
    }
    const bool showsUnit = !unitSelector->text().isEmpty();
    unitSelector->setVisible(showsUnit);
    QString compact = showsUnit ? unitSmallStyle : smallStyle;
    QString large = showsUnit ? unitLargeStyle : largeStyle;
    if (readOnly) {
        compact += numericReadOnlyStyle;
        large += numericReadOnlyStyle;
    }
    if (!noReading) {
        // The first rule that applies colours the field; a warning outranks the pass/fail colours.
        const QString *overlay = nullptr;
        if (flag3) {
            overlay = &yellowStyle;
        } else if (flag5) {
            overlay = &greyStyle;
        } else if (flag4 && flag7) {
            overlay = &greenStyle;
        } else if (flag4) {
            overlay = &redStyle;
        } else if (flag7) {
            overlay = &blueStyle;
        }
        if (overlay) {
            compact += *overlay;
            large += *overlay;
        }
    }
    styles.insert(QStringLiteral("Min"), compact);
    styles.insert(QStringLiteral("Max"), large);
    changeSize(currentSizeName);
}

void QKXNumericMeterReadingPrivate::setReadOnly(bool value)
{
    QKXWidgetBasePrivate::setReadOnly(value);
}

int QKXNumericMeterReadingPrivate::readingTypeIndex() const
{
    return readingTypeIndexValue;
}

void QKXNumericMeterReadingPrivate::setReadingTypeIndex(int index)
{
    readingTypeIndexValue = index;
}

QVariant QKXNumericMeterReadingPrivate::readingTypes() const
{
    return QVariant(readingTypeList);
}

void QKXNumericMeterReadingPrivate::reportIgnored(const QString &what) const
{
    qDebug().noquote() << "UserInterface - QKXNumericMeterReading" << kxmeters::quoted(q->objectName()) << what
                       << "- display kept";
}

void QKXNumericMeterReadingPrivate::showText(QString text)
{
    if (doubtful) {
        text += QLatin1String(" ?");
    }
    if (lineEdit->text() != text) {
        lineEdit->setText(text);
    }
}

void QKXNumericMeterReadingPrivate::setValueText(double value)
{
    if (kxnumber::radixOf(int(base)) == 10) {
        showText(decimalText(value, precisionValue));
        return;
    }
    QKXNumericValueObjPrivate::setValueText(value);
    if (doubtful && !lineEdit->text().endsWith(QLatin1String(" ?"))) {
        lineEdit->setText(lineEdit->text() + QLatin1String(" ?"));
    }
}

void QKXNumericMeterReadingPrivate::showNoNumberInUnit()
{
    // Before the first reading the value is no reading: nothing to report.
    if (showsReading) {
        reportIgnored(QStringLiteral("reading %1 has no number in %2").arg(currentValue).arg(currentUnitName()));
    }
}

void QKXNumericMeterReadingPrivate::setValue(const QVariant &readingList)
{
    const QVariantList list = readingList.toList();
    if (readingList.isNull() || !readingList.isValid() || list.isEmpty() || list.at(0).toList().isEmpty()) {
        qDebug() << "UserInterface - ReadingList is either NULL or invalid!";
        return;
    }
    const QVariantList types = list.at(0).toList();
    if (readingTypeIndexValue < 0 || readingTypeIndexValue >= types.size()) {
        // Hosts find the meter by both names: the object's and the attribute's.
        qDebug() << "UserInterface - Meter reading index is out of range:" << q->objectName() << attributeNameValue
                 << types.size() << readingTypeIndexValue;
        return;
    }

    if (list.size() <= kxmeters::LastFlag) {
        reportIgnored(QStringLiteral("reading list of %1 elements has no status flag %2")
                          .arg(list.size())
                          .arg(kxmeters::LastFlag));
        return;
    }
    QString problem;
    if (!kxmeters::flagsReadable(list, kxmeters::LastFlag, &problem)) {
        reportIgnored(problem);
        return;
    }
    QList<bool> flags;
    flags.reserve(kxmeters::LastFlag);
    for (int i = kxmeters::FirstFlag; i <= kxmeters::LastFlag; ++i) {
        flags.append(list.at(i).toBool());
    }
    const QVariant &entry = types.at(readingTypeIndexValue);
    const QVariantList record = entry.toList().value(1).toList();
    if (!flags.at(0)) {
        // Without status flag 1 the value is shown, so it must be there to show.
        if (entry.toList().size() < 2) {
            reportIgnored(QStringLiteral("reading type %1 is %2, not a [name, value record] pair")
                              .arg(readingTypeIndexValue)
                              .arg(kxmeters::describe(entry)));
            return;
        }
        problem = kxmeters::recordProblem(entry.toList().at(1));
        if (!problem.isEmpty()) {
            reportIgnored(QStringLiteral("reading ") + problem);
            return;
        }
    }
    if (readingTypeList.isEmpty()) {
        readingTypeList = kxmeters::readingTypePairs(types);
    }
    setValue(record.value(3).toDouble(), record.value(0).toString(), flags);
}

void QKXNumericMeterReadingPrivate::setValue(const double &value, const QString &unit, QList<bool> flags)
{
    const bool wasDoubtful = doubtful;
    doubtful = flags.value(1);
    if (flags.value(0)) {
        showText(QStringLiteral("---"));
    } else {
        if (!std::isfinite(value)) {
            doubtful = wasDoubtful;
            reportIgnored(QStringLiteral("reading %1 is no number to show").arg(value));
            return;
        }
        takeBaseUnit(unit);
        const double shown = displayValue(value);
        if (!std::isfinite(shown)) {
            doubtful = wasDoubtful;
            reportIgnored(QStringLiteral("reading %1 has no number in %2").arg(value).arg(currentUnitName()));
            return;
        }
        QKXNumericValueObjPrivate::setValue(value);
        showsReading = true;
    }
    if (flags.size() < kxmeters::LastFlag) {
        return;
    }
    const bool next1 = flags.at(0);
    const bool next3 = flags.at(2);
    const bool next4 = flags.at(3);
    const bool next5 = flags.at(4);
    const bool next7 = flags.at(6);
    // A reading whose status is unchanged does not touch the style sheet, which would re-polish the field.
    if (next4 == flag4 && next7 == flag7 && next5 == flag5 && next3 == flag3 && next1 == noReading) {
        return;
    }
    noReading = next1;
    flag4 = next4;
    flag7 = next7;
    flag3 = next3;
    flag5 = next5;
    updateStyle();
}

QKXNumericMeterReading::QKXNumericMeterReading(QWidget *parent)
    : QKXNumericValueObj(*new QKXNumericMeterReadingPrivate(this), parent)
{
}

QKXNumericMeterReading::~QKXNumericMeterReading() = default;

int QKXNumericMeterReading::readingTypeIndex() const
{
    Q_D(const QKXNumericMeterReading);
    return d->readingTypeIndex();
}

QVariant QKXNumericMeterReading::readingTypes() const
{
    Q_D(const QKXNumericMeterReading);
    return d->readingTypes();
}

void QKXNumericMeterReading::setValue(const QVariant &readingList)
{
    Q_D(QKXNumericMeterReading);
    d->setValue(readingList);
}

void QKXNumericMeterReading::setReadingTypeIndex(int index)
{
    Q_D(QKXNumericMeterReading);
    d->setReadingTypeIndex(index);
}

void QKXNumericMeterReading::setReadOnly(bool isRO)
{
    Q_D(QKXNumericMeterReading);
    d->setReadOnly(isRO);
}

#include "QKXNumericMeterReading.moc"
