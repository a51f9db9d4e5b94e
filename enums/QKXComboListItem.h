// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXCOMBOLISTITEM_H
#define QKXCOMBOLISTITEM_H

#include "QKXRichTextPushButton.h"

// One entry of an enumeration popup's column. A tap picks it; a drag scrolls the column it sits in
// and never picks, even when the finger comes to rest on the item it started on.
class STANDALONEPLUGINS_EXPORT QKXComboListItem : public QKXRichTextPushButton
{
    Q_OBJECT
public:
    // Every item is exactly this high, its separator line included: the popups place rows by it.
    static constexpr int RowPitch = 42;
    // A press that travels this far (Manhattan length, in pixels) has become a drag.
    static constexpr int DragDistance = 31;

    QKXComboListItem();
    explicit QKXComboListItem(QString text);
    ~QKXComboListItem() override;

    QPoint pressGlobal() const;
    QPoint pressLocal() const;
    QPoint pressOffset() const;
    bool isDragged() const;

protected:
    bool event(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    Q_DISABLE_COPY(QKXComboListItem)
    void clearPress();

    QPoint globalAtPress;
    QPoint localAtPress;
    QPoint offsetAtPress;
    bool dragged;
};

#endif // QKXCOMBOLISTITEM_H
