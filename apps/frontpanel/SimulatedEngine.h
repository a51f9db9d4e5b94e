#ifndef SIMULATEDENGINE_H
#define SIMULATEDENGINE_H

#include <QHash>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

class QTimer;

// A stand-in for the instrument's measurement engine: a set of named attributes with values, a few
// of which are commands (attributes without a value). It also keeps the session log, the one
// transcript that the host side (lock owner, wiring, scripted session) writes into, so the order of
// everything that happened during an edit can be read back in one place.
class SimulatedEngine : public QObject
{
    Q_OBJECT
public:
    explicit SimulatedEngine(QObject *parent = nullptr);
    ~SimulatedEngine() override;

    bool hasAttribute(const QString &name) const;
    bool isCommand(const QString &name) const;
    QStringList attributeNames() const;

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
    void requestValue(const QString &name, const QVariant &value);
    int settleTime(const QString &name) const;
    void setSettleTime(const QString &name, int ms);

    // Enumerated attributes (SimulatedEngineEnums.cpp): the record of [value, literal] entries that the
    // widgets list, or an invalid variant for an attribute that is not enumerated. A request for a value
    // the record lacks is turned down, and the value held is confirmed again.
    bool isEnumerated(const QString &name) const;
    QVariant metaData(const QString &name) const;

    // Attributes with units (SimulatedEngineUnits.cpp): the engine holds their values in the base unit
    // its units property string names ("" for an attribute without units). Some take only the values
    // of a discrete list (empty for the others); a request between two of them gets the nearest.
    QString unitString(const QString &name) const;
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
    void applyCommandEffect(const QString &name);
    void addEnumerations();
    bool acceptsListedValue(const QString &name, const QVariant &value);
    void addUnitAttributes();
    QVariant nearestDiscreteValue(const QString &name, const QVariant &value);

    QVariantMap presetValues;
    QVariantMap values;
    QStringList commands;
    QStringList lines;
    bool echo;
    QHash<QString, int> settleTimes;
    QHash<QString, QPair<double, double>> limits;
    QTimer *sweepTimer;
    QHash<QString, QVariant> records;
    QHash<QString, QString> unitStrings;
    QHash<QString, QList<double>> discreteLists;
};

#endif // SIMULATEDENGINE_H
