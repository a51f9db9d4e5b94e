// SPDX-License-Identifier: BSD-3-Clause
#include "QKXPushButton.h"
#include "QKXPushButton_p.h"

#include "CSS.h"

#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

QKXPushButtonPrivate::QKXPushButtonPrivate(QKXPushButton *q)
    : QKXWidgetBasePrivate(q)
    , style(styleTemplate())
    , button(nullptr)
    , lockLabel(nullptr)
{
}

QKXPushButtonPrivate::~QKXPushButtonPrivate() = default;

QString QKXPushButtonPrivate::styleTemplate()
{
    return QStringLiteral(
               "QPushButton {"
               "background-color: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 %1, stop:0.8 %2, stop:1 %3); "
               "color: white; "
               "border-style: solid; "
               "border-width: 2px; "
               "border-color: %4; "
               "border-radius: 15px; "
               "padding: 3px 0px 0px 8px; "
               "margin: 0px; "
               "min-height: 40px; "
               "max-height: 40px; "
               "text-align: top left; "
               "font-size: 18px;}\n"
               "QPushButton:pressed {"
               "color: white; "
               "background-color: %1;}\n"
               "QLabel {"
               "color: white; "
               "background-color: %5; "
               "border-radius: 7px; "
               "padding: 0px; "
               "min-height: 14px; "
               "max-height: 14px; "
               "margin: 17px 0px 0px 0px; "
               "font: bold 16 px;}\n"
               "QLabel#Locked {"
               "border: 1px solid %4; "
               "background-color: #666666;}\n")
        .arg(CSS::gradientDark(), CSS::gradientMiddle(), CSS::gradientLight(), CSS::border(), CSS::highlight());
}

void QKXPushButtonPrivate::init()
{
    // Runs inside the base constructor, before the QKXPushButton part exists: only the QWidget side
    // of q may be used here.
    q->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);

    button = new QPushButton(q);
    auto *layout = new QVBoxLayout(q);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(button);

    lockLabel = new QLabel(button);
    lockLabel->setAlignment(Qt::AlignRight | Qt::AlignHCenter | Qt::AlignVCenter);
    auto *buttonLayout = new QVBoxLayout(button);
    buttonLayout->addWidget(lockLabel);

    button->setObjectName(QStringLiteral("PushButton"));
    connect(button, &QPushButton::clicked, this, &QKXPushButtonPrivate::buttonClicked);

    q->setMinimumSize(minimumSizeHint());
    button->setFocusPolicy(Qt::NoFocus);
    updateStyle();
}

void QKXPushButtonPrivate::setLocked(bool value)
{
    // The locked look comes from the sheet's QLabel#Locked rule, which the object name switches on.
    locked = value;
    if (locked) {
        lockLabel->setObjectName(QStringLiteral("Locked"));
        lockLabel->setText(QStringLiteral("Locked  "));
    } else {
        lockLabel->setObjectName(QString());
        lockLabel->setText(QString());
    }
    // A new object name only takes effect in the sheet once the label is polished again.
    lockLabel->style()->unpolish(lockLabel);
    lockLabel->style()->polish(lockLabel);
}

void QKXPushButtonPrivate::setEventFilter(QObject *eventFilter)
{
    QKXWidgetBasePrivate::setEventFilter(eventFilter);
    if (eventFilter) {
        button->installEventFilter(eventFilter);
    }
}

void QKXPushButtonPrivate::updateStyle()
{
    styles.insert(QStringLiteral("Min"), style);
    styles.insert(QStringLiteral("Max"), style);
    changeSize(currentSizeName);
}

QString QKXPushButtonPrivate::buttonText() const
{
    return buttonTextValue;
}

void QKXPushButtonPrivate::setButtonText(const QString &text)
{
    buttonTextValue = text;
    button->setText(tr(text.toLatin1().constData()));
}

QSize QKXPushButtonPrivate::minimumSizeHint() const
{
    return QSize(100, 60);
}

QSize QKXPushButtonPrivate::sizeHint() const
{
    return QSize(100, 60);
}

void QKXPushButtonPrivate::setButtonName(const QString &name)
{
    button->setObjectName(name);
}

void QKXPushButtonPrivate::setButtonObjectName(const QString &name)
{
    setButtonName(name);
}

void QKXPushButtonPrivate::buttonClicked()
{
    Q_Q(QKXPushButton);
    if (locked) {
        return;
    }
    const QObject *source = sender();
    const QString name = source ? source->objectName() : button->objectName();
    emit q->clicked();
    emit q->buttonPressed(name);
}

QKXPushButton::QKXPushButton(QWidget *parent)
    : QKXWidgetBase(*new QKXPushButtonPrivate(this), parent)
{
}

QKXPushButton::QKXPushButton(QKXPushButtonPrivate &dd, QWidget *parent)
    : QKXWidgetBase(dd, parent)
{
}

QKXPushButton::~QKXPushButton() = default;

QString QKXPushButton::buttonText() const
{
    Q_D(const QKXPushButton);
    return d->buttonText();
}

void QKXPushButton::setButtonText(QString text)
{
    Q_D(QKXPushButton);
    d->setButtonText(text);
}

void QKXPushButton::setButtonObjectName(const QString &name)
{
    Q_D(QKXPushButton);
    d->setButtonObjectName(name);
}

QSize QKXPushButton::minimumSizeHint() const
{
    Q_D(const QKXPushButton);
    return d->minimumSizeHint();
}

QSize QKXPushButton::sizeHint() const
{
    Q_D(const QKXPushButton);
    return d->sizeHint();
}

void QKXPushButton::setButtonName(QString bName)
{
    Q_D(QKXPushButton);
    d->setButtonName(bName);
}

void QKXPushButton::setLocked(bool isL)
{
    Q_D(QKXPushButton);
    d->setLocked(isL);
}
