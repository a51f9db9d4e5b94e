// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXUTIL_H
#define QKXUTIL_H

#include "norvanehost_export.h"

#include <QString>

class QFontMetrics;

// Text helpers shared by every screen of the host.
class NORVANEHOST_EXPORT QKXUtil
{
public:
    // Rewrites an engine or form text in place into what a rich-text label shows: line breaks
    // (real ones and the two-character escape "\n") become "<br>", an exponent written "^2" or "^-1"
    // becomes a superscript, and surrounding white space goes.
    static void processString(QString &text);

    // The width in pixels of the widest line of the text as the metrics' font draws it. Rich text is
    // measured by what it shows, not by its markup.
    static int calculateStringWidth(const QFontMetrics &metrics, const QString &text);

private:
    QKXUtil() = delete;
};

#endif // QKXUTIL_H
