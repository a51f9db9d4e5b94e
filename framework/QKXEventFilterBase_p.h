// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXEVENTFILTERBASE_P_H
#define QKXEVENTFILTERBASE_P_H

//
//  W A R N I N G
//  -------------
// Not part of the library's public API: filter families derive their Privates from this class.
//

#include "QKXEventFilterBase.h"

#include <QPoint>

class QKXEventFilterBasePrivate
{
public:
    explicit QKXEventFilterBasePrivate(QKXEventFilterBase *q) : q_ptr(q) {}
    virtual ~QKXEventFilterBasePrivate() = default;

    QKXEventFilterBase *q_ptr;
    bool moved = false;
    QPoint pressPos;

private:
    Q_DECLARE_PUBLIC(QKXEventFilterBase)
};

#endif // QKXEVENTFILTERBASE_P_H
