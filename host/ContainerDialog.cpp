// SPDX-License-Identifier: BSD-3-Clause
#include "ContainerDialog.h"

#include "CSS.h"
#include "GlobalImpl.h"

#include <QCoreApplication>
#include <QDebug>
#include <QEvent>
#include <QEventLoop>
#include <QFrame>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QPointer>
#include <QPushButton>

namespace {

// Dark enough to mark the screen behind as out of reach, light enough to keep it readable.
const QColor veilColor(0, 0, 0, 150);

const int minimumBoxWidth = 360;
const int answerKeyHeight = 50;

} // namespace

struct ContainerDialog::Data
{
    // Covers the screen the prompt belongs to; a dialog without a parent covers the desktop instead.
    void fitToParent(ContainerDialog *q)
    {
        QRect target;
        if (!q->isWindow() && q->parentWidget()) {
            target = q->parentWidget()->rect();
        } else if (QWidget *desktop = GlobalImpl::getInstance()->desktop()) {
            target = QRect(desktop->mapToGlobal(QPoint(0, 0)), desktop->size());
        }
        if (target.isValid() && q->geometry() != target) {
            q->setGeometry(target);
        }
    }

    QEventLoop *loop = nullptr;
    QPointer<QWidget> watchedParent;
    int result = Cancelled;
    bool open = false;
};

ContainerDialog::ContainerDialog(QWidget *parent)
    : ContainerBase(parent)
    , m(new Data)
{
    if (!parent) {
        setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
        setAttribute(Qt::WA_TranslucentBackground);
        setWindowModality(Qt::ApplicationModal);
    }
    setFocusPolicy(Qt::StrongFocus);

    // The box keeps the size its content asks for and sits in the middle of the veil.
    layout()->setAlignment(borderFrame(), Qt::AlignCenter);
    borderFrame()->setMinimumWidth(minimumBoxWidth);
    getContainerFrame()->setStyleSheet(
        QStringLiteral("QFrame#ContainerFrame { background-color: transparent; border: none; }"
                       "QLabel { color: white; font-size: 16px; background-color: transparent; }"
                       "QPushButton#DialogButton { color: white; font-size: 16px; min-width: 90px;"
                       " padding: 4px 12px; border: 1px solid %1; border-radius: 6px;"
                       " background-color: qlineargradient(x1:0, y1:0, x2:0, y2:1,"
                       " stop:0 %2, stop:0.5 %3, stop:1 %4); }"
                       "QPushButton#DialogButton:pressed { background-color: %4; border-color: %5; }")
            .arg(CSS::border(), CSS::gradientLight(), CSS::gradientMiddle(), CSS::gradientDark(),
                 CSS::highlight()));

    // A prompt opens only through exec(); without this it would appear with its parent screen.
    hide();

    if (parent) {
        m->watchedParent = parent;
        parent->installEventFilter(this);
    }
    // Layout changes resize the dialog to its box; watching itself puts the veil back over the screen.
    installEventFilter(this);
    m->fitToParent(this);
}

ContainerDialog::~ContainerDialog()
{
    // Deleted from inside its own exec() (its screen went away): let exec() unwind.
    if (m->loop) {
        m->loop->exit();
    }
}

QBoxLayout *ContainerDialog::createButtonLayout(QWidget *parent, const QString &keys, long &count)
{
    auto *row = new QHBoxLayout;
    count = 0;
    auto *dialog = qobject_cast<ContainerDialog *>(parent);

    const QStringList pairs = keys.split(QLatin1Char('|'));
    for (const QString &pair : pairs) {
        const QString entry = pair.trimmed();
        // An empty list, or a separator left at the end of one, asks for no key.
        if (entry.isEmpty()) {
            continue;
        }
        // The code follows the last comma, so a label may itself hold commas.
        const int comma = entry.lastIndexOf(QLatin1Char(','));
        const QString label = comma >= 0 ? entry.left(comma).trimmed() : QString();
        bool isNumber = false;
        const int code = comma >= 0 ? entry.mid(comma + 1).trimmed().toInt(&isNumber) : 0;
        if (label.isEmpty() || !isNumber) {
            qDebug().noquote()
                << QStringLiteral("UserInterface - ContainerDialog: ignored malformed button \"%1\"").arg(pair);
            continue;
        }

        const QByteArray source = label.toUtf8();
        auto *key = new QPushButton(QCoreApplication::translate("ContainerDialog", source.constData()), parent);
        key->setObjectName(QStringLiteral("DialogButton"));
        key->setProperty("returnCode", code);
        key->setMinimumHeight(answerKeyHeight);
        if (dialog) {
            connect(key, &QPushButton::clicked, dialog, [dialog, code] { dialog->done(code); });
        }
        row->addWidget(key);
        ++count;
    }
    return row;
}

int ContainerDialog::exec(bool modal)
{
    if (m->loop) {
        qDebug().noquote() << QStringLiteral("UserInterface - ContainerDialog: exec() while already running ignored");
        return Cancelled;
    }
    m->result = Cancelled;
    m->open = true;
    m->fitToParent(this);
    show();
    QWidget::raise();
    if (isWindow()) {
        activateWindow();
    }
    setFocus();

    if (!modal) {
        return Cancelled;
    }
    // A WindowOpened() listener may already have answered.
    if (!m->open) {
        return m->result;
    }

    QEventLoop loop;
    m->loop = &loop;
    QPointer<ContainerDialog> guard(this);
    loop.exec(QEventLoop::DialogExec);
    if (!guard) {
        return Cancelled;
    }
    return m->result;
}

int ContainerDialog::result() const
{
    return m->result;
}

void ContainerDialog::done(int code)
{
    m->result = code;
    const bool wasOpen = m->open;
    m->open = false;
    if (m->loop) {
        m->loop->exit();
        m->loop = nullptr;
    }

    QPointer<ContainerDialog> guard(this);
    hide();
    // Listeners of WindowClosed() may delete the dialog.
    if (guard && wasOpen) {
        emit finished(code);
    }
}

void ContainerDialog::cancelDialog()
{
    done(Cancelled);
}

bool ContainerDialog::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == this) {
        switch (event->type()) {
        case QEvent::Show:
            m->fitToParent(this);
            break;
        case QEvent::Resize:
            if (QWidget::isVisible()) {
                m->fitToParent(this);
            }
            break;
        case QEvent::Hide:
            // Hidden by anything but done() (the close key, its screen closing): the prompt is cancelled,
            // or exec() would wait for ever on a dialog nobody can see.
            if (m->open && !event->spontaneous()) {
                done(Cancelled);
            }
            break;
        default:
            break;
        }
    } else if (watched == m->watchedParent && event->type() == QEvent::Resize) {
        m->fitToParent(this);
    }
    return ContainerBase::eventFilter(watched, event);
}

void ContainerDialog::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event);
    QPainter painter(this);
    painter.fillRect(rect(), veilColor);
}

void ContainerDialog::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape) {
        event->accept();
        cancelDialog();
        return;
    }
    ContainerBase::keyPressEvent(event);
}
