// SPDX-License-Identifier: BSD-3-Clause
#include "QKXTextEventFilter.h"

#include "QKXEditStateFilter_p.h"

#include <QLineEdit>
#include <QVariant>
#include <QWidget>

class QKXTextEventFilterPrivate : public QKXEditStateFilterPrivate
{
public:
    QKXTextEventFilterPrivate(QKXTextEventFilter *q, QObject *adapter)
        : QKXEditStateFilterPrivate(q, adapter, QKXEditStateFilter::RequestLockWithAdapter,
                                    QKXEditStateFilter::StartWithParent)
    {
    }

    void findLineEdit();

    QString value;

private:
    Q_DECLARE_PUBLIC(QKXTextEventFilter)
};

void QKXTextEventFilterPrivate::findLineEdit()
{
    Q_Q(QKXTextEventFilter);
    if (QWidget *widget = q->parentWidget()) {
        q->setInnerEditor(widget->findChild<QLineEdit *>());
    }
}

QKXTextEventFilter::QKXTextEventFilter(QObject *parent, QObject *adapter)
    : QKXEditStateFilter(*new QKXTextEventFilterPrivate(this, adapter), parent)
{
    Q_D(QKXTextEventFilter);
    setProperty("DataType", QStringLiteral("TextString"));
    // The machine, if started above, enters idle from the event loop: the line edit is known by then.
    d->findLineEdit();
}

QKXTextEventFilter::~QKXTextEventFilter() = default;

QString QKXTextEventFilter::savedValue() const
{
    Q_D(const QKXTextEventFilter);
    return d->value;
}

QLineEdit *QKXTextEventFilter::lineEdit() const
{
    return static_cast<QLineEdit *>(innerEditor());
}

void QKXTextEventFilter::setAdapter(QObject *adapter)
{
    Q_D(QKXTextEventFilter);
    d->adapter = adapter;
    d->findLineEdit();
}

void QKXTextEventFilter::submitWidgetValue(QString value)
{
    emit submit(value);
}

void QKXTextEventFilter::idleStateInit()
{
    Q_D(QKXTextEventFilter);
    // A filter made without a parent and given one later finds its line edit here, at the latest.
    if (!lineEdit()) {
        d->findLineEdit();
    }
    QKXEditStateFilter::idleStateInit();
}

void QKXTextEventFilter::editStateInit()
{
    Q_D(QKXTextEventFilter);
    if (!lineEdit()) {
        d->findLineEdit();
    }
    QKXEditStateFilter::editStateInit();
    // Editors type at the cursor: a text is continued at its end.
    if (QLineEdit *edit = lineEdit()) {
        edit->end(false);
    }
}

bool QKXTextEventFilter::keyEventFilter(QObject *watched, QKeyEvent *event)
{
    handleEntryKeys(event);
    return QKXEditStateFilter::keyEventFilter(watched, event);
}

void QKXTextEventFilter::attempLockSendLockSignal(QWidget *widget, bool locked)
{
    Q_UNUSED(locked);
    // A text edit only ever asks for the lock; the machine's idle entry gives it back.
    QKXEditStateFilter::attempLockSendLockSignal(widget, true);
}

void QKXTextEventFilter::commitTypedText()
{
    QLineEdit *edit = lineEdit();
    emit submit(edit ? edit->text() : QString());
    emit editEnd();
}

void QKXTextEventFilter::rememberValue()
{
    Q_D(QKXTextEventFilter);
    d->value.clear();
    QObject *source = adapter() ? adapter() : parent();
    const char *method = adapter() ? "get" : "text";
    if (source) {
        QString read;
        if (QMetaObject::invokeMethod(source, method, Q_RETURN_ARG(QString, read))) {
            d->value = read;
        }
    }
}

void QKXTextEventFilter::restoreValue()
{
    Q_D(QKXTextEventFilter);
    if (QObject *widget = parent()) {
        widget->setProperty("text", d->value);
    }
}
