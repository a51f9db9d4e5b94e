// SPDX-License-Identifier: BSD-3-Clause
#include "ChoicesScreen.h"

#include "EditLockOwner.h"
#include "MainWindow.h"
#include "PanelHost.h"
#include "ScreenRunner.h"
#include "SimulatedEngine.h"

#include "QKXComboBox.h"
#include "QKXComboBoxList.h"
#include "QKXComboEventFilter.h"
#include "QKXComboListItem.h"
#include "QKXComboPopup.h"
#include "QKXComboWheel.h"
#include "QKXTableEnum.h"
#include "QKXTableEnumEventFilter.h"
#include "QKXWheelEnum.h"
#include "QKXWheelFrame.h"

#include <QLabel>
#include <QTableView>

#include "ui_ChoicesScreen.h"

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

QVariant choices_entry(int value, const QString &literal)
{
    return QVariantList{value, literal};
}

} // namespace

QString ChoicesScreen::id() const
{
    return QStringLiteral("choices");
}

void ChoicesScreen::addAttributes(SimulatedEngine &engine)
{
    struct Enumeration {
        const char *name;
        int preset;
        QVariantList record;
    };
    QVariantList channels;
    // The marine VHF simplex channels the receiver tests are run on: more rows than the table shows.
    const int numbers[] = {6, 8, 9, 10, 13, 15, 16, 17, 67, 68, 69, 70, 71, 72, 73, 74, 77};
    for (int number : numbers) {
        // Channels 60 and up sit 25 kHz above the band's first half.
        const double mhz = number < 60 ? 156.0 + 0.05 * number : 156.025 + 0.05 * (number - 60);
        const char *use = number == 16 ? "Distress" : number == 70 ? "DSC" : number == 13 ? "Bridge" : "Ship";
        channels << choices_entry(number, QStringLiteral("%1,%2 MHz,%3")
                                              .arg(number, 2, 10, QLatin1Char('0'))
                                              .arg(mhz, 0, 'f', 3)
                                              .arg(QLatin1String(use)));
    }
    const Enumeration enumerations[] = {
        {"ModulationType", 1,
         {choices_entry(0, QStringLiteral("AM")), choices_entry(1, QStringLiteral("FM")),
          choices_entry(2, QStringLiteral("PM")), choices_entry(4, QStringLiteral("SSB")),
          choices_entry(5, QStringLiteral("DSB-SC")), choices_entry(8, QStringLiteral("CW"))}},
        {"IfBandwidth", 12500,
         {choices_entry(6250, QStringLiteral("6.25 kHz")), choices_entry(8330, QStringLiteral("8.33 kHz")),
          choices_entry(12500, QStringLiteral("12.5 kHz")), choices_entry(20000, QStringLiteral("20 kHz")),
          choices_entry(25000, QStringLiteral("25 kHz")), choices_entry(30000, QStringLiteral("30 kHz")),
          choices_entry(50000, QStringLiteral("50 kHz")), choices_entry(100000, QStringLiteral("100 kHz")),
          choices_entry(150000, QStringLiteral("150 kHz")), choices_entry(200000, QStringLiteral("200 kHz")),
          choices_entry(300000, QStringLiteral("300 kHz")), choices_entry(1000000, QStringLiteral("1 MHz"))}},
        {"Detector", 1,
         {choices_entry(0, QStringLiteral("Peak")), choices_entry(1, QStringLiteral("RMS")),
          choices_entry(2, QStringLiteral("Average")), choices_entry(3, QStringLiteral("Quasi-peak")),
          choices_entry(4, QStringLiteral("Min peak")), choices_entry(5, QStringLiteral("Sample"))}},
        {"RadioChannel", 16, channels},
    };
    for (const Enumeration &e : enumerations) {
        const QString name = QString::fromLatin1(e.name);
        engine.addValue(name, e.preset);
        engine.setMetaData(name, e.record);
    }
}

QWidget *ChoicesScreen::createPage()
{
    return formPage<Ui::ChoicesScreen>();
}

void ChoicesScreen::wire(PanelHost &host, QWidget *page)
{
    // The wheel enum is a combo box edited on the wheel; every other combo box opens the list. Every
    // choice goes to the engine, which confirms it through setIndex.
    host.wireEach<QKXComboBox>(page, [&host](QKXComboBox *combo) {
        // The record first: the engine's value is then shown with its literal straight away.
        combo->setMetaData(host.engine()->metaData(WidgetNaming::boundAttribute(combo)));
        host.followValue(combo, [combo](const QVariant &value) { combo->setIndex(value.toInt()); });
        auto *filter = new QKXComboEventFilter(combo);
        host.requestOnSubmit(filter, &QKXComboEventFilter::submit, combo);
        const bool wheel = qobject_cast<QKXWheelEnum *>(combo) != nullptr;
        host.openEditorOnEditStart(filter, combo, [&host, wheel] {
            return wheel ? host.editor<QKXComboWheel>(QStringLiteral("wheel popup"))
                         : host.editor<QKXComboBoxList>(QStringLiteral("list popup"));
        });
        return filter;
    });
    host.wireEach<QKXTableEnum>(page, [&host](QKXTableEnum *table) {
        table->setMetaData(host.engine()->metaData(WidgetNaming::boundAttribute(table)));
        host.followValue(table, [table](const QVariant &value) { table->setIndex(value.toInt()); });
        // With an adapter the tap asks for the edit lock first, so a table row cannot change an
        // attribute while another widget is being edited.
        auto *adapter = new EnumAdapter(host.engine(), table);
        auto *filter = new QKXTableEnumEventFilter(table, adapter);
        adapter->setParent(filter);
        host.requestOnSubmit(filter, &QKXTableEnumEventFilter::submit, table);
        return filter;
    });
}

// Taps the enumerated widget bound to the attribute, waits for its popup, optionally drags the popup's
// column by dragBy, renders the open popup, and taps the item showing the literal.
static bool choices_chooseOnPopup(ScreenRunner &runner, const QString &attribute, int dragBy, const QString &literal,
                                  int expected, int timeoutMs = 2000)
{
    auto *combo = runner.boundWidget<QKXComboBox>(attribute);
    if (!combo) {
        return runner.fail(QStringLiteral("no combo box is bound to %1").arg(attribute));
    }
    auto *field = combo->findChild<QLabel *>(QStringLiteral("ComboText"));
    if (!field || !runner.showScreenOf(field, QStringLiteral("the %1 field").arg(attribute))) {
        return false;
    }
    const bool wheel = qobject_cast<QKXWheelEnum *>(combo) != nullptr;
    const QString kind = wheel ? QStringLiteral("wheel") : QStringLiteral("list");
    SimulatedEngine *engine = runner.engine();
    EditLockOwner *lock = runner.lockOwner();
    QWidget *window = runner.window();

    engine->appendLog(QStringLiteral("tap %1").arg(attribute));
    // The field is disabled: the finger's events reach the combo box, where its filter sees them.
    ScreenRunner::tap(combo, combo->mapFromGlobal(field->mapToGlobal(field->rect().center())));
    QKXComboPopup *popup = nullptr;
    const bool opened = runner.waitFor([&] {
        popup = wheel ? static_cast<QKXComboPopup *>(window->findChild<QKXComboWheel *>())
                      : static_cast<QKXComboPopup *>(window->findChild<QKXComboBoxList *>());
        return popup && popup->isVisible() && popup->widget() == combo && lock->holder() == combo;
    }, timeoutMs);
    if (!opened) {
        return runner.fail(QStringLiteral("the %1 popup did not open for %2").arg(kind, attribute));
    }

    if (dragBy != 0) {
        QKXComboListItem *first = popup->shownItems().value(0);
        if (!first) {
            return runner.fail(QStringLiteral("the %1 popup of %2 is empty").arg(kind, attribute));
        }
        // The finger starts on the item of the value shown (the one on the wheel's band).
        QWidget *under = nullptr;
        for (QKXComboListItem *item : popup->shownItems()) {
            if (item->text() == combo->text()) {
                under = item;
            }
        }
        if (!under) {
            return runner.fail(QStringLiteral("the %1 popup of %2 lists no %3").arg(kind, attribute, combo->text()));
        }
        engine->appendLog(QStringLiteral("drag the %1 by %2 pixels").arg(kind).arg(dragBy));
        ScreenRunner::drag(under, under->mapToGlobal(under->rect().center()), dragBy);
        auto *frame = popup->findChild<QKXWheelFrame *>();
        if (frame && !runner.waitFor([frame] { return !frame->isMoving(); }, timeoutMs)) {
            return runner.fail(QStringLiteral("the wheel of %1 did not come to rest").arg(attribute));
        }
    }

    QKXComboListItem *choice = nullptr;
    for (QKXComboListItem *item : popup->shownItems()) {
        if (item->text() == literal) {
            choice = item;
        }
    }
    if (!choice || !choice->isVisible() || choice->visibleRegion().isEmpty()) {
        return runner.fail(QStringLiteral("the %1 popup of %2 shows no %3").arg(kind, attribute, literal));
    }
    if (!runner.snapshot(QStringLiteral("choices-%1-%2-open").arg(attribute, kind))) {
        return false;
    }

    engine->appendLog(QStringLiteral("pick %1").arg(literal));
    ScreenRunner::tap(choice);
    if (!runner.waitFor([&] { return lock->isFree() && !popup->isVisible() && combo->currentIndex() == expected; },
                        timeoutMs)) {
        return runner.fail(QStringLiteral("after picking %1 the %2 shows %3, the engine holds %4, the lock is %5")
                               .arg(literal, attribute, combo->text(), engine->value(attribute).toString(),
                                    lock->isFree() ? QStringLiteral("free") : QStringLiteral("held")));
    }
    if (engine->value(attribute).toInt() != expected || combo->text() != literal) {
        return runner.fail(QStringLiteral("the engine holds %1 for %2 and the field shows %3, not %4 (%5)")
                               .arg(engine->value(attribute).toString(), attribute, combo->text(), literal)
                               .arg(expected));
    }
    return true;
}

// The channel table: scrolled by a drag, then a tap on a row that was out of sight.
static bool choices_tapChannelRow(ScreenRunner &runner)
{
    const QString attribute = QStringLiteral("RadioChannel");
    auto *table = runner.boundWidget<QKXTableEnum>(attribute);
    auto *view = table ? table->findChild<QTableView *>() : nullptr;
    if (!view || !runner.showScreenOf(view, QStringLiteral("the channel table"))) {
        return runner.fail(QStringLiteral("no channel table is bound to %1").arg(attribute));
    }
    SimulatedEngine *engine = runner.engine();
    EditLockOwner *lock = runner.lockOwner();
    QWidget *rows = view->viewport();
    int wanted = -1;
    for (int row = 0; row < table->rowCount(); ++row) {
        if (table->getRowIndex(row) == 70) {
            wanted = row;
        }
    }
    const auto cell = [&] { return wanted >= 0 ? view->visualRect(view->model()->index(wanted, 1)) : QRect(); };
    // Strokes of most of the table's height until the row shows: a shorter page shows fewer rows.
    engine->appendLog(QStringLiteral("drag the channel table up"));
    for (int stroke = 0; stroke < 6 && !rows->rect().contains(cell().center()); ++stroke) {
        ScreenRunner::drag(rows, rows->mapToGlobal(QPoint(rows->width() / 2, rows->height() - 20)), -(rows->height() - 60));
    }
    if (!rows->rect().contains(cell().center())) {
        return runner.fail(QStringLiteral("channel 70 did not come into sight in the table"));
    }
    engine->appendLog(QStringLiteral("tap channel 70"));
    ScreenRunner::tap(rows, cell().center());
    if (!runner.waitFor([&] { return lock->isFree() && table->currentIndex() == 70; })
        || engine->value(attribute).toInt() != 70) {
        return runner.fail(QStringLiteral("after the tap on channel 70 the engine holds %1 and the table %2")
                               .arg(engine->value(attribute).toString())
                               .arg(table->currentIndex()));
    }
    return runner.snapshot(QStringLiteral("choices-all-chosen"));
}

bool ChoicesScreen::play(ScreenRunner &runner)
{
    return choices_chooseOnPopup(runner, QStringLiteral("ModulationType"), 0, QStringLiteral("SSB"), 4)
        && choices_chooseOnPopup(runner, QStringLiteral("IfBandwidth"), -170, QStringLiteral("150 kHz"), 150000)
        && choices_chooseOnPopup(runner, QStringLiteral("Detector"), -84, QStringLiteral("Quasi-peak"), 3)
        && choices_tapChannelRow(runner);
}

#include "ChoicesScreen.moc"
