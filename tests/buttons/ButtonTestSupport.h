// SPDX-License-Identifier: BSD-3-Clause
#ifndef BUTTONTESTSUPPORT_H
#define BUTTONTESTSUPPORT_H

// What the tests of the buttons/ folder share besides KXTestSupport.h: splitting style sheets into
// rules, logging a filter's lock traffic, and answering modal prompts while they run.

#include <QtTest>

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>

#include "ContainerDialog.h"
#include "KXTestSupport.h"
#include "GlobalImpl.h"
#include "QKXEventFilterBase.h"
#include "SystemModule.h"

namespace kxtest {

// "selector { p: v; p: v }" per rule, white space in values collapsed, rules and declarations in
// their order. None of the sheets under test puts a colon or semicolon inside a value that matters here.
inline QStringList describeSheet(const QString &sheet)
{
    QStringList out;
    auto it = QRegularExpression(QStringLiteral("([^{}]+)\\{([^{}]*)\\}")).globalMatch(sheet);
    while (it.hasNext()) {
        const QRegularExpressionMatch m = it.next();
        QStringList declarations;
        for (const QString &d : m.captured(2).split(QLatin1Char(';'), Qt::SkipEmptyParts))
            if (const int colon = d.indexOf(QLatin1Char(':')); !d.trimmed().isEmpty())
                declarations << d.left(colon).trimmed() + QStringLiteral(": ") + d.mid(colon + 1).simplified();
        out << m.captured(1).simplified() + QStringLiteral(" { ") + declarations.join(QStringLiteral("; "))
                   + QStringLiteral(" }");
    }
    return out;
}

// The colour a widget really shows at a point, as painted through its style sheet.
inline QColor colourAt(QWidget *widget, const QPoint &at) { return widget->grab().toImage().pixelColor(at); }

inline bool exposed(QWidget &window)
{
    window.show();
    return QTest::qWaitForWindowExposed(&window);
}

// Logs a filter's lock traffic as "request" / "release" ("foreign lock" when about another widget);
// while grant is set, the host grants every request at once.
inline void watchLock(QKXEventFilterBase *filter, QWidget *own, QStringList &log, const bool &grant)
{
    QObject::connect(filter, &QKXEventFilterBase::attemptSetLock, [filter, own, &log, &grant](QWidget *w, bool locked) {
        log << (w != own ? QStringLiteral("foreign lock") : locked ? QStringLiteral("request") : QStringLiteral("release"));
        if (locked && grant)
            filter->lockAcquired(w);
    });
}
static const bool Grant = true;
static const bool Refuse = false;

// "clicked" and "buttonPressed <name>" of any push button of the library, in one log.
template<class Button>
void watchClicks(Button *button, QStringList &log)
{
    QObject::connect(button, &Button::clicked, [&log] { log << QStringLiteral("clicked"); });
    QObject::connect(button, &Button::buttonPressed,
                     [&log](const QString &name) { log << QStringLiteral("buttonPressed ") + name; });
}

// A press that travels further than a tap before it is let go.
inline void drag(QWidget *key)
{
    const QPoint start(20, key->height() / 2);
    QTest::mousePress(key, Qt::LeftButton, Qt::NoModifier, start);
    QTest::mouseMove(key, start + QPoint(31, 0));
    QTest::mouseRelease(key, Qt::LeftButton, Qt::NoModifier, start + QPoint(31, 0));
}

// Answers the next modal prompt while its exec() runs: logs "prompt <title>|<text>|<answer keys>",
// then presses the named key with real mouse events, or runs the function given instead. What the
// dialog looked like stays behind in the fields.
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
        timer.start();
    }
    void stop() { timer.stop(); }

    QPointer<ContainerDialog> seen;   // gone again once the prompt is over
    QWidget *seenParent = nullptr;
    QLabel *seenText = nullptr;
    Qt::Alignment textAlignment;
    bool textWraps = false, closeKeyShown = false;

    static ContainerDialog *openDialog()
    {
        for (QWidget *w : QApplication::allWidgets())
            if (auto *dialog = qobject_cast<ContainerDialog *>(w); dialog && dialog->QWidget::isVisible())
                return dialog;
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
        seenText = dialog->findChild<QLabel *>(QStringLiteral("dialog_text"));
        textAlignment = seenText ? seenText->alignment() : Qt::Alignment();
        textWraps = seenText && seenText->wordWrap();
        QPushButton *closeKey = dialog->findChild<QPushButton *>(QStringLiteral("ContainerClose"));
        closeKeyShown = closeKey && closeKey->isVisible();
        QPushButton *target = nullptr;
        QStringList keys;
        for (QPushButton *key : dialog->findChildren<QPushButton *>(QStringLiteral("DialogButton"))) {
            keys << key->text();
            if (key->text() == answer)
                target = key;
        }
        const QString text = seenText ? seenText->text() : QStringLiteral("<no text>");
        log << QStringLiteral("prompt %1|%2|%3").arg(dialog->windowTitle(), text, keys.join(QLatin1Char('/')));
        if (action)
            return action(dialog);
        if (!target || !target->isVisible()) {
            log << QStringLiteral("no key ") + answer;
            return dialog->cancelDialog();
        }
        QTest::mouseClick(target, Qt::LeftButton);
    }

    QStringList &log;
    QTimer timer;
    QString answer;
    std::function<void(ContainerDialog *)> action;
};

// The host's top container: prompts close when it announces that the window closes.
class TopContainer : public QWidget
{
    Q_OBJECT
public:
    using QWidget::QWidget;
Q_SIGNALS:
    void WindowClosed();
};

// A main window (registered with the host unless told otherwise) holding the top container prompts
// hang on, and a log that the prompt answerer writes to as well.
struct PromptScreen
{
    explicit PromptScreen(bool registerMain = true, const QString &topName = QStringLiteral("TopContainerObject"))
        : answerer(log)
    {
        main.resize(480, 320);
        if (registerMain)
            GlobalImpl::getInstance()->systemModule()->registerSystemScreen(QStringLiteral("MainWindow"), &main);
        top = new TopContainer(&main);
        top->setObjectName(topName);
        top->setGeometry(0, 0, 480, 320);
    }
    ~PromptScreen()
    {
        answerer.stop();
        GlobalImpl::getInstance()->systemModule()->unregisterSystemScreen(QStringLiteral("MainWindow"));
    }

    // Taps the key with the answerer standing by; "<window closed>" closes the window instead of answering.
    void tapAndAnswer(QWidget *key, const QString &answer)
    {
        const auto close = [this](ContainerDialog *) { emit top->WindowClosed(); };
        answerer.answerWith(answer, answer == QLatin1String("<window closed>") ? close
                                                                              : std::function<void(ContainerDialog *)>());
        QTest::mouseClick(key, Qt::LeftButton);
        answerer.stop();
    }

    QWidget main;
    TopContainer *top;
    QStringList log;
    PromptAnswerer answerer;
};

} // namespace kxtest

#endif // BUTTONTESTSUPPORT_H
