// SPDX-License-Identifier: BSD-3-Clause
#include "SingleSliderImpl.h"

#include "CSS.h"
#include "SliderBarImpl.h"

#include <QApplication>
#include <QFrame>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMap>
#include <QPushButton>
#include <QResizeEvent>

#include <cmath>

struct SingleSliderImpl::Data
{
    double value = 0.0;
    QString unit;
    QFrame *mainFrame = nullptr;
    QLineEdit *indicator = nullptr;
    SliderBarImpl *bar = nullptr;
    QPushButton *rotateKey = nullptr;
    QMap<QString, QPushButton *> keys;

    // The value as shown, with the bar's number of decimals.
    QString text(double v) const { return QString::number(v, 'f', bar->precision()); }
};

static const int singleslider_width = 420;
static const int singleslider_height = 190;

static QString singleslider_styleSheet()
{
    QString sheet = QStringLiteral(R"(
QFrame#MainFrame { background-color: rgba(0,0,0,215); border: 2px solid %1; border-radius: 18px; }
QLineEdit#SliderIndicator { background-color: transparent; border: 2px solid white; border-radius: 10px; font: 40px; min-height: 40px; max-height: 40px; color: white; padding-left: 8px; selection-color: black; selection-background-color: white; }
QPushButton { color: white; background-color: transparent; border: 1px solid white; border-left: none; font-size: 16px; padding: 0px; }
QPushButton:pressed { background-color: white; color: black; }
QPushButton#SliderCancel { border-left: 1px solid white; border-top-left-radius: 10px; border-bottom-left-radius: 10px; }
QPushButton#SliderEnter { border-top-right-radius: 10px; border-bottom-right-radius: 10px; background-color: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 rgba(0,255,0,170), stop:1 rgba(0,255,0,50)); }
QPushButton#SliderEnter:pressed { background-color: #0b0; }
QPushButton#StepUp, QPushButton#StepDown { font-size: 28px; }
QPushButton#RotateEntry { border: none; background-color: transparent; border-image: url(:/images/rotateEntry.png); }
QPushButton#RotateEntry:pressed { background-color: transparent; border-image: url(:/images/rotateEntryPressed.png); }
)").arg(CSS::border());
    const QVariant opaque = qApp ? qApp->property("-notransparency") : QVariant();
    if (opaque.isValid() && opaque.toString() == QLatin1String("true")) {
        sheet += QStringLiteral("QFrame#MainFrame{    background-color: #000;}");
    }
    return sheet;
}

SingleSliderImpl::SingleSliderImpl(QWidget *parent, double value, double minimum, double maximum, int precision)
    : ContainerImpl(parent)
    , m(new Data)
{
    setObjectName(QStringLiteral("SingleSlider"));
    controlWidget()->hide();
    setNormalSize(singleslider_width, singleslider_height);
    getContainerFrame()->setStyleSheet(singleslider_styleSheet());

    m->mainFrame = new QFrame(getContainerFrame());
    m->mainFrame->setObjectName(QStringLiteral("MainFrame"));
    auto *frameLayout = new QHBoxLayout;
    frameLayout->setContentsMargins(0, 0, 0, 0);
    frameLayout->addWidget(m->mainFrame);
    ContainerBase::setLayout(frameLayout, false);

    m->indicator = new QLineEdit(m->mainFrame);
    m->indicator->setObjectName(QStringLiteral("SliderIndicator"));
    m->bar = new SliderBarImpl(m->mainFrame);
    m->rotateKey = new QPushButton(m->mainFrame);
    m->rotateKey->setObjectName(QStringLiteral("RotateEntry"));
    m->rotateKey->setFocusPolicy(Qt::NoFocus);

    const struct {
        const char *name;
        QString caption;
    } keys[] = {
        {"SliderCancel", tr("Cancel")},
        {"PowerDown", tr("/10")},
        {"StepDown", tr("−")},
        {"StepUp", tr("+")},
        {"PowerUp", tr("x10")},
        {"SliderEnter", tr("Enter")},
    };
    for (const auto &key : keys) {
        auto *button = new QPushButton(key.caption, m->mainFrame);
        button->setObjectName(QLatin1String(key.name));
        button->setFocusPolicy(Qt::NoFocus);
        m->keys.insert(QLatin1String(key.name), button);
    }

    m->bar->changePrecisionAndUpdate(precision);
    m->bar->setRange(minimum, maximum);
    m->value = value;
    m->bar->setValue(value);
    m->indicator->setText(m->text(value));

    // A new value from the finger, the keys or the keyboard: on the grid, within the limits.
    const auto change = [this](double v) {
        v = qBound(qMin(m->bar->minimum(), m->bar->maximum()), v, qMax(m->bar->minimum(), m->bar->maximum()));
        const double scale = std::pow(10.0, m->bar->precision());
        v = std::round(v * scale) / scale;
        if (v == m->value) {
            updateCursorPosition();
            return;
        }
        m->value = v;
        m->bar->setValue(v);
        updateIndicatorValue(m->text(v), m->unit);
    };
    connect(m->bar, &SliderBarImpl::valueDragged, this, change);
    connect(m->keys.value(QStringLiteral("StepDown")), &QPushButton::clicked, this,
            [this, change] { change(m->value - step()); });
    connect(m->keys.value(QStringLiteral("StepUp")), &QPushButton::clicked, this,
            [this, change] { change(m->value + step()); });
    // The step stays between the last decimal shown and the width of the range.
    connect(m->keys.value(QStringLiteral("PowerDown")), &QPushButton::clicked, this, [this] {
        if (m->bar->power() - 1 >= -m->bar->precision()) {
            m->bar->setPower(m->bar->power() - 1);
        }
        updateCursorPosition();
    });
    connect(m->keys.value(QStringLiteral("PowerUp")), &QPushButton::clicked, this, [this] {
        if (std::pow(10.0, m->bar->power() + 1) <= qAbs(m->bar->maximum() - m->bar->minimum())) {
            m->bar->setPower(m->bar->power() + 1);
        }
        updateCursorPosition();
    });
    connect(m->indicator, &QLineEdit::returnPressed, this, [this, change] {
        bool ok = false;
        const double typed = m->indicator->text().toDouble(&ok);
        if (ok && std::isfinite(typed)) {
            change(typed);
        }
        // What is shown is the value the popup holds, whatever was typed.
        m->indicator->setText(m->text(m->value));
        updateCursorPosition();
    });
    connect(m->keys.value(QStringLiteral("SliderCancel")), &QPushButton::clicked, this, &SingleSliderImpl::cancelEntry);
    connect(m->keys.value(QStringLiteral("SliderEnter")), &QPushButton::clicked, this, [this] { submit(); });
    connect(m->rotateKey, &QPushButton::clicked, this, [this] { emit rotateEntryMechanism(objectName()); });

    resize(singleslider_width, singleslider_height);
}

SingleSliderImpl::~SingleSliderImpl() = default;

void SingleSliderImpl::updateLimits(double minimum, double maximum)
{
    m->bar->setRange(minimum, maximum);
}

double SingleSliderImpl::minimum() const
{
    return m->bar->minimum();
}

double SingleSliderImpl::maximum() const
{
    return m->bar->maximum();
}

void SingleSliderImpl::updateValue(const QString &value, const QString &unit)
{
    bool ok = false;
    const double v = value.toDouble(&ok);
    if (!ok || !std::isfinite(v)) {
        return;
    }
    if (v == m->value && unit == m->unit) {
        return;
    }
    m->value = v;
    m->unit = unit;
    m->bar->setValue(v);
    updateIndicatorValue(value, unit);
}

double SingleSliderImpl::value() const
{
    return m->value;
}

QString SingleSliderImpl::unit() const
{
    return m->unit;
}

void SingleSliderImpl::setStep(double step)
{
    if (step > 0.0 && std::isfinite(step)) {
        m->bar->setPower(std::round(std::log10(step)));
    }
}

double SingleSliderImpl::step() const
{
    return m->bar->step();
}

QLineEdit *SingleSliderImpl::indicator() const
{
    return m->indicator;
}

SliderBarImpl *SingleSliderImpl::sliderBar() const
{
    return m->bar;
}

QPushButton *SingleSliderImpl::key(const QString &name) const
{
    return name == QLatin1String("RotateEntry") ? m->rotateKey : m->keys.value(name);
}

void SingleSliderImpl::changePrecision(int precision)
{
    m->bar->changePrecisionAndUpdate(precision);
}

void SingleSliderImpl::submit()
{
    hide();
}

void SingleSliderImpl::updateCursorPosition()
{
    m->bar->setValue(m->value);
    const QString text = m->indicator->text();
    if (text.isEmpty()) {
        return;
    }
    // The digit one step changes: the units digit for a step of 1, the one to its left for 10, the
    // first decimal for 0.1.
    const int power = int(std::floor(m->bar->power()));
    int dot = text.indexOf(QLatin1Char('.'));
    if (dot < 0) {
        dot = text.size();
    }
    const int position = qBound(1, power >= 0 ? dot - power : dot - power + 1, text.size());
    m->indicator->setCursorPosition(position);
    m->indicator->cursorBackward(true, 1);
}

void SingleSliderImpl::updateIndicatorValue(const QString &value, const QString &unit)
{
    Q_UNUSED(unit);
    m->indicator->setText(value);
    updateCursorPosition();
}

void SingleSliderImpl::resizeEvent(QResizeEvent *event)
{
    const int w = event->size().width();
    const int h = event->size().height();
    m->mainFrame->setGeometry(0, 0, w - 4, h - 4);
    m->indicator->setGeometry(10, 10, w - 20, 40);
    m->bar->setGeometry(10, 62, w - 20, m->bar->sizeHint().height());
    const int keyWidth = (w - 66) / 6;
    const QString order[] = {QStringLiteral("SliderCancel"), QStringLiteral("PowerDown"), QStringLiteral("StepDown"),
                             QStringLiteral("StepUp"), QStringLiteral("PowerUp"), QStringLiteral("SliderEnter")};
    int x = 10;
    for (const QString &name : order) {
        m->keys.value(name)->setGeometry(x, h - 60, keyWidth, 46);
        x += keyWidth;
    }
    m->rotateKey->setGeometry(w - 46, h - 46, 36, 36);
    ContainerImpl::resizeEvent(event);
}
