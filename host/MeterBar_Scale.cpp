// SPDX-License-Identifier: BSD-3-Clause
#include "MeterBar_Scale.h"

#include <QEvent>

MeterBar_Scale::MeterBar_Scale(const QString &text, QWidget *parent)
    : QLabel(text, parent)
{
    setObjectName(QStringLiteral("MetBar_Scale"));
    setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    adjustSize();
}

MeterBar_Scale::~MeterBar_Scale() = default;

void MeterBar_Scale::setText(const QString &text)
{
    if (text == QLabel::text()) {
        return;
    }
    QLabel::setText(text);
    adjustSize();
}

bool MeterBar_Scale::event(QEvent *event)
{
    const bool handled = QLabel::event(event);
    switch (event->type()) {
    case QEvent::Polish:
    case QEvent::StyleChange:
    case QEvent::FontChange:
        // Borders, padding and font come from the meter's sheet, which may arrive after the text.
        adjustSize();
        break;
    default:
        break;
    }
    return handled;
}
