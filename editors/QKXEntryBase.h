// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXENTRYBASE_H
#define QKXENTRYBASE_H

#include "standaloneplugins_export.h"

class QObject;
class QWidget;

// What the host needs of a popup editor to hand it a widget: the filter that announced the edit and
// the widget being edited. The key pads, the spinner and the slider bar implement it.
class STANDALONEPLUGINS_EXPORT QKXEntryBase
{
public:
    virtual ~QKXEntryBase();

    virtual void registerWidget(QObject *filter, QWidget *widget) = 0;
};

#endif // QKXENTRYBASE_H
