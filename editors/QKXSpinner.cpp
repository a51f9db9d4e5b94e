// SPDX-License-Identifier: BSD-3-Clause
#include "QKXSpinner.h"

#include "KXNumberConversion_p.h"
#include "KXStepPower_p.h"
#include "QKXNumeric.h"
#include "QKXNumericValueObj.h"
#include "QKXPopupChain.h"
#include "QKXPopupPlacement.h"
#include "QKXSpinnerCornerButton.h"
#include "ValueObjectHelper.h"

#include "CSS.h"

#include <QApplication>
#include <QDebug>
#include <QElapsedTimer>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QList>
#include <QMouseEvent>
#include <QPointer>
#include <QPushButton>
#include <QSharedPointer>

#include <cmath>

namespace {
const QString kx_intType = QStringLiteral("Int");
const QString kx_doubleType = QStringLiteral("Double");
const QString kx_valueDoubleType = QStringLiteral("ValueDouble");
const QString kx_valueLongType = QStringLiteral("ValueLong");

const double kx_pi = 3.14159265358979323846;
// How many finger samples and speeds the wheel keeps.
const int kx_sampleCount = 5;

// The popup's sheet, on the container's frame; %1 is the palette's border colour.
const char *const SpinnerStyle = R"(QFrame {    background-color: transparent;    border: none;}QFrame#MainFrame {    background-color: rgba(0,0,0,215);    border: 2px solid %1;    border-left: none;    border-radius: 18px;}QFrame#Overlay {    border: 2px solid %1;    border-right: none;    border-radius: 18px;    border-top-right-radius: 0px;    border-bottom-right-radius: 0px;}QFrame#SpinFrame {    border: 1px solid #fff;    border-radius: 110px;}QFrame#ButtonFrame {    border: 1px solid #fff;    border-radius: 35px;}QPushButton#Enter {    border: 1px solid #0a0;    border-radius: 30px;    font-size: 14px;    color: #fff;    background-color: transparent;}QPushButton#Enter:pressed {    background-color: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 rgba(0,255,0,170), stop:1 rgba(0,255,0,50));}QKXSpinnerCornerButton#Decrement, QKXSpinnerCornerButton#Increment {    border: 1px solid #fff;    border-radius: 10px;    font-size: 14px;    color: #fff;}QKXSpinnerCornerButton#Cancel {    border-radius: 10px;    font-size: 12px;    padding-top: 3px;}QKXSpinnerCornerButton:pressed {    background-color: #fff;    color: #000;}QPushButton#SpinWheelMarker {    border: none;    background-color: qradialgradient(cx:0.5, cy:0.5, radius: 0.5,                               fx:0.5, fy:0.5, stop:0 rgba(255,255,255,225),                                               stop:1 rgba(0,0,0,0));}QLineEdit {    background-color: transparent;    border: 2px solid white;    border-radius: 10px;    font: 40px;    min-height: 40px;    max-height: 40px;    color: white;    padding-left: 8px;    selection-color: black;    selection-background-color: white;}QLabel#Gap {    background-color: transparent;    border: none;}QPushButton#RotateEntry {    border: none;    background-color: transparent;    border-image: url(:/images/rotateEntry.png);}QPushButton#RotateEntry:pressed {    background-color: transparent;    border-image: url(:/images/rotateEntryPressed.png);})";

QString kx_quoted(const QString &text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}
} // namespace

// One finger position on the wheel: its angle and when it was taken, in milliseconds since the press.
struct QKXRadSample
{
    QKXRadSample(double angle, int time) : angle(angle), time(time) {}
    double angle;
    int time;
};

class QKXSpinnerPrivate
{
public:
    QKXSpinnerPrivate(double minimum, double maximum, int precision, int width, int height)
        : width(width), height(height), precision(precision), minimum(minimum), maximum(maximum)
    {
    }

    // The widget's object name and the text, for the debug lines about text that is no number.
    QString describe(const QString &text) const
    {
        return (widget ? widget->objectName() : QStringLiteral("(no widget)")) + QLatin1Char(' ') + kx_quoted(text);
    }

    QPointer<QObject> filter;
    QPointer<QWidget> widget;
    QString dataType;
    int width;
    int height;
    int wheelRadius = 110;
    int turnThreshold = 5;
    int turnCounter = 0;
    int precision;
    double minimum;
    double maximum;
    double value = 0.0;
    QString unitString;
    double power = 0.0;
    bool pressedOutside = false;
    QPushButton *marker = nullptr;
    QList<QSharedPointer<QKXRadSample>> samples;
    QList<double> speeds;
    QElapsedTimer pressTime;
    // The press's own timestamp; 0 when the events carry none and the wall clock times the gesture.
    ulong pressStamp = 0;
    // Milliseconds since the press of the move being handled, or -1 outside a move.
    qint64 eventTime = -1;
    QPointer<QLineEdit> entry;
    QLineEdit *display = nullptr;
    QFrame *wheel = nullptr;
    QString style;
    QString baseUnitString;

    QFrame *mainFrame = nullptr;
    QLabel *gap = nullptr;
    QPushButton *enter = nullptr;
    QKXSpinnerCornerButton *cancel = nullptr;
};

QKXSpinner::QKXSpinner(QWidget *parent, double minimum, double maximum, int precision, int width, int height)
    : ContainerImpl(parent)
    , d_ptr(new QKXSpinnerPrivate(minimum, maximum, precision, width, height))
{
    Q_D(QKXSpinner);
    const int w = width;
    const int h = height;
    setObjectName(QStringLiteral("SpinWheel"));
    setMinimumSize(w, h);
    setMaximumSize(w, h);
    setNormalSize(w, h);
    setBorder(false);
    controlWidget()->hide();
    borderFrame()->setStyleSheet(QStringLiteral("QFrame#BorderFrame { background-color: transparent; border: none; }"));

    d->mainFrame = new QFrame(getContainerFrame());
    d->mainFrame->setObjectName(QStringLiteral("MainFrame"));
    d->mainFrame->setGeometry(0, 0, w, h);
    auto *frameLayout = new QHBoxLayout;
    frameLayout->setContentsMargins(0, 0, 0, 0);
    frameLayout->setSpacing(0);
    frameLayout->addWidget(d->mainFrame);
    ContainerBase::setLayout(frameLayout, false);

    auto *topOverlay = new QFrame(d->mainFrame);
    topOverlay->setObjectName(QStringLiteral("Overlay"));
    topOverlay->setGeometry(0, 0, w - 60, 64);
    d->display = new QLineEdit(d->mainFrame);
    d->display->setGeometry(10, 10, w - 20, 40);
    // The display only shows the value and the marked digit; the widget's own field keeps the focus.
    d->display->setReadOnly(true);
    d->display->setFocusPolicy(Qt::NoFocus);
    d->gap = new QLabel(d->mainFrame);
    d->gap->setObjectName(QStringLiteral("Gap"));
    d->gap->setGeometry(18, 62, w - 36, 18);
    auto *bottomOverlay = new QFrame(d->mainFrame);
    bottomOverlay->setObjectName(QStringLiteral("Overlay"));
    bottomOverlay->setGeometry(0, 78, w - 60, h - 82);

    d->wheel = new QFrame(d->mainFrame);
    d->wheel->setObjectName(QStringLiteral("SpinFrame"));
    d->wheel->setGeometry(20, 95, 2 * d->wheelRadius, 2 * d->wheelRadius);
    auto *centre = new QFrame(d->wheel);
    centre->setObjectName(QStringLiteral("ButtonFrame"));
    centre->setGeometry(75, 75, 70, 70);
    d->enter = new QPushButton(centre);
    d->enter->setObjectName(QStringLiteral("Enter"));
    d->enter->setFlat(true);
    d->enter->setGeometry(5, 5, 60, 60);
    d->enter->setFocusPolicy(Qt::NoFocus);
    connect(d->enter, &QPushButton::clicked, this, &QKXSpinner::buttonSubmit);

    d->marker = new QPushButton(d->wheel);
    d->marker->setObjectName(QStringLiteral("SpinWheelMarker"));
    d->marker->resize(64, 64);
    d->marker->setFocusPolicy(Qt::NoFocus);
    // The glow sits under the finger: it must not take the presses that turn the wheel.
    d->marker->setAttribute(Qt::WA_TransparentForMouseEvents);
    d->marker->hide();

    auto *up = new QKXSpinnerCornerButton(QKXSpinnerCornerButton::TopLeft, QStringLiteral("x10"), d->mainFrame);
    up->setObjectName(QStringLiteral("Increment"));
    up->setGeometry(10, 88, 47, 47);
    connect(up, &QPushButton::clicked, this, &QKXSpinner::increment);
    auto *down = new QKXSpinnerCornerButton(QKXSpinnerCornerButton::TopRight, QStringLiteral("/10"), d->mainFrame);
    down->setObjectName(QStringLiteral("Decrement"));
    down->setGeometry(w - 57, 88, 47, 47);
    connect(down, &QPushButton::clicked, this, &QKXSpinner::decrement);
    d->cancel = new QKXSpinnerCornerButton(QKXSpinnerCornerButton::BottomLeft, QString(), d->mainFrame);
    d->cancel->setObjectName(QStringLiteral("Cancel"));
    d->cancel->setGeometry(10, h - 57, 47, 47);
    connect(d->cancel, &QPushButton::clicked, this, &QKXSpinner::cancelEntry);
    for (QPushButton *key : {static_cast<QPushButton *>(up), static_cast<QPushButton *>(down),
                             static_cast<QPushButton *>(d->cancel)}) {
        key->setFocusPolicy(Qt::NoFocus);
    }

    auto *rotate = new QPushButton(d->mainFrame);
    rotate->setObjectName(QStringLiteral("RotateEntry"));
    rotate->setFocusPolicy(Qt::NoFocus);
    rotate->setGeometry(w - 46, h - 46, 36, 36);
    connect(rotate, &QPushButton::clicked, this, &QKXSpinner::rotateButtonClicked);

    d->style = QString::fromLatin1(SpinnerStyle).arg(CSS::border());
    const QVariant opaque = qApp ? qApp->property("-notransparency") : QVariant();
    if (opaque.isValid() && opaque.toString() == QLatin1String("true")) {
        d->style += QStringLiteral("QFrame#MainFrame{    background-color: #000;}");
    }
    getContainerFrame()->setStyleSheet(d->style);

    connect(this, &QKXSpinner::updateValue, this, &QKXSpinner::wheelIncrement);
    // For the spinner's whole life, not per registration: every value change is submitted once.
    connect(this, &QKXSpinner::valueChanged, this, &QKXSpinner::sendValue);

    QKXSpinner::retranslate();
    resize(w, h);
}

QKXSpinner::~QKXSpinner() = default;

void QKXSpinner::registerWidget(QObject *filter, QWidget *widget)
{
    Q_D(QKXSpinner);
    QKXPopupChain::unchainAll(this, d->filter);   // a registration still held, if any
    d->filter = filter;
    d->widget = widget;
    d->entry = widget ? widget->findChild<QLineEdit *>() : nullptr;
    d->dataType = filter ? filter->property("DataType").toString() : QString();

    QKXPopupChain::chain(this, filter, SIGNAL(cancelEntry()), SIGNAL(editEnd()));
    d->precision = widget ? widget->property("Precision").toInt() : 0;

    if (auto *units = qobject_cast<QKXNumericValueObj *>(widget)) {
        d->baseUnitString = units->baseUnit();
        d->unitString = units->currentUnit();
        const Norvane::Value::Units base = ValueObjectHelper::convertToUnits(d->baseUnitString);
        const Norvane::Value::Units shown = ValueObjectHelper::convertToUnits(d->unitString);
        const double v = ValueObjectHelper::convertValue(units->value(), base, shown);
        ReCalculatPowStep(v);
        d->minimum = ValueObjectHelper::convertValue(units->lowerLimit(), base, shown);
        d->maximum = ValueObjectHelper::convertValue(units->upperLimit(), base, shown);
        setValue(QString::number(v, 'f', d->precision));
    } else if (auto *numeric = qobject_cast<QKXNumeric *>(widget)) {
        d->baseUnitString.clear();
        d->unitString.clear();
        const double v = numeric->value();
        ReCalculatPowStep(v);
        setValue(QString::number(v, 'f', d->precision));
    }

    if (d->dataType == kx_intType) {
        QKXPopupChain::forward(this, filter, SIGNAL(submit(int)));
    } else if (d->dataType == kx_doubleType) {
        QKXPopupChain::forward(this, filter, SIGNAL(submit(double)));
    } else if (d->dataType == kx_valueDoubleType) {
        QKXPopupChain::forward(this, filter, SIGNAL(submit(double,QString)));
    } else if (d->dataType == kx_valueLongType) {
        QKXPopupChain::forward(this, filter, SIGNAL(submit(int,QString)));
    } else {
        qDebug() << "UserInterface - QKXSPinner attempting to register unknown data type:" << d->dataType
                 << "Widget:" << widget;
    }
    show();
}

void QKXSpinner::changePrecision(int precision)
{
    Q_D(QKXSpinner);
    d->precision = precision;
    setValue(QString::number(d->value, 'f', precision));
    updateCursorPosition();
}

void QKXSpinner::updateLimits(double minimum, double maximum)
{
    Q_D(QKXSpinner);
    d->minimum = minimum;
    d->maximum = maximum;
}

void QKXSpinner::resetStep()
{
    Q_D(QKXSpinner);
    d->power = 0.0;
}

void QKXSpinner::changeStep(double change)
{
    Q_D(QKXSpinner);
    const double power = d->power + change;
    if (!kxstep::powerAllowed(power, d->value, d->minimum, d->maximum, d->precision)) {
        return;
    }
    d->power = power;
    updateCursorPosition();
}

void QKXSpinner::ReCalculatPowStep(double x)
{
    Q_D(QKXSpinner);
    d->power = kxstep::initialPower(x, d->precision);
}

void QKXSpinner::updateCursorPosition()
{
    Q_D(QKXSpinner);
    const QString text = d->display->text();
    int dot = text.indexOf(QLatin1Char('.'));
    if (d->power >= 0) {
        if (dot < 0) {
            dot = text.size();
        }
        int position = int(std::trunc(dot - d->power));
        if (position < 0) {
            resetStep();
            position = 0;
        }
        d->display->setCursorPosition(position);
        d->display->cursorBackward(true, 3);
        return;
    }
    int position = int(std::trunc(dot - d->power + 1));
    if (position < 0) {
        resetStep();
        position = 0;
    }
    if (position > text.size()) {
        // The step is finer than the decimals shown: it moves to the last digit shown.
        const int decimals = dot >= 0 ? text.size() - dot - 1 : 0;
        d->power = -decimals;
        updateCursorPosition();
        return;
    }
    d->display->setCursorPosition(position);
    d->display->cursorBackward(true, d->power > -3 ? 4 : 3);
}

void QKXSpinner::analyzeSpeed()
{
    Q_D(QKXSpinner);
    const int pairs = d->samples.size() - 1;
    if (pairs < 1) {
        return;
    }
    double sum = 0.0;
    for (int i = 1; i <= pairs; ++i) {
        const QKXRadSample &from = *d->samples.at(i - 1);
        const QKXRadSample &to = *d->samples.at(i);
        // Two samples of the same millisecond say nothing of the speed, but still count.
        if (to.time != from.time) {
            sum += (to.angle - from.angle) / (to.time - from.time);
        }
    }
    const double speed = sum / pairs;
    d->speeds.append(speed);
    if (d->speeds.size() < kx_sampleCount) {
        return;
    }
    bool allClockwise = true;
    bool allBack = true;
    for (double s : qAsConst(d->speeds)) {
        allClockwise = allClockwise && s > 0.0;
        allBack = allBack && !(s > 0.0);
    }
    if ((allClockwise || allBack) && d->turnCounter > d->turnThreshold) {
        d->turnCounter = 0;
        emit updateValue(speed);
    } else {
        ++d->turnCounter;
    }
    d->speeds.removeFirst();
}

void QKXSpinner::moveMarker(double angle)
{
    Q_D(QKXSpinner);
    d->marker->move(int(std::trunc(70 * std::cos(angle))) + 78, int(std::trunc(70 * std::sin(angle))) + 78);
    const qint64 time = d->eventTime >= 0 ? d->eventTime : d->pressTime.elapsed();
    d->samples.append(QSharedPointer<QKXRadSample>::create(angle, int(time)));
    if (d->samples.size() >= kx_sampleCount) {
        analyzeSpeed();
        d->samples.removeFirst();
    }
}

bool QKXSpinner::withinCircle(const QPoint &point, int radius)
{
    Q_D(QKXSpinner);
    const QPoint centre(d->wheel->width() / 2, d->wheel->height() / 2);
    const QPoint offset = point - centre;
    return qint64(offset.x()) * offset.x() + qint64(offset.y()) * offset.y() <= qint64(radius) * radius;
}

double QKXSpinner::getRadians(int x, int y)
{
    if (x == 0) {
        return y > 0 ? kx_pi / 2 : 3 * kx_pi / 2;
    }
    double angle = std::atan(double(y) / x);
    if (x < 0) {
        angle += kx_pi;
    } else if (y < 0) {
        angle += 2 * kx_pi;
    }
    return angle;
}

void QKXSpinner::retranslate()
{
    Q_D(QKXSpinner);
    d->enter->setText(tr("Enter"));
    d->cancel->setText(tr("Cancel"));
    QString sheet = d->style;
    const QString language = qApp ? qApp->property("currentLanguage").toString() : QString();
    // Chinese captions need a larger size to stay legible.
    if (language == QLatin1String("zh_cn") || language == QLatin1String("zh_tw")) {
        sheet += QStringLiteral("QPushButton#Enter, QPushButton#Cancel { font-size: 16px; }");
    }
    getContainerFrame()->setStyleSheet(sheet);
    ContainerImpl::retranslate();
}

double QKXSpinner::value() const
{
    Q_D(const QKXSpinner);
    return d->value;
}

double QKXSpinner::power() const
{
    Q_D(const QKXSpinner);
    return d->power;
}

double QKXSpinner::minimum() const
{
    Q_D(const QKXSpinner);
    return d->minimum;
}

double QKXSpinner::maximum() const
{
    Q_D(const QKXSpinner);
    return d->maximum;
}

int QKXSpinner::precision() const
{
    Q_D(const QKXSpinner);
    return d->precision;
}

QLineEdit *QKXSpinner::display() const
{
    Q_D(const QKXSpinner);
    return d->display;
}

QObject *QKXSpinner::registeredFilter() const
{
    Q_D(const QKXSpinner);
    return d->filter;
}

QWidget *QKXSpinner::registeredWidget() const
{
    Q_D(const QKXSpinner);
    return d->widget;
}

QString QKXSpinner::dataType() const
{
    Q_D(const QKXSpinner);
    return d->dataType;
}

void QKXSpinner::setValue(QString value)
{
    Q_D(QKXSpinner);
    double number = 0.0;
    if (!kxnumber::readNumber(value, kxnumber::NumberForm::Real, 10, &number)) {
        qDebug().noquote() << "UserInterface - QKXSpinner:" << d->describe(value)
                           << "is not a number - the wheel keeps" << d->display->text();
        return;
    }
    d->display->setText(value);
    d->value = number;
}

void QKXSpinner::rotateButtonClicked()
{
    emit rotateEntry();
}

void QKXSpinner::buttonSubmit()
{
    Q_D(QKXSpinner);
    sendValue(d->display->text());
    emit editEnd();
}

void QKXSpinner::unregister()
{
    Q_D(QKXSpinner);
    QKXPopupChain::unchainAll(this, d->filter);
    d->filter = nullptr;
    d->widget = nullptr;
    d->entry = nullptr;
    hide();
    emit editEnd();
}

void QKXSpinner::sendValue(QString value)
{
    Q_D(QKXSpinner);
    double v = 0.0;
    if (!kxnumber::readNumber(value, kxnumber::NumberForm::Real, 10, &v)) {
        qDebug().noquote() << "UserInterface - QKXSpinner:" << d->describe(value) << "is not a number - nothing submitted";
        return;
    }
    if (d->dataType == kx_intType) {
        emit submit(kxnumber::truncated(v));
    } else if (d->dataType == kx_doubleType) {
        emit submit(v);
    } else if (d->dataType == kx_valueDoubleType) {
        emit submit(v, d->unitString);
    } else if (d->dataType == kx_valueLongType) {
        emit submit(kxnumber::truncated(v), d->unitString);
    }
}

void QKXSpinner::wheelIncrement(double speed)
{
    Q_D(QKXSpinner);
    const double size = std::fabs(speed);
    int steps = size > 60 ? 4 : size > 30 ? 3 : size > 15 ? 2 : 1;
    if (!(speed > 0.0)) {
        steps = -steps;
    }
    const double next = d->value + std::pow(10.0, d->power) * steps + 1e-15;
    if (next > d->maximum || next < d->minimum) {
        return;
    }
    setValue(QString::number(next, 'f', d->precision));
    updateCursorPosition();
    emit valueChanged(d->display->text());
}

void QKXSpinner::decrement()
{
    changeStep(-1);
}

void QKXSpinner::increment()
{
    changeStep(+1);
}

void QKXSpinner::mousePressEvent(QMouseEvent *event)
{
    Q_D(QKXSpinner);
    QWidget *under = childAt(event->pos());
    if (under != d->wheel) {
        d->pressedOutside = true;
        // The strip between the display and the wheel takes presses without moving the popup.
        if (under == d->gap) {
            event->accept();
            return;
        }
        ContainerImpl::mousePressEvent(event);
        return;
    }
    if (!withinCircle(d->wheel->mapFrom(this, event->pos()), d->wheel->width() / 2)) {
        d->pressedOutside = true;
        ContainerImpl::mousePressEvent(event);
        return;
    }
    d->samples.clear();
    d->speeds.clear();
    d->pressedOutside = false;
    d->pressTime.start();
    d->pressStamp = event->timestamp();
    mouseMoveEvent(event);
    d->marker->show();
}

void QKXSpinner::mouseMoveEvent(QMouseEvent *event)
{
    Q_D(QKXSpinner);
    if (d->pressedOutside) {
        ContainerImpl::mouseMoveEvent(event);
        return;
    }
    event->accept();
    // A sample is timed when the finger was there, which a busy panel may handle much later.
    d->eventTime = d->pressStamp != 0 && event->timestamp() >= d->pressStamp
        ? qint64(event->timestamp() - d->pressStamp) : d->pressTime.elapsed();
    const QPoint at = d->wheel->mapFrom(this, event->pos());
    moveMarker(getRadians(at.x() - d->wheelRadius, at.y() - d->wheelRadius));
    d->eventTime = -1;
}

void QKXSpinner::mouseReleaseEvent(QMouseEvent *event)
{
    Q_D(QKXSpinner);
    if (d->pressedOutside) {
        ContainerImpl::mouseReleaseEvent(event);
        return;
    }
    event->accept();
    d->marker->hide();
}

void QKXSpinner::showEvent(QShowEvent *event)
{
    Q_D(QKXSpinner);
    if (d->widget) {
        const QPoint place = QKXPopupPlacement::besideWidget(this, d->widget, size());
        move(place.x(), place.y());
    }
    if (d->entry) {
        setValue(d->entry->text());
    }
    updateCursorPosition();
    ContainerImpl::showEvent(event);
}
