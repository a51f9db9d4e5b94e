// SPDX-License-Identifier: BSD-3-Clause
#include "SimulatedEngine.h"

#include <QFile>
#include <QTextStream>
#include <QTimer>

#include <cmath>
#include <cstdio>

static QString engine_valueText(const QVariant &value)
{
    if (value.type() == QVariant::Bool) {
        return value.toBool() ? QStringLiteral("true") : QStringLiteral("false");
    }
    return value.toString();
}

SimulatedEngine::SimulatedEngine(QObject *parent)
    : QObject(parent)
    , echo(false)
    , sweepTimer(new QTimer(this))
{
    // What every screen shares. Preset restores every attribute any screen declared.
    addCommand(QStringLiteral("Preset"), tr("Preset"), [this] {
        for (auto it = presetValues.constBegin(); it != presetValues.constEnd(); ++it) {
            setValue(it.key(), it.value());
        }
    });
    addValue(QStringLiteral("RfOutput"), true);
    setSettleTime(QStringLiteral("RfOutput"), 800);
    addCommand(QStringLiteral("RfOn"), tr("RF on"), [this] { setValue(QStringLiteral("RfOutput"), true); });
    addCommand(QStringLiteral("RfOff"), tr("RF off"), [this] { setValue(QStringLiteral("RfOutput"), false); });
    addValue(QStringLiteral("SweepState"), QStringLiteral("Stopped"));
    addValue(QStringLiteral("SweepProgress"), 0);
    addValue(QStringLiteral("Overload"), false);
    addCommand(QStringLiteral("StartSweep"), tr("Start sweep"),
               [this] { setValue(QStringLiteral("SweepState"), QStringLiteral("Running")); });
    addCommand(QStringLiteral("StopSweep"), tr("Stop sweep"),
               [this] { setValue(QStringLiteral("SweepState"), QStringLiteral("Stopped")); });
    addValue(QStringLiteral("SettingsFile"), QString());

    sweepTimer->setInterval(150);
    connect(sweepTimer, &QTimer::timeout, this, &SimulatedEngine::stepSweep);
    connect(this, &SimulatedEngine::valueChanged, this, [this](const QString &name, const QVariant &value) {
        if (name == QLatin1String("SweepState")) {
            if (value.toString() == QLatin1String("Running")) {
                sweepTimer->start();
            } else {
                sweepTimer->stop();
            }
        }
    });
}

SimulatedEngine::~SimulatedEngine() = default;

void SimulatedEngine::addValue(const QString &name, const QVariant &preset)
{
    if (hasAttribute(name)) {
        return;
    }
    presetValues.insert(name, preset);
    values.insert(name, preset);
}

void SimulatedEngine::addMeasurement(const QString &name, const QVariant &first)
{
    if (hasAttribute(name)) {
        return;
    }
    values.insert(name, first);
    measurements.insert(name);
}

bool SimulatedEngine::publish(const QString &name, const QVariant &value)
{
    if (!measurements.contains(name)) {
        return false;
    }
    values.insert(name, value);
    emit valueChanged(name, value);
    return true;
}

void SimulatedEngine::addCommand(const QString &name, const QString &label, const std::function<void()> &effect)
{
    if (hasAttribute(name)) {
        return;
    }
    commands.insert(name, {label, effect});
}

bool SimulatedEngine::hasAttribute(const QString &name) const
{
    return values.contains(name) || commands.contains(name);
}

bool SimulatedEngine::isCommand(const QString &name) const
{
    return commands.contains(name);
}

QStringList SimulatedEngine::attributeNames() const
{
    QStringList names = values.keys() + commands.keys();
    names.sort();
    return names;
}

QString SimulatedEngine::commandLabel(const QString &name) const
{
    const QString label = commands.value(name).label;
    return label.isEmpty() ? name : label;
}

QVariant SimulatedEngine::value(const QString &name) const
{
    return values.value(name);
}

bool SimulatedEngine::setValue(const QString &name, const QVariant &value)
{
    if (!values.contains(name)) {
        appendLog(QStringLiteral("set %1 rejected: unknown attribute").arg(name));
        return false;
    }
    if (values.value(name) == value) {
        return true;
    }
    values.insert(name, value);
    appendLog(QStringLiteral("set %1 = %2").arg(name, engine_valueText(value)));
    emit valueChanged(name, value);
    return true;
}

bool SimulatedEngine::command(const QString &name)
{
    if (!commands.contains(name)) {
        const char *reason = values.contains(name) ? "not a command" : "unknown attribute";
        appendLog(QStringLiteral("command %1 rejected: %2").arg(name, QLatin1String(reason)));
        return false;
    }
    appendLog(QStringLiteral("command %1").arg(name));
    const std::function<void()> effect = commands.value(name).effect;
    if (effect) {
        effect();
    }
    emit commandExecuted(name);
    return true;
}

SimulatedEngine::Answer SimulatedEngine::requestValue(const QString &name, const QVariant &value)
{
    if (!values.contains(name)) {
        appendLog(QStringLiteral("request %1 rejected: unknown attribute").arg(name));
        return Refused;
    }
    if (!acceptsListedValue(name, value)) {
        emit valueConfirmed(name, values.value(name));
        return Refused;
    }
    Answer answer = Taken;
    QVariant accepted = nearestDiscreteValue(name, value);
    if (limits.contains(name)) {
        bool isNumber = false;
        const double asked = value.toDouble(&isNumber);
        const bool usable = isNumber && !qIsNaN(asked);
        const double kept = usable ? qBound(lowerLimit(name), asked, upperLimit(name)) : values.value(name).toDouble();
        // The attribute keeps its type: an integer attribute stays integer whatever it was sent.
        accepted = values.value(name).type() == QVariant::Int ? QVariant(qRound(kept)) : QVariant(kept);
        if (accepted != value) {
            appendLog(QStringLiteral("request %1 = %2 clamped to %3").arg(name, engine_valueText(value),
                                                                           engine_valueText(accepted)));
        }
        if (!usable) {
            answer = Refused;
        } else if (kept != asked) {
            answer = Clamped;
        }
    }
    const auto apply = [this, name, value = accepted] {
        if (name == QLatin1String("SettingsFile")) {
            loadSettings(value.toString());
        } else {
            setValue(name, value);
        }
        emit valueConfirmed(name, values.value(name));
    };
    const int delay = settleTime(name);
    if (delay <= 0) {
        apply();
        return answer;
    }
    appendLog(QStringLiteral("request %1 = %2, settling for %3 ms").arg(name, engine_valueText(value)).arg(delay));
    QTimer::singleShot(delay, this, apply);
    return answer;
}

int SimulatedEngine::settleTime(const QString &name) const
{
    return settleTimes.value(name, 0);
}

void SimulatedEngine::setSettleTime(const QString &name, int ms)
{
    settleTimes.insert(name, ms);
}

bool SimulatedEngine::hasLimits(const QString &name) const
{
    return limits.contains(name);
}

double SimulatedEngine::lowerLimit(const QString &name) const
{
    return limits.value(name).first;
}

double SimulatedEngine::upperLimit(const QString &name) const
{
    return limits.value(name).second;
}

void SimulatedEngine::setLimits(const QString &name, double lower, double upper)
{
    limits.insert(name, qMakePair(lower, upper));
}

void SimulatedEngine::setMetaData(const QString &name, const QVariant &record)
{
    records.insert(name, record);
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

void SimulatedEngine::setUnit(const QString &name, const QString &unitString)
{
    unitStrings.insert(name, unitString);
}

QString SimulatedEngine::unitString(const QString &name) const
{
    return unitStrings.value(name);
}

void SimulatedEngine::setDiscreteValues(const QString &name, const QList<double> &allowed)
{
    discreteLists.insert(name, allowed);
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

bool SimulatedEngine::loadSettings(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        appendLog(QStringLiteral("load %1 failed: %2").arg(path, file.errorString()));
        return false;
    }
    appendLog(QStringLiteral("load %1").arg(path));
    QTextStream in(&file);
    while (!in.atEnd()) {
        const QString line = in.readLine().trimmed();
        const int equals = line.indexOf(QLatin1Char('='));
        if (line.isEmpty() || line.startsWith(QLatin1Char('#')) || equals <= 0) {
            continue;
        }
        const QString name = line.left(equals).trimmed();
        QVariant value(line.mid(equals + 1).trimmed());
        // A settings file holds text; each attribute keeps the type it has.
        const QVariant current = values.value(name);
        if (!values.contains(name) || name == QLatin1String("SettingsFile") || !value.convert(current.userType())) {
            appendLog(QStringLiteral("load %1: line \"%2\" ignored").arg(path, line));
            continue;
        }
        setValue(name, value);
    }
    setValue(QStringLiteral("SettingsFile"), path);
    return true;
}

void SimulatedEngine::stepSweep()
{
    if (values.value(QStringLiteral("SweepState")).toString() != QLatin1String("Running")) {
        return;
    }
    const int progress = (values.value(QStringLiteral("SweepProgress")).toInt() + 2) % 102;
    setValue(QStringLiteral("SweepProgress"), progress);
    setValue(QStringLiteral("Overload"), progress >= 40 && progress <= 64);
}

void SimulatedEngine::appendLog(const QString &line)
{
    lines.append(line);
    if (echo) {
        // Flushed line by line so that a transcript piped into another tool keeps its order with
        // the application's other output.
        std::fprintf(stdout, "%s\n", line.toLocal8Bit().constData());
        std::fflush(stdout);
    }
    emit logged(line);
}

QStringList SimulatedEngine::log() const
{
    return lines;
}

void SimulatedEngine::clearLog()
{
    lines.clear();
}

void SimulatedEngine::setEchoToStdout(bool on)
{
    echo = on;
}

bool SimulatedEngine::echoesToStdout() const
{
    return echo;
}
