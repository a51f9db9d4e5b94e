// SPDX-License-Identifier: BSD-3-Clause
#include "QKXPopupChain.h"

#include <QObject>

void QKXPopupChain::chain(QObject *popup, QObject *filter, const char *cancelSignal, const char *closingSignal)
{
    if (!popup || !filter) {
        return;
    }
    if (cancelSignal) {
        QObject::connect(popup, cancelSignal, filter, SLOT(cancel()));
    }
    if (closingSignal) {
        QObject::connect(popup, closingSignal, filter, SIGNAL(editEnd()));
    }
    QObject::connect(filter, SIGNAL(editEnd()), popup, SLOT(unregister()));
}

bool QKXPopupChain::forward(QObject *popup, const char *popupSignal, QObject *filter, const char *filterSignal)
{
    if (!popup || !filter) {
        return false;
    }
    // Checked first so that a filter of another family costs no warning from connect().
    const QByteArray wanted = QMetaObject::normalizedSignature(filterSignal + 1);
    if (filter->metaObject()->indexOfSignal(wanted.constData()) < 0) {
        return false;
    }
    return QObject::connect(popup, popupSignal, filter, filterSignal);
}

bool QKXPopupChain::forward(QObject *popup, QObject *filter, const char *signal)
{
    return forward(popup, signal, filter, signal);
}

void QKXPopupChain::unchain(QObject *popup, QObject *filter)
{
    if (!popup || !filter) {
        return;
    }
    QObject::disconnect(filter, SIGNAL(editEnd()), popup, SLOT(unregister()));
    QObject::disconnect(popup, nullptr, filter, nullptr);
}

void QKXPopupChain::unchainAll(QObject *popup, QObject *filter)
{
    if (!popup || !filter) {
        return;
    }
    QObject::disconnect(filter, nullptr, popup, nullptr);
    QObject::disconnect(popup, nullptr, filter, nullptr);
}
