// SPDX-License-Identifier: BSD-3-Clause
#include "QKXProgressBar.h"
#include "QKXWidgetBase_p.h"

#include "CSS.h"

#include <QDebug>
#include <QFrame>
#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

#include <cmath>
#include <limits>

namespace {

// %1 caption font size, %2 frame height, %3 bar padding, %4 bar font size; the palette follows.
const char *const BarTemplate =
    "QLabel#Label {"
    "font-size: %1px; "
    "padding: 4px 5px 0px 8px; "
    "margin: 0px; "
    "border: none; "
    "color: #fff; "
    "min-height: 12px;}\n"
    "QFrame {"
    "background: transparent; "
    "border: 2px solid %5; "
    "border-radius: 10px; "
    "min-height: %2px; "
    "max-height: %2px;}\n"
    "QProgressBar::chunk {"
    "background-color: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 %6, stop:0.5 %7, stop:1 %6); "
    "border-radius: 7px;}\n"
    "QProgressBar {"
    "padding: %3px; "
    "background: rgba(0,0,0,125); "
    "border: none; "
    "text-align: center; "
    "border-radius: 8px; "
    "font-size: %4px; "
    "color: #fff;}\n";

QString kx_barStyle(int captionFont, int frameHeight, int padding, int barFont)
{
    return QString::fromLatin1(BarTemplate)
        .arg(captionFont)
        .arg(frameHeight)
        .arg(padding)
        .arg(barFont)
        .arg(CSS::border(), CSS::gradientDark(), CSS::gradientMiddle());
}

} // namespace

class QKXProgressBarPrivate : public QKXWidgetBasePrivate
{
    Q_OBJECT
public:
    explicit QKXProgressBarPrivate(QKXProgressBar *q)
        : QKXWidgetBasePrivate(q)
        , value(50)
        , lowerLimit(0)
        , upperLimit(100)
        , bar(nullptr)
        , minStyle(kx_barStyle(12, 26, 1, 12))
        , maxStyle(kx_barStyle(16, 32, 2, 14))
    {
    }

    void init() override;
    void updateStyle() override;
    void changeSize(const QString &size) override;
    void setValue(int v);

    int value;
    int lowerLimit;
    int upperLimit;
    QProgressBar *bar;
    QString minStyle;
    QString maxStyle;

private:
    KX_DECLARE_PUBLIC(QKXProgressBar)
};

void QKXProgressBarPrivate::init()
{
    // Runs inside the base constructor, before the derived part exists: only the QWidget side of q
    // may be used here.
    bar = new QProgressBar(q);
    bar->setRange(lowerLimit, upperLimit);
    bar->setTextVisible(true);
    bar->setValue(value);
    bar->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    q->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);

    auto *caption = new QLabel(q);
    caption->setObjectName(QStringLiteral("Label"));
    caption->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    setLabel(caption);

    auto *frame = new QFrame(q);
    auto *layout = new QVBoxLayout(q);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(caption);
    layout->addWidget(frame);
    auto *frameLayout = new QVBoxLayout(frame);
    frameLayout->setSpacing(0);
    frameLayout->setContentsMargins(0, 0, 0, 0);
    frameLayout->addWidget(bar);

    updateStyle();
}

void QKXProgressBarPrivate::updateStyle()
{
    styles.insert(QStringLiteral("Min"), minStyle);
    styles.insert(QStringLiteral("Max"), maxStyle);
    changeSize(currentSizeName);
}

void QKXProgressBarPrivate::changeSize(const QString &size)
{
    // A widget that is not polished yet keeps the rules of its first sheet for its children: without
    // polishing it first, a size chosen before the screen is first shown would never take effect. The
    // first sheet, given in init() while the widget is still being built, needs no help.
    if (!q->styleSheet().isEmpty()) {
        q->ensurePolished();
    }
    QKXWidgetBasePrivate::changeSize(size);
}

void QKXProgressBarPrivate::setValue(int v)
{
    value = v;
    if (upperLimit == lowerLimit) {
        return;
    }
    // The quotient first, then the percentage, truncated: 29 of 0 to 100 shows as 28, as the
    // instrument's bars always have.
    const int shown = int(double(v) / (upperLimit - lowerLimit) * 100);
    if (shown < bar->minimum() || shown > bar->maximum()) {
        qDebug().noquote() << QStringLiteral("UserInterface - QKXProgressBar::setValue : %1 lies outside %2 to %3; "
                                             "the bar keeps %4.")
                                  .arg(v)
                                  .arg(lowerLimit)
                                  .arg(upperLimit)
                                  .arg(bar->value());
        return;
    }
    bar->setValue(shown);
}

QKXProgressBar::QKXProgressBar(QWidget *parent)
    : QKXWidgetBase(*new QKXProgressBarPrivate(this), parent)
{
}

QKXProgressBar::~QKXProgressBar() = default;

int QKXProgressBar::value() const
{
    Q_D(const QKXProgressBar);
    return d->value;
}

void QKXProgressBar::setValue(int value)
{
    Q_D(QKXProgressBar);
    d->setValue(value);
}

void QKXProgressBar::setValue(double value)
{
    Q_D(QKXProgressBar);
    const double whole = std::trunc(value);
    if (!std::isfinite(value) || whole < double(std::numeric_limits<int>::min())
        || whole > double(std::numeric_limits<int>::max())) {
        qDebug().noquote() << QStringLiteral("UserInterface - QKXProgressBar::setValue : %1 is no progress value; "
                                             "the bar keeps %2.")
                                  .arg(value)
                                  .arg(d->bar->value());
        return;
    }
    d->setValue(int(whole));
}

#include "QKXProgressBar.moc"
