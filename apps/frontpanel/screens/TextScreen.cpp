// SPDX-License-Identifier: BSD-3-Clause
#include "TextScreen.h"

#include "EditLockOwner.h"
#include "MainWindow.h"
#include "PanelHost.h"
#include "ScreenRunner.h"
#include "SimulatedEngine.h"

#include "QKXDtmfKeypad.h"
#include "QKXKeyboard.h"
#include "QKXNumpad.h"
#include "QKXTextEntry.h"
#include "QKXTextEventFilter.h"
#include "QKXTextLog.h"
#include "QKXToneCodeEntry.h"
#include "QKXdPMRKeypad.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTextEdit>

#include "ui_TextScreen.h"

namespace {

// What a text filter remembers when an edit begins, so that a cancel can give it back: the engine's
// text of the field's attribute at that moment.
class TextAdapter : public QObject
{
    Q_OBJECT
public:
    TextAdapter(SimulatedEngine *engine, QWidget *field) : engine(engine), field(field) {}
    Q_INVOKABLE QString get() const { return engine->value(WidgetNaming::boundAttribute(field)).toString(); }

private:
    SimulatedEngine *engine;
    QWidget *field;
};

// Set on the DTMF pad once the engine listens to its held keys, so that wiring again adds no second ear.
const char text_tonesProperty[] = "frontpanelSoundsTones";

// The dial string is heard while it is typed: the pad reports each key at once and how long it is
// held, and the engine sounds the tone of the last key meanwhile.
void text_soundTones(QKXDtmfKeypad *pad, SimulatedEngine *engine)
{
    pad->setLive(true);
    if (pad->property(text_tonesProperty).toBool()) {
        return;
    }
    pad->setProperty(text_tonesProperty, true);
    QObject::connect(pad, &QKXDtmfKeypad::holding, engine, [engine, pad](bool held) {
        const QString key = pad->display()->text().right(1);
        engine->appendLog(held ? QStringLiteral("DTMF tone %1 sounding").arg(key) : QStringLiteral("DTMF tone off"));
    });
}

// The editor each entry mode asks for; none for a field that is not to be edited.
PanelHost::Editor text_editorFor(PanelHost &host, QKXTextEntry *field)
{
    switch (field->entryMode()) {
    case QKXTextEntry::KeyboardEntry:
    case QKXTextEntry::PasswordEntry:
        return host.editor<QKXKeyboard>(QStringLiteral("keyboard"));
    case QKXTextEntry::IPEntry:
        return host.editor<QKXNumpad>(QStringLiteral("numeric pad"));
    case QKXTextEntry::DtmfEntry:
        text_soundTones(host.popup<QKXDtmfKeypad>(), host.engine());
        return host.editor<QKXDtmfKeypad>(QStringLiteral("DTMF pad"));
    case QKXTextEntry::dPMREntry:
        return host.editor<QKXdPMRKeypad>(QStringLiteral("dPMR pad"));
    case QKXTextEntry::ToneCodeEntry:
        return host.editor<QKXToneCodeEntry>(QStringLiteral("tone-code pad"));
    case QKXTextEntry::None:
        break;
    }
    return PanelHost::Editor();
}

} // namespace

QString TextScreen::id() const
{
    return QStringLiteral("text");
}

void TextScreen::addAttributes(SimulatedEngine &engine)
{
    engine.addValue(QStringLiteral("SetupName"), QStringLiteral("Bench setup 1"));
    engine.addValue(QStringLiteral("IpAddress"), QStringLiteral("192.168.0.10"));
    engine.addValue(QStringLiteral("DtmfString"), QString());
    engine.addValue(QStringLiteral("ToneCode"), QStringLiteral("67-0"));
    // The log shows the engine's own lines as it writes them; the attribute only names it.
    engine.addValue(QStringLiteral("EventLog"), QString());
}

QWidget *TextScreen::createPage()
{
    return formPage<Ui::TextScreen>();
}

void TextScreen::wire(PanelHost &host, QWidget *page)
{
    SimulatedEngine *engine = host.engine();
    host.wireEach<QKXTextEntry>(page, [&host, engine](QKXTextEntry *field) {
        auto *adapter = new TextAdapter(engine, field);
        auto *filter = new QKXTextEventFilter(field, adapter);
        adapter->setParent(filter);
        // Live DTMF sends the string at every key; the engine takes each one.
        host.requestOnSubmit(filter, &QKXTextEventFilter::submit, field);
        host.followValue(field, [field](const QVariant &value) { field->setText(value.toString()); });
        host.openEditorOnEditStart(filter, field, [&host, field] { return text_editorFor(host, field); });
        return filter;
    });
    host.wireEach<QKXTextLog>(page, [engine](QKXTextLog *log) {
        // The log's framed look selects the name Designer gives a new log, which a compiled form
        // cannot keep as a member name.
        log->setObjectName(QStringLiteral("QKXTextLog"));
        QObject::connect(engine, &SimulatedEngine::logged, log, &QKXTextLog::setText);
        return nullptr;
    });

}

// Taps the text field bound to the attribute and waits for the popup of the class to open for it.
template <typename Popup>
static Popup *text_openEditor(ScreenRunner &runner, const QString &attribute)
{
    auto *field = runner.boundWidget<QKXTextEntry>(attribute);
    if (!field) {
        runner.fail(QStringLiteral("no text field is bound to %1").arg(attribute));
        return nullptr;
    }
    auto *edit = field->findChild<QLineEdit *>();
    if (!runner.showScreenOf(field, QStringLiteral("the %1 field").arg(attribute))) {
        return nullptr;
    }
    runner.engine()->appendLog(QStringLiteral("tap %1").arg(attribute));
    ScreenRunner::tap(field, edit->geometry().center());
    Popup *popup = nullptr;
    const bool opened = runner.waitFor([&] {
        popup = runner.window()->findChild<Popup *>();
        return popup && popup->isVisible() && popup->registeredWidget() == field && runner.lockOwner()->holder() == field;
    });
    if (!opened) {
        runner.fail(QStringLiteral("no editor opened for %1").arg(attribute));
        return nullptr;
    }
    return popup;
}

// After the commit: the editor closed, the lock free, the engine holding the text and the field
// showing it.
static bool text_committed(ScreenRunner &runner, QWidget *popup, const QString &attribute, const QString &expected)
{
    auto *field = runner.boundWidget<QKXTextEntry>(attribute);
    const bool settled = runner.waitFor([&] {
        return runner.lockOwner()->isFree() && !popup->isVisible() && field->text() == expected;
    });
    if (!settled || runner.engine()->value(attribute).toString() != expected) {
        return runner.fail(QStringLiteral("after the commit %1 shows \"%2\" and the engine holds \"%3\", not \"%4\"")
                               .arg(attribute, field->text(), runner.engine()->value(attribute).toString(), expected));
    }
    return true;
}

static bool text_setupNameOnKeyboard(ScreenRunner &runner)
{
    auto *keyboard = text_openEditor<QKXKeyboard>(runner, QStringLiteral("SetupName"));
    if (!keyboard) {
        return false;
    }
    // A capital from the upper-case page, and a digit from the digits page.
    const QStringList keys = {"Clear", "Shift", "R", "Shift", "u", "n", "Spacebar", ".?123", "2", "ABC", "b"};
    runner.engine()->appendLog(QStringLiteral("keys %1").arg(keys.join(QLatin1Char(' '))));
    for (const QString &caption : keys) {
        QPushButton *key = keyboard->key(caption);
        if (!key || !key->isVisible()) {
            return runner.fail(QStringLiteral("the keyboard shows no %1 key").arg(caption));
        }
        ScreenRunner::tap(key);
    }
    if (keyboard->display()->text() != QLatin1String("Run 2b")) {
        return runner.fail(QStringLiteral("the keyboard echoes \"%1\"").arg(keyboard->display()->text()));
    }
    if (!runner.snapshot(QStringLiteral("text-SetupName-keyboard-open"))) {
        return false;
    }
    ScreenRunner::tap(keyboard->key(QStringLiteral("Enter")));
    return text_committed(runner, keyboard, QStringLiteral("SetupName"), QStringLiteral("Run 2b"));
}

// Presses each named key of the pad and then its commit key.
static bool text_typeOnPad(ScreenRunner &runner, QKXKeyPadBase *pad, const QStringList &keys, const QString &snapshot)
{
    runner.engine()->appendLog(QStringLiteral("keys %1").arg(keys.join(QLatin1Char(' '))));
    for (const QString &name : keys) {
        QPushButton *key = pad->button(name);
        if (!key || !key->isVisible() || !key->isEnabled()) {
            return runner.fail(QStringLiteral("the %1 has no usable %2 key").arg(pad->objectName(), name));
        }
        ScreenRunner::tap(key);
    }
    return runner.snapshot(snapshot);
}

static bool text_addressOnNumpad(ScreenRunner &runner)
{
    auto *pad = text_openEditor<QKXNumpad>(runner, QStringLiteral("IpAddress"));
    if (!pad || !text_typeOnPad(runner, pad, {"clear", "1", "0", "dot", "0", "dot", "0", "dot", "4", "2"},
                                QStringLiteral("text-IpAddress-pad-open"))) {
        return false;
    }
    ScreenRunner::tap(pad->button(QStringLiteral("enter")));
    return text_committed(runner, pad, QStringLiteral("IpAddress"), QStringLiteral("10.0.0.42"));
}

static bool text_dialStringLive(ScreenRunner &runner)
{
    auto *pad = text_openEditor<QKXDtmfKeypad>(runner, QStringLiteral("DtmfString"));
    if (!pad) {
        return false;
    }
    SimulatedEngine *engine = runner.engine();
    // Each key held for a moment, as a finger sounds a tone; the engine has the string at every press.
    for (const QString &name : {QStringLiteral("5"), QStringLiteral("#"), QStringLiteral("A")}) {
        QPushButton *key = pad->button(name);
        const QPoint at = key->mapToGlobal(key->rect().center());
        ScreenRunner::touch(key, QEvent::MouseButtonPress, at);
        runner.waitFor([] { return false; }, 150);
        if (!engine->log().contains(QStringLiteral("DTMF tone %1 sounding").arg(key->text()))) {
            return runner.fail(QStringLiteral("no tone sounded while %1 was held").arg(name));
        }
        if (name == QLatin1String("A") && !runner.snapshot(QStringLiteral("text-DtmfString-live-pad-held"))) {
            return false;
        }
        ScreenRunner::touch(key, QEvent::MouseButtonRelease, at);
    }
    if (engine->value(QStringLiteral("DtmfString")).toString() != QLatin1String("5#A")
        || !engine->log().contains(QStringLiteral("DTMF tone off"))) {
        return runner.fail(QStringLiteral("the live pad left \"%1\" with the engine")
                               .arg(engine->value(QStringLiteral("DtmfString")).toString()));
    }
    ScreenRunner::tap(pad->button(QStringLiteral("enter")));
    return text_committed(runner, pad, QStringLiteral("DtmfString"), QStringLiteral("5#A"));
}

static bool text_toneCode(ScreenRunner &runner)
{
    auto *pad = text_openEditor<QKXToneCodeEntry>(runner, QStringLiteral("ToneCode"));
    if (!pad || !text_typeOnPad(runner, pad, {"clear", "1", "2", "dash", "A", "F"},
                                QStringLiteral("text-ToneCode-pad-open"))) {
        return false;
    }
    ScreenRunner::tap(pad->button(QStringLiteral("hexEnter")));
    return text_committed(runner, pad, QStringLiteral("ToneCode"), QStringLiteral("12-AF"));
}

bool TextScreen::play(ScreenRunner &runner)
{
    if (!text_setupNameOnKeyboard(runner) || !text_addressOnNumpad(runner) || !text_dialStringLive(runner)
        || !text_toneCode(runner)) {
        return false;
    }
    // The log has followed the engine all along.
    auto *log = runner.window()->findChild<QKXTextLog *>();
    if (!log || !log->textEdit()->toPlainText().contains(QLatin1String("set ToneCode = 12-AF"))) {
        return runner.fail(QStringLiteral("the event log did not follow the engine"));
    }
    return runner.snapshot(QStringLiteral("text-event-log"));
}

#include "TextScreen.moc"
