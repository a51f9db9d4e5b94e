// SPDX-License-Identifier: BSD-3-Clause
#include "QKXEditStateFilter.h"
#include "QKXEditStateFilter_p.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QState>
#include <QStateMachine>
#include <QThread>
#include <QWidget>

QKXEditStateFilterPrivate::QKXEditStateFilterPrivate(QKXEditStateFilter *q, QObject *adapter,
                                                     QKXEditStateFilter::LockRule lockRule,
                                                     QKXEditStateFilter::StartRule startRule)
    : QKXEventFilterBasePrivate(q)
    , adapter(adapter)
    , lockRule(lockRule)
    , startRule(startRule)
{
}

QKXEditStateFilterPrivate::~QKXEditStateFilterPrivate()
{
    // The machine's states call back into the filter: stop it before the filter goes.
    if (machine) {
        machine->stop();
    }
    // The machine owns its states once started; until then nobody does.
    if (!started) {
        delete idleState;
        delete editState;
    }
}

void QKXEditStateFilterPrivate::init(QObject *parent)
{
    Q_Q(QKXEditStateFilter);
    machine.reset(new QStateMachine);
    idleState = new QState;
    editState = new QState;
    idleState->setObjectName(QStringLiteral("idle"));
    editState->setObjectName(QStringLiteral("edit"));
    if (!parent) {
        // A filter made before its widget runs its machine on the GUI thread once the host starts it.
        QThread *guiThread = QCoreApplication::instance() ? QCoreApplication::instance()->thread() : nullptr;
        if (guiThread) {
            machine->moveToThread(guiThread);
            idleState->moveToThread(guiThread);
            editState->moveToThread(guiThread);
        }
        return;
    }
    if (startRule == QKXEditStateFilter::StartWithParent) {
        q->startMachine();
    }
}

QKXEditStateFilter::QKXEditStateFilter(QObject *parent, QObject *adapter, LockRule lockRule, StartRule startRule)
    : QKXEditStateFilter(*new QKXEditStateFilterPrivate(this, adapter, lockRule, startRule), parent)
{
}

QKXEditStateFilter::QKXEditStateFilter(QKXEditStateFilterPrivate &dd, QObject *parent)
    : QKXEventFilterBase(dd, parent)
{
    Q_D(QKXEditStateFilter);
    d->init(parent);
}

QKXEditStateFilter::~QKXEditStateFilter() = default;

QObject *QKXEditStateFilter::adapter() const
{
    Q_D(const QKXEditStateFilter);
    return d->adapter;
}

bool QKXEditStateFilter::isMachineStarted() const
{
    Q_D(const QKXEditStateFilter);
    return d->started;
}

bool QKXEditStateFilter::isEditing() const
{
    Q_D(const QKXEditStateFilter);
    return d->machine && d->machine->configuration().contains(d->editState);
}

QWidget *QKXEditStateFilter::innerEditor() const
{
    Q_D(const QKXEditStateFilter);
    return d->innerEditor;
}

void QKXEditStateFilter::setInnerEditor(QWidget *editor)
{
    Q_D(QKXEditStateFilter);
    d->innerEditor = editor;
}

void QKXEditStateFilter::startMachine()
{
    Q_D(QKXEditStateFilter);
    if (d->started) {
        return;
    }
    d->started = true;
    d->idleState->addTransition(this, &QKXEditStateFilter::editStart, d->editState);
    d->editState->addTransition(this, &QKXEditStateFilter::editEnd, d->idleState);
    connect(d->idleState, &QState::entered, this, &QKXEditStateFilter::idleStateInit);
    connect(d->editState, &QState::entered, this, &QKXEditStateFilter::editStateInit);
    d->machine->addState(d->idleState);
    d->machine->addState(d->editState);
    d->machine->setInitialState(d->idleState);
    d->machine->start();
}

void QKXEditStateFilter::lockAcquired(QWidget *widget)
{
    if (!widget || widget != parentWidget()) {
        return;
    }
    emit editStart(this, widget);
}

void QKXEditStateFilter::cancel()
{
    restoreValue();
    emit editEnd();
}

void QKXEditStateFilter::idleStateInit()
{
    if (QWidget *editor = innerEditor()) {
        editor->setEnabled(false);
    }
    emit attemptSetLock(parentWidget(), false);
}

void QKXEditStateFilter::editStateInit()
{
    rememberValue();
    if (QWidget *editor = innerEditor()) {
        editor->setEnabled(true);
        editor->setFocus(Qt::OtherFocusReason);
    }
}

void QKXEditStateFilter::attempLockSendLockSignal(QWidget *widget, bool locked)
{
    Q_D(QKXEditStateFilter);
    if (locked && d->lockRule == RequestLockWithAdapter && !d->adapter) {
        // Without an adapter there is nobody to arbitrate: the edit begins at once.
        emit editStart(this, widget);
        return;
    }
    QKXEventFilterBase::attempLockSendLockSignal(widget, locked);
}

void QKXEditStateFilter::rememberValue()
{
}

void QKXEditStateFilter::restoreValue()
{
}

bool QKXEditStateFilter::readStartValue(StartValueType type, double *value) const
{
    *value = 0.0;
    if (QObject *source = adapter()) {
        if (type == IntegerStartValue) {
            int read = 0;
            if (!QMetaObject::invokeMethod(source, "get", Q_RETURN_ARG(int, read))) {
                return false;
            }
            *value = read;
        } else if (type == DoubleStartValue) {
            double read = 0.0;
            if (!QMetaObject::invokeMethod(source, "get", Q_RETURN_ARG(double, read))) {
                return false;
            }
            *value = read;
        }
        return true;
    }
    if (QObject *widget = parent()) {
        double read = 0.0;
        if (!QMetaObject::invokeMethod(widget, "value", Q_RETURN_ARG(double, read))) {
            return false;
        }
        *value = read;
    }
    return true;
}

void QKXEditStateFilter::handleEntryKeys(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        commitTypedText();
        break;
    case Qt::Key_Escape:
        cancel();
        break;
    default:
        break;
    }
}

void QKXEditStateFilter::commitTypedText()
{
}
