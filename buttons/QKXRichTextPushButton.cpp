// SPDX-License-Identifier: BSD-3-Clause
#include "QKXRichTextPushButton.h"

#include "QKXUtil.h"

#include <QLabel>
#include <QVBoxLayout>

struct QKXRichTextPushButton::Data
{
    QString text;
    QLabel *label = nullptr;
};

QKXRichTextPushButton::QKXRichTextPushButton(QWidget *parent)
    : QPushButton(parent)
    , d(new Data)
{
    init();
}

QKXRichTextPushButton::QKXRichTextPushButton(const QString &text, QWidget *parent)
    : QPushButton(parent)
    , d(new Data)
{
    init();
    setText(text);
}

QKXRichTextPushButton::~QKXRichTextPushButton() = default;

void QKXRichTextPushButton::init()
{
    setFocusPolicy(Qt::NoFocus);
    auto *layout = new QVBoxLayout(this);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    d->label = new QLabel(this);
    d->label->setAlignment(Qt::AlignCenter);
    d->label->setTextFormat(Qt::RichText);
    // Taps go to the button underneath, not to its caption.
    d->label->setAttribute(Qt::WA_TransparentForMouseEvents);
    layout->addWidget(d->label);
}

QString QKXRichTextPushButton::text() const
{
    return d->text;
}

void QKXRichTextPushButton::setText(const QString &text)
{
    d->text = text;
    QString shown = text;
    QKXUtil::processString(shown);
    d->label->setText(shown);
    update();
}

QLabel *QKXRichTextPushButton::label() const
{
    return d->label;
}

QSize QKXRichTextPushButton::sizeHint() const
{
    return d->label->sizeHint();
}

void QKXRichTextPushButton::mousePressEvent(QMouseEvent *event)
{
    // The caption takes its disabled look while the key is held.
    d->label->setEnabled(false);
    QPushButton::mousePressEvent(event);
}

void QKXRichTextPushButton::mouseReleaseEvent(QMouseEvent *event)
{
    d->label->setEnabled(true);
    QPushButton::mouseReleaseEvent(event);
}
