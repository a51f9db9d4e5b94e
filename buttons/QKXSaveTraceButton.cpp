// SPDX-License-Identifier: BSD-3-Clause
#include "QKXSaveTraceButton.h"
#include "QKXPushButton_p.h"

#include <QLabel>
#include <QPushButton>

class QKXSaveTraceButtonPrivate : public QKXPushButtonPrivate
{
    Q_OBJECT
public:
    explicit QKXSaveTraceButtonPrivate(QKXSaveTraceButton *q)
        : QKXPushButtonPrivate(q)
    {
        // The icon is the application's resource, not the library's.
        style = QStringLiteral(
            "QPushButton { background-color: transparent; border: none; image: url(:/images/svg/saveTrace.svg)}");
    }

    void init() override
    {
        // Runs inside the base constructor: only the QWidget side of q may be used here.
        QKXPushButtonPrivate::init();
        q->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum);
        lockLabel->hide();
        button->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum);
        updateStyle();
    }

    QSize minimumSizeHint() const override { return QSize(32, 32); }
    QSize sizeHint() const override { return QSize(32, 32); }

private:
    KX_DECLARE_PUBLIC(QKXSaveTraceButton)
};

QKXSaveTraceButton::QKXSaveTraceButton(QWidget *parent)
    : QKXPushButton(*new QKXSaveTraceButtonPrivate(this), parent)
{
}

QKXSaveTraceButton::~QKXSaveTraceButton() = default;

#include "QKXSaveTraceButton.moc"
