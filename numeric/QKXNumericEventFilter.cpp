// SPDX-License-Identifier: BSD-3-Clause
#include "QKXNumericEventFilter.h"

#include "KXNumberConversion_p.h"
#include "KXNumericLines_p.h"
#include "QKXEditStateFilter_p.h"

#include <QDebug>
#include <QKeyEvent>
#include <QLineEdit>
#include <QVariant>
#include <QWidget>

namespace {
const QString kx_intType = QStringLiteral("Int");
const QString kx_doubleType = QStringLiteral("Double");

QString kx_quoted(const QString &text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}
} // namespace

class QKXNumericEventFilterPrivate : public QKXEditStateFilterPrivate
{
public:
    QKXNumericEventFilterPrivate(QKXNumericEventFilter *q, const QString &dataType, QObject *adapter)
        : QKXEditStateFilterPrivate(q, adapter, QKXEditStateFilter::RequestLockWithAdapter,
                                    QKXEditStateFilter::StartWithParent)
        , dataType(dataType)
    {
    }

    // Reads the display text as the data type and the widget's base say; false when it is no number.
    bool parseDisplay(double *number) const;

    QString dataType;
    double savedValue = 0.0;

private:
    Q_DECLARE_PUBLIC(QKXNumericEventFilter)
};

bool QKXNumericEventFilterPrivate::parseDisplay(double *number) const
{
    Q_Q(const QKXNumericEventFilter);
    QLineEdit *display = q->display();
    if (!display || (dataType != kx_intType && dataType != kx_doubleType)) {
        return false;
    }
    const kxnumber::NumberForm form = dataType == kx_intType ? kxnumber::NumberForm::Integer
                                                             : kxnumber::NumberForm::Real;
    return kxnumber::readNumber(display->text(), form, kxnumber::radixOf(q->parent()->property("Base")), number);
}

QKXNumericEventFilter::QKXNumericEventFilter(QObject *parent, const QString &dataType, QObject *adapter)
    : QKXEditStateFilter(*new QKXNumericEventFilterPrivate(this, dataType, adapter), parent)
{
    setProperty("DataType", dataType);
    // The machine, if started above, enters idle from the event loop: the display is in place by then.
    if (QWidget *widget = parentWidget()) {
        setInnerEditor(widget->findChild<QLineEdit *>());
    }
}

QKXNumericEventFilter::~QKXNumericEventFilter() = default;

QString QKXNumericEventFilter::dataType() const
{
    Q_D(const QKXNumericEventFilter);
    return d->dataType;
}

double QKXNumericEventFilter::savedValue() const
{
    Q_D(const QKXNumericEventFilter);
    return d->savedValue;
}

QLineEdit *QKXNumericEventFilter::display() const
{
    return static_cast<QLineEdit *>(innerEditor());
}

void QKXNumericEventFilter::setAdapter(QObject *adapter)
{
    Q_D(QKXNumericEventFilter);
    d->adapter = adapter;
    if (QWidget *widget = parentWidget()) {
        setInnerEditor(widget->findChild<QLineEdit *>());
    }
}

void QKXNumericEventFilter::submitWidgetValue(double value)
{
    emit submit(value);
    emit submit(kxnumber::truncated(value));
}

void QKXNumericEventFilter::idleStateInit()
{
    // A filter made without a parent and given one later finds its display here, at the latest.
    if (!display() && parentWidget()) {
        setInnerEditor(parentWidget()->findChild<QLineEdit *>());
    }
    QKXEditStateFilter::idleStateInit();
}

void QKXNumericEventFilter::editStateInit()
{
    if (!display() && parentWidget()) {
        setInnerEditor(parentWidget()->findChild<QLineEdit *>());
    }
    QKXEditStateFilter::editStateInit();
    // The first key typed replaces the old value.
    if (QLineEdit *edit = display()) {
        edit->selectAll();
    }
}

bool QKXNumericEventFilter::keyEventFilter(QObject *watched, QKeyEvent *event)
{
    handleEntryKeys(event);
    return QKXEditStateFilter::keyEventFilter(watched, event);
}

void QKXNumericEventFilter::commitTypedText()
{
    Q_D(QKXNumericEventFilter);
    double number = 0.0;
    if (d->parseDisplay(&number)) {
        emit submit(number);
        emit submit(kxnumber::truncated(number));
        emit editEnd();
    } else if (d->dataType == kx_intType || d->dataType == kx_doubleType) {
        // The edit stays open so that the user can correct the text.
        qDebug().noquote() << "UserInterface - QKXNumericEventFilter:"
                           << kx_quoted(display() ? display()->text() : QString())
                           << "is not a number for" << d->dataType << "- nothing submitted";
    }
}

bool QKXNumericEventFilter::hideEventFilter(QObject *watched, QEvent *event)
{
    // A field that disappears mid-edit gives the engine back the value the edit started from.
    QLineEdit *edit = display();
    if (watched == parent() && edit && edit->isEnabled()) {
        cancel();
    }
    return QKXEditStateFilter::hideEventFilter(watched, event);
}

void QKXNumericEventFilter::attempLockSendLockSignal(QWidget *widget, bool locked)
{
    Q_UNUSED(locked);
    // A numeric edit only ever asks for the lock; the machine's idle entry gives it back.
    QKXEditStateFilter::attempLockSendLockSignal(widget, true);
}

void QKXNumericEventFilter::rememberValue()
{
    Q_D(QKXNumericEventFilter);
    kxnumber::reportEmptyRange(parent());
    const StartValueType type = d->dataType == kx_intType      ? IntegerStartValue
                                : d->dataType == kx_doubleType ? DoubleStartValue
                                                               : NoStartValue;
    if (!readStartValue(type, &d->savedValue)) {
        qDebug().noquote() << "UserInterface - QKXNumericEventFilter: no current value for" << d->dataType
                           << "- a cancel submits 0";
    }
}

void QKXNumericEventFilter::restoreValue()
{
    Q_D(QKXNumericEventFilter);
    // Only the data type's own signal: hosts bind one of the two to the attribute.
    if (d->dataType == kx_doubleType) {
        emit submit(d->savedValue);
    } else if (d->dataType == kx_intType) {
        emit submit(kxnumber::truncated(d->savedValue));
    }
}
