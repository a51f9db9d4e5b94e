// SPDX-License-Identifier: BSD-3-Clause
#ifndef KXNUMERICLINES_P_H
#define KXNUMERICLINES_P_H

//
//  W A R N I N G
//  -------------
// Not part of the library's public API: how the numeric widgets and their filters report bad input.
//

#include <QDebug>
#include <QObject>
#include <QString>
#include <QVariant>

namespace kxnumber {

// How the debug lines name a numeric widget: its class and the object name its form gave it.
inline QString named(const QObject *widget)
{
    return QString::fromLatin1(widget->metaObject()->className()) + QStringLiteral(" \"") + widget->objectName()
        + QLatin1Char('"');
}

// Reports an edit that starts with limits no value lies between (LowerLimit above UpperLimit, or
// either not a number). The limit setters stay silent: forms and hosts set the limits one at a time
// and pass through such pairs on the way to a good one, so only an edit shows the pair is meant.
inline void reportEmptyRange(const QObject *widget)
{
    if (!widget) {
        return;
    }
    const QVariant lower = widget->property("LowerLimit");
    const QVariant upper = widget->property("UpperLimit");
    if (!lower.isValid() || !upper.isValid() || lower.toDouble() <= upper.toDouble()) {
        return;
    }
    qDebug().noquote() << "UserInterface -" << named(widget) << "edit starts with limits no value lies between:"
                       << "LowerLimit" << lower.toDouble() << "UpperLimit" << upper.toDouble();
}

} // namespace kxnumber

#endif // KXNUMERICLINES_P_H
