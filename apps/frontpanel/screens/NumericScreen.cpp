#include "NumericScreen.h"

#include "EditLockOwner.h"
#include "MainWindow.h"
#include "PanelHost.h"
#include "ScreenRunner.h"
#include "SimulatedEngine.h"

#include "QKXNumeric.h"
#include "QKXNumericEventFilter.h"
#include "QKXNumpad.h"

#include <QLineEdit>
#include <QPushButton>

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
        // The pad is the only numeric editor here: an edit nobody can type into is given back.
        host.openEditorOnEditStart(filter, numeric, [&host, numeric] {
            return numeric->hasNumpad() ? host.editor<QKXNumpad>(QStringLiteral("numeric pad")) : PanelHost::Editor();
        });
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

bool NumericScreen::play(ScreenRunner &runner)
{
    return numeric_editOnNumpad(runner, QStringLiteral("UnitAddress"),
                                {QStringLiteral("B"), QStringLiteral("E"), QStringLiteral("E"), QStringLiteral("F")},
                                QStringLiteral("hexEnter"), 0xBEEF, QStringLiteral("BEEF"))
        && numeric_editOnNumpad(runner, QStringLiteral("Level"), {QStringLiteral("2"), QStringLiteral("5")},
                                QStringLiteral("enter"), 10.0, QStringLiteral("10.0"));
}

#include "NumericScreen.moc"
