// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXEDITSTATEFILTER_P_H
#define QKXEDITSTATEFILTER_P_H

//
//  W A R N I N G
//  -------------
// Not part of the library's public API.
//

#include "QKXEditStateFilter.h"
#include "QKXEventFilterBase_p.h"

#include <QPointer>
#include <QScopedPointer>

class QState;
class QStateMachine;

class QKXEditStateFilterPrivate : public QKXEventFilterBasePrivate
{
public:
    QKXEditStateFilterPrivate(QKXEditStateFilter *q, QObject *adapter,
                              QKXEditStateFilter::LockRule lockRule,
                              QKXEditStateFilter::StartRule startRule);
    ~QKXEditStateFilterPrivate() override;

    void init(QObject *parent);

    QPointer<QObject> adapter;
    QKXEditStateFilter::LockRule lockRule;
    QKXEditStateFilter::StartRule startRule;
    QScopedPointer<QStateMachine> machine;
    QState *idleState = nullptr;   // owned by the machine once added
    QState *editState = nullptr;
    bool started = false;
    QPointer<QWidget> innerEditor;

private:
    Q_DECLARE_PUBLIC(QKXEditStateFilter)
};

#endif // QKXEDITSTATEFILTER_P_H
