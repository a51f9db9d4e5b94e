// SPDX-License-Identifier: BSD-3-Clause
// What 50 meters cost the GUI thread when the engine sends each of them a reading list 20 times a
// second (1000 updates a second), against a reference screen of plain Qt widgets given the same
// numbers: a QProgressBar and a QLabel per meter, once as they come (a label's new text has the
// screen's layout worked out again) and once with labels of a fixed size (which it does not).
//
// Each meter is a QKXMeterBar with a QKXNumericMeterReading under it, on one 1500x1100 screen;
// half of them read a power (0 to 50 W), half a frequency error (-500 to 500 Hz), both wandering.
// The reading lists are built before the clock starts: building them is the engine's work.
//
// Figures are the GUI thread's CPU time (not wall time: the machine is shared), the median of
// several runs that alternate between the two screens:
//   update       one reading list taken into one meter, up to its bar and labels, with the posted
//                events it causes (layout) handled; painting held back
//   unchanged    the same, for a reading list that changes nothing on the screen
//   status       the same, for a reading whose status colour changes (the reference restyles its label)
//   paint        one full repaint of the screen
//   tick         one 20 Hz tick on a live screen: 50 updates and the repaint they cause (plain Qt's
//                progress bars repaint themselves as they take a value)
//
// Under callgrind (./kx bench meters --instructions) each update measurement of one run is also
// counted in instructions, which the machine's load does not move: the counts are dumped per
// screen and kx prints them per update.
//
// Run: ./kx bench meters   (or build-bench/bin/bench_meters [rounds] [runs])

#include "QKXMeterBar.h"
#include "QKXNumericMeterReading.h"

#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QProgressBar>
#include <QTextStream>
#include <QVBoxLayout>

#if __has_include(<valgrind/callgrind.h>)
#include <valgrind/callgrind.h>
#else
#define RUNNING_ON_VALGRIND 0
#define CALLGRIND_ZERO_STATS
#define CALLGRIND_DUMP_STATS_AT(name)
#endif

#include <algorithm>
#include <cmath>
#include <ctime>
#include <functional>
#include <vector>

namespace {

constexpr int MeterCount = 50;
constexpr int Columns = 10;

const QString bench_watt = QStringLiteral("0,0,6:1;0:0;0:0;0:0;0:0");
const QString bench_hertz = QStringLiteral("0,0,1:1;0:0;0:0;0:0;0:0");

double threadSeconds()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return double(now.tv_sec) + double(now.tv_nsec) * 1e-9;
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

// One update as both screens get it: the engine's reading list, and the same numbers plain.
struct Update
{
    QVariant readingList;
    double value;
    double lower;
    double upper;
    bool alarm;
};

QVariant record(const QString &units, double value)
{
    return QVariantList{units, 0.01, 0.01, value};
}

QVariant readingList(const QString &units, double value, double lower, double upper, bool alarm)
{
    QVariantList list{QVariant(QVariantList{QVariant(QVariantList{QStringLiteral("Average"), record(units, value)})})};
    for (int flag = 1; flag <= 7; ++flag) {
        list.append(alarm && flag == 4);
    }
    list << record(units, lower) << record(units, upper);
    return list;
}

// rounds x MeterCount updates; a power wanders by up to 0.8 W a reading, a frequency error by 20 Hz.
std::vector<std::vector<Update>> makeRounds(int rounds, bool alarms)
{
    std::vector<std::vector<Update>> all(rounds, std::vector<Update>(MeterCount));
    quint32 seed = 12345;
    const auto random = [&seed] {
        seed = seed * 1664525u + 1013904223u;
        return double(seed >> 8) / double(1u << 24) - 0.5;
    };
    for (int meter = 0; meter < MeterCount; ++meter) {
        const bool power = meter % 2 == 0;
        double value = power ? 20.0 + meter % 10 : 0.0;
        for (int round = 0; round < rounds; ++round) {
            value += random() * (power ? 1.6 : 40.0);
            const double lower = power ? 0.0 : -500.0;
            const double upper = power ? 50.0 : 500.0;
            value = std::min(std::max(value, lower - 10.0), upper + 10.0);
            const bool alarm = alarms && round % 2 == 1;
            all[round][meter] = {readingList(power ? bench_watt : bench_hertz, value, lower, upper, alarm), value, lower,
                                 upper, alarm};
        }
    }
    return all;
}

// A screen of 50 meter cells; feed(i, update) hands one update to cell i.
struct Screen
{
    QByteArray name;
    QWidget window;
    std::function<void(int, const Update &)> feed;

    void show()
    {
        // The panel's dark background, as a palette: a sheet would restyle the reference's widgets too.
        QPalette dark = window.palette();
        dark.setColor(QPalette::Window, QColor(0x1c, 0x24, 0x2e));
        window.setPalette(dark);
        window.setAutoFillBackground(true);
        window.resize(1500, 1100);
        window.show();
        QApplication::processEvents();
    }
};

void buildMeters(Screen &screen)
{
    auto *grid = new QGridLayout(&screen.window);
    std::vector<QKXMeterBar *> bars;
    std::vector<QKXNumericMeterReading *> readings;
    for (int i = 0; i < MeterCount; ++i) {
        auto *cell = new QWidget;
        auto *layout = new QVBoxLayout(cell);
        auto *bar = new QKXMeterBar;
        bar->setMinimumHeight(150);
        auto *reading = new QKXNumericMeterReading;
        // As a form sets one up: the engine's unit, offered as the field's only unit.
        reading->setBaseUnit(i % 2 == 0 ? bench_watt : bench_hertz);
        reading->setUnitListString(i % 2 == 0 ? bench_watt : bench_hertz);
        reading->setPrecision(2);
        layout->addWidget(bar);
        layout->addWidget(reading);
        grid->addWidget(cell, i / Columns, i % Columns);
        bars.push_back(bar);
        readings.push_back(reading);
    }
    screen.feed = [bars, readings](int i, const Update &update) {
        bars[i]->setValue(update.readingList);
        readings[i]->setValue(update.readingList);
    };
}

void buildReference(Screen &screen, bool fixedLabels)
{
    auto *grid = new QGridLayout(&screen.window);
    std::vector<QProgressBar *> bars;
    std::vector<QLabel *> labels;
    std::vector<bool> alarmed(MeterCount, false);
    for (int i = 0; i < MeterCount; ++i) {
        auto *cell = new QWidget;
        auto *layout = new QVBoxLayout(cell);
        auto *bar = new QProgressBar;
        bar->setOrientation(Qt::Vertical);
        bar->setRange(0, 1000);
        bar->setTextVisible(false);
        bar->setMinimumHeight(150);
        auto *label = new QLabel;
        if (fixedLabels) {
            label->setFixedSize(120, 24);
        }
        layout->addWidget(bar);
        layout->addWidget(label);
        grid->addWidget(cell, i / Columns, i % Columns);
        bars.push_back(bar);
        labels.push_back(label);
    }
    screen.feed = [bars, labels, alarmed](int i, const Update &update) mutable {
        const double span = update.upper - update.lower;
        bars[i]->setValue(int(std::lround((update.value - update.lower) / span * 1000.0)));
        labels[i]->setText(QString::number(update.value, 'f', 2) + (i % 2 == 0 ? QLatin1String(" W") : QLatin1String(" Hz")));
        if (update.alarm != alarmed[i]) {
            alarmed[i] = update.alarm;
            labels[i]->setStyleSheet(update.alarm ? QStringLiteral("background: #E00;") : QString());
        }
    };
}

// CPU seconds per update of feeding the rounds, painting held back. Under callgrind the
// instructions of the loop are dumped under the name.
double timeUpdates(Screen &screen, const std::vector<std::vector<Update>> &rounds, bool repeatFirst,
                   const QByteArray &name = QByteArray())
{
    screen.window.setUpdatesEnabled(false);
    CALLGRIND_ZERO_STATS;
    const double start = threadSeconds();
    for (const std::vector<Update> &round : rounds) {
        const std::vector<Update> &fed = repeatFirst ? rounds.front() : round;
        for (int i = 0; i < MeterCount; ++i) {
            screen.feed(i, fed[i]);
        }
        QCoreApplication::sendPostedEvents();
    }
    const double seconds = threadSeconds() - start;
    if (!name.isEmpty() && RUNNING_ON_VALGRIND) {
        CALLGRIND_DUMP_STATS_AT(name.constData());
    }
    screen.window.setUpdatesEnabled(true);
    QApplication::processEvents();
    return seconds / double(rounds.size() * MeterCount);
}

// CPU seconds of one full repaint of the screen.
double timePaint(Screen &screen)
{
    QApplication::processEvents();
    const double start = threadSeconds();
    screen.window.repaint();
    return threadSeconds() - start;
}

// CPU seconds of one live tick: every meter updated, then the repaint that asks for.
double timeTicks(Screen &screen, const std::vector<std::vector<Update>> &rounds)
{
    QApplication::processEvents();
    const double start = threadSeconds();
    for (const std::vector<Update> &round : rounds) {
        for (int i = 0; i < MeterCount; ++i) {
            screen.feed(i, round[i]);
        }
        QCoreApplication::sendPostedEvents();
    }
    return (threadSeconds() - start) / double(rounds.size());
}

struct Figures
{
    std::vector<double> update, unchanged, status, paint, tick;
};

void measure(Screen &screen, Figures &figures, const std::vector<std::vector<Update>> &steady,
             const std::vector<std::vector<Update>> &alarms)
{
    figures.update.push_back(timeUpdates(screen, steady, false, screen.name + " update"));
    figures.unchanged.push_back(timeUpdates(screen, steady, true, screen.name + " unchanged"));
    figures.status.push_back(timeUpdates(screen, alarms, false));
    figures.paint.push_back(timePaint(screen));
    figures.tick.push_back(timeTicks(screen, steady));
}

} // namespace

int main(int argc, char *argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication app(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    const int rounds = argc > 1 ? std::max(2, QString::fromLocal8Bit(argv[1]).toInt()) : 40;
    const int runs = argc > 2 ? std::max(1, QString::fromLocal8Bit(argv[2]).toInt()) : 7;

    Screen meters;
    meters.name = "meters";
    buildMeters(meters);
    meters.show();
    Screen reference;
    reference.name = "plain";
    buildReference(reference, false);
    reference.show();
    Screen fixed;
    fixed.name = "fixed";
    buildReference(fixed, true);
    fixed.show();

    const std::vector<std::vector<Update>> steady = makeRounds(rounds, false);
    const std::vector<std::vector<Update>> alarms = makeRounds(rounds, true);
    // A first pass of each warms caches, fonts and the unit texts; it is not counted.
    Figures ours;
    Figures plain;
    Figures tuned;
    measure(meters, ours, steady, alarms);
    measure(reference, plain, steady, alarms);
    measure(fixed, tuned, steady, alarms);
    ours = Figures();
    plain = Figures();
    tuned = Figures();
    for (int run = 0; run < runs; ++run) {
        measure(meters, ours, steady, alarms);
        measure(reference, plain, steady, alarms);
        measure(fixed, tuned, steady, alarms);
    }

    QTextStream out(stdout);
    if (RUNNING_ON_VALGRIND) {
        out << QStringLiteral("updates per measurement: %1\n").arg(rounds * MeterCount);
        return 0;
    }
    out << QStringLiteral("%1 meters, %2 rounds of reading lists per run, median of %3 runs, GUI-thread CPU time\n")
               .arg(MeterCount)
               .arg(rounds)
               .arg(runs);
    out << QStringLiteral("%1 %2 %3 %4 %5 %6\n")
               .arg(QStringLiteral("figure"), -34)
               .arg(QStringLiteral("meters"), 10)
               .arg(QStringLiteral("plain Qt"), 10)
               .arg(QStringLiteral("ratio"), 7)
               .arg(QStringLiteral("fixed labels"), 13)
               .arg(QStringLiteral("ratio"), 7);
    const auto row = [&](const QString &name, const std::vector<double> Figures::*figure, double scale) {
        const double x = median(ours.*figure);
        const double y = median(plain.*figure);
        const double z = median(tuned.*figure);
        out << QStringLiteral("%1 %2 %3 %4 %5 %6\n")
                   .arg(name, -34)
                   .arg(x * scale, 10, 'f', 2)
                   .arg(y * scale, 10, 'f', 2)
                   .arg(x / y, 7, 'f', 2)
                   .arg(z * scale, 13, 'f', 2)
                   .arg(x / z, 7, 'f', 2);
    };
    row(QStringLiteral("update, us"), &Figures::update, 1e6);
    row(QStringLiteral("unchanged reading list, us"), &Figures::unchanged, 1e6);
    row(QStringLiteral("status colour change, us"), &Figures::status, 1e6);
    row(QStringLiteral("full screen paint, ms"), &Figures::paint, 1e3);
    row(QStringLiteral("live 20 Hz tick (50 updates), ms"), &Figures::tick, 1e3);
    // A live screen at 20 Hz: twenty ticks a second, each with its share of repainting.
    out << QStringLiteral("GUI thread busy with the live screen at 20 Hz: %1 % (plain Qt %2 %, fixed labels %3 %)\n")
               .arg(median(ours.tick) * 20.0 * 100.0, 0, 'f', 1)
               .arg(median(plain.tick) * 20.0 * 100.0, 0, 'f', 1)
               .arg(median(tuned.tick) * 20.0 * 100.0, 0, 'f', 1);
    return 0;
}
