#include "QKXFlagStatus.h"
#include "QKXWidgetBase_p.h"

#include <QColor>
#include <QDebug>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QRegularExpression>
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

// Colours as style sheets take them: a name or "#rgb" form that QColor knows, or a functional
// rgb()/rgba()/hsv()/hsva()/hsl()/hsla() form. Anything else could break out of the rule.
bool kx_isStyleColor(const QString &text)
{
    static const QRegularExpression functional(
        QStringLiteral("^(rgb|rgba|hsv|hsva|hsl|hsla)\\(\\s*[0-9.%]+(\\s*,\\s*[0-9.%]+){2,3}\\s*\\)$"));
    return QColor::isValidColor(text) || functional.match(text.trimmed()).hasMatch();
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

    // A child of the widget rather than of this object, so that it lives in the widget's tree.
    blinkTimer = new QTimer(q);
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
    if (blinkMode) {
        value = true;
        // An engine that publishes the set flag again and again must not hold the blink in step.
        if (blinking) {
            return;
        }
        blinkTimer->start(BlinkInterval);
        blinking = true;
    } else {
        blinkTimer->stop();
        blinking = false;
    }
    value = true;
    // The lamp is lit now, so the next tick darkens it: a blink is one second on, one second off.
    blinkPhase = true;
    base->setStyleSheet(onStyle);
}

void QKXFlagStatusPrivate::setBlinkMode(bool enable)
{
    blinkMode = enable;
    setLedOn(value);
}

void QKXFlagStatusPrivate::setTrippedLedColor(const QString &color)
{
    if (!kx_isStyleColor(color)) {
        qDebug().noquote() << QStringLiteral("UserInterface - QKXFlagStatus::setTrippedLedColor : \"%1\" is no colour; "
                                             "keeping %2.")
                                  .arg(color, trippedLedColor);
        return;
    }
    trippedLedColor = color.trimmed();
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
