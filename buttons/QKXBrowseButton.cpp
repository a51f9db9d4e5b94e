// SPDX-License-Identifier: BSD-3-Clause
#include "QKXBrowseButton.h"
#include "QKXPushButton_p.h"

class QKXBrowseButtonPrivate : public QKXPushButtonPrivate
{
    Q_OBJECT
public:
    explicit QKXBrowseButtonPrivate(QKXBrowseButton *q) : QKXPushButtonPrivate(q) {}

    QString filename;

private:
    KX_DECLARE_PUBLIC(QKXBrowseButton)
};

QKXBrowseButton::QKXBrowseButton(QWidget *parent)
    : QKXPushButton(*new QKXBrowseButtonPrivate(this), parent)
{
}

QKXBrowseButton::~QKXBrowseButton() = default;

QString QKXBrowseButton::filename() const
{
    Q_D(const QKXBrowseButton);
    return d->filename;
}

void QKXBrowseButton::setFilename(QString name)
{
    Q_D(QKXBrowseButton);
    d->filename = name;
    emit filenameChanged(name);
}

#include "QKXBrowseButton.moc"
