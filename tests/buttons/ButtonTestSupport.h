#ifndef BUTTONTESTSUPPORT_H
#define BUTTONTESTSUPPORT_H

// What the tests of the buttons/ folder share: catching the library's debug lines, a translator
// for one word, splitting style sheets into rules, and answering modal prompts while they run.

#include <QtTest>

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QTranslator>

#include "ContainerDialog.h"

namespace kxtest {

// Collects the library's debug lines; everything else goes on to the usual handler.
class DebugLines
{
public:
    DebugLines() { previous() = qInstallMessageHandler(&DebugLines::handle); lines().clear(); }
    ~DebugLines() { qInstallMessageHandler(previous()); }
    static QStringList &lines() { static QStringList all; return all; }

private:
    static QtMessageHandler &previous() { static QtMessageHandler handler = nullptr; return handler; }
    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &msg)
    {
        if (type == QtDebugMsg && msg.startsWith(QLatin1String("UserInterface - "))) {
            QString line = msg;
            while (line.endsWith(QLatin1Char(' ')))   // a trailing blank is the stream's business
                line.chop(1);
            lines() << line;
            return;
        }
        if (previous())
            previous()(type, context, msg);
    }
};

class WordTranslator : public QTranslator
{
public:
    WordTranslator(const char *from, const char *to) : from(from), to(QString::fromUtf8(to)) {}
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *sourceText, const char *, int) const override
    {
        return qstrcmp(sourceText, from) == 0 ? to : QString();
    }

private:
    QByteArray from;
    QString to;
};

struct Rule
{
    QString selector;
    QStringList properties;
    QStringList values;   // white space collapsed
    QString declarations() const
    {
        QStringList all;
        for (int i = 0; i < properties.size(); ++i)
            all << properties.at(i) + QStringLiteral(": ") + values.at(i);
        return all.join(QStringLiteral("; "));
    }
};

// Splits a style sheet into its rules, keeping the order of rules and of declarations.
inline QVector<Rule> parseSheet(const QString &sheet)
{
    QVector<Rule> rules;
    QRegularExpressionMatchIterator it =
        QRegularExpression(QStringLiteral("([^{}]+)\\{([^{}]*)\\}")).globalMatch(sheet);
    while (it.hasNext()) {
        const QRegularExpressionMatch m = it.next();
        Rule rule;
        rule.selector = m.captured(1).simplified();
        // Colons and semicolons inside url(...) or gradients do not split declarations here: none
        // of the sheets under test puts a semicolon inside a value.
        const QStringList declarations = m.captured(2).split(QLatin1Char(';'));
        for (const QString &declaration : declarations) {
            if (declaration.trimmed().isEmpty())
                continue;
            const int colon = declaration.indexOf(QLatin1Char(':'));
            rule.properties << declaration.left(colon).trimmed();
            rule.values << declaration.mid(colon + 1).simplified();
        }
        rules << rule;
    }
    return rules;
}

// "selector { p: v; p: v }" per rule, one string per rule, for comparing sheets declaration by declaration.
inline QStringList describeSheet(const QString &sheet)
{
    QStringList out;
    for (const Rule &rule : parseSheet(sheet))
        out << rule.selector + QStringLiteral(" { ") + rule.declarations() + QStringLiteral(" }");
    return out;
}

// The colour a widget really shows at a point, as painted through its style sheet.
inline QColor colourAt(QWidget *widget, const QPoint &at)
{
    return widget->grab().toImage().pixelColor(at);
}

// Answers the next modal prompt while its exec() runs: what it showed is written to the log as
// "prompt <title>|<text>|<answer keys>", then the named answer key is pressed with real mouse events.
// The answer "<close key>" presses the title bar's close key; any function given instead runs in
// place of an answer.
class PromptAnswerer
{
public:
    explicit PromptAnswerer(QStringList &log) : log(log)
    {
        timer.setInterval(5);
        QObject::connect(&timer, &QTimer::timeout, [this] { poll(); });
    }

    void answerWith(const QString &key, std::function<void(ContainerDialog *)> instead = {})
    {
        answer = key;
        action = std::move(instead);
        seen = nullptr;
        timer.start();
    }
    void stop() { timer.stop(); }

    // The dialog as it was seen open (gone again once the prompt is over).
    QPointer<ContainerDialog> seen;
    QWidget *seenParent = nullptr;
    QLabel *seenText = nullptr;
    Qt::Alignment textAlignment;
    bool textWraps = false;
    bool closeKeyShown = false;

    static ContainerDialog *openDialog()
    {
        for (QWidget *w : QApplication::allWidgets()) {
            if (auto *dialog = qobject_cast<ContainerDialog *>(w)) {
                if (dialog->QWidget::isVisible())
                    return dialog;
            }
        }
        return nullptr;
    }

private:
    void poll()
    {
        ContainerDialog *dialog = openDialog();
        if (!dialog)
            return;
        timer.stop();
        seen = dialog;
        seenParent = dialog->parentWidget();
        QStringList keys;
        for (QPushButton *key : dialog->findChildren<QPushButton *>(QStringLiteral("DialogButton")))
            keys << key->text();
        seenText = dialog->findChild<QLabel *>(QStringLiteral("dialog_text"));
        textAlignment = seenText ? seenText->alignment() : Qt::Alignment();
        textWraps = seenText && seenText->wordWrap();
        QPushButton *closeKey = dialog->findChild<QPushButton *>(QStringLiteral("ContainerClose"));
        closeKeyShown = closeKey && closeKey->isVisible();
        log << QStringLiteral("prompt %1|%2|%3")
                   .arg(dialog->windowTitle(), seenText ? seenText->text() : QStringLiteral("<no text>"),
                        keys.join(QLatin1Char('/')));
        if (action) {
            action(dialog);
            return;
        }
        QPushButton *target = nullptr;
        if (answer == QLatin1String("<close key>")) {
            target = closeKey;
        } else {
            for (QPushButton *key : dialog->findChildren<QPushButton *>(QStringLiteral("DialogButton")))
                if (key->text() == answer)
                    target = key;
        }
        if (!target || !target->isVisible()) {
            log << QStringLiteral("no key ") + answer;
            dialog->cancelDialog();
            return;
        }
        QTest::mouseClick(target, Qt::LeftButton);
    }

    QStringList &log;
    QTimer timer;
    QString answer;
    std::function<void(ContainerDialog *)> action;
};

} // namespace kxtest

#endif // BUTTONTESTSUPPORT_H
