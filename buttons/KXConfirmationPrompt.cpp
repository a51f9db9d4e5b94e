// SPDX-License-Identifier: BSD-3-Clause
#include "KXConfirmationPrompt_p.h"

#include "ContainerDialog.h"
#include "GlobalImpl.h"
#include "SystemModule.h"

#include <QAbstractButton>
#include <QBoxLayout>
#include <QCoreApplication>
#include <QDebug>
#include <QGridLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPointer>

namespace {

const char *const TopContainerName = "TopContainerObject";

QString kx_className(const QObject *object)
{
    return QString::fromLatin1(object->metaObject()->className());
}

void kx_report(const QObject *filter, const char *function, const QString &message)
{
    qDebug().noquote() << QStringLiteral("UserInterface - %1::%2 : %3")
                              .arg(kx_className(filter), QLatin1String(function), message);
}

// Reads a widget's getter by name; false when the widget has none.
template <typename T>
bool kx_invokeGetter(QWidget *widget, const char *name, const char *signature, const char *typeName, T &value)
{
    if (widget->metaObject()->indexOfMethod(signature) < 0) {
        return false;
    }
    return QMetaObject::invokeMethod(widget, name, QReturnArgument<T>(typeName, value));
}

QString kx_translated(const QString &text)
{
    return QCoreApplication::translate("KXConfirmationPrompt", text.toUtf8().constData());
}

} // namespace

QString KXConfirmationPrompt::answerKeys(int buttonStyle)
{
    switch (buttonStyle) {
    case 0:
        return QStringLiteral("Cancel,0|OK,1");
    case 1:
        return QStringLiteral("No,0|Yes,1");
    case 2:
        // A notice: its only answer does not confirm.
        return QStringLiteral("OK,0");
    case 3:
        return QStringLiteral("OK,1");
    default:
        return QString();
    }
}

bool KXConfirmationPrompt::displayPrompt(const QObject *filter, QWidget *widget)
{
    if (!widget) {
        return false;
    }
    int buttonStyle = 1;
    if (!kx_invokeGetter(widget, "buttonStyle", "buttonStyle()", "int", buttonStyle)) {
        kx_report(filter, "displayPrompt",
                  QStringLiteral("%1 has no buttonStyle(); asking No/Yes.").arg(kx_className(widget)));
    }
    QString text;
    QString title;
    kx_invokeGetter(widget, "dialogText", "dialogText()", "QString", text);
    kx_invokeGetter(widget, "titleText", "titleText()", "QString", title);

    const QString keys = answerKeys(buttonStyle);
    if (keys.isEmpty()) {
        kx_report(filter, "displayPrompt",
                  QStringLiteral("ButtonStyle %1 offers no answer; only closing the window ends the prompt.")
                      .arg(buttonStyle));
    }
    return displayDialog(filter, title, text, keys) == 1;
}

int KXConfirmationPrompt::displayDialog(const QObject *filter, const QString &title, const QString &text,
                                        const QString &keys)
{
    QWidget *screen = GlobalImpl::getInstance()->systemModule()->getSystemScreen(QStringLiteral("MainWindow"));
    if (!screen) {
        kx_report(filter, "displayDialog", QStringLiteral("no MainWindow screen; the prompt opens on its own."));
    }
    QPointer<ContainerDialog> dialog = new ContainerDialog(screen);

    QObject *top = filter->parent();
    while (top && top->objectName() != QLatin1String(TopContainerName)) {
        top = top->parent();
    }
    if (!top) {
        kx_report(filter, "displayDialog",
                  QStringLiteral("no TopContainerObject above the widget; closing the window cannot cancel the prompt."));
    } else if (top->metaObject()->indexOfSignal("WindowClosed()") < 0) {
        kx_report(filter, "displayDialog",
                  QStringLiteral("TopContainerObject has no WindowClosed(); closing the window cannot cancel the prompt."));
    } else {
        // By name: the top container is the host's, and only its signal's name is known here.
        QObject::connect(top, SIGNAL(WindowClosed()), dialog.data(), SLOT(cancelDialog()));
    }

    auto *label = new QLabel(kx_translated(text), dialog);
    label->setObjectName(QStringLiteral("dialog_text"));
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    label->setWordWrap(true);

    long count = 0;
    QBoxLayout *answers = ContainerDialog::createButtonLayout(dialog, keys, count);
    auto *grid = new QGridLayout;
    if (count > 0) {
        answers->insertStretch(0, 1);
        grid->addLayout(answers, 1, 0);
    } else {
        delete answers;
    }
    grid->addWidget(label, 0, 0, 1, qMax(1, int(count)));

    dialog->setLayout(grid, true);
    // No title bar keys, not even for a prompt without answers: that one ends when the window closes.
    dialog->setWindowTitle(kx_translated(title), ContainerBase::NoTitleButtons);

    const int code = dialog->exec(true);
    delete dialog.data();
    return code;
}

bool KXConfirmationPrompt::isTap(QObject *watched, QWidget *widget, QMouseEvent *event, bool moved)
{
    QWidget *receiver = watched && watched->isWidgetType() ? static_cast<QWidget *>(watched) : widget;
    if (!receiver || !receiver->isEnabled() || moved) {
        return false;
    }
    return receiver->rect().contains(event->pos());
}

int KXConfirmationPrompt::promptStyle(const QObject *filter, QWidget *widget)
{
    bool ok = false;
    const int style = widget->property("PromptStyle").toInt(&ok);
    if (!ok) {
        kx_report(filter, "mouseReleaseEventFilter",
                  QStringLiteral("%1 has no PromptStyle; prompting as PromptStyle 1.").arg(kx_className(widget)));
        return 1;
    }
    return style;
}

void KXConfirmationPrompt::releaseWithoutClick(QObject *watched)
{
    if (auto *button = qobject_cast<QAbstractButton *>(watched)) {
        button->setDown(false);
    }
}
