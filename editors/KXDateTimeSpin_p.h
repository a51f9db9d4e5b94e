// SPDX-License-Identifier: BSD-3-Clause
#ifndef KXDATETIMESPIN_P_H
#define KXDATETIMESPIN_P_H

//
//  W A R N I N G
//  -------------
// Not part of the library's public API: what the date and time editors share.
//

#include <QString>

class ContainerImpl;
class QLabel;
class QSpinBox;
class QWidget;

namespace kxdatetimespin {

// The editors' sheet; labelRule is the one rule in which the two differ.
QString styleSheet(const QString &labelRule);

// A spin box of the editors: the range, step 1, no prefix or suffix, a read-only centred line edit,
// wrapping at both ends.
QSpinBox *createSpin(QWidget *parent, int minimum, int maximum);

// A centred, disabled label; given a maximum width, it takes only that.
QLabel *createLabel(const QString &text, QWidget *parent, int maximumWidth = -1);

// Shows values of 9 or less with a leading "0".
void setLeadingZero(QSpinBox *spin);

// Moves the editor beside the widget it edits, before its first paint.
void placeBeside(ContainerImpl *editor, const QWidget *widget);

} // namespace kxdatetimespin

#endif // KXDATETIMESPIN_P_H
