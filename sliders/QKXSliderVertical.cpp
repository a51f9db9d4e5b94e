// SPDX-License-Identifier: BSD-3-Clause
#include "QKXSliderVertical.h"
#include "QKXWidgetBase_p.h"

#include "CSS.h"
#include "RotatableLabel.h"

#include <QGridLayout>
#include <QSlider>

namespace {

// The slider's sheet; the two sizes differ in their figures and in how the handle's gradient is
// written. %1 the caption's size rule, %2 caption font size, %3 slider width, %4 groove radius,
// %5 the gradient's opening, %6 handle height, %7 handle radius; %8 to %10 the palette's dark and
// light gradient stops and its border colour.
const char *const VerticalTemplate = R"(QLabel#Label {    color: #fff;    background-color: transparent;    margin-left: 10px;    %1;    font-size: %2;}QSlider {    min-width: %3;    max-width: %3;}QSlider::groove:vertical {    border: 2px solid #fff;    border-radius: %4;    background: transparent;    margin: 7px;}QSlider::handle:vertical {    background: %5%8, stop:1 %9);    border: 1px solid %10;    height: %6;    border-radius: %7;    margin: 0px;}QSlider::sub-page:vertical {    border: none;}QSlider::add-page:vertical {    border: none;})";

QString kx_verticalStyle(const char *captionSize, const char *fontSize, const char *sliderWidth,
                         const char *grooveRadius, const char *gradient, const char *handleHeight,
                         const char *handleRadius)
{
    return QString::fromLatin1(VerticalTemplate)
        .arg(QLatin1String(captionSize), QLatin1String(fontSize), QLatin1String(sliderWidth),
             QLatin1String(grooveRadius), QLatin1String(gradient), QLatin1String(handleHeight),
             QLatin1String(handleRadius), CSS::gradientDark(), CSS::gradientLight())
        .arg(CSS::border());
}

} // namespace

class STANDALONEPLUGINS_EXPORT QKXSliderVerticalPrivate : public QKXWidgetBasePrivate
{
    Q_OBJECT
public:
    explicit QKXSliderVerticalPrivate(QKXSliderVertical *q)
        : QKXWidgetBasePrivate(q)
        // The compact sheet spells its gradient as the instrument's themes match it.
        , smallStyle(kx_verticalStyle("min-width: 2px", "12px", "28px", "7px",
                                      "Qlineargradient(x1:0, y1:0, x2:1, y2:1, stop:0 ", "4px", "10px"))
        , largeStyle(kx_verticalStyle("min-height: 16px", "16px", "32px", "9px",
                                      "QLinearGradient(x1:0, y1:0, x2:0, y2:1, stop:0 ", "8px", "12px"))
    {
    }

    int value = 0;
    int lowerLimitValue = 0;
    int upperLimitValue = 100;
    bool labelLeft = false;
    QSlider *slider = nullptr;
    RotatableLabel *caption = nullptr;
    QGridLayout *layout = nullptr;
    QString smallStyle;
    QString largeStyle;

public Q_SLOTS:
    void init() override;
    void setEventFilter(QObject *filter) override;
    void updateStyle() override;
    QString labelText() const override;
    void setLabelText(const QString &text) override;
    virtual int sliderValue() const;
    virtual void setSliderValue(const int &v);
    virtual int lowerLimit() const;
    virtual void setLowerLimit(const int &limit);
    virtual int upperLimit() const;
    virtual void setUpperLimit(const int &limit);
    virtual bool isLabelLeft() const;
    virtual void setLabelLeft(const bool &left);
    virtual void emitSignal();

private:
    KX_DECLARE_PUBLIC(QKXSliderVertical)
};

void QKXSliderVerticalPrivate::init()
{
    slider = new QSlider(Qt::Vertical, q);
    slider->setEnabled(true);
    slider->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
    caption = new RotatableLabel(q);
    caption->setObjectName(QStringLiteral("Label"));
    caption->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
    caption->setAngle(90);

    layout = new QGridLayout;
    slider->setPageStep(1);
    slider->setSliderPosition(0);
    setLowerLimit(0);
    setUpperLimit(100);
    slider->setTracking(true);
    slider->setInvertedControls(true);
    slider->setTickInterval(10);
    slider->setTickPosition(QSlider::TicksBothSides);
    slider->setFocusPolicy(Qt::StrongFocus);
    slider->setObjectName(QStringLiteral("VerticalSlider"));

    layout->addWidget(slider, 0, 1, 1, 1);
    setLabelLeft(false);
    caption->setText(QStringLiteral("V Slider"));
    caption->setColor(QStringLiteral("#fff"));
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    q->setLayout(layout);
    q->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);

    // Only the release is announced: a vertical slider sets its attribute when the finger lifts.
    connect(slider, &QSlider::sliderReleased, this, &QKXSliderVerticalPrivate::emitSignal);

    slider->show();
    updateStyle();
}

void QKXSliderVerticalPrivate::setEventFilter(QObject *filter)
{
    QKXWidgetBasePrivate::setEventFilter(filter);
    if (filter) {
        slider->installEventFilter(filter);
    }
}

void QKXSliderVerticalPrivate::updateStyle()
{
    setOverlaidStyles(smallStyle, largeStyle, QString(), QString());
}

QString QKXSliderVerticalPrivate::labelText() const
{
    return caption ? caption->text() : QString();
}

void QKXSliderVerticalPrivate::setLabelText(const QString &text)
{
    if (caption) {
        caption->setText(tr(text.toUtf8().constData()));
    }
}

int QKXSliderVerticalPrivate::sliderValue() const
{
    return value;
}

void QKXSliderVerticalPrivate::setSliderValue(const int &v)
{
    Q_Q(QKXSliderVertical);
    value = v;
    slider->setValue(v);
    if (slider->minimum() <= v && v <= slider->maximum()) {
        emit q->valueChanged(v);
        return;
    }
    value = v > slider->maximum() ? slider->maximum() : slider->minimum();
    slider->setValue(value);
    emit q->valueChanged(value);
}

int QKXSliderVerticalPrivate::lowerLimit() const
{
    return lowerLimitValue;
}

void QKXSliderVerticalPrivate::setLowerLimit(const int &limit)
{
    lowerLimitValue = limit;
    slider->setMinimum(limit);
}

int QKXSliderVerticalPrivate::upperLimit() const
{
    return upperLimitValue;
}

void QKXSliderVerticalPrivate::setUpperLimit(const int &limit)
{
    upperLimitValue = limit;
    slider->setMaximum(limit);
}

bool QKXSliderVerticalPrivate::isLabelLeft() const
{
    return labelLeft;
}

void QKXSliderVerticalPrivate::setLabelLeft(const bool &left)
{
    labelLeft = left;
    layout->removeWidget(caption);
    if (left) {
        layout->addWidget(caption, 0, 0, 1, 1);
        caption->setAngle(-90);
        caption->setAlignment(Qt::AlignBottom);
    } else {
        layout->addWidget(caption, 0, 2, 1, 1);
        caption->setAngle(90);
        caption->setAlignment(Qt::AlignTop);
    }
}

void QKXSliderVerticalPrivate::emitSignal()
{
    Q_Q(QKXSliderVertical);
    emit q->valueChanged(slider->value());
}

QKXSliderVertical::QKXSliderVertical(QWidget *parent)
    : QKXSliderVertical(*new QKXSliderVerticalPrivate(this), parent)
{
}

QKXSliderVertical::QKXSliderVertical(QKXSliderVerticalPrivate &dd, QWidget *parent)
    : QKXWidgetBase(dd, parent)
{
}

QKXSliderVertical::~QKXSliderVertical() = default;

int QKXSliderVertical::value() const
{
    Q_D(const QKXSliderVertical);
    return d->sliderValue();
}

int QKXSliderVertical::lowerLimit() const
{
    Q_D(const QKXSliderVertical);
    return d->lowerLimit();
}

int QKXSliderVertical::upperLimit() const
{
    Q_D(const QKXSliderVertical);
    return d->upperLimit();
}

bool QKXSliderVertical::isLabelLeft() const
{
    Q_D(const QKXSliderVertical);
    return d->isLabelLeft();
}

void QKXSliderVertical::setValue(const int &value)
{
    Q_D(QKXSliderVertical);
    d->setSliderValue(value);
}

void QKXSliderVertical::setLowerLimit(const int &lowerLimit)
{
    Q_D(QKXSliderVertical);
    d->setLowerLimit(lowerLimit);
}

void QKXSliderVertical::setUpperLimit(const int &upperLimit)
{
    Q_D(QKXSliderVertical);
    d->setUpperLimit(upperLimit);
}

void QKXSliderVertical::setLabelLeft(bool b)
{
    Q_D(QKXSliderVertical);
    d->setLabelLeft(b);
}

void QKXSliderVertical::installEventFilter(QObject *filter)
{
    QKXWidgetBase::installEventFilter(filter);
}

#include "QKXSliderVertical.moc"
