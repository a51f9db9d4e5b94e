// SPDX-License-Identifier: BSD-3-Clause
#include "QKXUtil.h"

#include <QFontMetrics>
#include <QRegularExpression>
#include <QStringList>
#include <QTextDocument>
#include <QTextDocumentFragment>

void QKXUtil::processString(QString &text)
{
    // White space first: a trailing line break is padding, not a line of its own.
    QString shown = text.trimmed();

    shown.replace(QLatin1String("\r\n"), QLatin1String("<br>"));
    shown.replace(QLatin1Char('\n'), QLatin1String("<br>"));
    shown.replace(QLatin1Char('\r'), QLatin1String("<br>"));
    // Forms and engine texts carry the escape as two characters, backslash and n.
    shown.replace(QLatin1String("\\n"), QLatin1String("<br>"));

    // Only a caret followed by a (signed) number is an exponent; any other caret is shown as typed.
    static const QRegularExpression exponent(QStringLiteral("\\^([+-]?\\d+(?:\\.\\d+)?)"));
    shown.replace(exponent, QStringLiteral("<sup>\\1</sup>"));

    text = shown;
}

int QKXUtil::calculateStringWidth(const QFontMetrics &metrics, const QString &text)
{
    const QString plain = Qt::mightBeRichText(text)
        ? QTextDocumentFragment::fromHtml(text).toPlainText()
        : text;

    static const QRegularExpression lineBreak(QStringLiteral("[\\n\\r\\x{2028}\\x{2029}]"));
    int widest = 0;
    const QStringList lines = plain.split(lineBreak);
    for (const QString &line : lines) {
        widest = qMax(widest, metrics.horizontalAdvance(line));
    }
    return widest;
}
