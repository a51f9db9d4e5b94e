// SPDX-License-Identifier: BSD-3-Clause
#ifndef SIMULATEDENGINE_H
#define SIMULATEDENGINE_H

#include <QHash>
#include <QSet>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

#include <functional>

class QTimer;

// A stand-in for the instrument's measurement engine: a set of named attributes with values, a few
// of which are commands (attributes without a value). It also keeps the session log, the one
// transcript that the host side (lock owner, wiring, screen scripts) writes into, so the order of
// everything that happened during an edit can be read back in one place.
//
// The engine itself holds what every screen shares: Preset, the RF output with its two commands,
// the sweep and the settings file. Each screen adds the attributes its own widgets stand for
// (PanelScreen::addAttributes) before any screen is built, so a screen may show another's attribute.
class SimulatedEngine : public QObject
{
    Q_OBJECT
public:
    // How a request was answered, as the host may want to tell the user.
    enum Answer { Taken, Clamped, Refused };

    explicit SimulatedEngine(QObject *parent = nullptr);
    ~SimulatedEngine() override;

    // A value attribute; Preset gives it preset back. Declaring an attribute twice keeps the first
    // declaration: two screens may show the same attribute.
    void addValue(const QString &name, const QVariant &preset);
    // A measurement the engine publishes many times a second (a meter's reading list). Preset leaves
    // it alone, and publishing it writes no log line: the log is the transcript of what was done.
    void addMeasurement(const QString &name, const QVariant &first);
    // The measurement's new value, announced with valueChanged(). False for anything else.
    bool publish(const QString &name, const QVariant &value);
    // A command attribute. The label names it to the user ("Start sweep"); the effect runs each time
    // the command does.
    void addCommand(const QString &name, const QString &label, const std::function<void()> &effect = {});

    bool hasAttribute(const QString &name) const;
    bool isCommand(const QString &name) const;
    QStringList attributeNames() const;
    // What the user reads for a command; its name for a command declared without a label.
    QString commandLabel(const QString &name) const;

    // An invalid value for unknown attributes and for commands.
    QVariant value(const QString &name) const;
    // False for unknown attributes and commands; a value equal to the current one changes nothing.
    bool setValue(const QString &name, const QVariant &value);

    // Runs a command attribute and its simulated effect. False, with a log line saying why, for an
    // attribute that is unknown or is not a command.
    bool command(const QString &name);

    // A value the host asks for. Some attributes take a moment to settle (the RF output switches a
    // relay): their value is set, and confirmed, after settleTime(). Every request ends with
    // valueConfirmed(), also when the value did not change, so a widget waiting in a loading look
    // always hears back. Asking for "SettingsFile" loads that file.
    Answer requestValue(const QString &name, const QVariant &value);
    int settleTime(const QString &name) const;
    void setSettleTime(const QString &name, int ms);

    // Enumerated attributes: the record of [value, literal] entries that the widgets list, or an
    // invalid variant for an attribute that is not enumerated. A request for a value the record lacks
    // is refused, and the value held is confirmed again.
    void setMetaData(const QString &name, const QVariant &record);
    bool isEnumerated(const QString &name) const;
    QVariant metaData(const QString &name) const;

    // Attributes with units: the engine holds their values in the base unit its units property
    // string names ("" for an attribute without units). Some take only the values of a discrete list
    // (empty for the others); a request between two of them gets the nearest.
    void setUnit(const QString &name, const QString &unitString);
    QString unitString(const QString &name) const;
    void setDiscreteValues(const QString &name, const QList<double> &values);
    QList<double> discreteValues(const QString &name) const;

    // The range a numeric attribute accepts. A request outside it is clamped to it (and the log says
    // so); the widgets take their limits from here.
    bool hasLimits(const QString &name) const;
    double lowerLimit(const QString &name) const;
    double upperLimit(const QString &name) const;
    void setLimits(const QString &name, double lower, double upper);

    // Applies the "Name=Value" lines of a settings file to the attributes it names and remembers it
    // as "SettingsFile". False, with a log line, for a file that cannot be read.
    bool loadSettings(const QString &path);

    // One step of the simulated sweep: "SweepProgress" moves on by 2 % while "SweepState" is
    // "Running", and "Overload" is set while the sweep crosses the strong carrier at 40 to 64 %.
    void stepSweep();

    void appendLog(const QString &line);
    QStringList log() const;
    void clearLog();

    // Whether each log line is also printed on standard output as it is written.
    void setEchoToStdout(bool echo);
    bool echoesToStdout() const;

Q_SIGNALS:
    void logged(const QString &line);
    void valueChanged(const QString &name, const QVariant &value);
    void valueConfirmed(const QString &name, const QVariant &value);
    void commandExecuted(const QString &name);

private:
    bool acceptsListedValue(const QString &name, const QVariant &value);
    QVariant nearestDiscreteValue(const QString &name, const QVariant &value);

    struct Command {
        QString label;
        std::function<void()> effect;
    };

    QVariantMap presetValues;
    QVariantMap values;
    QHash<QString, Command> commands;
    QStringList lines;
    bool echo;
    QHash<QString, int> settleTimes;
    QHash<QString, QPair<double, double>> limits;
    QTimer *sweepTimer;
    QHash<QString, QVariant> records;
    QHash<QString, QString> unitStrings;
    QHash<QString, QList<double>> discreteLists;
    QSet<QString> measurements;
};

#endif // SIMULATEDENGINE_H
