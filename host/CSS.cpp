// SPDX-License-Identifier: BSD-3-Clause
#include "CSS.h"

// One dark blue-grey instrument theme. The panel is read under bright bench lights and in dim racks,
// so the gradients stay dark and low in contrast while outlines and the amber highlight carry the
// structure of a screen.

QString CSS::border()
{
    return QStringLiteral("#c3ccd6");
}

QString CSS::highlight()
{
    return QStringLiteral("#f29a2e");
}

QString CSS::gradientLight()
{
    return QStringLiteral("#5c6d80");
}

QString CSS::gradientMiddle()
{
    return QStringLiteral("#3b4857");
}

QString CSS::gradientDark()
{
    return QStringLiteral("#1c242e");
}

QString CSS::accentRGBA()
{
    // Barely translucent: the screen behind a popup column shows as a hint, but its text must not
    // compete with the literals on the column (a table behind a list popup made both unreadable).
    return QStringLiteral("rgba(88, 118, 150, 235)");
}
