// SPDX-License-Identifier: BSD-3-Clause
#include "SettingsScreen.h"

#include "EditLockOwner.h"
#include "MainWindow.h"
#include "PanelHost.h"
#include "ScreenRunner.h"
#include "SimulatedEngine.h"

#include "OverrideSpinBox.h"
#include "QKXAttribLongLongEventFilter.h"
#include "QKXDateSpin.h"
#include "QKXDateWidget.h"
#include "QKXTimeSpin.h"
#include "QKXTimeWidget.h"

#include <QDateTime>
#include <QLineEdit>
#include <QPushButton>
#include <QStyle>
#include <QStyleOptionSpinBox>

#include <algorithm>

#include "ui_SettingsScreen.h"

namespace {

const QString settings_calibration = QStringLiteral("CalibrationDate");
const QString settings_due = QStringLiteral("CalibrationDue");
const QString settings_clock = QStringLiteral("SystemClock");

// The engine's value when an edit begins: with an adapter, a tap asks for the edit lock first.
class SecondsAdapter : public QObject
{
    Q_OBJECT
public:
    SecondsAdapter(SimulatedEngine *engine, QWidget *widget) : engine(engine), widget(widget) {}
    Q_INVOKABLE qlonglong get() const { return engine->value(WidgetNaming::boundAttribute(widget)).toLongLong(); }

private:
    SimulatedEngine *engine;
    QWidget *widget;
};

qlonglong settings_seconds(const QDate &date, const QTime &time)
{
    return QDateTime(date, time).toSecsSinceEpoch();
}

} // namespace

QString SettingsScreen::id() const
{
    return QStringLiteral("settings");
}

void SettingsScreen::addAttributes(SimulatedEngine &engine)
{
    // Values are seconds since 1970 (UTC), as the engine keeps dates and times.
    engine.addValue(settings_calibration, settings_seconds(QDate(2024, 3, 5), QTime(9, 0)));
    engine.addValue(settings_due, settings_seconds(QDate(2025, 3, 5), QTime(9, 0)));
    engine.addValue(settings_clock, settings_seconds(QDate(2024, 5, 14), QTime(8, 30)));
    // A calibration is good for a year.
    SimulatedEngine *source = &engine;
    connect(source, &SimulatedEngine::valueChanged, source, [source](const QString &name, const QVariant &value) {
        if (name == settings_calibration) {
            const QDateTime calibrated = QDateTime::fromSecsSinceEpoch(value.toLongLong());
            source->setValue(settings_due, QVariant::fromValue(calibrated.addYears(1).toSecsSinceEpoch()));
        }
    });
}

QWidget *SettingsScreen::createPage()
{
    return formPage<Ui::SettingsScreen>();
}

void SettingsScreen::wire(PanelHost &host, QWidget *page)
{
    const auto wireField = [&host](QWidget *field, const auto &show, const auto &editor) -> QKXEventFilterBase * {
        host.followValue(field, show);
        auto *adapter = new SecondsAdapter(host.engine(), field);
        auto *filter = new QKXAttribLongLongEventFilter(field, adapter);
        adapter->setParent(filter);
        host.requestOnSubmit(filter, &QKXAttribLongLongEventFilter::submit, field);
        host.openEditorOnEditStart(filter, field, editor);
        return filter;
    };
    host.wireEach<QKXDateWidget>(page, [&host, &wireField](QKXDateWidget *field) {
        return wireField(field, [field](const QVariant &value) { field->setValue(value.toLongLong()); },
                         [&host] { return host.editor<QKXDateSpin>(QStringLiteral("date editor")); });
    });
    host.wireEach<QKXTimeWidget>(page, [&host, &wireField](QKXTimeWidget *field) {
        return wireField(field, [field](const QVariant &value) { field->setValue(value.toLongLong()); },
                         [&host] { return host.editor<QKXTimeSpin>(QStringLiteral("time editor")); });
    });
}

// The editor's spin boxes from left to right.
static QList<QSpinBox *> settings_columns(QWidget *editor)
{
    QList<QSpinBox *> spins;
    for (OverrideSpinBox *spin : editor->findChildren<OverrideSpinBox *>()) {
        spins << spin;
    }
    std::sort(spins.begin(), spins.end(), [](QSpinBox *a, QSpinBox *b) { return a->x() < b->x(); });
    return spins;
}

// Taps a spin box's up or down arrow where its style draws it, as often as asked.
static void settings_tapArrow(QSpinBox *spin, bool up, int times)
{
    QStyleOptionSpinBox option;
    option.initFrom(spin);
    option.subControls = QStyle::SC_SpinBoxUp | QStyle::SC_SpinBoxDown | QStyle::SC_SpinBoxEditField;
    option.buttonSymbols = spin->buttonSymbols();
    option.stepEnabled = QAbstractSpinBox::StepUpEnabled | QAbstractSpinBox::StepDownEnabled;
    option.frame = spin->hasFrame();
    const QRect arrow = spin->style()->subControlRect(QStyle::CC_SpinBox, &option,
                                                      up ? QStyle::SC_SpinBoxUp : QStyle::SC_SpinBoxDown, spin);
    for (int i = 0; i < times; ++i) {
        ScreenRunner::tap(spin, arrow.center());
    }
}

// Taps the field bound to the attribute and waits for the editor of the class to open for it.
template <typename Editor>
static Editor *settings_openEditor(ScreenRunner &runner, QWidget *field, const QString &attribute)
{
    auto *display = field ? field->findChild<QLineEdit *>() : nullptr;
    if (!display || !runner.showScreenOf(field, QStringLiteral("the %1 field").arg(attribute))) {
        runner.fail(QStringLiteral("no field can be tapped for %1").arg(attribute));
        return nullptr;
    }
    runner.engine()->appendLog(QStringLiteral("tap %1").arg(attribute));
    // The display is disabled while no edit is open: the press reaches the field's filter.
    ScreenRunner::tap(field, display->geometry().center());
    Editor *editor = nullptr;
    const bool opened = runner.waitFor([&] {
        editor = runner.window()->findChild<Editor *>();
        return editor && editor->isVisible() && runner.lockOwner()->holder() == field;
    });
    if (!opened) {
        runner.fail(QStringLiteral("no editor opened for %1").arg(attribute));
        return nullptr;
    }
    return editor;
}

// Taps the editor's Enter key and waits for the edit to end with the field showing the text.
static bool settings_enter(ScreenRunner &runner, QWidget *editor, QWidget *field, const QString &shown)
{
    QPushButton *enter = nullptr;
    for (QPushButton *key : editor->findChildren<QPushButton *>(QStringLiteral("entry"))) {
        if (key->text() == QStringLiteral("Enter")) {
            enter = key;
        }
    }
    if (!enter) {
        return runner.fail(QStringLiteral("the editor shows no Enter key"));
    }
    ScreenRunner::tap(enter);
    auto *display = field->findChild<QLineEdit *>();
    if (!runner.waitFor([&] { return runner.lockOwner()->isFree() && !editor->isVisible() && display->text() == shown; })) {
        return runner.fail(QStringLiteral("after Enter the %1 shows \"%2\", not \"%3\"; the lock is %4")
                               .arg(WidgetNaming::boundAttribute(field), display->text(), shown,
                                    runner.lockOwner()->isFree() ? QStringLiteral("free") : QStringLiteral("held")));
    }
    return true;
}

static bool settings_editCalibrationDate(ScreenRunner &runner)
{
    auto *field = runner.boundWidget<QKXDateWidget>(settings_calibration);
    auto *editor = settings_openEditor<QKXDateSpin>(runner, field, settings_calibration);
    if (!editor) {
        return false;
    }
    // Day first, as the field's input format asks.
    const QList<QSpinBox *> columns = settings_columns(editor);
    if (columns.size() != 3) {
        return runner.fail(QStringLiteral("the date editor has %1 columns").arg(columns.size()));
    }
    runner.engine()->appendLog(QStringLiteral("day up twice, month down once"));
    settings_tapArrow(columns.at(0), true, 2);
    settings_tapArrow(columns.at(1), false, 1);
    const QDate wanted(2024, 2, 7);
    if (editor->getDate() != wanted) {
        return runner.fail(QStringLiteral("the date editor shows %1, not %2")
                               .arg(editor->getDate().toString(Qt::ISODate), wanted.toString(Qt::ISODate)));
    }
    if (!runner.snapshot(QStringLiteral("settings-CalibrationDate-editor-open"))
        || !settings_enter(runner, editor, field, QStringLiteral("Feb 7, 2024"))) {
        return false;
    }
    const QDateTime held = QDateTime::fromSecsSinceEpoch(runner.engine()->value(settings_calibration).toLongLong());
    auto *due = runner.boundWidget<QKXDateWidget>(settings_due);
    const QString dueText = due ? due->findChild<QLineEdit *>()->text() : QString();
    if (held.date() != wanted || dueText != QStringLiteral("Feb 7, 2025")) {
        return runner.fail(QStringLiteral("the engine holds %1 for the calibration, and the due date reads \"%2\"")
                               .arg(held.toString(Qt::ISODate), dueText));
    }
    return true;
}

static bool settings_setClock(ScreenRunner &runner)
{
    auto *field = runner.boundWidget<QKXTimeWidget>(settings_clock);
    auto *editor = settings_openEditor<QKXTimeSpin>(runner, field, settings_clock);
    if (!editor) {
        return false;
    }
    const QList<QSpinBox *> columns = settings_columns(editor);
    auto *toggle = editor->findChild<QPushButton *>(QStringLiteral("APtoggle"));
    if (columns.size() != 3 || !toggle) {
        return runner.fail(QStringLiteral("the time editor lacks its columns or its AM/PM key"));
    }
    runner.engine()->appendLog(QStringLiteral("hour up, minute down twice, AM/PM"));
    settings_tapArrow(columns.at(0), true, 1);
    settings_tapArrow(columns.at(1), false, 2);
    ScreenRunner::tap(toggle);
    const QTime wanted(21, 28);
    if (editor->getTime() != wanted) {
        return runner.fail(QStringLiteral("the time editor shows %1, not %2")
                               .arg(editor->getTime().toString(), wanted.toString()));
    }
    if (!runner.snapshot(QStringLiteral("settings-SystemClock-editor-open"))
        || !settings_enter(runner, editor, field, QStringLiteral("9:28:00 PM"))) {
        return false;
    }
    // The clock is set for today; the UTC view follows the same value.
    const QDateTime held = QDateTime::fromSecsSinceEpoch(runner.engine()->value(settings_clock).toLongLong());
    QKXTimeWidget *utc = nullptr;
    for (QKXTimeWidget *view : runner.window()->findChildren<QKXTimeWidget *>()) {
        if (view != field && WidgetNaming::boundAttribute(view) == settings_clock) {
            utc = view;
        }
    }
    const QString utcText = utc ? utc->findChild<QLineEdit *>()->text() : QString();
    if (held.date() != QDate::currentDate() || held.time() != wanted
        || utcText != held.toUTC().time().toString(QStringLiteral("HH:mm:ss"))) {
        return runner.fail(QStringLiteral("the engine holds %1 for the clock, and the UTC view reads \"%2\"")
                               .arg(held.toString(Qt::ISODate), utcText));
    }
    return runner.snapshot(QStringLiteral("settings-all-set"));
}

bool SettingsScreen::play(ScreenRunner &runner)
{
    return settings_editCalibrationDate(runner) && settings_setClock(runner);
}

#include "SettingsScreen.moc"
