// SPDX-License-Identifier: BSD-3-Clause
#include "QKXMeterBar.h"
#include "QKXMeterBar_p.h"

#include "KXMeterReadingList_p.h"

#include "CSS.h"
#include "MeterBar_Bar.h"
#include "MeterBar_HorizontalScale.h"
#include "MeterBar_Scale.h"
#include "ValueHelper.h"

#include <QDebug>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QSpacerItem>
#include <QStyle>
#include <QVBoxLayout>

#include <cmath>
#include <cstring>
#include <utility>

using Norvane::Value::Units;
using Norvane::Value::Value_object;

namespace {

// Both sheets open with the same rule; inside a rule two blanks follow the brace and each
// semicolon but the last, as hosts' themes write and compare them.
QString meterbar_border(int width)
{
    return QStringLiteral("border: %1px solid %2;  ").arg(width).arg(CSS::border());
}

} // namespace

QKXMeterBarPrivate::QKXMeterBarPrivate(QKXMeterBar *q)
    : QKXWidgetBasePrivate(q)
    , minStyle(verticalStyleTemplate())
    , maxStyle(minStyle)
    , thumbStyle(horizontalStyleTemplate())
    , meterSize(QStringLiteral("Min"))
    , meterFrame(nullptr)
    , topCap(nullptr)
    , barMid(nullptr)
    , bottomCap(nullptr)
    , capGrid(nullptr)
    , outerLayout(nullptr)
    , spacer(nullptr)
    , bar(nullptr)
    , maxScale(nullptr)
    , minScale(nullptr)
    , maxHScale(nullptr)
    , minHScale(nullptr)
    , readingTypeIndexValue(0)
    , unitIndexValue(-1)
    , scaleInset(20)
    , minBarWidthValue(85)
    , maxBarWidthValue(85)
    , barScaleExponent(5.0)
    , horizontalValue(false)
    , updatedOnce(false)
    , displayUnits(ValueHelper::convertToUnits(QStringLiteral("0,0,0:0;0:0;0:0;0:0;0:0")))
    , noReading(false)
    , scaleShown(false)
{
}

QKXMeterBarPrivate::~QKXMeterBarPrivate() = default;

QString QKXMeterBarPrivate::verticalStyleTemplate()
{
    return QStringLiteral("QFrame {  background: transparent;}")
        + QStringLiteral("QFrame#topCap {  ") + meterbar_border(3)
        + QStringLiteral("border-bottom-width: 0px;  border-top-left-radius: 20px;  border-top-right-radius: 20px;"
                         "  min-height: 30px;}")
        + QStringLiteral("QFrame#bottomCap {  ") + meterbar_border(3)
        + QStringLiteral("border-top-width: 0px;  border-bottom-left-radius: 20px;  border-bottom-right-radius: 20px;"
                         "  min-height: 30px;}")
        + QStringLiteral("QFrame#m_BarMid {  ") + meterbar_border(3)
        + QStringLiteral("border-top-width: 0px;  border-bottom-width: 0px;}")
        + QStringLiteral("QLabel#MetBar_Scale {  color: #fff;  ") + meterbar_border(4)
        + QStringLiteral("border-radius: 14px;  margin: 0px 0px 0px 14px;  padding: 0px 0px 0px 10px;}");
}

QString QKXMeterBarPrivate::horizontalStyleTemplate()
{
    return QStringLiteral("QFrame {  background: transparent;}")
        + QStringLiteral("QFrame#rightCap {  ") + meterbar_border(2)
        + QStringLiteral("border-left-width: 0px;  border-top-right-radius: 10px;  border-bottom-right-radius: 10px;"
                         "  min-width: 11px;}")
        + QStringLiteral("QFrame#leftCap {  ") + meterbar_border(2)
        + QStringLiteral("border-right-width: 0px;  border-bottom-left-radius: 10px;  border-top-left-radius: 10px;"
                         "  min-width: 11px;}")
        + QStringLiteral("QFrame#m_BarMid {  ") + meterbar_border(2)
        + QStringLiteral("border-right-width: 0px;  border-left-width: 0px;}")
        + QStringLiteral("QLabel#MetBar_Scale {  color: #fff;  ") + meterbar_border(4)
        + QStringLiteral("border-radius: 14px;  margin: 0px 0px 0px 0px;  padding: 0px 0px 0px 0px;}");
}

void QKXMeterBarPrivate::init()
{
    // Runs inside the base constructor: only the QWidget side of q may be used here.
    topCap = new QFrame(q);
    topCap->setObjectName(QStringLiteral("topCap"));
    barMid = new QFrame(q);
    barMid->setObjectName(QStringLiteral("m_BarMid"));
    bottomCap = new QFrame(q);
    bottomCap->setObjectName(QStringLiteral("bottomCap"));
    topCap->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Maximum);
    bottomCap->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Maximum);

    bar = new MeterBar_Bar(barMid);
    auto *barLayout = new QVBoxLayout(barMid);
    barLayout->setContentsMargins(0, 0, 0, 0);
    barLayout->addWidget(bar);

    capGrid = new QGridLayout;
    capGrid->setSpacing(0);
    capGrid->setContentsMargins(0, 0, 0, 0);
    capGrid->addWidget(topCap, 1, 0);
    capGrid->addWidget(barMid, 1, 1);
    capGrid->addWidget(bottomCap, 1, 2);
    meterFrame = new QFrame;
    meterFrame->setLayout(capGrid);
    meterFrame->setContentsMargins(0, 0, 0, 0);

    outerLayout = new QHBoxLayout;
    outerLayout->setContentsMargins(0, 0, 0, 0);
    spacer = new QSpacerItem(0, 0, QSizePolicy::Preferred, QSizePolicy::Preferred);
    outerLayout->addWidget(meterFrame, 1);
    outerLayout->addItem(spacer);
    outerLayout->setStretch(1, 1);
    q->setLayout(outerLayout);

    // Placeholders until the first reading list.
    maxScale = new MeterBar_Scale(QStringLiteral("2000 MHz"), q);
    minScale = new MeterBar_Scale(QStringLiteral("10 KHz"), q);
    maxHScale = new MeterBar_HorizontalScale(QStringLiteral("2000 MHz"), q);
    maxHScale->hide();
    minHScale = new MeterBar_HorizontalScale(QStringLiteral("10 KHz"), q);
    minHScale->hide();

    bar->updateReading(50.0, 0.0, 100.0, 0, QString());
    connect(bar, &MeterBar_Bar::resized, this, &QKXMeterBarPrivate::updateMarkerPositions);
    updateStyle();
}

void QKXMeterBarPrivate::updateStyle()
{
    styles.insert(QStringLiteral("Min"), minStyle);
    styles.insert(QStringLiteral("Max"), maxStyle);
    styles.insert(QStringLiteral("Thumb"), thumbStyle);
    changeSize(currentSizeName);
}

void QKXMeterBarPrivate::changeSize(const QString &size)
{
    // Any other name is stored and lays nothing out; the next style update restores the size.
    meterSize = size;
    if (size == QLatin1String("Max") || size == QLatin1String("Min")) {
        setHorizontal(false);
    } else if (size == QLatin1String("Thumb")) {
        setHorizontal(true);
    }
}

void QKXMeterBarPrivate::resizeMeterFrame()
{
    if (meterSize == QLatin1String("Min") || meterSize == QLatin1String("Max")) {
        const int width = meterSize == QLatin1String("Min") ? minBarWidthValue : maxBarWidthValue;
        meterFrame->setMinimumWidth(width);
        meterFrame->setMaximumWidth(width);
        meterFrame->setMinimumHeight(0);
        meterFrame->setMaximumHeight(QWIDGETSIZE_MAX);
    } else if (meterSize == QLatin1String("Thumb")) {
        meterFrame->setMinimumHeight(30);
        meterFrame->setMaximumHeight(30);
        meterFrame->setMinimumWidth(0);
        meterFrame->setMaximumWidth(QWIDGETSIZE_MAX);
    }
}

void QKXMeterBarPrivate::placeCap(QFrame *cap, const QString &name, int row, int column)
{
    int atRow = -1;
    int atColumn = -1;
    int rowSpan = 0;
    int columnSpan = 0;
    capGrid->getItemPosition(capGrid->indexOf(cap), &atRow, &atColumn, &rowSpan, &columnSpan);
    if (atRow != row || atColumn != column) {
        capGrid->removeWidget(cap);
        capGrid->addWidget(cap, row, column);
    }
    if (cap->objectName() != name) {
        cap->setObjectName(name);
        // The rules a widget took from a sheet stay with it until it is polished again; a "Thumb"
        // meter set vertical keeps its sheet, so its caps must read it again under their new names.
        if (cap->testAttribute(Qt::WA_WState_Polished)) {
            cap->style()->unpolish(cap);
            cap->style()->polish(cap);
        }
    }
}

void QKXMeterBarPrivate::setHorizontal(bool h)
{
    if (h && meterSize != QLatin1String("Thumb")) {
        meterSize = QStringLiteral("Thumb");
    }
    resizeMeterFrame();
    if (!h) {
        maxScale->show();
        minScale->show();
        topCap->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Maximum);
        bottomCap->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Maximum);
        meterFrame->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Minimum);
        placeCap(topCap, QStringLiteral("topCap"), 0, 1);
        placeCap(bottomCap, QStringLiteral("bottomCap"), 2, 1);
        outerLayout->setStretch(1, 1);
    } else {
        maxScale->hide();
        minScale->hide();
        topCap->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Minimum);
        bottomCap->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Minimum);
        meterFrame->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Maximum);
        placeCap(bottomCap, QStringLiteral("leftCap"), 1, 0);
        placeCap(topCap, QStringLiteral("rightCap"), 1, 2);
        outerLayout->setStretch(1, 0);
    }
    QKXWidgetBasePrivate::changeSize(meterSize);
    horizontalValue = h;
    bar->setHorizontal(h);
    updateMarkerPositions();
}

bool QKXMeterBarPrivate::horizontal() const
{
    return horizontalValue;
}

void QKXMeterBarPrivate::updateMarkerPositions()
{
    const int width = bar->width();
    const int height = bar->height();
    if (!horizontalValue) {
        // Each label is centred on one end of the bar and overlaps its right edge.
        const QPoint corner = bar->mapTo(q, QPoint(width, 0));
        maxScale->move(corner.x() - scaleInset, corner.y() - maxScale->height() / 2);
        minScale->move(corner.x() - scaleInset, corner.y() + height - minScale->height() / 2);
    } else {
        const QPoint corner = bar->mapTo(q, QPoint(0, height));
        maxHScale->move(corner.x() + width - maxHScale->width() / 2, corner.y());
        minHScale->move(bar->mapTo(q, QPoint(-minHScale->width() / 2, height)));
    }
}

int QKXMeterBarPrivate::readingTypeIndex() const
{
    return readingTypeIndexValue;
}

void QKXMeterBarPrivate::setReadingTypeIndex(int index)
{
    readingTypeIndexValue = index;
}

int QKXMeterBarPrivate::unitIndex() const
{
    return unitIndexValue;
}

void QKXMeterBarPrivate::setUnitIndex(int index)
{
    unitIndexValue = index;
}

int QKXMeterBarPrivate::minBarWidth() const
{
    return minBarWidthValue;
}

void QKXMeterBarPrivate::setMinBarWidth(int width)
{
    minBarWidthValue = width;
    resizeMeterFrame();
}

int QKXMeterBarPrivate::maxBarWidth() const
{
    return maxBarWidthValue;
}

void QKXMeterBarPrivate::setMaxBarWidth(int width)
{
    maxBarWidthValue = width;
    resizeMeterFrame();
}

QVariant QKXMeterBarPrivate::readingTypes() const
{
    return QVariant(readingTypeList);
}

void QKXMeterBarPrivate::setUnitListString(const QString &list)
{
    unitListString = list;
    unitList.clear();
    const QStringList parts = list.split(QLatin1Char('|'));
    for (const QString &part : parts) {
        unitList.append(ValueHelper::convertToUnits(part));
    }
}

void QKXMeterBarPrivate::reportIgnored(const QString &what) const
{
    qDebug().noquote() << "UserInterface - QKXMeterBar" << kxmeters::quoted(q->objectName()) << what
                       << "- display kept";
}

void QKXMeterBarPrivate::reportMismatchedUnits(const Value_object<double> &value, const Value_object<double> &lower,
                                               const Value_object<double> &upper) const
{
    // Log readers match this message item by item, blanks included.
    qWarning() << "UserInterface - >>>>> MeterBar received mismatched unit types:" << q << "\n"
               << "  -       Value: " << value.Get_value() << "\n"
               << "  -     Reading: " << ValueHelper::toString(value.Get_unit()) << "\n"
               << "  - Lower Limit: " << ValueHelper::toString(lower.Get_unit()) << "\n"
               << "  - Upper Limit: " << ValueHelper::toString(upper.Get_unit()) << "\n";
}

void QKXMeterBarPrivate::setValue(const QVariant &readingList)
{
    const QVariantList list = readingList.toList();
    if (readingList.isNull() || !readingList.isValid() || list.isEmpty() || list.at(0).toList().isEmpty()) {
        qDebug() << "UserInterface - ReadingList is either NULL or invalid!";
        return;
    }

    // What the reading list must hold before anything of it is kept.
    if (list.size() < kxmeters::ReadingListSize) {
        reportIgnored(QStringLiteral("reading list of %1 elements, not %2").arg(list.size()).arg(kxmeters::ReadingListSize));
        return;
    }
    const QVariantList types = list.at(0).toList();
    if (readingTypeIndexValue < 0 || readingTypeIndexValue >= types.size()) {
        reportIgnored(QStringLiteral("reading type %1 of %2").arg(readingTypeIndexValue).arg(types.size()));
        return;
    }
    const QVariantList entry = types.at(readingTypeIndexValue).toList();
    if (entry.size() < 2) {
        reportIgnored(QStringLiteral("reading type %1 is %2, not a [name, value record] pair")
                          .arg(readingTypeIndexValue)
                          .arg(kxmeters::describe(types.at(readingTypeIndexValue))));
        return;
    }
    QString problem;
    if (!kxmeters::flagsReadable(list, kxmeters::LastFlag, &problem)) {
        reportIgnored(problem);
        return;
    }
    const std::pair<const char *, QVariant> records[] = {
        {"reading", entry.at(1)}, {"lower limit", list.at(8)}, {"upper limit", list.at(9)}};
    for (const auto &record : records) {
        problem = kxmeters::recordProblem(record.second);
        if (!problem.isEmpty()) {
            reportIgnored(QLatin1String(record.first) + QLatin1Char(' ') + problem);
            return;
        }
    }

    reading = entry.at(1).toList();
    lowerLimit = list.at(8).toList();
    upperLimit = list.at(9).toList();
    if (readingTypeList.isEmpty()) {
        readingTypeList = kxmeters::readingTypePairs(types);
    }
    // A hidden meter keeps the latest data but does no unit work and no drawing.
    if (!q->testAttribute(Qt::WA_WState_Visible) && updatedOnce) {
        return;
    }
    const auto flag = [&list](int number) { return list.at(number).toBool(); };
    processData(flag(4), flag(1), flag(6), flag(3), flag(2), flag(5), flag(7));
    updatedOnce = true;
}

int QKXMeterBarPrivate::barStateFor(bool flag4, bool flag1, bool flag6, bool flag3, bool flag2, bool flag5, bool flag7)
{
    if (flag4 && flag7) {
        return 0;
    }
    if (flag4) {
        return 2;
    }
    if (flag1) {
        return 4;
    }
    if (flag6) {
        return 6;
    }
    if (flag3) {
        return 5;
    }
    if (flag2) {
        return 8;
    }
    if (flag5) {
        return 7;
    }
    if (flag7) {
        return 3;
    }
    return 0;
}

void QKXMeterBarPrivate::processData(bool flag4, bool flag1, bool flag6, bool flag3, bool flag2, bool flag5,
                                     bool flag7)
{
    Value_object<double> value;
    Value_object<double> lower;
    Value_object<double> upper;
    kxmeters::readValueRecord(reading, value, readingUnits[0]);
    kxmeters::readValueRecord(lowerLimit, lower, readingUnits[1]);
    kxmeters::readValueRecord(upperLimit, upper, readingUnits[2]);
    // The reading's own unit, read from the same text as the value's.
    const Units ownUnits = value.Get_unit();
    const QString oldText = ValueHelper::getUnitString(displayUnits);

    if (unitIndexValue >= 0 && !unitList.isEmpty()) {
        if (unitIndexValue >= unitList.size()) {
            reportIgnored(QStringLiteral("unit index %1 of a unit list of %2").arg(unitIndexValue).arg(unitList.size()));
            return;
        }
        displayUnits = unitList.at(unitIndexValue);
    } else {
        displayUnits = ownUnits;
        try {
            const Units units = value.Get_unit();
            // A unit flagged as fixed is shown as it comes; any other gets the prefix that reads
            // best for the limits.
            if (!units.flag && !ValueHelper::toString(units).isEmpty()) {
                displayUnits = ValueHelper::bestFitUnit(lower, upper);
            } else {
                displayUnits = units;
            }
        } catch (...) {
            reportMismatchedUnits(value, lower, upper);
            return;
        }
    }

    Value_object<double> shownValue = value;
    Value_object<double> shownLower = lower;
    Value_object<double> shownUpper = upper;
    try {
        shownLower.Convert_to(displayUnits);
        shownUpper.Convert_to(displayUnits);
        shownValue.Convert_to(displayUnits);
    } catch (...) {
        reportMismatchedUnits(value, lower, upper);
        return;
    }

    const QString unitText = ValueHelper::getUnitString(displayUnits);
    noReading = flag1;
    updateBarReading(shownValue, shownLower, shownUpper, unitText,
                     barStateFor(flag4, flag1, flag6, flag3, flag2, flag5, flag7));
    if (unitText != oldText) {
        updateStyle();
    }
}

int QKXMeterBarPrivate::scaleDigits(double x)
{
    if (x > 0.0 && x < 1.0) {
        return int(std::fabs(std::floor(std::log10(x)))) + 1;
    }
    return 1;
}

void QKXMeterBarPrivate::updateBarReading(Value_object<double> value, Value_object<double> lower,
                                          Value_object<double> upper, QString unitText, int barState)
{
    const double lowerValue = lower.Get_value();
    const double upperValue = upper.Get_value();
    double reading = value.Get_value();
    // The engine's "no signal" level of a fixed unit sits at the bottom of the bar.
    if (value.Get_unit().flag && reading < -300.0) {
        reading = lowerValue;
    }
    // Without a reading there is no number to draw: the bar is as empty as it can be.
    if (noReading && !std::isfinite(reading)) {
        reading = lowerValue;
    }
    const double factor = std::pow(10.0, barScaleExponent);
    const double scaled[] = {reading * factor, lowerValue * factor, upperValue * factor};
    for (double x : scaled) {
        if (!std::isfinite(x)) {
            reportIgnored(QStringLiteral("reading %1 between %2 and %3 %4 cannot be drawn")
                              .arg(reading)
                              .arg(lowerValue)
                              .arg(upperValue)
                              .arg(unitText));
            return;
        }
    }
    setBarScale(upperValue, scaleDigits(upperValue), lowerValue, scaleDigits(lowerValue), unitText);
    bar->updateReading(scaled[0], scaled[1], scaled[2], barState, unitText);
}

void QKXMeterBarPrivate::setBarScale(double max, int maxDigits, double min, int minDigits, const QString &unitText)
{
    // Limits and unit seldom change: the same scale would only write the same texts again. Compared
    // bit for bit, since -0.0 and 0.0 are written differently.
    const ScaleShown next{max, min, maxDigits, minDigits, unitText};
    if (scaleShown && std::memcmp(&next.max, &shownScale.max, sizeof(double)) == 0
        && std::memcmp(&next.min, &shownScale.min, sizeof(double)) == 0 && next.maxDigits == shownScale.maxDigits
        && next.minDigits == shownScale.minDigits && next.unitText == shownScale.unitText) {
        return;
    }
    shownScale = next;
    scaleShown = true;
    const QString top = QLatin1Char(' ') + QString::number(max, 'f', maxDigits) + QLatin1Char(' ') + unitText;
    const QString bottom = QLatin1Char(' ') + QString::number(min, 'f', minDigits) + QLatin1Char(' ') + unitText;
    maxScale->setText(top);
    maxHScale->setText(top);
    minScale->setText(bottom);
    minHScale->setText(bottom);
}

QKXMeterBar::QKXMeterBar(QWidget *parent)
    : QKXWidgetBase(*new QKXMeterBarPrivate(this), parent)
{
}

QKXMeterBar::QKXMeterBar(QKXMeterBarPrivate &dd, QWidget *parent)
    : QKXWidgetBase(dd, parent)
{
}

QKXMeterBar::~QKXMeterBar() = default;

int QKXMeterBar::readingTypeIndex() const
{
    Q_D(const QKXMeterBar);
    return d->readingTypeIndex();
}

QVariant QKXMeterBar::readingTypes() const
{
    Q_D(const QKXMeterBar);
    return d->readingTypes();
}

int QKXMeterBar::unitIndex() const
{
    Q_D(const QKXMeterBar);
    return d->unitIndex();
}

bool QKXMeterBar::horizontal() const
{
    Q_D(const QKXMeterBar);
    return d->horizontal();
}

void QKXMeterBar::setHorizontal(bool horizontal)
{
    Q_D(QKXMeterBar);
    d->setHorizontal(horizontal);
}

int QKXMeterBar::minBarWidth() const
{
    Q_D(const QKXMeterBar);
    return d->minBarWidth();
}

void QKXMeterBar::setMinBarWidth(int width)
{
    Q_D(QKXMeterBar);
    d->setMinBarWidth(width);
}

int QKXMeterBar::maxBarWidth() const
{
    Q_D(const QKXMeterBar);
    return d->maxBarWidth();
}

void QKXMeterBar::setMaxBarWidth(int width)
{
    Q_D(QKXMeterBar);
    d->setMaxBarWidth(width);
}

void QKXMeterBar::setValue(const QVariant &readingList)
{
    Q_D(QKXMeterBar);
    d->setValue(readingList);
}

void QKXMeterBar::setReadingTypeIndex(int index)
{
    Q_D(QKXMeterBar);
    d->setReadingTypeIndex(index);
}

void QKXMeterBar::setUnitIndex(int index)
{
    Q_D(QKXMeterBar);
    d->setUnitIndex(index);
}

void QKXMeterBar::setUnitListString(const QString &unitList)
{
    Q_D(QKXMeterBar);
    d->setUnitListString(unitList);
}

void QKXMeterBar::resizeEvent(QResizeEvent *event)
{
    Q_D(QKXMeterBar);
    QKXWidgetBase::resizeEvent(event);
    d->updateMarkerPositions();
}

void QKXMeterBar::showEvent(QShowEvent *event)
{
    Q_D(QKXMeterBar);
    QKXWidgetBase::showEvent(event);
    d->updateMarkerPositions();
}
