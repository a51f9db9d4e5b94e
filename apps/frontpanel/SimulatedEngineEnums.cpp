// The engine's enumerated attributes; the rest of SimulatedEngine is in SimulatedEngine.cpp.
#include "SimulatedEngine.h"

#include <QVariantList>

namespace {

struct Enumeration {
    const char *name;
    int preset;
    QVariantList record;
};

QVariant engineenums_entry(int value, const QString &literal)
{
    return QVariantList{value, literal};
}

// The codes are the engine's own, as on the instrument: not contiguous and not sorted by literal.
QVector<Enumeration> engineenums_table()
{
    QVariantList channels;
    // The marine VHF simplex channels the receiver tests are run on: more rows than the table shows.
    const int numbers[] = {6, 8, 9, 10, 13, 15, 16, 17, 67, 68, 69, 70, 71, 72, 73, 74, 77};
    for (int number : numbers) {
        // Channels 60 and up sit 25 kHz above the band's first half.
        const double mhz = number < 60 ? 156.0 + 0.05 * number : 156.025 + 0.05 * (number - 60);
        const char *use = number == 16 ? "Distress" : number == 70 ? "DSC" : number == 13 ? "Bridge" : "Ship";
        channels << engineenums_entry(number, QStringLiteral("%1,%2 MHz,%3")
                                                  .arg(number, 2, 10, QLatin1Char('0'))
                                                  .arg(mhz, 0, 'f', 3)
                                                  .arg(QLatin1String(use)));
    }
    return {
        {"ModulationType", 1,
         {engineenums_entry(0, QStringLiteral("AM")), engineenums_entry(1, QStringLiteral("FM")),
          engineenums_entry(2, QStringLiteral("PM")), engineenums_entry(4, QStringLiteral("SSB")),
          engineenums_entry(5, QStringLiteral("DSB-SC")), engineenums_entry(8, QStringLiteral("CW"))}},
        {"IfBandwidth", 12500,
         {engineenums_entry(6250, QStringLiteral("6.25 kHz")), engineenums_entry(8330, QStringLiteral("8.33 kHz")),
          engineenums_entry(12500, QStringLiteral("12.5 kHz")), engineenums_entry(20000, QStringLiteral("20 kHz")),
          engineenums_entry(25000, QStringLiteral("25 kHz")), engineenums_entry(30000, QStringLiteral("30 kHz")),
          engineenums_entry(50000, QStringLiteral("50 kHz")), engineenums_entry(100000, QStringLiteral("100 kHz")),
          engineenums_entry(150000, QStringLiteral("150 kHz")), engineenums_entry(200000, QStringLiteral("200 kHz")),
          engineenums_entry(300000, QStringLiteral("300 kHz")), engineenums_entry(1000000, QStringLiteral("1 MHz"))}},
        {"Detector", 1,
         {engineenums_entry(0, QStringLiteral("Peak")), engineenums_entry(1, QStringLiteral("RMS")),
          engineenums_entry(2, QStringLiteral("Average")), engineenums_entry(3, QStringLiteral("Quasi-peak")),
          engineenums_entry(4, QStringLiteral("Min peak")), engineenums_entry(5, QStringLiteral("Sample"))}},
        {"RadioChannel", 16, channels},
    };
}

} // namespace

void SimulatedEngine::addEnumerations()
{
    for (const Enumeration &e : engineenums_table()) {
        const QString name = QString::fromLatin1(e.name);
        records.insert(name, e.record);
        presetValues.insert(name, e.preset);
        values.insert(name, e.preset);
    }
}

bool SimulatedEngine::isEnumerated(const QString &name) const
{
    return records.contains(name);
}

QVariant SimulatedEngine::metaData(const QString &name) const
{
    return records.value(name);
}

bool SimulatedEngine::acceptsListedValue(const QString &name, const QVariant &value)
{
    const auto record = records.constFind(name);
    if (record == records.constEnd()) {
        return true;
    }
    bool isNumber = false;
    const int code = value.toInt(&isNumber);
    if (isNumber) {
        for (const QVariant &entry : record.value().toList()) {
            if (entry.toList().value(0).toInt() == code) {
                return true;
            }
        }
    }
    appendLog(QStringLiteral("request %1 = %2 rejected: not a listed value").arg(name, value.toString()));
    return false;
}
