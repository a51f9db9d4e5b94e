// SPDX-License-Identifier: BSD-3-Clause
#include "QKXComboEventFilter.h"

#include "QKXEditStateFilter_p.h"

#include <QMouseEvent>
#include <QWidget>

class QKXComboEventFilterPrivate : public QKXEditStateFilterPrivate
{
public:
    explicit QKXComboEventFilterPrivate(QKXComboEventFilter *q)
        : QKXEditStateFilterPrivate(q, nullptr, QKXEditStateFilter::AlwaysRequestLock,
                                    QKXEditStateFilter::StartWithParent)
    {
    }

    bool eventPassThrough = true;
};

QKXComboEventFilter::QKXComboEventFilter(QObject *parent)
    : QKXEditStateFilter(*new QKXComboEventFilterPrivate(this), parent)
{
    // A submitted value ends the edit; the popup has nothing to confirm afterwards. The link belongs
    // to the running machine: before startMachine() there is no edit to end.
    connect(this, &QKXComboEventFilter::submit, this, [this] {
        if (isMachineStarted()) {
            emit editEnd();
        }
    });
}

QKXComboEventFilter::~QKXComboEventFilter() = default;

bool QKXComboEventFilter::eventPassThrough() const
{
    Q_D(const QKXComboEventFilter);
    return d->eventPassThrough;
}

void QKXComboEventFilter::setEventPassThrough(bool passThrough)
{
    Q_D(QKXComboEventFilter);
    d->eventPassThrough = passThrough;
}

void QKXComboEventFilter::submitWidgetValue(int index)
{
    emit submit(index);
}

void QKXComboEventFilter::lockSucessed(QWidget *widget, bool granted)
{
    if (granted) {
        lockAcquired(widget);
    }
}

static bool kxcombo_releaseInside(QObject *watched, QWidget *widget, const QMouseEvent *event)
{
    QWidget *receiver = watched && watched->isWidgetType() ? static_cast<QWidget *>(watched) : widget;
    return receiver && receiver->rect().contains(event->pos());
}

bool QKXComboEventFilter::mousePressEventFilter(QObject *watched, QMouseEvent *event)
{
    QKXEditStateFilter::mousePressEventFilter(watched, event);
    // The press is the filter's: the widget has nothing to do with it.
    return kxcombo_releaseInside(watched, parentWidget(), event);
}

bool QKXComboEventFilter::mouseReleaseEventFilter(QObject *watched, QMouseEvent *event)
{
    Q_D(QKXComboEventFilter);
    if (isGuiLocked()) {
        emit showGuiLockedMessage();
        return false;
    }
    QWidget *widget = parentWidget();
    if (!kxcombo_releaseInside(watched, widget, event) || isMoved()) {
        return false;
    }
    attempLockSendLockSignal(widget, true);
    return !d->eventPassThrough;
}
