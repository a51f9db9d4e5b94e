#include "SimulatedEngine.h"

#include <QFile>
#include <QTextStream>
#include <QTimer>

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
    , presetValues({{QStringLiteral("Frequency"), 1.0e9},
                    {QStringLiteral("Level"), -30.0},
                    {QStringLiteral("Channel"), 16},
                    {QStringLiteral("UnitAddress"), 0x1A2B},
                    {QStringLiteral("Squelch"), -100},
                    {QStringLiteral("RfOutput"), true},
                    {QStringLiteral("SweepState"), QStringLiteral("Stopped")},
                    {QStringLiteral("SelfTestResult"), QStringLiteral("Not run")},
                    {QStringLiteral("SweepProgress"), 0},
                    {QStringLiteral("Overload"), false},
                    {QStringLiteral("Recording"), QStringLiteral("Stopped")},
                    {QStringLiteral("SettingsFile"), QString()}})
    , values(presetValues)
    , commands({QStringLiteral("Preset"), QStringLiteral("SelfTest"), QStringLiteral("RfOn"),
                QStringLiteral("RfOff"), QStringLiteral("StartSweep"), QStringLiteral("StopSweep"),
                QStringLiteral("PlayRecording"), QStringLiteral("StopRecording"), QStringLiteral("SaveTrace")})
    , echo(false)
    , settleTimes({{QStringLiteral("RfOutput"), 800}})
    , limits({{QStringLiteral("Frequency"), {9.0e3, 6.0e9}},
              {QStringLiteral("Level"), {-130.0, 10.0}},
              {QStringLiteral("Channel"), {1.0, 999.0}},
              {QStringLiteral("UnitAddress"), {0.0, 65535.0}},
              {QStringLiteral("Squelch"), {-120.0, -60.0}}})
    , sweepTimer(new QTimer(this))
{
    addEnumerations();
    addUnitAttributes();
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
    QStringList names = values.keys() + commands;
    names.sort();
    return names;
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
    applyCommandEffect(name);
    emit commandExecuted(name);
    return true;
}

void SimulatedEngine::applyCommandEffect(const QString &name)
{
    if (name == QLatin1String("Preset")) {
        for (auto it = presetValues.constBegin(); it != presetValues.constEnd(); ++it) {
            setValue(it.key(), it.value());
        }
    } else if (name == QLatin1String("SelfTest")) {
        setValue(QStringLiteral("SelfTestResult"), QStringLiteral("Passed"));
    } else if (name == QLatin1String("RfOn")) {
        setValue(QStringLiteral("RfOutput"), true);
    } else if (name == QLatin1String("RfOff")) {
        setValue(QStringLiteral("RfOutput"), false);
    } else if (name == QLatin1String("StartSweep")) {
        setValue(QStringLiteral("SweepState"), QStringLiteral("Running"));
    } else if (name == QLatin1String("StopSweep")) {
        setValue(QStringLiteral("SweepState"), QStringLiteral("Stopped"));
    } else if (name == QLatin1String("PlayRecording")) {
        setValue(QStringLiteral("Recording"), QStringLiteral("Playing"));
    } else if (name == QLatin1String("StopRecording")) {
        setValue(QStringLiteral("Recording"), QStringLiteral("Stopped"));
    }
}

void SimulatedEngine::requestValue(const QString &name, const QVariant &value)
{
    if (!values.contains(name)) {
        appendLog(QStringLiteral("request %1 rejected: unknown attribute").arg(name));
        return;
    }
    if (!acceptsListedValue(name, value)) {
        emit valueConfirmed(name, values.value(name));
        return;
    }
    QVariant accepted = nearestDiscreteValue(name, value);
    if (limits.contains(name)) {
        bool isNumber = false;
        const double asked = value.toDouble(&isNumber);
        const double kept = isNumber && !qIsNaN(asked) ? qBound(lowerLimit(name), asked, upperLimit(name))
                                                       : values.value(name).toDouble();
        // The attribute keeps its type: an integer attribute stays integer whatever it was sent.
        accepted = values.value(name).type() == QVariant::Int ? QVariant(qRound(kept)) : QVariant(kept);
        if (accepted != value) {
            appendLog(QStringLiteral("request %1 = %2 clamped to %3").arg(name, engine_valueText(value),
                                                                           engine_valueText(accepted)));
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
        return;
    }
    appendLog(QStringLiteral("request %1 = %2, settling for %3 ms").arg(name, engine_valueText(value)).arg(delay));
    QTimer::singleShot(delay, this, apply);
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
