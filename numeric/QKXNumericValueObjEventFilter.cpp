// SPDX-License-Identifier: BSD-3-Clause
#include "QKXNumericValueObjEventFilter.h"

#include "KXNumberConversion_p.h"
#include "KXNumericLines_p.h"
#include "QKXEditStateFilter_p.h"

#include <QDebug>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QVariant>
#include <QWidget>

namespace {
const QString kx_valueDoubleType = QStringLiteral("ValueDouble");
const QString kx_valueLongType = QStringLiteral("ValueLong");

QString kx_quoted(const QString &text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}
} // namespace

class QKXNumericValueObjEventFilterPrivate : public QKXEditStateFilterPrivate
{
public:
    QKXNumericValueObjEventFilterPrivate(QKXNumericValueObjEventFilter *q, const QString &dataType,
                                         QObject *unitFilter, QObject *adapter)
        : QKXEditStateFilterPrivate(q, adapter, QKXEditStateFilter::RequestLockWithAdapter,
                                    QKXEditStateFilter::StartWithParent)
        , dataType(dataType)
        , unitFilter(unitFilter)
    {
    }

    // Looks the display and the selector's unit text up among the widget's children.
    void findParts();
    QWidget *selector() const;
    bool parseDisplay(double *number) const;
    void installUnitFilter(bool install);

    QPointer<QLabel> unitLabel;
    double savedValue = 0.0;
    QString dataType;
    QString unitString;
    QPointer<QObject> unitFilter;

private:
    Q_DECLARE_PUBLIC(QKXNumericValueObjEventFilter)
};

void QKXNumericValueObjEventFilterPrivate::findParts()
{
    Q_Q(QKXNumericValueObjEventFilter);
    QWidget *widget = q->parentWidget();
    if (!widget) {
        return;
    }
    q->setInnerEditor(widget->findChild<QLineEdit *>());
    QWidget *unitSelector = selector();
    unitLabel = unitSelector ? unitSelector->findChild<QLabel *>(QStringLiteral("ComboText")) : nullptr;
}

QWidget *QKXNumericValueObjEventFilterPrivate::selector() const
{
    Q_Q(const QKXNumericValueObjEventFilter);
    QWidget *widget = q->parentWidget();
    return widget ? widget->findChild<QWidget *>(QStringLiteral("unit_combobox")) : nullptr;
}

bool QKXNumericValueObjEventFilterPrivate::parseDisplay(double *number) const
{
    Q_Q(const QKXNumericValueObjEventFilter);
    QLineEdit *display = q->display();
    if (!display || (dataType != kx_valueLongType && dataType != kx_valueDoubleType)) {
        return false;
    }
    const kxnumber::NumberForm form = dataType == kx_valueLongType ? kxnumber::NumberForm::Integer
                                                                   : kxnumber::NumberForm::Real;
    return kxnumber::readNumber(display->text(), form, kxnumber::radixOf(q->parent()->property("Base")), number);
}

void QKXNumericValueObjEventFilterPrivate::installUnitFilter(bool install)
{
    QWidget *unitSelector = selector();
    if (!unitSelector || !unitFilter) {
        return;
    }
    // QObject's own installation: the selector's edit filter, if it has one, stays what it is.
    if (install) {
        static_cast<QObject *>(unitSelector)->installEventFilter(unitFilter);
    } else {
        unitSelector->removeEventFilter(unitFilter);
    }
}

QKXNumericValueObjEventFilter::QKXNumericValueObjEventFilter(QObject *parent, const QString &dataType,
                                                             QObject *unitFilter, QObject *adapter)
    : QKXEditStateFilter(*new QKXNumericValueObjEventFilterPrivate(this, dataType, unitFilter, adapter), parent)
{
    Q_D(QKXNumericValueObjEventFilter);
    setProperty("DataType", dataType);
    d->findParts();
}

QKXNumericValueObjEventFilter::~QKXNumericValueObjEventFilter() = default;

QString QKXNumericValueObjEventFilter::dataType() const
{
    Q_D(const QKXNumericValueObjEventFilter);
    return d->dataType;
}

double QKXNumericValueObjEventFilter::savedValue() const
{
    Q_D(const QKXNumericValueObjEventFilter);
    return d->savedValue;
}

QString QKXNumericValueObjEventFilter::unitString() const
{
    Q_D(const QKXNumericValueObjEventFilter);
    return d->unitString;
}

QLineEdit *QKXNumericValueObjEventFilter::display() const
{
    return static_cast<QLineEdit *>(innerEditor());
}

QLabel *QKXNumericValueObjEventFilter::unitLabel() const
{
    Q_D(const QKXNumericValueObjEventFilter);
    return d->unitLabel;
}

QObject *QKXNumericValueObjEventFilter::unitFilter() const
{
    Q_D(const QKXNumericValueObjEventFilter);
    return d->unitFilter;
}

void QKXNumericValueObjEventFilter::setAdapter(QObject *adapter)
{
    Q_D(QKXNumericValueObjEventFilter);
    d->adapter = adapter;
    if (parentWidget()) {
        d->findParts();
        d->unitString = getUnitString();
    }
}

void QKXNumericValueObjEventFilter::setUnitFilter(QObject *unitFilter)
{
    Q_D(QKXNumericValueObjEventFilter);
    const bool idle = isMachineStarted() && !isEditing();
    if (idle) {
        d->installUnitFilter(false);
    }
    d->unitFilter = unitFilter;
    // A filter handed over between edits takes effect at once, not only after the next edit.
    if (idle) {
        d->installUnitFilter(true);
    }
}

QString QKXNumericValueObjEventFilter::getUnitString() const
{
    Q_D(const QKXNumericValueObjEventFilter);
    const QObject *widget = parent();
    if (!widget || !d->unitLabel) {
        return QString();
    }
    // Matched against the text the label shows: a unit text that display processing or a translation
    // changes names no unit, and the value goes out with an empty unit string.
    const QString shown = d->unitLabel->text();
    const QVariantList units = widget->property("UnitList").toList();
    for (const QVariant &entry : units) {
        const QVariantList fields = entry.toList();
        if (fields.size() < 4) {
            continue;
        }
        if (fields.at(1).toString() == shown) {
            return fields.at(3).toString();
        }
    }
    return QString();
}

void QKXNumericValueObjEventFilter::submitWidgetValue(double value, QString unit)
{
    emit submit(value, unit);
    emit submit(kxnumber::truncated(value), unit);
}

void QKXNumericValueObjEventFilter::enterVale(double value)
{
    emit submit(value, getUnitString());
}

void QKXNumericValueObjEventFilter::idleStateInit()
{
    Q_D(QKXNumericValueObjEventFilter);
    if (!display() || !d->unitLabel) {
        d->findParts();
    }
    if (d->unitLabel) {
        d->unitLabel->setEnabled(false);
    }
    d->installUnitFilter(true);
    QKXEditStateFilter::idleStateInit();
}

void QKXNumericValueObjEventFilter::editStateInit()
{
    Q_D(QKXNumericValueObjEventFilter);
    if (!display() || !d->unitLabel) {
        d->findParts();
    }
    QKXEditStateFilter::editStateInit();
    if (d->unitLabel) {
        d->unitLabel->setEnabled(true);
    }
    d->installUnitFilter(false);
    // The first key typed replaces the old value.
    if (QLineEdit *edit = display()) {
        edit->selectAll();
    }
}

bool QKXNumericValueObjEventFilter::keyEventFilter(QObject *watched, QKeyEvent *event)
{
    handleEntryKeys(event);
    return QKXEditStateFilter::keyEventFilter(watched, event);
}

void QKXNumericValueObjEventFilter::commitTypedText()
{
    Q_D(QKXNumericValueObjEventFilter);
    double number = 0.0;
    if (d->parseDisplay(&number)) {
        emit submit(number, d->unitString);
        emit submit(kxnumber::truncated(number), d->unitString);
        emit editEnd();
    } else if (d->dataType == kx_valueDoubleType || d->dataType == kx_valueLongType) {
        qDebug().noquote() << "UserInterface - QKXNumericValueObjEventFilter:"
                           << kx_quoted(display() ? display()->text() : QString())
                           << "is not a number for" << d->dataType << "- nothing submitted";
    }
}

bool QKXNumericValueObjEventFilter::hideEventFilter(QObject *watched, QEvent *event)
{
    Q_UNUSED(event);
    // The cancel ends the edit itself; an idle field that hides has nothing to end. A field being
    // destroyed (no longer a field with units by now) has no value left to give back.
    QLineEdit *edit = display();
    const bool alive = parent() && parent()->metaObject()->indexOfMethod("baseUnit()") >= 0;
    if (watched == parent() && alive && edit && edit->isEnabled()) {
        cancel();
    }
    return true;
}

void QKXNumericValueObjEventFilter::attempLockSendLockSignal(QWidget *widget, bool locked)
{
    Q_UNUSED(locked);
    // An edit only ever asks for the lock; the machine's idle entry gives it back.
    QKXEditStateFilter::attempLockSendLockSignal(widget, true);
}

void QKXNumericValueObjEventFilter::rememberValue()
{
    Q_D(QKXNumericValueObjEventFilter);
    kxnumber::reportEmptyRange(parent());
    d->unitString = getUnitString();
    const StartValueType type = d->dataType == kx_valueLongType      ? IntegerStartValue
                                : d->dataType == kx_valueDoubleType ? DoubleStartValue
                                                                    : NoStartValue;
    // Without an adapter the widget's value() is the engine's number, in the base unit.
    if (!readStartValue(type, &d->savedValue)) {
        qDebug().noquote() << "UserInterface - QKXNumericValueObjEventFilter: no current value for" << d->dataType
                           << "- a cancel submits 0";
    }
}

void QKXNumericValueObjEventFilter::restoreValue()
{
    Q_D(QKXNumericValueObjEventFilter);
    QString baseUnit;
    if (QObject *widget = parent()) {
        QMetaObject::invokeMethod(widget, "baseUnit", Q_RETURN_ARG(QString, baseUnit));
    }
    // The saved value is the engine's, so it goes back in the base unit whatever unit is shown.
    if (d->dataType == kx_valueDoubleType) {
        emit submit(d->savedValue, baseUnit);
    } else if (d->dataType == kx_valueLongType) {
        emit submit(kxnumber::truncated(d->savedValue), baseUnit);
    }
}
