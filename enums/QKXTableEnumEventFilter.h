// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXTABLEENUMEVENTFILTER_H
#define QKXTABLEENUMEVENTFILTER_H

#include "QKXEventFilterBase.h"

class QKXTableEnumEventFilterPrivate;

// The edit filter of the table enum: a tap on a row chooses that row's value, with no popup. Without
// an adapter the value is submitted at once; with one, the filter first asks for the edit lock and
// submits when the host grants it, releasing the lock straight after.
class STANDALONEPLUGINS_EXPORT QKXTableEnumEventFilter : public QKXEventFilterBase
{
    Q_OBJECT
public:
    QKXTableEnumEventFilter(QObject *parent, QObject *adapter);
    ~QKXTableEnumEventFilter() override;

    // Reads the starting value from the adapter's "get", or from the widget without one.
    void setAdapter(QObject *adapter);
    QObject *adapter() const;

    // The value last submitted (or read at setAdapter), and the value of the row tapped last.
    int current() const;
    int pending() const;

public Q_SLOTS:
    void lockAcquired(QWidget *widget) override;

Q_SIGNALS:
    void submit(int value);

protected:
    bool mouseReleaseEventFilter(QObject *watched, QMouseEvent *event) override;

private:
    Q_DISABLE_COPY(QKXTableEnumEventFilter)
    Q_DECLARE_PRIVATE(QKXTableEnumEventFilter)
};

#endif // QKXTABLEENUMEVENTFILTER_H
