// SPDX-License-Identifier: BSD-3-Clause
#ifndef KXTOGGLEACTION_P_H
#define KXTOGGLEACTION_P_H

//
//  W A R N I N G
//  -------------
// Not part of the library's public API: what the two toggle filters do alike.
//

class QObject;
class QWidget;

namespace KXToggleAction {

// Reads the toggle's state by name and puts it into its loading look, as a granted tap does. False,
// with a line on the debug stream, when the widget offers no "activeState"; nothing may then be
// submitted, since the opposite of an unknown state is unknown too.
bool readStateAndShowLoading(const QObject *filter, QWidget *widget, bool &state);

// A locked toggle disables its inner button; Qt still hands a disabled widget's mouse events to its
// filters, and those taps must not reach the host.
bool isDisabledControl(const QObject *watched);

} // namespace KXToggleAction

#endif // KXTOGGLEACTION_P_H
