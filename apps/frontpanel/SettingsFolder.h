// SPDX-License-Identifier: BSD-3-Clause
#ifndef SETTINGSFOLDER_H
#define SETTINGSFOLDER_H

#include <QString>

// The folder the panel keeps its settings files in, which the file browser shows.
namespace SettingsFolder {

// "<application data>/settings", created on first use with two example files, so that a new panel
// has something to load. Returns the folder's absolute path, or "" when it cannot be created.
QString prepare();

} // namespace SettingsFolder

#endif // SETTINGSFOLDER_H
