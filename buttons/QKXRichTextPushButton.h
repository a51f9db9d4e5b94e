// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXRICHTEXTPUSHBUTTON_H
#define QKXRICHTEXTPUSHBUTTON_H

#include "standaloneplugins_export.h"

#include <QPushButton>
#include <QScopedPointer>

class QLabel;

// A push button whose caption is rich text (unit keys with superscripts, list entries with markup).
// The caption lives on an inner label; the button's own QAbstractButton text stays empty.
class STANDALONEPLUGINS_EXPORT QKXRichTextPushButton : public QPushButton
{
    Q_OBJECT
public:
    explicit QKXRichTextPushButton(QWidget *parent = nullptr);
    explicit QKXRichTextPushButton(const QString &text, QWidget *parent = nullptr);
    ~QKXRichTextPushButton() override;

    // The text exactly as set; the label shows it after the host's display processing.
    QString text() const;
    void setText(const QString &text);

    QLabel *label() const;
    QSize sizeHint() const override;

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    Q_DISABLE_COPY(QKXRichTextPushButton)
    void init();

    struct Data;
    QScopedPointer<Data> d;
};

#endif // QKXRICHTEXTPUSHBUTTON_H
