// SPDX-License-Identifier: BSD-3-Clause
#include "NumericScreen.h"

#include "EditLockOwner.h"
#include "MainWindow.h"
#include "PanelHost.h"
#include "ScreenRunner.h"
#include "SimulatedEngine.h"

#include "QKXDPad.h"
#include "QKXNumeric.h"
#include "QKXNumericEventFilter.h"
#include "QKXNumpad.h"
#include "QKXSliderBar.h"
#include "QKXSpinner.h"
#include "SliderBarImpl.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QtMath>

#include "ui_NumericScreen.h"

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

QString NumericScreen::id() const
{
    return QStringLiteral("numeric");
}

void NumericScreen::addAttributes(SimulatedEngine &engine)
{
    struct Attribute {
        const char *name;
        QVariant preset;
        double lower;
        double upper;
    };
    // An integer preset makes an integer attribute: its fields are edited and committed as "Int".
    const Attribute attributes[] = {
        {"Frequency", 1.0e9, 9.0e3, 6.0e9},
        {"Level", -30.0, -130.0, 10.0},
        {"Channel", 16, 1.0, 999.0},
        {"UnitAddress", 0x1A2B, 0.0, 65535.0},
        {"Squelch", -100, -120.0, -60.0},
    };
    for (const Attribute &attribute : attributes) {
        const QString name = QString::fromLatin1(attribute.name);
        engine.addValue(name, attribute.preset);
        engine.setLimits(name, attribute.lower, attribute.upper);
    }
}

QWidget *NumericScreen::createPage()
{
    return formPage<Ui::NumericScreen>();
}

void NumericScreen::wire(PanelHost &host, QWidget *page)
{
    host.wireEach<QKXNumeric>(page, [&host](QKXNumeric *numeric) {
        SimulatedEngine *engine = host.engine();
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
        if (isInt) {
            host.requestOnSubmit(filter, QOverload<int>::of(&QKXNumericEventFilter::submit), numeric);
        } else {
            host.requestOnSubmit(filter, QOverload<double>::of(&QKXNumericEventFilter::submit), numeric);
        }
        // The engine's answer, clamped or not, is what the field shows after a commit or a cancel.
        host.followValue(numeric, [numeric](const QVariant &value) { numeric->setValue(value.toDouble()); });
        // The editors the field's flags allow, the rotate key going round them; an edit nobody can
        // type into is given back. The arrow keys step the field through the direction pad.
        host.openEditorsOnEditStart(filter, numeric, [&host, numeric] { return host.numericEditors(numeric); });
        host.useDirectionPad(filter, numeric);
        return filter;
    });
}

// Taps the numeric field bound to the attribute, presses the keys and then the commit key on the pad,
// and checks that the engine holds the expected value and the field shows the expected text. The
// window is rendered while the pad is open and after the commit.
static bool numeric_editOnNumpad(ScreenRunner &runner, const QString &attribute, const QStringList &keys,
                                 const QString &commitKey, const QVariant &expected, const QString &shown,
                                 int timeoutMs = 2000)
{
    auto *field = runner.boundWidget<QKXNumeric>(attribute);
    if (!field) {
        return runner.fail(QStringLiteral("no numeric field is bound to %1").arg(attribute));
    }
    auto *display = field->findChild<QLineEdit *>();
    if (!display || !runner.showScreenOf(field, QStringLiteral("the %1 field").arg(attribute))) {
        return false;
    }
    SimulatedEngine *engine = runner.engine();
    EditLockOwner *lock = runner.lockOwner();
    engine->appendLog(QStringLiteral("tap %1").arg(attribute));
    // The finger lands on the value display, which is disabled while no edit is open: the press
    // reaches the field's filter through the field.
    ScreenRunner::tap(field, display->geometry().center());

    QKXNumpad *pad = nullptr;
    const bool opened = runner.waitFor([&] {
        pad = runner.window()->findChild<QKXNumpad *>();
        return pad && pad->isVisible() && pad->registeredWidget() == field && lock->holder() == field;
    }, timeoutMs);
    if (!opened) {
        return runner.fail(QStringLiteral("the numeric pad did not open for %1").arg(attribute));
    }
    engine->appendLog(QStringLiteral("keys %1, then %2").arg(keys.join(QLatin1Char(' ')), commitKey));
    for (const QString &name : keys) {
        QPushButton *key = pad->button(name);
        if (!key || !key->isVisible() || !key->isEnabled()) {
            return runner.fail(QStringLiteral("the numeric pad has no usable %1 key for %2").arg(name, attribute));
        }
        ScreenRunner::tap(key);
    }
    if (pad->display()->text() != keys.join(QString())) {
        return runner.fail(QStringLiteral("the pad shows \"%1\" after the keys %2")
                               .arg(pad->display()->text(), keys.join(QLatin1Char(' '))));
    }
    if (!runner.snapshot(QStringLiteral("numeric-%1-pad-open").arg(attribute))) {
        return false;
    }
    QPushButton *commit = pad->button(commitKey);
    if (!commit || !commit->isVisible()) {
        return runner.fail(QStringLiteral("the numeric pad shows no %1 key for %2").arg(commitKey, attribute));
    }
    ScreenRunner::tap(commit);
    if (!runner.waitFor([&] { return lock->isFree() && !pad->isVisible() && display->text() == shown; }, timeoutMs)) {
        return runner.fail(QStringLiteral("after %1 the %2 field shows \"%3\", the engine holds %4, the lock is %5")
                               .arg(commitKey, attribute, display->text(), engine->value(attribute).toString(),
                                    lock->isFree() ? QStringLiteral("free") : QStringLiteral("held")));
    }
    if (engine->value(attribute) != expected) {
        return runner.fail(QStringLiteral("the engine holds %1 for %2, not %3")
                               .arg(engine->value(attribute).toString(), attribute, expected.toString()));
    }
    return runner.snapshot(QStringLiteral("numeric-%1-committed").arg(attribute));
}

// Waits for the panel's popup of the class to be open for the field.
template <typename Popup>
static Popup *numeric_openFor(ScreenRunner &runner, QWidget *field)
{
    Popup *popup = nullptr;
    runner.waitFor([&] {
        popup = runner.window()->findChild<Popup *>();
        return popup && popup->isVisible() && popup->registeredWidget() == field;
    });
    return popup && popup->isVisible() && popup->registeredWidget() == field ? popup : nullptr;
}

// A finger drawing a counter-clockwise arc on the spinner's wheel, 80 pixels from its centre: 10
// degrees further every 20 ms, as a steady hand turns it down. The window is rendered with the finger
// still on the wheel, where its glow shows.
static bool numeric_turnWheel(ScreenRunner &runner, QKXSpinner *spinner, int moves, const QString &snapshot)
{
    QWidget *wheel = spinner->findChild<QWidget *>(QStringLiteral("SpinFrame"));
    const auto at = [wheel](int degrees) {
        const double a = qDegreesToRadians(double(degrees));
        return wheel->mapToGlobal(QPoint(110 + qRound(80 * std::cos(a)), 110 + qRound(80 * std::sin(a))));
    };
    ScreenRunner::touch(wheel, QEvent::MouseButtonPress, at(350));
    for (int i = 1; i <= moves; ++i) {
        runner.waitFor([] { return false; }, 20);
        ScreenRunner::touch(spinner, QEvent::MouseMove, at(350 - 10 * i));
    }
    const bool rendered = runner.snapshot(snapshot);
    ScreenRunner::touch(spinner, QEvent::MouseButtonRelease, at(350 - 10 * moves));
    return rendered;
}

// The level edited on each of its editors in turn: the pad opens, its rotate key brings the spinner,
// whose wheel is turned, and the spinner's rotate key brings the slider bar, whose thumb is dragged;
// every step must reach the engine as it happens, and Enter on the slider ends the edit.
static bool numeric_rotateThroughEditors(ScreenRunner &runner)
{
    const QString attribute = QStringLiteral("Level");
    auto *field = runner.boundWidget<QKXNumeric>(attribute);
    auto *display = field ? field->findChild<QLineEdit *>() : nullptr;
    if (!display || !runner.showScreenOf(field, QStringLiteral("the level field"))) {
        return runner.fail(QStringLiteral("no level field to rotate the editors of"));
    }
    SimulatedEngine *engine = runner.engine();
    const auto engineShows = [&](double value) {
        return runner.waitFor([&] { return qFuzzyCompare(engine->value(attribute).toDouble(), value) && display->text() == QString::number(value, 'f', 1); });
    };
    engine->appendLog(QStringLiteral("tap %1").arg(attribute));
    ScreenRunner::tap(field, display->geometry().center());
    auto *pad = numeric_openFor<QKXNumpad>(runner, field);
    if (!pad) {
        return runner.fail(QStringLiteral("the numeric pad did not open for the level"));
    }
    ScreenRunner::tap(pad->rotateButton());
    auto *spinner = numeric_openFor<QKXSpinner>(runner, field);
    if (!spinner || pad->isVisible()) {
        return runner.fail(QStringLiteral("the rotate key of the pad did not hand the level to the spinner"));
    }
    const double before = engine->value(attribute).toDouble();
    if (!numeric_turnWheel(runner, spinner, 30, QStringLiteral("numeric-Level-spinner-open"))) {
        return false;
    }
    if (!(spinner->value() < before) || !engineShows(spinner->value())) {
        return runner.fail(QStringLiteral("after a counter-clockwise turn the spinner shows %1, the engine holds %2 (was %3)")
                               .arg(spinner->display()->text(), engine->value(attribute).toString()).arg(before));
    }
    ScreenRunner::tap(spinner->findChild<QPushButton *>(QStringLiteral("RotateEntry")));
    auto *slider = numeric_openFor<QKXSliderBar>(runner, field);
    if (!slider || spinner->isVisible()) {
        return runner.fail(QStringLiteral("the rotate key of the spinner did not hand the level to the slider bar"));
    }
    SliderBarImpl *bar = slider->sliderBar();
    const QPoint from = bar->mapToGlobal(QPoint(bar->width() / 2, 12));
    ScreenRunner::touch(bar, QEvent::MouseButtonPress, from);
    for (int i = 1; i <= 5; ++i) {
        runner.waitFor([] { return false; }, 20);
        ScreenRunner::touch(bar, QEvent::MouseMove, from + QPoint(16 * i, 0));
    }
    ScreenRunner::touch(bar, QEvent::MouseButtonRelease, from + QPoint(80, 0));
    if (qFuzzyCompare(slider->value(), spinner->value()) || !engineShows(slider->value())) {
        return runner.fail(QStringLiteral("after the drag the slider bar shows %1, the engine holds %2")
                               .arg(slider->indicator()->text(), engine->value(attribute).toString()));
    }
    if (!runner.snapshot(QStringLiteral("numeric-Level-slider-open"))) {
        return false;
    }
    ScreenRunner::tap(slider->key(QStringLiteral("SliderEnter")));
    if (!runner.waitFor([&] { return runner.lockOwner()->isFree() && !slider->isVisible(); })) {
        return runner.fail(QStringLiteral("Enter on the slider bar did not end the level's edit"));
    }
    return engineShows(slider->value()) || runner.fail(QStringLiteral("the level lost its value at the end of the edit"));
}

// The channel stepped up twice with the arrow key and committed with Return, through the direction pad.
static bool numeric_arrowKeys(ScreenRunner &runner)
{
    const QString attribute = QStringLiteral("Channel");
    auto *field = runner.boundWidget<QKXNumeric>(attribute);
    if (!field || !runner.showScreenOf(field, QStringLiteral("the channel field"))) {
        return runner.fail(QStringLiteral("no channel field to step"));
    }
    SimulatedEngine *engine = runner.engine();
    const int start = engine->value(attribute).toInt();
    const auto press = [field](Qt::Key key) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(field, &event);
    };
    engine->appendLog(QStringLiteral("keys Up Up Return on %1").arg(attribute));
    for (int step = 1; step <= 2; ++step) {
        press(Qt::Key_Up);
        if (!numeric_openFor<QKXDPad>(runner, field) || !runner.waitFor([&] { return engine->value(attribute).toInt() == start + step; })) {
            return runner.fail(QStringLiteral("Up did not step the channel from %1 to %2; the engine holds %3")
                                   .arg(start).arg(start + step).arg(engine->value(attribute).toInt()));
        }
    }
    if (!runner.snapshot(QStringLiteral("numeric-Channel-arrow-keys"))) {
        return false;
    }
    press(Qt::Key_Return);
    if (!runner.waitFor([&] { return runner.lockOwner()->isFree(); })
        || field->findChild<QLineEdit *>()->text() != QString::number(start + 2)) {
        return runner.fail(QStringLiteral("Return did not commit the channel"));
    }
    return true;
}

bool NumericScreen::play(ScreenRunner &runner)
{
    return numeric_editOnNumpad(runner, QStringLiteral("UnitAddress"),
                                {QStringLiteral("B"), QStringLiteral("E"), QStringLiteral("E"), QStringLiteral("F")},
                                QStringLiteral("hexEnter"), 0xBEEF, QStringLiteral("BEEF"))
        && numeric_editOnNumpad(runner, QStringLiteral("Level"), {QStringLiteral("2"), QStringLiteral("5")},
                                QStringLiteral("enter"), 10.0, QStringLiteral("10.0"))
        && numeric_rotateThroughEditors(runner)
        && numeric_arrowKeys(runner);
}

#include "NumericScreen.moc"
