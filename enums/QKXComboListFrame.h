// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXCOMBOLISTFRAME_H
#define QKXCOMBOLISTFRAME_H

#include "standaloneplugins_export.h"

#include <QFrame>
#include <QPointer>

// The column of the list popup. Dragging an item moves it up and down, but never so far that the row
// level with the widget's field is left empty.
class STANDALONEPLUGINS_EXPORT QKXComboListFrame : public QFrame
{
    Q_OBJECT
public:
    QKXComboListFrame(QWidget *parent, QWidget *widget);
    ~QKXComboListFrame() override;

    static QString styleTemplate();

    void setWidget(QWidget *widget);
    QWidget *widget() const;

    // Moves the column by the vertical part of delta, within the limits above.
    virtual void moveIt(const QPoint &delta);

private:
    Q_DISABLE_COPY(QKXComboListFrame)
    QString style;
    QPointer<QWidget> registered;
};

#endif // QKXCOMBOLISTFRAME_H
