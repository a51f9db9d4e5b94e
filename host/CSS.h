// SPDX-License-Identifier: BSD-3-Clause
#ifndef CSS_H
#define CSS_H

#include "norvanehost_export.h"

#include <QString>

// The instrument's palette. Every widget splices these texts straight into its style sheets, so each
// one is a colour in style-sheet syntax ("#rrggbb" or "rgba(r, g, b, a)") and nothing more.
class NORVANEHOST_EXPORT CSS
{
public:
    static QString border();          // frames and outlines of controls
    static QString highlight();       // selection, current item, caption strips
    static QString gradientLight();   // top stop of button and bar gradients
    static QString gradientMiddle();  // middle stop
    static QString gradientDark();    // bottom stop, also the pressed look
    // Background of popup columns: nearly opaque, so that a column stays readable over a table.
    static QString accentRGBA();

private:
    CSS() = delete;
};

#endif // CSS_H
