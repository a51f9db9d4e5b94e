// SPDX-License-Identifier: BSD-3-Clause
#include "QKXAttribLongLongEventFilter.h"

#include "QKXEditStateFilter_p.h"

#include <QDebug>
#include <QLineEdit>
#include <QWidget>

class QKXAttribLongLongEventFilterPrivate : public QKXEditStateFilterPrivate
{
public:
    QKXAttribLongLongEventFilterPrivate(QKXAttribLongLongEventFilter *q, QObject *adapter)
        : QKXEditStateFilterPrivate(q, adapter, QKXEditStateFilter::RequestLockWithAdapter,
                                    QKXEditStateFilter::StartWithParent)
    {
    }

    // The widget's first line edit; a filter made before its widget finds it once it has one.
    void findDisplay();

    qlonglong savedValue = -1;

private:
    Q_DECLARE_PUBLIC(QKXAttribLongLongEventFilter)
};

void QKXAttribLongLongEventFilterPrivate::findDisplay()
{
    Q_Q(QKXAttribLongLongEventFilter);
    if (QWidget *widget = q->parentWidget()) {
        q->setInnerEditor(widget->findChild<QLineEdit *>());
    }
}

QKXAttribLongLongEventFilter::QKXAttribLongLongEventFilter(QObject *parent, QObject *adapter)
    : QKXEditStateFilter(*new QKXAttribLongLongEventFilterPrivate(this, adapter), parent)
{
    Q_D(QKXAttribLongLongEventFilter);
    // The machine, if started above, enters idle from the event loop: the display is found by then.
    d->findDisplay();
}

QKXAttribLongLongEventFilter::~QKXAttribLongLongEventFilter() = default;

void QKXAttribLongLongEventFilter::setAdapter(QObject *adapter)
{
    Q_D(QKXAttribLongLongEventFilter);
    d->adapter = adapter;
    d->findDisplay();
}

qlonglong QKXAttribLongLongEventFilter::savedValue() const
{
    Q_D(const QKXAttribLongLongEventFilter);
    return d->savedValue;
}

void QKXAttribLongLongEventFilter::idleStateInit()
{
    Q_D(QKXAttribLongLongEventFilter);
    if (!innerEditor()) {
        d->findDisplay();
    }
    QKXEditStateFilter::idleStateInit();
}

void QKXAttribLongLongEventFilter::editStateInit()
{
    Q_D(QKXAttribLongLongEventFilter);
    if (!innerEditor()) {
        d->findDisplay();
    }
    QKXEditStateFilter::editStateInit();
}

void QKXAttribLongLongEventFilter::rememberValue()
{
    Q_D(QKXAttribLongLongEventFilter);
    QObject *source = adapter();
    const char *getter = source ? "get" : "value";
    if (!source) {
        source = parent();
    }
    qlonglong read = -1;
    if (!source || !QMetaObject::invokeMethod(source, getter, Q_RETURN_ARG(qlonglong, read))) {
        qDebug().noquote() << QStringLiteral("UserInterface - QKXAttribLongLongEventFilter \"%1\": no %2() returning qlonglong")
                                  .arg(parent() ? parent()->objectName() : QString(), QLatin1String(getter));
        read = -1;
    }
    d->savedValue = read;
}
