#ifndef UNITSTESTSUPPORT_H
#define UNITSTESTSUPPORT_H

// Real units strings of the value library, for the tests of the fields with units.

#include <QString>
#include <QStringList>

namespace kxtest {

inline QString hertz() { return QStringLiteral("0,0,1:1;0:0;0:0;0:0;0:0"); }
inline QString kilohertz() { return QStringLiteral("0,3,1:1;0:0;0:0;0:0;0:0"); }
inline QString megahertz() { return QStringLiteral("0,6,1:1;0:0;0:0;0:0;0:0"); }
inline QString seconds() { return QStringLiteral("0,0,2:1;0:0;0:0;0:0;0:0"); }
inline QString dBm() { return QStringLiteral("0,0,14:1;0:0;0:0;0:0;0:0"); }
inline QString neutralUnits() { return QStringLiteral("0,0,0:0;0:0;0:0;0:0;0:0"); }

// Hz|kHz|MHz, the list of a frequency field.
inline QString frequencyUnits() { return QStringList{hertz(), kilohertz(), megahertz()}.join(QLatin1Char('|')); }

} // namespace kxtest

#endif // UNITSTESTSUPPORT_H
