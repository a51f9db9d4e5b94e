// SPDX-License-Identifier: BSD-3-Clause
#include "QKXSliderHorizontal.h"
#include "QKXWidgetBase_p.h"

#include "CSS.h"

#include <QGridLayout>
#include <QLabel>
#include <QSlider>

namespace {

// The slider's sheet; the two sizes differ only in their figures. %1 caption height, %2 caption
// font size, %3 slider height, %4 groove radius, %5 handle width, %6 handle radius, %7 the pages'
// rules; %8 to %10 are the palette's dark and light gradient stops and its border colour.
const char *const HorizontalTemplate = R"(QLabel {    color: #fff;    background-color: transparent;    margin-left: 10px;    min-height: %1;    font-size: %2;}QSlider {    min-height: %3;    max-height: %3;}QSlider::groove:horizontal {    border: 3px solid #fff;    border-radius: %4;    background: transparent;    margin: 7px;}QSlider::handle:horizontal {    background: QLinearGradient(x1:0, y1:0, x2:1, y2:0, stop:0 %8, stop:1 %9);    border: 1px solid %10;    width: %5;    border-radius: %6;    margin: 0px;}%7)";

const char *const SubPageRule = "QSlider::sub-page:horizontal {    border: none;}";
const char *const AddPageRule = "QSlider::add-page:horizontal {    border: none;}";

QString kx_horizontalStyle(const char *captionHeight, const char *fontSize, const char *sliderHeight,
                           const char *grooveRadius, const char *handleWidth, const char *handleRadius,
                           const QString &pages)
{
    return QString::fromLatin1(HorizontalTemplate)
        .arg(QLatin1String(captionHeight), QLatin1String(fontSize), QLatin1String(sliderHeight),
             QLatin1String(grooveRadius), QLatin1String(handleWidth), QLatin1String(handleRadius), pages,
             CSS::gradientDark(), CSS::gradientLight())
        .arg(CSS::border());
}

} // namespace

class STANDALONEPLUGINS_EXPORT QKXSliderHorizontalPrivate : public QKXWidgetBasePrivate
{
    Q_OBJECT
public:
    explicit QKXSliderHorizontalPrivate(QKXSliderHorizontal *q)
        : QKXWidgetBasePrivate(q)
        , smallStyle(kx_horizontalStyle("12px", "12px", "28px", "7px", "4px", "10px", QLatin1String(SubPageRule)))
        , largeStyle(kx_horizontalStyle("16px", "16px", "32px", "9px", "8px", "12px",
                                        QLatin1String(SubPageRule) + QLatin1String(AddPageRule)))
    {
    }

    int value = 0;
    int lowerLimitValue = 0;
    int upperLimitValue = 0;
    QSlider *slider = nullptr;
    QString smallStyle;
    QString largeStyle;

public Q_SLOTS:
    void init() override;
    void setEventFilter(QObject *filter) override;
    void updateStyle() override;
    virtual int sliderValue() const;
    virtual int lowerLimit() const;
    virtual void setLowerLimit(const int &limit);
    virtual int upperLimit() const;
    virtual void setUpperLimit(const int &limit);
    virtual void setSliderValue(const int &v);
    virtual void emitSignal();

private:
    KX_DECLARE_PUBLIC(QKXSliderHorizontal)
};

void QKXSliderHorizontalPrivate::init()
{
    // Runs inside the base constructor: the widget is only a QKXWidgetBase yet, so q, not q_func().
    auto *caption = new QLabel(q);
    caption->setObjectName(QStringLiteral("Label"));
    caption->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    setLabel(caption);
    slider = new QSlider(Qt::Horizontal, q);
    slider->setEnabled(true);
    slider->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);

    auto *layout = new QGridLayout;
    slider->setPageStep(1);
    slider->setSliderPosition(1);
    setLowerLimit(0);
    setUpperLimit(100);
    slider->setTracking(true);
    slider->setInvertedControls(true);
    slider->setTickInterval(10);
    slider->setTickPosition(QSlider::TicksBothSides);
    slider->setFocusPolicy(Qt::StrongFocus);
    slider->setObjectName(QStringLiteral("HorizontalSlider"));

    layout->addWidget(caption, 0, 0, 1, 1);
    layout->addWidget(slider, 1, 0, 1, 1);
    caption->setText(QStringLiteral("H Slider"));
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    q->setLayout(layout);
    q->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);

    // The handle's every move and its release are announced, by name as the Private's slot.
    connect(slider, &QSlider::sliderReleased, this, &QKXSliderHorizontalPrivate::emitSignal);
    connect(slider, &QSlider::valueChanged, this, &QKXSliderHorizontalPrivate::emitSignal);

    slider->show();
    updateStyle();
}

void QKXSliderHorizontalPrivate::setEventFilter(QObject *filter)
{
    QKXWidgetBasePrivate::setEventFilter(filter);
    if (filter) {
        slider->installEventFilter(filter);
    }
}

void QKXSliderHorizontalPrivate::updateStyle()
{
    // The slider has no locked or read-only look.
    setOverlaidStyles(smallStyle, largeStyle, QString(), QString());
}

int QKXSliderHorizontalPrivate::sliderValue() const
{
    return value;
}

int QKXSliderHorizontalPrivate::lowerLimit() const
{
    return lowerLimitValue;
}

void QKXSliderHorizontalPrivate::setLowerLimit(const int &limit)
{
    lowerLimitValue = limit;
    slider->setMinimum(limit);
}

int QKXSliderHorizontalPrivate::upperLimit() const
{
    return upperLimitValue;
}

void QKXSliderHorizontalPrivate::setUpperLimit(const int &limit)
{
    upperLimitValue = limit;
    slider->setMaximum(limit);
}

void QKXSliderHorizontalPrivate::setSliderValue(const int &v)
{
    value = v;
    if (lowerLimitValue <= v && v <= upperLimitValue) {
        slider->setValue(v);
    } else {
        value = v > upperLimitValue ? upperLimitValue : lowerLimitValue;
        slider->setValue(value);
    }
    emitSignal();
}

void QKXSliderHorizontalPrivate::emitSignal()
{
    Q_Q(QKXSliderHorizontal);
    emit q->valueChanged(slider->value());
}

QKXSliderHorizontal::QKXSliderHorizontal(QWidget *parent)
    : QKXSliderHorizontal(*new QKXSliderHorizontalPrivate(this), parent)
{
}

QKXSliderHorizontal::QKXSliderHorizontal(QKXSliderHorizontalPrivate &dd, QWidget *parent)
    : QKXWidgetBase(dd, parent)
{
}

QKXSliderHorizontal::~QKXSliderHorizontal() = default;

int QKXSliderHorizontal::value() const
{
    Q_D(const QKXSliderHorizontal);
    return d->sliderValue();
}

int QKXSliderHorizontal::lowerLimit() const
{
    Q_D(const QKXSliderHorizontal);
    return d->lowerLimit();
}

int QKXSliderHorizontal::upperLimit() const
{
    Q_D(const QKXSliderHorizontal);
    return d->upperLimit();
}

void QKXSliderHorizontal::setValue(const int &value)
{
    Q_D(QKXSliderHorizontal);
    d->setSliderValue(value);
}

void QKXSliderHorizontal::setLowerLimit(const int &lowerLimit)
{
    Q_D(QKXSliderHorizontal);
    d->setLowerLimit(lowerLimit);
}

void QKXSliderHorizontal::setUpperLimit(const int &upperLimit)
{
    Q_D(QKXSliderHorizontal);
    d->setUpperLimit(upperLimit);
}

void QKXSliderHorizontal::installEventFilter(QObject *filter)
{
    QKXWidgetBase::installEventFilter(filter);
}

#include "QKXSliderHorizontal.moc"
