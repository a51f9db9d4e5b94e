// The choices screen's scripted roads; the rest of ScriptedSession is in ScriptedSession.cpp.
#include "ScriptedSession.h"

#include "EditLockOwner.h"
#include "MainWindow.h"
#include "SimulatedEngine.h"
#include "WidgetNaming.h"

#include "QKXComboBox.h"
#include "QKXComboBoxList.h"
#include "QKXComboListItem.h"
#include "QKXComboPopup.h"
#include "QKXComboWheel.h"
#include "QKXTableEnum.h"
#include "QKXWheelEnum.h"
#include "QKXWheelFrame.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QLabel>
#include <QMouseEvent>
#include <QTableView>

// A finger at a place on the screen: the event goes to the widget it is on, wherever that widget has
// moved to since the press, as with the grab a real press gives its widget.
static void choices_send(QWidget *target, QEvent::Type type, const QPoint &global)
{
    const QPoint pos = target->mapFromGlobal(global);
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, pos, target->window()->mapFromGlobal(global), global, button, held, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &event);
}

static void choices_pause(int ms)
{
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < ms) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    }
}

// Press, a deliberate drag in steps of 10 pixels every 20 ms as a finger sends them, a rest, and a
// release: a placing stroke, not a flick, so a wheel stops where the finger left it.
static void choices_drag(QWidget *target, const QPoint &fromGlobal, int dy)
{
    choices_send(target, QEvent::MouseButtonPress, fromGlobal);
    const int steps = qMax(1, qAbs(dy) / 10);
    for (int i = 1; i <= steps; ++i) {
        choices_pause(20);
        choices_send(target, QEvent::MouseMove, fromGlobal + QPoint(0, dy * i / steps));
    }
    choices_pause(150);
    choices_send(target, QEvent::MouseButtonRelease, fromGlobal + QPoint(0, dy));
}

static void choices_tap(QWidget *target, const QPoint &global)
{
    choices_send(target, QEvent::MouseButtonPress, global);
    choices_send(target, QEvent::MouseButtonRelease, global);
}

template <typename Widget>
static Widget *choices_boundWidget(QWidget *window, const QString &attribute)
{
    for (Widget *candidate : window->findChildren<Widget *>()) {
        if (WidgetNaming::boundAttribute(candidate) == attribute) {
            return candidate;
        }
    }
    return nullptr;
}

bool ScriptedSession::chooseOnPopup(const QString &attribute, int dragBy, const QString &literal, int expected,
                                    const QDir &directory, QStringList &images, int timeoutMs)
{
    auto *combo = choices_boundWidget<QKXComboBox>(window, attribute);
    if (!combo) {
        return fail(QStringLiteral("no combo box is bound to %1").arg(attribute));
    }
    auto *field = combo->findChild<QLabel *>(QStringLiteral("ComboText"));
    if (!field || !showScreenOf(field, QStringLiteral("the %1 field").arg(attribute))) {
        return false;
    }
    const bool wheel = qobject_cast<QKXWheelEnum *>(combo) != nullptr;
    const QString kind = wheel ? QStringLiteral("wheel") : QStringLiteral("list");
    SimulatedEngine *engine = window->engine();
    EditLockOwner *lock = window->lockOwner();

    engine->appendLog(QStringLiteral("tap %1").arg(attribute));
    // The field is disabled: the finger's events reach the combo box, where its filter sees them.
    choices_tap(combo, field->mapToGlobal(field->rect().center()));
    QKXComboPopup *popup = nullptr;
    const bool opened = waitFor([&] {
        popup = wheel ? static_cast<QKXComboPopup *>(window->findChild<QKXComboWheel *>())
                      : static_cast<QKXComboPopup *>(window->findChild<QKXComboBoxList *>());
        return popup && popup->isVisible() && popup->widget() == combo && lock->holder() == combo;
    }, timeoutMs);
    if (!opened) {
        return fail(QStringLiteral("the %1 popup did not open for %2").arg(kind, attribute));
    }

    if (dragBy != 0) {
        QKXComboListItem *first = popup->shownItems().value(0);
        if (!first) {
            return fail(QStringLiteral("the %1 popup of %2 is empty").arg(kind, attribute));
        }
        // The finger starts on the item of the value shown (the one on the wheel's band).
        QWidget *under = nullptr;
        for (QKXComboListItem *item : popup->shownItems()) {
            if (item->text() == combo->text()) {
                under = item;
            }
        }
        if (!under) {
            return fail(QStringLiteral("the %1 popup of %2 lists no %3").arg(kind, attribute, combo->text()));
        }
        engine->appendLog(QStringLiteral("drag the %1 by %2 pixels").arg(kind).arg(dragBy));
        choices_drag(under, under->mapToGlobal(under->rect().center()), dragBy);
        auto *frame = popup->findChild<QKXWheelFrame *>();
        if (frame && !waitFor([frame] { return !frame->isMoving(); }, timeoutMs)) {
            return fail(QStringLiteral("the wheel of %1 did not come to rest").arg(attribute));
        }
    }

    QKXComboListItem *choice = nullptr;
    for (QKXComboListItem *item : popup->shownItems()) {
        if (item->text() == literal) {
            choice = item;
        }
    }
    if (!choice || !choice->isVisible() || choice->visibleRegion().isEmpty()) {
        return fail(QStringLiteral("the %1 popup of %2 shows no %3").arg(kind, attribute, literal));
    }
    const QString open = renderWindow(directory, QStringLiteral("choices-%1-%2-open").arg(attribute, kind));
    if (open.isEmpty()) {
        return false;
    }
    images.append(open);

    engine->appendLog(QStringLiteral("pick %1").arg(literal));
    choices_tap(choice, choice->mapToGlobal(choice->rect().center()));
    if (!waitFor([&] { return lock->isFree() && !popup->isVisible() && combo->currentIndex() == expected; }, timeoutMs)) {
        return fail(QStringLiteral("after picking %1 the %2 shows %3, the engine holds %4, the lock is %5")
                        .arg(literal, attribute, combo->text(), engine->value(attribute).toString(),
                             lock->isFree() ? QStringLiteral("free") : QStringLiteral("held")));
    }
    if (engine->value(attribute).toInt() != expected || combo->text() != literal) {
        return fail(QStringLiteral("the engine holds %1 for %2 and the field shows %3, not %4 (%5)")
                        .arg(engine->value(attribute).toString(), attribute, combo->text(), literal).arg(expected));
    }
    return true;
}

bool ScriptedSession::playChoicesRoads(const QDir &directory, QStringList &images)
{
    if (!chooseOnPopup(QStringLiteral("ModulationType"), 0, QStringLiteral("SSB"), 4, directory, images)
        || !chooseOnPopup(QStringLiteral("IfBandwidth"), -170, QStringLiteral("150 kHz"), 150000, directory, images)
        || !chooseOnPopup(QStringLiteral("Detector"), -84, QStringLiteral("Quasi-peak"), 3, directory, images)) {
        return false;
    }

    // The channel table: scrolled by a drag, then a tap on a row that was out of sight.
    const QString attribute = QStringLiteral("RadioChannel");
    auto *table = choices_boundWidget<QKXTableEnum>(window, attribute);
    auto *view = table ? table->findChild<QTableView *>() : nullptr;
    if (!view || !showScreenOf(view, QStringLiteral("the channel table"))) {
        return fail(QStringLiteral("no channel table is bound to %1").arg(attribute));
    }
    SimulatedEngine *engine = window->engine();
    EditLockOwner *lock = window->lockOwner();
    QWidget *rows = view->viewport();
    engine->appendLog(QStringLiteral("drag the channel table up"));
    for (int stroke = 0; stroke < 2; ++stroke) {
        choices_drag(rows, rows->mapToGlobal(QPoint(rows->width() / 2, rows->height() - 20)), -(rows->height() - 60));
    }
    int wanted = -1;
    for (int row = 0; row < table->rowCount(); ++row) {
        if (table->getRowIndex(row) == 70) {
            wanted = row;
        }
    }
    const QRect cell = wanted >= 0 ? view->visualRect(view->model()->index(wanted, 1)) : QRect();
    if (!rows->rect().contains(cell.center())) {
        return fail(QStringLiteral("channel 70 did not come into sight in the table"));
    }
    engine->appendLog(QStringLiteral("tap channel 70"));
    choices_tap(rows, rows->mapToGlobal(cell.center()));
    if (!waitFor([&] { return lock->isFree() && table->currentIndex() == 70; }, 2000)
        || engine->value(attribute).toInt() != 70) {
        return fail(QStringLiteral("after the tap on channel 70 the engine holds %1 and the table %2")
                        .arg(engine->value(attribute).toString()).arg(table->currentIndex()));
    }
    const QString chosen = renderWindow(directory, QStringLiteral("choices-all-chosen"));
    if (chosen.isEmpty()) {
        return false;
    }
    images.append(chosen);
    return true;
}
