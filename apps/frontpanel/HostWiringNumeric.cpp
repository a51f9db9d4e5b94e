// The wiring rule of the numeric fields; the rest of HostWiring is in HostWiring.cpp.
#include "HostWiring.h"

#include "SimulatedEngine.h"
#include "WidgetNaming.h"

#include "GlobalImpl.h"
#include "QKXNumeric.h"
#include "QKXNumericEventFilter.h"
#include "QKXNumpad.h"
#include "SystemModule.h"

namespace {

// What a numeric filter remembers when an edit begins, so that a cancel can give it back: the engine's
// value of the field's attribute, read at that moment. The filter calls get() by name with the return
// type of its data type, hence one adapter per type.
class NumericIntAdapter : public QObject
{
    Q_OBJECT
public:
    NumericIntAdapter(SimulatedEngine *engine, QWidget *field) : engine(engine), field(field) {}
    Q_INVOKABLE int get() const { return engine->value(WidgetNaming::boundAttribute(field)).toInt(); }

private:
    SimulatedEngine *engine;
    QWidget *field;
};

class NumericDoubleAdapter : public QObject
{
    Q_OBJECT
public:
    NumericDoubleAdapter(SimulatedEngine *engine, QWidget *field) : engine(engine), field(field) {}
    Q_INVOKABLE double get() const { return engine->value(WidgetNaming::boundAttribute(field)).toDouble(); }

private:
    SimulatedEngine *engine;
    QWidget *field;
};

} // namespace

QKXEventFilterBase *HostWiring::createNumericFilter(QKXNumeric *numeric)
{
    const QString attribute = WidgetNaming::boundAttribute(numeric);
    // The engine's type decides how the field is edited and committed.
    const bool isInt = engine->value(attribute).type() == QVariant::Int;
    QObject *adapter = isInt ? static_cast<QObject *>(new NumericIntAdapter(engine, numeric))
                             : static_cast<QObject *>(new NumericDoubleAdapter(engine, numeric));
    auto *filter = new QKXNumericEventFilter(numeric, isInt ? QStringLiteral("Int") : QStringLiteral("Double"), adapter);
    adapter->setParent(filter);

    if (engine->hasLimits(attribute)) {
        numeric->setLowerLimit(engine->lowerLimit(attribute));
        numeric->setUpperLimit(engine->upperLimit(attribute));
    }
    // Only the data type's own submit: a typed commit emits both forms, and one request is wanted.
    SimulatedEngine *target = engine;
    if (isInt) {
        connect(filter, QOverload<int>::of(&QKXNumericEventFilter::submit), engine,
                [target, numeric](int value) { target->requestValue(WidgetNaming::boundAttribute(numeric), value); });
    } else {
        connect(filter, QOverload<double>::of(&QKXNumericEventFilter::submit), engine,
                [target, numeric](double value) { target->requestValue(WidgetNaming::boundAttribute(numeric), value); });
    }
    // The engine's answer, clamped or not, is what the field shows after a commit or a cancel.
    followValue(numeric, [numeric](const QVariant &value) { numeric->setValue(value.toDouble()); });

    connect(filter, &QKXEventFilterBase::editStart, this, [this, numeric](QObject *edit, QWidget *widget) {
        if (!numeric->hasNumpad()) {
            // The pad is the only numeric editor here: an edit nobody can type into is given back.
            engine->appendLog(QStringLiteral("edit %1: no editor for it").arg(WidgetNaming::describe(numeric)));
            QMetaObject::invokeMethod(edit, "cancel", Qt::QueuedConnection);
            return;
        }
        engine->appendLog(QStringLiteral("edit %1 on the numeric pad").arg(WidgetNaming::describe(numeric)));
        numericPad()->registerWidget(edit, widget);
    });
    return filter;
}

QKXNumpad *HostWiring::numericPad()
{
    if (!numpad) {
        // Popups float over the main window and place themselves in its coordinates.
        QWidget *mainWindow = GlobalImpl::getInstance()->systemModule()->getSystemScreen(QStringLiteral("MainWindow"));
        numpad = new QKXNumpad(mainWindow);
        SimulatedEngine *log = engine;
        connect(numpad, &QKXKeyPadBase::rotateEntry, engine,
                [log] { log->appendLog(QStringLiteral("rotate: the numeric pad is the only numeric editor")); });
    }
    return numpad;
}

#include "HostWiringNumeric.moc"
