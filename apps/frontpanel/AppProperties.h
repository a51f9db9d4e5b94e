// SPDX-License-Identifier: BSD-3-Clause
#ifndef APPPROPERTIES_H
#define APPPROPERTIES_H

#include <QString>
#include <QStringList>

// The application object's dynamic properties that the widget library reads. The host is the only
// writer; every place in the application that changes one goes through here.
namespace AppProperties {

// "-size": the display mode. In the compact modes the widgets keep their compact look whatever size
// variant the host asks for.
QStringList displayModes();
QString displayMode();
// False, and nothing changes, for a mode the widgets do not know. Also sets "-res", the screen's
// resolution: "480x800" for the portrait mode, "800x480" for the others.
bool setDisplayMode(const QString &mode);
// Whether the mode stands the panel on its side, 480 x 800 ("small_portrait").
bool isPortrait(const QString &mode);

// "guilocked": while true, a tap on any widget only brings up the "Interface locked" notice.
bool isGuiLocked();
void setGuiLocked(bool locked);

// "state": "initialized" once the screens are built; widgets that draw engine data wait for it.
QString state();
void markInitialized();

} // namespace AppProperties

#endif // APPPROPERTIES_H
