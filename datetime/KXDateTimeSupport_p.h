// SPDX-License-Identifier: BSD-3-Clause
#ifndef KXDATETIMESUPPORT_P_H
#define KXDATETIMESUPPORT_P_H

//
//  W A R N I N G
//  -------------
// Not part of the library's public API: shared by the date and time widgets and their popup editors.
//

#include "standaloneplugins_export.h"

#include <QDateTime>
#include <QString>
#include <QVariant>

class QLineEdit;
class QObject;
class QKXWidgetBasePrivate;

namespace kxdatetime {

// Dates and times travel as an unsigned 32-bit count of seconds since 1970-01-01 00:00 UTC, held in
// a qlonglong: 0 to 4294967295, that is up to 2106-02-07 06:28:15 UTC.
constexpr qlonglong LastSecond = 0xFFFFFFFFLL;

inline bool isInRange(qlonglong seconds)
{
    return seconds >= 0 && seconds <= LastSecond;
}

// The local date and time of a count (any count; callers check the range first).
STANDALONEPLUGINS_EXPORT QDateTime localDateTime(qlonglong seconds);

// A local date at a time of day. A time that the clocks skip on that date (the hour lost when
// daylight-saving time begins) is read with the offset in force before the change, so 02:30 on the
// day the clocks go from 02:00 to 03:00 is 03:30: the editors never turn a choice into nothing.
STANDALONEPLUGINS_EXPORT QDateTime localDateTime(const QDate &date, const QTime &time);

// The count of a date and time. False, with *seconds untouched, for an invalid date and time (a
// 29 February the editors offer in a year that has none) and for one outside the range.
STANDALONEPLUGINS_EXPORT bool toSeconds(const QDateTime &dateTime, qlonglong *seconds);

// The text of a date and time in a pattern. Month names and AM/PM are written in English whatever
// the machine's locale: the instrument runs in the C locale, and a development machine shows the
// panel as the instrument does.
STANDALONEPLUGINS_EXPORT QString text(const QDateTime &dateTime, const QString &pattern);

// "UserInterface - <class> "<object name>": <what> <value> is not a count ..." for a value that is
// no count in the range; outcome says what the caller does instead.
STANDALONEPLUGINS_EXPORT void reportOutOfRange(const char *className, const QObject *widget,
                                               const char *what, const QVariant &value, const char *outcome);

// The caption above the display line edit, as both widgets build them; the display is disabled
// until an edit enables it. Returns the display.
QLineEdit *buildField(QKXWidgetBasePrivate *d);

// The compact ("Min") and large ("Max") sheets and the two overlays both widgets share.
QString compactStyle();
QString largeStyle();
QString lockedOverlay();
QString readOnlyOverlay();

} // namespace kxdatetime

#endif // KXDATETIMESUPPORT_P_H
