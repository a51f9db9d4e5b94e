// SPDX-License-Identifier: BSD-3-Clause
#include "QKXFlagStatus.h"
#include "QKXWidgetBase_p.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QTimer>
#include <QVBoxLayout>

namespace {

const int BlinkInterval = 1000;

// The lamp's sheet; %1 is its fill: dark, or the tripped colour.
const char *const LedTemplate =
    "QFrame#base {"
    "background: transparent;}\n"
    "QLabel#button {"
    "border: 1px solid #fff; "
    "border-radius: 10px; "
    "background: %1; "
    "min-width: 20px; "
    "max-width: 20px; "
    "min-height: 20px; "
    "max-height: 20px;}\n"
    "QLabel#Label {"
    "color: white; "
    "font-weight: normal; "
    "font-size: 16px;}\n";

QString kx_ledStyle(const QString &fill)
{
    return QString::fromLatin1(LedTemplate).arg(fill);
}

} // namespace

class QKXFlagStatusPrivate : public QKXWidgetBasePrivate
{
    Q_OBJECT
public:
    explicit QKXFlagStatusPrivate(QKXFlagStatus *q)
        : QKXWidgetBasePrivate(q)
        , base(nullptr)
        , led(nullptr)
        , trippedLedColor(QStringLiteral("#fc0"))
        , onStyle(kx_ledStyle(trippedLedColor))
        , offStyle(kx_ledStyle(QStringLiteral("#222")))
        , blinkTimer(nullptr)
        , blinkMode(false)
        , blinking(false)
        , value(false)
        , blinkPhase(false)
    {
    }

    void init() override;
    void changeSize(const QString &size) override;
    void updateStyle() override;

    void setLedOn(bool on);
    void setBlinkMode(bool enable);
    void setTrippedLedColor(const QString &color);

    QFrame *base;
    QLabel *led;
    QString trippedLedColor;
    QString onStyle;
    QString offStyle;
    QTimer *blinkTimer;
    bool blinkMode;
    bool blinking;
    bool value;
    bool blinkPhase;

public Q_SLOTS:
    void updateFlagStatusLabel(const QString &text);
    void toggleLed();

private:
    KX_DECLARE_PUBLIC(QKXFlagStatus)
};

void QKXFlagStatusPrivate::init()
{
    // Runs inside the base constructor, before the derived part exists: only the QWidget side of q
    // may be used here.
    base = new QFrame(q);
    base->setObjectName(QStringLiteral("base"));
    led = new QLabel(base);
    led->setObjectName(QStringLiteral("button"));
    auto *caption = new QLabel(base);
    caption->setObjectName(QStringLiteral("Label"));
    setLabel(caption);

    auto *row = new QHBoxLayout(base);
    row->addWidget(led);
    row->addWidget(caption);
    auto *layout = new QVBoxLayout(q);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(base);
    q->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);

    blinkTimer = new QTimer(this);
    blinkTimer->setObjectName(QStringLiteral("BlinkTimer"));
    connect(blinkTimer, &QTimer::timeout, this, &QKXFlagStatusPrivate::toggleLed);

    caption->setText(QStringLiteral("Flag Status"));
    base->setStyleSheet(offStyle);
}

void QKXFlagStatusPrivate::changeSize(const QString &size)
{
    Q_UNUSED(size);
}

void QKXFlagStatusPrivate::updateStyle()
{
}

void QKXFlagStatusPrivate::setLedOn(bool on)
{
    if (!on) {
        blinkTimer->stop();
        blinking = false;
        value = false;
        base->setStyleSheet(offStyle);
        return;
    }
    // A set flag published again lights the lamp and starts its second afresh. The blink phase
    // carries on from where it was: a new blink stays lit through its first tick.
    if (blinkMode) {
        blinkTimer->start(BlinkInterval);
        blinking = true;
    } else {
        blinkTimer->stop();
        blinking = false;
    }
    value = true;
    base->setStyleSheet(onStyle);
}

void QKXFlagStatusPrivate::setBlinkMode(bool enable)
{
    blinkMode = enable;
    setLedOn(value);
}

void QKXFlagStatusPrivate::setTrippedLedColor(const QString &color)
{
    // Taken as written, in any form a sheet accepts (a name, rgb(), palette(), a gradient).
    trippedLedColor = color;
    onStyle = kx_ledStyle(trippedLedColor);
}

void QKXFlagStatusPrivate::updateFlagStatusLabel(const QString &text)
{
    labelWidget->setText(text);
}

void QKXFlagStatusPrivate::toggleLed()
{
    if (blinkPhase) {
        base->setStyleSheet(offStyle);
        blinkPhase = false;
    } else {
        base->setStyleSheet(onStyle);
        blinkPhase = true;
    }
}

QKXFlagStatus::QKXFlagStatus(QWidget *parent)
    : QKXWidgetBase(*new QKXFlagStatusPrivate(this), parent)
{
}

QKXFlagStatus::~QKXFlagStatus() = default;

bool QKXFlagStatus::value() const
{
    Q_D(const QKXFlagStatus);
    return d->value;
}

void QKXFlagStatus::updateFlagStatusLabel(QString label)
{
    Q_D(QKXFlagStatus);
    d->updateFlagStatusLabel(label);
}

void QKXFlagStatus::setTrippedLedColor(QString colorString)
{
    Q_D(QKXFlagStatus);
    d->setTrippedLedColor(colorString);
}

QString QKXFlagStatus::getTrippedLedColor() const
{
    Q_D(const QKXFlagStatus);
    return d->trippedLedColor;
}

bool QKXFlagStatus::getBlinkMode() const
{
    Q_D(const QKXFlagStatus);
    return d->blinkMode;
}

void QKXFlagStatus::setBlinkMode(bool enable)
{
    Q_D(QKXFlagStatus);
    d->setBlinkMode(enable);
}

void QKXFlagStatus::changeSize(QString size)
{
    Q_D(QKXFlagStatus);
    d->changeSize(size);
}

void QKXFlagStatus::toggleLed()
{
    Q_D(QKXFlagStatus);
    d->toggleLed();
}

void QKXFlagStatus::setValue(bool value)
{
    Q_D(QKXFlagStatus);
    d->setLedOn(value);
    emit valueChanged(value);
}

#include "QKXFlagStatus.moc"
