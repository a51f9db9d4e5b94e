// SPDX-License-Identifier: BSD-3-Clause
#include "UnitsScreen.h"

#include "EditLockOwner.h"
#include "MainWindow.h"
#include "PanelHost.h"
#include "ScreenRunner.h"
#include "SimulatedEngine.h"

#include "QKXDoubleValueList.h"
#include "QKXListDoubleValueObj.h"
#include "QKXNumericValueObj.h"
#include "QKXNumericValueObjEventFilter.h"
#include "QKXNumpad.h"
#include "QKXRichTextPushButton.h"
#include "ValueHelper.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>

#include "ui_UnitsScreen.h"

namespace {

const QString unitsscreen_neutral = QStringLiteral("0,0,0:0;0:0;0:0;0:0;0:0");
const QString unitsscreen_hertz = QStringLiteral("0,0,1:1;0:0;0:0;0:0;0:0");
const QString unitsscreen_dBm = QStringLiteral("0,0,14:1;0:0;0:0;0:0;0:0");

QString unitsscreen_text(const QString &unit)
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
QVariantList unitsscreen_discreteRecord(const QList<double> &values, const QString &baseUnit)
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

QString UnitsScreen::id() const
{
    return QStringLiteral("units");
}

void UnitsScreen::addAttributes(SimulatedEngine &engine)
{
    struct UnitAttribute {
        QString name;
        double preset;
        QString unit;
        double lower;
        double upper;
    };
    const UnitAttribute table[] = {
        {QStringLiteral("GeneratorFrequency"), 433.92e6, unitsscreen_hertz, 1.0e3, 6.0e9},
        {QStringLiteral("OutputLevel"), -20.0, unitsscreen_dBm, -130.0, 10.0},
        {QStringLiteral("ResolutionBandwidth"), 10.0e3, unitsscreen_hertz, 1.0e3, 100.0e3},
    };
    for (const UnitAttribute &attribute : table) {
        engine.addValue(attribute.name, attribute.preset);
        engine.setLimits(attribute.name, attribute.lower, attribute.upper);
        engine.setUnit(attribute.name, attribute.unit);
    }
    // The analyser's filters come in a 1-3-10 series.
    engine.setDiscreteValues(QStringLiteral("ResolutionBandwidth"), {1.0e3, 3.0e3, 10.0e3, 30.0e3, 100.0e3});
}

QWidget *UnitsScreen::createPage()
{
    return formPage<Ui::UnitsScreen>();
}

void UnitsScreen::wire(PanelHost &host, QWidget *page)
{
    // A discrete value list is also a field with units.
    host.wireEach<QKXNumericValueObj>(page, [&host](QKXNumericValueObj *field) {
        SimulatedEngine *engine = host.engine();
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
            list->setMetaData(unitsscreen_discreteRecord(allowed, engine->unitString(attribute)));
        }

        // The engine keeps the base unit; the user may have entered the number in any unit of the list.
        PanelHost *submitTo = &host;
        QObject::connect(filter, QOverload<double, QString>::of(&QKXNumericValueObjEventFilter::submit), &host,
                         [submitTo, engine, field](double value, const QString &unit) {
                             const QString name = WidgetNaming::boundAttribute(field);
                             const QString base = engine->unitString(name);
                             double inBase = value;
                             if (!unit.isEmpty() && unit != unitsscreen_neutral && unit != base) {
                                 const auto from = ValueHelper::convertToUnits(unit);
                                 const auto to = ValueHelper::convertToUnits(base);
                                 if (!ValueHelper::isValidUnits(unit) || !ValueHelper::unitsCanConvert(from, to)) {
                                     engine->appendLog(QStringLiteral("submit %1 %2 \"%3\" rejected: not in %4")
                                                           .arg(name).arg(value).arg(unit, unitsscreen_text(base)));
                                     submitTo->request(field, engine->value(name));
                                     return;
                                 }
                                 inBase = ValueHelper::convertValue(value, from, to);
                             }
                             engine->appendLog(QStringLiteral("submit %1 %2 %3 = %4 %5")
                                                   .arg(name).arg(value)
                                                   .arg(unit == unitsscreen_neutral ? QStringLiteral("(base unit)")
                                                                                    : unitsscreen_text(unit))
                                                   .arg(inBase).arg(unitsscreen_text(base)));
                             submitTo->request(field, inBase);
                         });
        // The engine answers in its base unit; the field shows it in the unit the user chose.
        host.followValue(field, [engine, field](const QVariant &value) {
            const QString unit = engine->unitString(WidgetNaming::boundAttribute(field));
            field->setValue(value.toDouble(), unit.isEmpty() ? field->baseUnit() : unit);
        });
        host.openEditorsOnEditStart(filter, field, [&host, list, field] {
            if (list && list->getParamType() == QLatin1String("List")) {
                return QList<PanelHost::Editor>{host.editor<QKXDoubleValueList>(QStringLiteral("discrete value list"))};
            }
            return host.numericEditors(field);
        });
        if (!list) {
            host.useDirectionPad(filter, field);
        }
        return filter;
    });
}

static bool unitsscreen_typeWithUnitKey(ScreenRunner &runner)
{
    SimulatedEngine *engine = runner.engine();
    EditLockOwner *lock = runner.lockOwner();

    // The generator frequency: shown in MHz, typed in kHz, kept by the engine in Hz.
    auto *frequency = runner.boundWidget<QKXNumericValueObj>(QStringLiteral("GeneratorFrequency"));
    if (!frequency) {
        return runner.fail(QStringLiteral("no field with units is bound to GeneratorFrequency"));
    }
    auto *display = frequency->findChild<QLineEdit *>();
    if (!display || !runner.showScreenOf(frequency, QStringLiteral("the GeneratorFrequency field"))) {
        return false;
    }
    engine->appendLog(QStringLiteral("tap GeneratorFrequency (%1 %2)").arg(display->text(), frequency->currentUnitName()));
    ScreenRunner::tap(frequency, display->geometry().center());
    QKXNumpad *pad = nullptr;
    if (!runner.waitFor([&] {
            pad = runner.window()->findChild<QKXNumpad *>();
            return pad && pad->isVisible() && pad->registeredWidget() == frequency && lock->holder() == frequency;
        })) {
        return runner.fail(QStringLiteral("the numeric pad did not open for GeneratorFrequency"));
    }
    QPushButton *kHzKey = pad->unitButton(1);
    if (!kHzKey || !kHzKey->isVisible()) {
        return runner.fail(QStringLiteral("the numeric pad shows no kHz key for GeneratorFrequency"));
    }
    engine->appendLog(QStringLiteral("keys 2 . 5, then kHz"));
    for (const char *name : {"2", "dot", "5"}) {
        QPushButton *key = pad->button(QLatin1String(name));
        if (!key || !key->isEnabled()) {
            return runner.fail(QStringLiteral("the numeric pad has no usable %1 key").arg(QLatin1String(name)));
        }
        ScreenRunner::tap(key);
    }
    if (!runner.snapshot(QStringLiteral("units-GeneratorFrequency-pad-open"))) {
        return false;
    }
    ScreenRunner::tap(kHzKey);
    if (!runner.waitFor([&] { return lock->isFree() && !pad->isVisible() && display->text() == QLatin1String("2.500"); })
        || engine->value(QStringLiteral("GeneratorFrequency")).toDouble() != 2500.0
        || frequency->currentUnitName() != QLatin1String("kHz")) {
        return runner.fail(QStringLiteral("after kHz the GeneratorFrequency field shows \"%1 %2\", the engine holds %3 Hz")
                               .arg(display->text(), frequency->currentUnitName(),
                                    engine->value(QStringLiteral("GeneratorFrequency")).toString()));
    }
    return runner.snapshot(QStringLiteral("units-GeneratorFrequency-committed"));
}

static bool unitsscreen_chooseFromList(ScreenRunner &runner)
{
    SimulatedEngine *engine = runner.engine();
    EditLockOwner *lock = runner.lockOwner();

    // The resolution bandwidth: one of the analyser's filters, from its discrete list.
    auto *bandwidth = runner.boundWidget<QKXListDoubleValueObj>(QStringLiteral("ResolutionBandwidth"));
    if (!bandwidth) {
        return runner.fail(QStringLiteral("no discrete value list is bound to ResolutionBandwidth"));
    }
    auto *bandwidthDisplay = bandwidth->findChild<QLineEdit *>();
    engine->appendLog(QStringLiteral("tap ResolutionBandwidth (%1 %2)").arg(bandwidthDisplay->text(), bandwidth->currentUnitName()));
    ScreenRunner::tap(bandwidth, bandwidthDisplay->geometry().center());
    QKXDoubleValueList *list = nullptr;
    if (!runner.waitFor([&] {
            list = runner.window()->findChild<QKXDoubleValueList *>();
            return list && list->isVisible() && list->widget() == bandwidth;
        })) {
        return runner.fail(QStringLiteral("the discrete value list did not open for ResolutionBandwidth"));
    }
    QAbstractButton *choice = nullptr;
    for (QAbstractButton *button : list->buttonGroup()->buttons()) {
        auto *item = qobject_cast<QKXRichTextPushButton *>(button);
        if (item && item->isVisible() && item->text() == QLatin1String("30 kHz")) {
            choice = button;
        }
    }
    if (!choice) {
        return runner.fail(QStringLiteral("the discrete value list offers no 30 kHz"));
    }
    if (!runner.snapshot(QStringLiteral("units-ResolutionBandwidth-list-open"))) {
        return false;
    }
    engine->appendLog(QStringLiteral("choose 30 kHz"));
    ScreenRunner::tap(choice);
    if (!runner.waitFor([&] { return lock->isFree() && !list->isVisible() && bandwidthDisplay->text() == QLatin1String("30"); })
        || engine->value(QStringLiteral("ResolutionBandwidth")).toDouble() != 30000.0) {
        return runner.fail(QStringLiteral("after 30 kHz the ResolutionBandwidth field shows \"%1\", the engine holds %2 Hz")
                               .arg(bandwidthDisplay->text(), engine->value(QStringLiteral("ResolutionBandwidth")).toString()));
    }
    return runner.snapshot(QStringLiteral("units-ResolutionBandwidth-chosen"));
}

bool UnitsScreen::play(ScreenRunner &runner)
{
    return unitsscreen_typeWithUnitKey(runner) && unitsscreen_chooseFromList(runner);
}

#include "UnitsScreen.moc"
