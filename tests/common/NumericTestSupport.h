// SPDX-License-Identifier: BSD-3-Clause
#ifndef NUMERICTESTSUPPORT_H
#define NUMERICTESTSUPPORT_H

// What the tests of numeric entry share: engine adapters that hand out a current value, one ordered
// log of everything a filter emits, and real units strings of the value library.

#include <QtTest>

#include <QLineEdit>
#include <QStringList>

#include "KXTestSupport.h"

#include "QKXNumericEventFilter.h"

namespace kxtest {

class IntAdapter : public QObject
{
    Q_OBJECT
public:
    explicit IntAdapter(int value) : current(value) {}
    Q_INVOKABLE int get() const { return current; }
    int current;
};

class DoubleAdapter : public QObject
{
    Q_OBJECT
public:
    explicit DoubleAdapter(double value) : current(value) {}
    Q_INVOKABLE double get() const { return current; }
    double current;
};

// Records a filter's traffic in the order it is emitted, one entry per signal:
// "double 2.75", "int 2", "editStart", "editEnd", "lock", "release".
inline void logFilter(QKXNumericEventFilter *filter, QStringList &log)
{
    QObject::connect(filter, QOverload<double>::of(&QKXNumericEventFilter::submit),
                     [&log](double v) { log << QStringLiteral("double ") + QString::number(v, 'g', 12); });
    QObject::connect(filter, QOverload<int>::of(&QKXNumericEventFilter::submit),
                     [&log](int v) { log << QStringLiteral("int ") + QString::number(v); });
    QObject::connect(filter, &QKXEventFilterBase::editStart, [&log] { log << QStringLiteral("editStart"); });
    QObject::connect(filter, &QKXEventFilterBase::editEnd, [&log] { log << QStringLiteral("editEnd"); });
    QObject::connect(filter, &QKXEventFilterBase::attemptSetLock, [&log](QWidget *, bool locked) {
        log << (locked ? QStringLiteral("lock") : QStringLiteral("release"));
    });
}

inline QString hertz() { return QStringLiteral("0,0,1:1;0:0;0:0;0:0;0:0"); }
inline QString kilohertz() { return QStringLiteral("0,3,1:1;0:0;0:0;0:0;0:0"); }
inline QString megahertz() { return QStringLiteral("0,6,1:1;0:0;0:0;0:0;0:0"); }
inline QString seconds() { return QStringLiteral("0,0,2:1;0:0;0:0;0:0;0:0"); }
inline QString dBm() { return QStringLiteral("0,0,14:1;0:0;0:0;0:0;0:0"); }
inline QString neutralUnits() { return QStringLiteral("0,0,0:0;0:0;0:0;0:0;0:0"); }
// Hz|kHz|MHz, the list of a frequency field.
inline QString frequencyUnits() { return QStringList{hertz(), kilohertz(), megahertz()}.join(QLatin1Char('|')); }

} // namespace kxtest

#endif // NUMERICTESTSUPPORT_H
