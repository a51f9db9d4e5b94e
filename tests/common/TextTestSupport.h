// SPDX-License-Identifier: BSD-3-Clause
#ifndef TEXTTESTSUPPORT_H
#define TEXTTESTSUPPORT_H

// What the tests of text entry share: an engine adapter that hands out the current text, and one
// ordered log of everything a text filter emits.

#include <QtTest>

#include <QStringList>

#include "KXTestSupport.h"

#include "QKXTextEventFilter.h"

namespace kxtest {

class TextAdapter : public QObject
{
    Q_OBJECT
public:
    explicit TextAdapter(const QString &text) : current(text) {}
    Q_INVOKABLE QString get() const { return current; }
    QString current;
};

// Records a text filter's traffic in the order it is emitted, one entry per signal:
// "submit <text>", "editStart", "editEnd", "lock", "release".
inline void logTextFilter(QKXTextEventFilter *filter, QStringList &log)
{
    QObject::connect(filter, &QKXTextEventFilter::submit, [&log](const QString &text) { log << QStringLiteral("submit ") + text; });
    QObject::connect(filter, &QKXEventFilterBase::editStart, [&log] { log << QStringLiteral("editStart"); });
    QObject::connect(filter, &QKXEventFilterBase::editEnd, [&log] { log << QStringLiteral("editEnd"); });
    QObject::connect(filter, &QKXEventFilterBase::attemptSetLock, [&log](QWidget *, bool locked) {
        log << (locked ? QStringLiteral("lock") : QStringLiteral("release"));
    });
}

} // namespace kxtest

#endif // TEXTTESTSUPPORT_H
