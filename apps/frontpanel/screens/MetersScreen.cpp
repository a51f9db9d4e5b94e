// SPDX-License-Identifier: BSD-3-Clause
#include "MetersScreen.h"

#include "PanelHost.h"
#include "ScreenRunner.h"
#include "SimulatedEngine.h"

#include "QKXMeterBar.h"
#include "QKXNumericMeterReading.h"

#include <QLineEdit>
#include <QTimer>
#include <QtMath>

#include "ui_MetersScreen.h"

namespace {

const QString meters_watt = QStringLiteral("0,0,6:1;0:0;0:0;0:0;0:0");
const QString meters_hertz = QStringLiteral("0,0,1:1;0:0;0:0;0:0;0:0");

constexpr double meters_powerRange = 50.0;     // the meters' upper limit, W
constexpr double meters_powerTestLimit = 40.0;  // the average the transmitter may reach, W
constexpr double meters_errorRange = 500.0;    // Hz either way
constexpr double meters_errorTolerance = 200.0;

// [units, minus error, plus error, value]: the power meter's accuracy is 2 %, the counter's 1 Hz.
QVariant meters_record(const QString &units, double value, double error)
{
    return QVariantList{units, error, error, value};
}

QVariant meters_readingList(const QVariantList &types, std::initializer_list<int> flags, const QVariant &lower,
                            const QVariant &upper)
{
    QVariantList list{QVariant(types)};
    for (int flag = 1; flag <= 7; ++flag) {
        list.append(std::find(flags.begin(), flags.end(), flag) != flags.end());
    }
    list << lower << upper;
    return list;
}

double meters_wave(int tick, double period)
{
    return qSin(2.0 * M_PI * tick / period);
}

// The transmitter's average power: slow drift, a faster ripple, and every 12 seconds a burst of
// 1.5 s that drives it past the meters' range.
double meters_averagePower(int tick)
{
    const bool burst = tick % 120 >= 60 && tick % 120 < 75;
    return 30.0 + 10.0 * meters_wave(tick, 90.0) + 3.0 * meters_wave(tick, 17.0) + (burst ? 22.0 : 0.0);
}

// The signal is lost for 1.5 s every 15 s.
bool meters_noSignal(int tick)
{
    return tick % 150 >= 100 && tick % 150 < 115;
}

double meters_frequencyError(int tick)
{
    return 150.0 * meters_wave(tick, 70.0) + 90.0 * meters_wave(tick, 23.0);
}

} // namespace

QVariant MetersScreen::powerReading(int tick)
{
    const double average = meters_averagePower(tick);
    const double peak = average * 1.2;   // the modulation's crest
    const double clipped = qMin(peak, meters_powerRange * 1.1);
    const QVariantList types{QVariant(QVariantList{QStringLiteral("Average"), meters_record(meters_watt, average, average * 0.02)}),
                             QVariant(QVariantList{QStringLiteral("Peak"), meters_record(meters_watt, clipped, clipped * 0.02)})};
    const QVariant lower = meters_record(meters_watt, 0.0, 0.0);
    const QVariant upper = meters_record(meters_watt, meters_powerRange, 0.0);
    if (peak > meters_powerRange) {
        return meters_readingList(types, {2, 3, 4}, lower, upper);
    }
    if (average > meters_powerTestLimit) {
        return meters_readingList(types, {4}, lower, upper);
    }
    return meters_readingList(types, {4, 7}, lower, upper);
}

QVariant MetersScreen::frequencyErrorReading(int tick)
{
    const bool lost = meters_noSignal(tick);
    const double error = lost ? qQNaN() : meters_frequencyError(tick);
    const QVariantList types{QVariant(QVariantList{QStringLiteral("Error"), meters_record(meters_hertz, error, 1.0)})};
    const QVariant lower = meters_record(meters_hertz, -meters_errorRange, 0.0);
    const QVariant upper = meters_record(meters_hertz, meters_errorRange, 0.0);
    if (lost) {
        return meters_readingList(types, {1}, lower, upper);
    }
    if (qAbs(error) > meters_errorTolerance) {
        return meters_readingList(types, {4}, lower, upper);
    }
    return meters_readingList(types, {4, 7}, lower, upper);
}

QString MetersScreen::id() const
{
    return QStringLiteral("meters");
}

void MetersScreen::addAttributes(SimulatedEngine &simulated)
{
    engine = &simulated;
    simulated.addMeasurement(QStringLiteral("PowerReading"), powerReading(0));
    simulated.addMeasurement(QStringLiteral("FrequencyError"), frequencyErrorReading(0));
    // The measurement runs whether or not the screen is shown; hidden meters only keep the lists.
    clock = new QTimer(this);
    clock->setInterval(100);
    connect(clock, &QTimer::timeout, this, [this] { publish(tick + 1); });
    clock->start();
}

void MetersScreen::publish(int next)
{
    tick = next;
    engine->publish(QStringLiteral("PowerReading"), powerReading(tick));
    engine->publish(QStringLiteral("FrequencyError"), frequencyErrorReading(tick));
}

QWidget *MetersScreen::createPage()
{
    return formPage<Ui::MetersScreen>();
}

void MetersScreen::wire(PanelHost &host, QWidget *page)
{
    // Displays only: bound to the engine's reading lists, without a filter.
    host.wireEach<QKXMeterBar>(page, [&host](QKXMeterBar *meter) -> QKXEventFilterBase * {
        host.followValue(meter, [meter](const QVariant &readingList) { meter->setValue(readingList); });
        return nullptr;
    });
    host.wireEach<QKXNumericMeterReading>(page, [&host](QKXNumericMeterReading *reading) -> QKXEventFilterBase * {
        host.followValue(reading, [reading](const QVariant &readingList) { reading->setValue(readingList); });
        return nullptr;
    });
}

bool MetersScreen::play(ScreenRunner &runner)
{
    auto *average = runner.boundWidget<QKXNumericMeterReading>(QStringLiteral("PowerReading"));
    auto *error = runner.boundWidget<QKXNumericMeterReading>(QStringLiteral("FrequencyError"));
    if (!average || !error || !runner.showScreenOf(average, QStringLiteral("the power reading"))) {
        return runner.fail(QStringLiteral("no power or frequency error reading on the meters screen"));
    }
    clock->stop();

    // The first moment of the measurement at which the condition holds.
    const auto firstTick = [](const std::function<bool(int)> &condition) {
        int at = 0;
        while (!condition(at)) {
            ++at;
        }
        return at;
    };
    const auto flagged = [](const QVariant &readingList, int flag) { return readingList.toList().value(flag).toBool(); };
    struct Moment {
        QString name;
        std::function<bool(int)> condition;
        const char *averageColour;   // in the average power's sheet
        QString errorText;           // a text the error reading must show, if any
    };
    const Moment moments[] = {
        {QStringLiteral("meters-in-limits"),
         [&](int t) { return flagged(powerReading(t), 7) && flagged(frequencyErrorReading(t), 7) && t > 20; },
         "#00FF00", QString()},
        {QStringLiteral("meters-over-range"),
         [&](int t) { return flagged(powerReading(t), 3) && !flagged(frequencyErrorReading(t), 7) && !meters_noSignal(t); },
         "#FEFE00", QString()},
        {QStringLiteral("meters-no-signal"),
         [&](int t) { return meters_noSignal(t) && !flagged(powerReading(t), 7) && !flagged(powerReading(t), 3); },
         "#E00", QStringLiteral("---")},
    };
    QLineEdit *errorDisplay = error->findChild<QLineEdit *>();
    for (const Moment &moment : moments) {
        const int at = firstTick(moment.condition);
        runner.engine()->appendLog(QStringLiteral("measurement at %1 s").arg(at / 10.0));
        publish(at);
        if (!average->styleSheet().contains(QLatin1String(moment.averageColour))
            || (!moment.errorText.isEmpty() && errorDisplay->text() != moment.errorText)) {
            clock->start();
            return runner.fail(QStringLiteral("at %1 s the power reading is not coloured %2 or the error shows \"%3\"")
                                   .arg(at / 10.0)
                                   .arg(QLatin1String(moment.averageColour), errorDisplay->text()));
        }
        if (!runner.snapshot(moment.name)) {
            clock->start();
            return false;
        }
    }
    clock->start();
    return true;
}
