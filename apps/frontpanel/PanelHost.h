// SPDX-License-Identifier: BSD-3-Clause
#ifndef PANELHOST_H
#define PANELHOST_H

#include "SimulatedEngine.h"
#include "StatusStrip.h"
#include "WidgetNaming.h"

#include <QObject>
#include <QPointer>
#include <QVariant>
#include <QWidget>

#include <functional>
#include <type_traits>

class EditLockOwner;
class PanelScreen;
class QKXEventFilterBase;
class QKXNumeric;
class QKXWidgetBase;

// The host's duties towards the widgets, done once for every screen: each wired widget's filter is
// installed on it and answered by the lock owner, a tap while the interface is locked becomes the
// locked notice, submits go to the engine attribute named by the widget's AttributeName, engine
// values come back to the widget, and an edit start opens the popup editor the screen chooses.
// Screens call these from PanelScreen::wire(); what is particular to a widget family (which filter,
// which popup, how a value is shown) stays in the screen.
class PanelHost : public QObject
{
    Q_OBJECT
public:
    // A popup editor as an edit start opens it: its name in the log ("numeric pad"), how to hand it
    // the edit, and how to take the edit back from it without ending the edit (for a rotation to the
    // next editor). An editor without open means that no editor suits the widget.
    struct Editor {
        QString name;
        std::function<void(QObject *filter, QWidget *widget)> open;
        std::function<void()> close;
    };

    PanelHost(SimulatedEngine *engine, EditLockOwner *lockOwner, QObject *parent = nullptr);
    ~PanelHost() override;

    SimulatedEngine *engine() const;
    EditLockOwner *lockOwner() const;

    // Runs the screen's wiring over its page and returns how many widgets it wired. A widget bound to
    // an attribute that the screen left unwired is reported: it would ignore every tap.
    int wireScreen(PanelScreen *screen);

    // Wires each widget of the class under the page that is neither part of another attribute widget
    // nor wired already. createFilter(widget) makes its filter, with the widget as parent, and
    // connects what is particular to the family; a read-only family returns null and is bound to the
    // engine's values only. A widget bound to no attribute is reported and left inert.
    template <typename Widget, typename CreateFilter>
    void wireEach(QWidget *page, CreateFilter createFilter)
    {
        const QList<Widget *> widgets = page->findChildren<Widget *>();
        for (Widget *widget : widgets) {
            if (!isPartOfAttributeWidget(widget, page)) {
                wire(widget, [&createFilter, widget]() -> QKXEventFilterBase * { return createFilter(widget); });
            }
        }
    }
    // The same for one widget: false if it is wired already or bound to no attribute.
    bool wire(QKXWidgetBase *widget, const std::function<QKXEventFilterBase *()> &createFilter);

    // A filter of the class for a command widget: each submit() runs the widget's attribute.
    template <typename Filter>
    Filter *commandFilter(QWidget *widget)
    {
        auto *filter = new Filter(widget);
        SimulatedEngine *target = engine();
        // The attribute is read at submit time, so a form that rebinds the widget later is followed.
        connect(filter, &Filter::submit, target, [target, widget] { target->command(WidgetNaming::boundAttribute(widget)); });
        return filter;
    }

    // Each value the filter submits through that signal is asked of the engine (request()).
    template <typename Filter, typename Owner, typename Value>
    void requestOnSubmit(Filter *filter, void (Owner::*submit)(Value), QWidget *widget)
    {
        connect(filter, submit, this,
                [this, widget](Value value) { request(widget, QVariant::fromValue(std::decay_t<Value>(value))); });
    }
    // Asks the engine for the value of the widget's attribute. A value the engine holds to one of its
    // limits gets a notice: the field changes to a number the user did not type, and says so.
    SimulatedEngine::Answer request(QWidget *widget, const QVariant &value);

    // Shows the engine's value of the widget's attribute now and whenever it changes or is confirmed.
    // Once per widget: wiring a screen again adds no second binding.
    void followValue(QWidget *widget, std::function<void(const QVariant &)> show);

    // On each of the filter's edit starts, choose() names the editor and the edit is handed to it; an
    // editor without open gives the edit back (nobody could type into it).
    void openEditorOnEditStart(QKXEventFilterBase *filter, QWidget *widget, std::function<Editor()> choose);
    // The same with a ring of editors: the first opens, and each rotateEntry() of the open one hands
    // the edit, still open, to the next one round the ring. An empty ring gives the edit back.
    void openEditorsOnEditStart(QKXEventFilterBase *filter, QWidget *widget, std::function<QList<Editor>()> ring);
    // The numeric editors the field's Numpad, Spinner and Slider flags allow, in that order.
    QList<Editor> numericEditors(QKXNumeric *field);
    // The arrow keys and Return step the field through the direction pad while it has the focus: Up
    // and Down by one step, Left and Right make the step ten times larger and smaller, Return
    // commits. An arrow starts an edit when none is open, or takes over the open one from its popup.
    // The field keeps the focus after each of its edits, so that the keys know which field is meant.
    void useDirectionPad(QKXEventFilterBase *filter, QWidget *field);
    // The popup of the class for the current edit, under that name.
    template <typename Popup>
    Editor editor(const QString &name)
    {
        Popup *shown = popup<Popup>();
        return {name, [shown](QObject *filter, QWidget *widget) { shown->registerWidget(filter, widget); },
                [shown] { QMetaObject::invokeMethod(shown, "unregister"); }};
    }
    // The panel's one popup of the class, made on first use over the main window, in whose
    // coordinates popups place themselves; arguments after the parent go to its constructor.
    template <typename Popup, typename... Args>
    Popup *popup(Args &&...args)
    {
        QWidget *window = mainWindow();
        Popup *found = window ? window->findChild<Popup *>(QString(), Qt::FindDirectChildrenOnly) : nullptr;
        if (!found) {
            found = new Popup(window, std::forward<Args>(args)...);
            watchRotation(found, HasRotateEntry<Popup>());
        }
        return found;
    }

    void showNotice(const QString &text, StatusStrip::NoticeKind kind = StatusStrip::Information);

    // Asks every attribute widget under the page for its large look; in the compact display modes
    // the widgets keep their compact one themselves. A widget in a size of its own (a horizontal
    // meter bar's "Thumb") keeps it.
    static void applySizeVariant(QWidget *page);
    // A widget inside another attribute widget is one of its parts (a composite builds its own).
    static bool isPartOfAttributeWidget(const QWidget *widget, const QWidget *page);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    // A filter saw a tap while the interface is locked; the window tells the user.
    void guiLockedMessageRequested(QWidget *widget);
    void noticeRequested(const QString &text, StatusStrip::NoticeKind kind);

private:
    template <typename Popup, typename = void>
    struct HasRotateEntry : std::false_type {
    };
    template <typename Popup>
    struct HasRotateEntry<Popup, std::void_t<decltype(&Popup::rotateEntry)>> : std::true_type {
    };

    template <typename Popup>
    void watchRotation(Popup *shown, std::true_type)
    {
        connect(shown, &Popup::rotateEntry, this, &PanelHost::rotationAsked);
    }
    template <typename Popup>
    void watchRotation(Popup *, std::false_type)
    {
    }
    // A popup asked for another editor for the current edit.
    void rotationAsked();
    // Hands the edit to the direction pad and gives it the key.
    void openDirectionPad(QObject *filter, QWidget *field, int key);

    QWidget *mainWindow() const;

    SimulatedEngine *simulatedEngine;
    EditLockOwner *editLock;
    int wiredCount;
    // The edit an editor was last opened for, named in the log when the editor asks to rotate.
    QPointer<QWidget> editedWidget;
    QString editorName;
    // The open edit's filter and its ring of editors, with the one that has the edit; cleared when
    // the edit ends.
    QPointer<QObject> editedFilter;
    QList<Editor> editorRing;
    int editorIndex = -1;
    // An arrow key that started an edit, waiting for the edit to begin.
    QPointer<QWidget> directionField;
    int directionKey = -1;
    bool watchingKeys = false;
};

#endif // PANELHOST_H
