#ifndef HOSTWIRING_H
#define HOSTWIRING_H

#include <QObject>
#include <QPointer>
#include <QVector>

#include <functional>

class EditLockOwner;
class QKXEventFilterBase;
class QKXBrowseButton;
class QKXComboBox;
class QKXTableEnum;
class QKXConfirmationPushButton;
class QKXConfirmationToggleButton;
class QKXFlagStatus;
class QKXNumeric;
class QKXNumericValueObj;
class QKXDoubleValueList;
class QKXNumpad;
class QKXPlaybackControlButton;
class QKXProgressBar;
class QKXPushButton;
class QKXToggleButton;
class QKXWidgetBase;
class QMetaObject;
class SimulatedEngine;

// Binds the attribute widgets of a screen to the host: each widget gets the edit filter of its
// family (owned by the widget), the filter's lock requests go to the lock owner, and what the filter
// submits goes to the engine attribute named by the widget's AttributeName.
//
// A new widget family needs one rule: a function that creates its filter and connects its submit
// signal to the engine. Everything the families share is done once, in wireWidget().
class HostWiring : public QObject
{
    Q_OBJECT
public:
    HostWiring(SimulatedEngine *engine, EditLockOwner *lockOwner, QObject *parent = nullptr);
    ~HostWiring() override;

    // Wires every attribute widget under the screen that is not wired yet; returns how many were.
    int wireScreen(QWidget *screen);
    // False for a widget that is already wired, bound to no attribute, or of a family without a rule.
    bool wireWidget(QKXWidgetBase *widget);

    // Asks every attribute widget under the screen for its large look; in the compact display
    // modes the widgets keep their compact one themselves.
    static void applySizeVariant(QWidget *screen);

Q_SIGNALS:
    // A filter saw a tap while the interface is locked; the window tells the user.
    void guiLockedMessageRequested(QWidget *widget);

private:
    using FilterFactory = std::function<QKXEventFilterBase *(QKXWidgetBase *)>;
    struct Rule {
        const QMetaObject *family;
        FilterFactory createFilter;
    };

    template <typename Widget>
    void addRule(QKXEventFilterBase *(HostWiring::*create)(Widget *));

    QKXEventFilterBase *createPushButtonFilter(QKXPushButton *button);
    // The buttons and status indicators (HostWiringButtons.cpp). The read-only families return no
    // filter: they are bound to the engine's values only.
    QKXEventFilterBase *createToggleButtonFilter(QKXToggleButton *toggle);
    QKXEventFilterBase *createConfirmationPushButtonFilter(QKXConfirmationPushButton *button);
    QKXEventFilterBase *createConfirmationToggleButtonFilter(QKXConfirmationToggleButton *toggle);
    QKXEventFilterBase *createBrowseButtonFilter(QKXBrowseButton *button);
    QKXEventFilterBase *createPlaybackButtonFilter(QKXPlaybackControlButton *button);
    QKXEventFilterBase *bindFlagStatus(QKXFlagStatus *flag);
    QKXEventFilterBase *bindProgressBar(QKXProgressBar *bar);
    // The numeric fields (HostWiringNumeric.cpp): an "Int" or "Double" filter after the attribute's
    // type, with the engine's value behind its adapter; an edit opens the numeric pad.
    QKXEventFilterBase *createNumericFilter(QKXNumeric *numeric);
    // The enumerated widgets (HostWiringEnums.cpp): the engine's record and value, a combo filter whose
    // edit opens the list popup (the wheel popup for a wheel enum), a table filter that asks for the
    // lock; every choice goes to the engine, which confirms it through setIndex.
    QKXEventFilterBase *createComboFilter(QKXComboBox *combo);
    QKXEventFilterBase *createTableEnumFilter(QKXTableEnum *table);
    // The fields with units (HostWiringUnits.cpp): a "ValueDouble" filter over the engine's value in its
    // base unit; a commit in any unit reaches the engine converted to that base unit, and the engine's
    // answer comes back with the base unit's string. An edit opens the numeric pad with unit keys, or
    // the discrete value list for an attribute that takes only listed values. A tap on the unit
    // between edits shows the value in the next unit of the list.
    QKXEventFilterBase *createNumericValueObjFilter(QKXNumericValueObj *field);
    // The one discrete value list, made on first use over the registered main window.
    QKXDoubleValueList *discreteValueList();
    // The one numeric pad, made on the first edit over the registered main window.
    QKXNumpad *numericPad();
    // Shows the engine's value of the widget's attribute now and whenever it changes or is confirmed.
    void followValue(QWidget *widget, std::function<void(const QVariant &)> show);

    SimulatedEngine *engine;
    EditLockOwner *lockOwner;
    QVector<Rule> rules;
    QPointer<QKXNumpad> numpad;
    QPointer<QKXDoubleValueList> valueList;
};

#endif // HOSTWIRING_H
