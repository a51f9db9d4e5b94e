// The wiring rule of the fields with units; the rest of HostWiring is in HostWiring.cpp.
#include "HostWiring.h"

#include "SimulatedEngine.h"
#include "WidgetNaming.h"

#include "GlobalImpl.h"
#include "QKXDoubleValueList.h"
#include "QKXListDoubleValueObj.h"
#include "QKXNumericValueObj.h"
#include "QKXNumericValueObjEventFilter.h"
#include "QKXNumpad.h"
#include "SystemModule.h"
#include "ValueHelper.h"

#include <QEvent>
#include <QMouseEvent>

namespace {

const QString wiringunits_neutral = QStringLiteral("0,0,0:0;0:0;0:0;0:0;0:0");

QString wiringunits_text(const QString &unit)
{
    return ValueHelper::getUnitString(ValueHelper::convertToUnits(unit));
}

// What a cancel gives back: the engine's value of the field's attribute, in its base unit.
class UnitsAdapter : public QObject
{
    Q_OBJECT
public:
    UnitsAdapter(SimulatedEngine *engine, QWidget *field) : engine(engine), field(field) {}
    Q_INVOKABLE double get() const { return engine->value(WidgetNaming::boundAttribute(field)).toDouble(); }

private:
    SimulatedEngine *engine;
    QWidget *field;
};

// The host's filter on a field's unit selector, in place only between edits: a tap on the unit shows
// the value in the next unit the field offers. The engine is not involved; the display unit is the
// user's choice alone.
class UnitSelectorTaps : public QObject
{
    Q_OBJECT
public:
    UnitSelectorTaps(SimulatedEngine *engine, QKXNumericValueObj *field) : engine(engine), field(field) {}

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::MouseButtonPress) {
            return true;
        }
        if (event->type() != QEvent::MouseButtonRelease) {
            return false;
        }
        auto *selector = qobject_cast<QWidget *>(watched);
        const auto *release = static_cast<QMouseEvent *>(event);
        if (selector && selector->rect().contains(release->pos()) && !field->isReadOnly()) {
            showNextUnit();
        }
        return true;
    }

private:
    void showNextUnit()
    {
        QList<int> offered;
        for (const QVariant &entry : field->property("UnitList").toList()) {
            offered.append(entry.toList().value(0).toInt());
        }
        if (offered.size() < 2) {
            return;
        }
        const int next = offered.at((offered.indexOf(field->unitIndex()) + 1) % offered.size());
        field->setUnitIndex(next);
        engine->appendLog(QStringLiteral("unit %1 shown in %2").arg(WidgetNaming::describe(field), field->currentUnitName()));
    }

    SimulatedEngine *engine;
    QKXNumericValueObj *field;
};

// The allowed values as the list shows them: each in the prefix that reads best (1000 Hz as 1 kHz).
QVariantList wiringunits_discreteRecord(const QList<double> &values, const QString &baseUnit)
{
    const Norvane::Value::Units base = ValueHelper::convertToUnits(baseUnit);
    QVariantList entries;
    for (double value : values) {
        const Norvane::Value::Units shown = ValueHelper::bestFitUnit(Norvane::Value::Value_object<double>(value, base, 0.0, 0.0));
        entries.append(QVariant(QVariantList{ValueHelper::convertValue(value, base, shown), ValueHelper::toString(shown)}));
    }
    return QVariantList{QStringLiteral("List"), QVariant(entries)};
}

} // namespace

QKXEventFilterBase *HostWiring::createNumericValueObjFilter(QKXNumericValueObj *field)
{
    const QString attribute = WidgetNaming::boundAttribute(field);
    auto *adapter = new UnitsAdapter(engine, field);
    auto *unitTaps = new UnitSelectorTaps(engine, field);
    auto *filter = new QKXNumericValueObjEventFilter(field, QStringLiteral("ValueDouble"), unitTaps, adapter);
    adapter->setParent(filter);
    unitTaps->setParent(filter);

    if (engine->hasLimits(attribute)) {
        field->setLowerLimit(engine->lowerLimit(attribute));
        field->setUpperLimit(engine->upperLimit(attribute));
    }
    auto *list = qobject_cast<QKXListDoubleValueObj *>(field);
    const QList<double> allowed = engine->discreteValues(attribute);
    if (list && !allowed.isEmpty()) {
        list->setMetaData(wiringunits_discreteRecord(allowed, engine->unitString(attribute)));
    }

    // The engine keeps the base unit; the user may have entered the number in any unit of the list.
    SimulatedEngine *target = engine;
    connect(filter, QOverload<double, QString>::of(&QKXNumericValueObjEventFilter::submit), engine,
            [target, field](double value, const QString &unit) {
                const QString name = WidgetNaming::boundAttribute(field);
                const QString base = target->unitString(name);
                double inBase = value;
                if (!unit.isEmpty() && unit != wiringunits_neutral && unit != base) {
                    const auto from = ValueHelper::convertToUnits(unit);
                    const auto to = ValueHelper::convertToUnits(base);
                    if (!ValueHelper::isValidUnits(unit) || !ValueHelper::unitsCanConvert(from, to)) {
                        target->appendLog(QStringLiteral("submit %1 %2 \"%3\" rejected: not in %4")
                                              .arg(name).arg(value).arg(unit, wiringunits_text(base)));
                        target->requestValue(name, target->value(name));
                        return;
                    }
                    inBase = ValueHelper::convertValue(value, from, to);
                }
                target->appendLog(QStringLiteral("submit %1 %2 %3 = %4 %5")
                                      .arg(name).arg(value)
                                      .arg(unit == wiringunits_neutral ? QStringLiteral("(base unit)") : wiringunits_text(unit))
                                      .arg(inBase).arg(wiringunits_text(base)));
                target->requestValue(name, inBase);
            });
    // The engine answers in its base unit; the field shows it in the unit the user chose.
    followValue(field, [target, field](const QVariant &value) {
        const QString unit = target->unitString(WidgetNaming::boundAttribute(field));
        field->setValue(value.toDouble(), unit.isEmpty() ? field->baseUnit() : unit);
    });

    connect(filter, &QKXEventFilterBase::editStart, this, [this, field, list](QObject *edit, QWidget *widget) {
        if (list && list->getParamType() == QLatin1String("List")) {
            engine->appendLog(QStringLiteral("edit %1 on the discrete value list").arg(WidgetNaming::describe(field)));
            discreteValueList()->registerWidget(edit, widget);
            return;
        }
        engine->appendLog(QStringLiteral("edit %1 on the numeric pad").arg(WidgetNaming::describe(field)));
        numericPad()->registerWidget(edit, widget);
    });
    return filter;
}

QKXDoubleValueList *HostWiring::discreteValueList()
{
    if (!valueList) {
        QWidget *mainWindow = GlobalImpl::getInstance()->systemModule()->getSystemScreen(QStringLiteral("MainWindow"));
        valueList = new QKXDoubleValueList(mainWindow);
    }
    return valueList;
}

#include "HostWiringUnits.moc"
