// SPDX-License-Identifier: BSD-3-Clause
#include "QKXToggleButton.h"
#include "QKXToggleButton_p.h"

#include "CSS.h"

#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

QKXToggleButtonPrivate::QKXToggleButtonPrivate(QKXToggleButton *q)
    : QKXWidgetBasePrivate(q)
    , onTextValue(QStringLiteral("On"))
    , offTextValue(QStringLiteral("Off"))
    , loadingTextValue(QStringLiteral("Loading"))
    , active(true)
    , stateLabel(nullptr)
    , button(nullptr)
    , style(styleTemplate())
    , lockedState(false)
{
}

QKXToggleButtonPrivate::~QKXToggleButtonPrivate() = default;

QString QKXToggleButtonPrivate::styleTemplate()
{
    return QStringLiteral(
               "QPushButton {"
               "background-color: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 %1, stop:0.7 %2, stop:1 %3); "
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
               "background-color: %4;}\n"
               "QPushButton:disabled {"
               "border-color: rgb(102,102,102);}\n"
               "QLabel {"
               "border-radius: 7px; "
               "padding: 0px 10px 0px 5px; "
               "min-height: 12px; "
               "max-height: 12px; "
               "margin: 17px 0px 0px 0px; "
               "color: #000; "
               "font-size: 14px; "
               "font-weight: bold;}\n"
               "QLabel#On {"
               "border: 1px solid #0afa55; "
               "background-color: #0afa55;}\n"
               "QLabel#Off {"
               "border: 1px solid %5; "
               "background-color: %5;}\n"
               "QLabel#Loading {"
               "border: 1px solid #febe42; "
               "color: #febe42; "
               "background-color: #000;}\n"
               "QLabel#Locked {"
               "border: 1px solid #0afa55; "
               "background-color: #666666;}\n")
        .arg(CSS::gradientDark(), CSS::gradientMiddle(), CSS::gradientLight(), CSS::border(), CSS::highlight());
}

void QKXToggleButtonPrivate::init()
{
    // Runs inside the base constructor, before the derived part exists: only the QWidget side of q
    // may be used here.
    q->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);

    button = new QPushButton(q);
    auto *layout = new QVBoxLayout(q);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(button);

    stateLabel = new QLabel(button);
    stateLabel->setAlignment(Qt::AlignRight | Qt::AlignHCenter | Qt::AlignVCenter);
    auto *buttonLayout = new QVBoxLayout(button);
    buttonLayout->addWidget(stateLabel);

    updateStyle();
    setButtonState(onTextValue);
    button->setFocusPolicy(Qt::NoFocus);
}

void QKXToggleButtonPrivate::setLocked(bool value)
{
    lockedState = value;
    // The base flag follows, so that the Locked property reads back what the host wrote.
    locked = value;
    setButtonState(active ? onTextValue : offTextValue);
}

void QKXToggleButtonPrivate::setEventFilter(QObject *eventFilter)
{
    QKXWidgetBasePrivate::setEventFilter(eventFilter);
    if (eventFilter) {
        button->installEventFilter(eventFilter);
    }
}

void QKXToggleButtonPrivate::updateStyle()
{
    styles.insert(QStringLiteral("Min"), style);
    styles.insert(QStringLiteral("Max"), style);
    changeSize(currentSizeName);
}

QString QKXToggleButtonPrivate::onText() const
{
    return onTextValue;
}

void QKXToggleButtonPrivate::setOnText(const QString &text)
{
    onTextValue = text;
    // Only the text changes: the label keeps its object name, and with it the look in force.
    if (active) {
        stateLabel->setText(tr(onTextValue.toUtf8().constData()));
    }
}

QString QKXToggleButtonPrivate::offText() const
{
    return offTextValue;
}

void QKXToggleButtonPrivate::setOffText(const QString &text)
{
    offTextValue = text;
    if (!active) {
        stateLabel->setText(tr(offTextValue.toUtf8().constData()));
    }
}

QString QKXToggleButtonPrivate::loadingText() const
{
    return loadingTextValue;
}

void QKXToggleButtonPrivate::setLoadingText(const QString &text)
{
    loadingTextValue = text;
}

bool QKXToggleButtonPrivate::activeState() const
{
    return active;
}

QString QKXToggleButtonPrivate::caption() const
{
    return button->text();
}

void QKXToggleButtonPrivate::setCaption(const QString &text)
{
    button->setText(tr(text.toUtf8().constData()));
}

void QKXToggleButtonPrivate::setActiveState(bool state)
{
    Q_Q(QKXToggleButton);
    active = state;
    setButtonState(state ? onTextValue : offTextValue);
    emit q->toggled(state);
}

void QKXToggleButtonPrivate::setButtonState(const QString &state)
{
    // The on text is matched first: with equal texts the button can only show its on state.
    if (state == onTextValue) {
        stateLabel->setText(tr(onTextValue.toUtf8().constData()));
        active = true;
        stateLabel->setObjectName(QStringLiteral("On"));
    } else if (state == offTextValue) {
        stateLabel->setText(tr(offTextValue.toUtf8().constData()));
        active = false;
        stateLabel->setObjectName(QStringLiteral("Off"));
    }
    if (lockedState) {
        stateLabel->setText(QStringLiteral("Locked-") + stateLabel->text());
        stateLabel->setObjectName(QStringLiteral("Locked"));
        button->setEnabled(false);
    } else {
        button->setEnabled(true);
    }
    repolishStateLabel();
}

void QKXToggleButtonPrivate::setButtonLoading()
{
    stateLabel->setText(loadingTextValue);
    stateLabel->setObjectName(QStringLiteral("Loading"));
    repolishStateLabel();
}

void QKXToggleButtonPrivate::repolishStateLabel()
{
    stateLabel->style()->unpolish(stateLabel);
    stateLabel->style()->polish(stateLabel);
    stateLabel->update();
}

QKXToggleButton::QKXToggleButton(QWidget *parent)
    : QKXWidgetBase(*new QKXToggleButtonPrivate(this), parent)
{
}

QKXToggleButton::QKXToggleButton(QKXToggleButtonPrivate &dd, QWidget *parent)
    : QKXWidgetBase(dd, parent)
{
}

QKXToggleButton::~QKXToggleButton() = default;

QString QKXToggleButton::onText() const
{
    Q_D(const QKXToggleButton);
    return d->onText();
}

void QKXToggleButton::setOnText(const QString &text)
{
    Q_D(QKXToggleButton);
    d->setOnText(text);
}

QString QKXToggleButton::offText() const
{
    Q_D(const QKXToggleButton);
    return d->offText();
}

void QKXToggleButton::setOffText(const QString &text)
{
    Q_D(QKXToggleButton);
    d->setOffText(text);
}

QString QKXToggleButton::loadingText() const
{
    Q_D(const QKXToggleButton);
    return d->loadingText();
}

void QKXToggleButton::setLoadingText(const QString &text)
{
    Q_D(QKXToggleButton);
    d->setLoadingText(text);
}

bool QKXToggleButton::activeState() const
{
    Q_D(const QKXToggleButton);
    return d->activeState();
}

QString QKXToggleButton::label() const
{
    Q_D(const QKXToggleButton);
    return d->caption();
}

void QKXToggleButton::setLabel(const QString &text)
{
    Q_D(QKXToggleButton);
    d->setCaption(text);
}

void QKXToggleButton::installEventFilter(QObject *filter)
{
    Q_D(QKXToggleButton);
    d->setEventFilter(filter);
}

void QKXToggleButton::retranslate()
{
    // Re-applying the state translates its text again; toggled() repeats the unchanged state. The
    // caption is only kept as shown, so it stays in the language it was written in.
    setActiveState(activeState());
}

void QKXToggleButton::setActiveState(bool state)
{
    Q_D(QKXToggleButton);
    d->setActiveState(state);
}

void QKXToggleButton::setButtonLoading()
{
    Q_D(QKXToggleButton);
    d->setButtonLoading();
}

void QKXToggleButton::setLocked(bool isL)
{
    Q_D(QKXToggleButton);
    d->setLocked(isL);
}
