// The engine's attributes with units; the rest of SimulatedEngine is in SimulatedEngine.cpp.
#include "SimulatedEngine.h"

#include <cmath>

namespace {
const QString engineunits_hertz = QStringLiteral("0,0,1:1;0:0;0:0;0:0;0:0");
const QString engineunits_dBm = QStringLiteral("0,0,14:1;0:0;0:0;0:0;0:0");
} // namespace

void SimulatedEngine::addUnitAttributes()
{
    struct UnitAttribute {
        QString name;
        double preset;
        QString unit;
        double lower;
        double upper;
    };
    const UnitAttribute table[] = {
        {QStringLiteral("GeneratorFrequency"), 433.92e6, engineunits_hertz, 1.0e3, 6.0e9},
        {QStringLiteral("OutputLevel"), -20.0, engineunits_dBm, -130.0, 10.0},
        {QStringLiteral("ResolutionBandwidth"), 10.0e3, engineunits_hertz, 1.0e3, 100.0e3},
    };
    for (const UnitAttribute &attribute : table) {
        presetValues.insert(attribute.name, attribute.preset);
        values.insert(attribute.name, attribute.preset);
        limits.insert(attribute.name, qMakePair(attribute.lower, attribute.upper));
        unitStrings.insert(attribute.name, attribute.unit);
    }
    // The analyser's filters come in a 1-3-10 series.
    discreteLists.insert(QStringLiteral("ResolutionBandwidth"), {1.0e3, 3.0e3, 10.0e3, 30.0e3, 100.0e3});
}

QString SimulatedEngine::unitString(const QString &name) const
{
    return unitStrings.value(name);
}

QList<double> SimulatedEngine::discreteValues(const QString &name) const
{
    return discreteLists.value(name);
}

QVariant SimulatedEngine::nearestDiscreteValue(const QString &name, const QVariant &value)
{
    const QList<double> allowed = discreteLists.value(name);
    bool isNumber = false;
    const double asked = value.toDouble(&isNumber);
    if (allowed.isEmpty() || !isNumber || std::isnan(asked)) {
        return value;
    }
    double nearest = allowed.first();
    for (double candidate : allowed) {
        if (std::fabs(candidate - asked) < std::fabs(nearest - asked)) {
            nearest = candidate;
        }
    }
    if (nearest != asked) {
        appendLog(QStringLiteral("request %1 = %2 set to the nearest filter, %3").arg(name).arg(asked).arg(nearest));
    }
    return nearest;
}
