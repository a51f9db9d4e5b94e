// SPDX-License-Identifier: BSD-3-Clause
#include "QKXComboListItem.h"

#include "QKXComboListFrame.h"
#include "QKXWheelFrame.h"

#include <QButtonGroup>
#include <QEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QSignalBlocker>

QKXComboListItem::QKXComboListItem()
    : QKXRichTextPushButton(nullptr)
{
    label()->setObjectName(QStringLiteral("buttonLabel"));
    clearPress();
}

QKXComboListItem::QKXComboListItem(QString text)
    : QKXRichTextPushButton(text, nullptr)
{
    label()->setObjectName(QStringLiteral("buttonLabel"));
    clearPress();
}

QKXComboListItem::~QKXComboListItem() = default;

void QKXComboListItem::clearPress()
{
    globalAtPress = QPoint();
    localAtPress = QPoint();
    offsetAtPress = QPoint();
    dragged = false;
}

QPoint QKXComboListItem::pressGlobal() const
{
    return globalAtPress;
}

QPoint QKXComboListItem::pressLocal() const
{
    return localAtPress;
}

QPoint QKXComboListItem::pressOffset() const
{
    return offsetAtPress;
}

bool QKXComboListItem::isDragged() const
{
    return dragged;
}

bool QKXComboListItem::event(QEvent *e)
{
    const bool handled = QKXRichTextPushButton::event(e);
    // The style sheet makes room for the dashed separator below the text, which would make each row
    // a pixel taller than the pitch the popups place rows by; the separator is drawn inside it instead.
    if (e->type() == QEvent::Polish || e->type() == QEvent::StyleChange) {
        setFixedHeight(RowPitch);
        // A style sheet's font and colour stay with the key they are set on and do not reach the caption
        // on it. Both columns' sheets give their keys white text, black while held (when the caption
        // shows its disabled look); a rule of a sheet for the caption itself still wins over these.
        // (The caption draws in the key's foreground role, which it inherits.)
        QPalette captionPalette = label()->palette();
        for (QPalette::ColorRole role : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text}) {
            captionPalette.setColor(QPalette::Active, role, Qt::white);
            captionPalette.setColor(QPalette::Inactive, role, Qt::white);
            captionPalette.setColor(QPalette::Disabled, role, Qt::black);
        }
        label()->setPalette(captionPalette);
        label()->setFont(font());
    }
    return handled;
}

void QKXComboListItem::mousePressEvent(QMouseEvent *e)
{
    if (auto *wheel = parentWidget() ? qobject_cast<QKXWheelFrame *>(parentWidget()->parentWidget()) : nullptr) {
        // A finger on a turning wheel stops it where it is; a tap is a pick all the same.
        wheel->stopMotion();
    }
    QKXRichTextPushButton::mousePressEvent(e);
    globalAtPress = e->globalPos();
    localAtPress = e->pos();
    offsetAtPress = e->globalPos() - (parentWidget() ? parentWidget()->pos() : QPoint());
    dragged = false;
}

void QKXComboListItem::mouseMoveEvent(QMouseEvent *e)
{
    const QPoint delta = e->pos() - localAtPress;
    QWidget *column = parentWidget();
    if (auto *list = qobject_cast<QKXComboListFrame *>(column)) {
        list->moveIt(delta);
    } else if (auto *wheel = column ? qobject_cast<QKXWheelFrame *>(column->parentWidget()) : nullptr) {
        wheel->moveIt(delta);
    }
    if (!dragged && (globalAtPress - e->globalPos()).manhattanLength() >= DragDistance) {
        dragged = true;
        // A dragged item no longer looks held: the finger is moving the column, not pressing a key.
        setDown(false);
        label()->setEnabled(true);
    }
    if (!dragged) {
        QKXRichTextPushButton::mouseMoveEvent(e);
    }
}

void QKXComboListItem::mouseReleaseEvent(QMouseEvent *e)
{
    const bool picks = !dragged && rect().contains(e->pos());
    if (picks) {
        QKXRichTextPushButton::mouseReleaseEvent(e);
    } else {
        QSignalBlocker blocker(group());
        QKXRichTextPushButton::mouseReleaseEvent(e);
    }
    dragged = false;
    if (!picks) {
        if (auto *wheel = parentWidget() ? qobject_cast<QKXWheelFrame *>(parentWidget()->parentWidget()) : nullptr) {
            wheel->releaseDrag();
        }
    }
}
