// SPDX-License-Identifier: BSD-3-Clause
#include "QKXComboListFrame.h"

#include "CSS.h"
#include "QKXPopupPlacement.h"

#include <QLabel>

QKXComboListFrame::QKXComboListFrame(QWidget *parent, QWidget *widget)
    : QFrame(parent)
    , style(styleTemplate())
    , registered(widget)
{
    setObjectName(QStringLiteral("listFrame"));
    setStyleSheet(style);
}

QKXComboListFrame::~QKXComboListFrame() = default;

QString QKXComboListFrame::styleTemplate()
{
    return QStringLiteral(R"(QFrame#listFrame {
    border: 0px solid white;
    border-radius: 10px;
    min-width: 140px;
    margin: 0px;
    background-color: %1;
}
QPushButton#cbPushButton, QPushButton#lastPushButton {
    border: none;
    font-size: 26px;
    min-height: 42px;
    max-height: 42px;
    min-width: 60px;
    padding: 0px 0px 0px 9px;
    color: white;
    border-bottom: 1px dashed white;
}
QLabel#buttonLabel {
    font-size: 26px;
    padding: 0px 0px 0px 9px;
    color: white;
}
QPushButton#lastPushButton {
    border-bottom: none;
}
QPushButton:pressed {
    color: #000;
}
)")
        .arg(CSS::accentRGBA());
}

void QKXComboListFrame::setWidget(QWidget *widget)
{
    registered = widget;
}

QWidget *QKXComboListFrame::widget() const
{
    return registered;
}

void QKXComboListFrame::moveIt(const QPoint &delta)
{
    const QLabel *field = registered ? registered->findChild<QLabel *>(QStringLiteral("ComboText")) : nullptr;
    if (!field) {
        return;
    }
    const QRect fieldRect = QKXPopupPlacement::rectIn(parentWidget(), field);
    const int fieldTop = fieldRect.y();
    const int fieldBottom = fieldRect.y() + fieldRect.height();
    const int frameTop = y();
    const int frameBottom = y() + height();
    int dy = delta.y();

    if (frameTop < fieldTop && frameBottom > fieldBottom) {
        if (frameTop + dy > fieldTop) {
            dy = fieldTop - frameTop;
        } else if (frameBottom + dy < fieldBottom) {
            dy = fieldBottom - frameBottom;
        }
    } else if (frameTop == fieldTop && dy < 0) {
        if (frameBottom + dy < fieldBottom) {
            dy = fieldBottom - frameBottom;
        }
    } else if (frameBottom == fieldBottom && dy > 0) {
        if (frameTop + dy > fieldTop) {
            dy = fieldTop - frameTop;
        }
    } else {
        return;
    }
    move(x(), y() + dy);
}
