// The wiring rules of the enumerated widgets; the rest of HostWiring is in HostWiring.cpp.
#include "HostWiring.h"

#include "SimulatedEngine.h"
#include "WidgetNaming.h"

#include "GlobalImpl.h"
#include "QKXComboBox.h"
#include "QKXComboBoxList.h"
#include "QKXComboEventFilter.h"
#include "QKXComboWheel.h"
#include "QKXTableEnum.h"
#include "QKXTableEnumEventFilter.h"
#include "QKXWheelEnum.h"
#include "SystemModule.h"

namespace {

// What the table's filter reads when it is set up: the engine's value, so that its first tap is
// measured against what the engine holds and not against the widget's start value.
class EnumAdapter : public QObject
{
    Q_OBJECT
public:
    EnumAdapter(SimulatedEngine *engine, QWidget *widget) : engine(engine), widget(widget) {}
    Q_INVOKABLE int get() const { return engine->value(WidgetNaming::boundAttribute(widget)).toInt(); }

private:
    SimulatedEngine *engine;
    QWidget *widget;
};

// One popup of each kind for the whole panel, made on first use over the main window, in whose
// coordinates the popups place their columns.
template <typename Popup>
Popup *hostenums_popup()
{
    QWidget *mainWindow = GlobalImpl::getInstance()->systemModule()->getSystemScreen(QStringLiteral("MainWindow"));
    Popup *popup = mainWindow ? mainWindow->findChild<Popup *>(QString(), Qt::FindDirectChildrenOnly) : nullptr;
    if (!popup) {
        popup = new Popup(mainWindow);
    }
    return popup;
}

} // namespace

QKXEventFilterBase *HostWiring::createComboFilter(QKXComboBox *combo)
{
    const QString attribute = WidgetNaming::boundAttribute(combo);
    // The record first: the engine's value is then shown with its literal straight away.
    combo->setMetaData(engine->metaData(attribute));
    followValue(combo, [combo](const QVariant &value) { combo->setIndex(value.toInt()); });

    auto *filter = new QKXComboEventFilter(combo);
    SimulatedEngine *target = engine;
    connect(filter, &QKXComboEventFilter::submit, engine,
            [target, combo](int value) { target->requestValue(WidgetNaming::boundAttribute(combo), value); });
    // The wheel enum is a combo box edited on the wheel; every other combo box opens the list.
    const bool wheel = qobject_cast<QKXWheelEnum *>(combo) != nullptr;
    connect(filter, &QKXEventFilterBase::editStart, this, [this, combo, wheel](QObject *edit, QWidget *widget) {
        engine->appendLog(QStringLiteral("edit %1 on the %2 popup")
                              .arg(WidgetNaming::describe(combo), wheel ? QStringLiteral("wheel") : QStringLiteral("list")));
        if (wheel) {
            hostenums_popup<QKXComboWheel>()->registerWidget(edit, widget);
        } else {
            hostenums_popup<QKXComboBoxList>()->registerWidget(edit, widget);
        }
    });
    return filter;
}

QKXEventFilterBase *HostWiring::createTableEnumFilter(QKXTableEnum *table)
{
    const QString attribute = WidgetNaming::boundAttribute(table);
    table->setMetaData(engine->metaData(attribute));
    followValue(table, [table](const QVariant &value) { table->setIndex(value.toInt()); });

    // With an adapter the tap asks for the edit lock first, so a table row cannot change an attribute
    // while another widget is being edited.
    auto *adapter = new EnumAdapter(engine, table);
    auto *filter = new QKXTableEnumEventFilter(table, adapter);
    adapter->setParent(filter);
    SimulatedEngine *target = engine;
    connect(filter, &QKXTableEnumEventFilter::submit, engine,
            [target, table](int value) { target->requestValue(WidgetNaming::boundAttribute(table), value); });
    return filter;
}

#include "HostWiringEnums.moc"
