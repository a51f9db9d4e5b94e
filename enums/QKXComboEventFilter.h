// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXCOMBOEVENTFILTER_H
#define QKXCOMBOEVENTFILTER_H

#include "QKXEditStateFilter.h"

class QKXComboEventFilterPrivate;

// The edit filter of the enumerated widgets. A tap always asks the host for the edit lock; a grant
// starts the edit, for which the host opens a list or wheel popup. The popup's choice leaves through
// submit(int), which also ends the edit; a cancel just ends it, since the widget's value was never
// touched while the user was choosing.
class STANDALONEPLUGINS_EXPORT QKXComboEventFilter : public QKXEditStateFilter
{
    Q_OBJECT
    Q_PROPERTY(bool EventPassThrough READ eventPassThrough WRITE setEventPassThrough DESIGNABLE true STORED true)

public:
    explicit QKXComboEventFilter(QObject *parent);
    ~QKXComboEventFilter() override;

    bool eventPassThrough() const;

    Q_INVOKABLE void submitWidgetValue(int index);

public Q_SLOTS:
    // The host's answer to a lock request in its two-argument form; a refusal is ignored.
    void lockSucessed(QWidget *widget, bool granted);
    // Whether the release that asks for the lock also reaches the widget (it does by default).
    void setEventPassThrough(bool passThrough);

Q_SIGNALS:
    void submit(int value);
    // A value shown while the user is still choosing, passed on from a popup.
    void notify(int value);

protected:
    bool mousePressEventFilter(QObject *watched, QMouseEvent *event) override;
    bool mouseReleaseEventFilter(QObject *watched, QMouseEvent *event) override;

private:
    Q_DISABLE_COPY(QKXComboEventFilter)
    Q_DECLARE_PRIVATE(QKXComboEventFilter)
};

#endif // QKXCOMBOEVENTFILTER_H
