// SPDX-License-Identifier: BSD-3-Clause
#include "ContainerBase.h"
#include "ContainerBase_p.h"

#include "CSS.h"

#include <QCoreApplication>
#include <QFrame>
#include <QHBoxLayout>
#include <QHideEvent>
#include <QLabel>
#include <QPushButton>
#include <QShowEvent>
#include <QVBoxLayout>

namespace {

// Takes inner out of outer (or out of any layout nested in it), so that deleting outer leaves inner
// alive. Returns whether inner was found.
bool detachNestedLayout(QLayout *outer, QLayout *inner)
{
    for (int i = 0; i < outer->count(); ++i) {
        QLayout *nested = outer->itemAt(i)->layout();
        if (!nested) {
            continue;
        }
        if (nested == inner) {
            outer->takeAt(i);
            inner->setParent(nullptr);
            return true;
        }
        if (detachNestedLayout(nested, inner)) {
            return true;
        }
    }
    return false;
}

} // namespace

ContainerBasePrivate::ContainerBasePrivate(ContainerBase *q)
    : q_ptr(q)
{
}

QString ContainerBasePrivate::frameStyleSheet(bool border)
{
    const QString frameBorder = border
        ? QStringLiteral("border: 2px solid %1; border-radius: 8px;").arg(CSS::border())
        : QStringLiteral("border: none;");
    return QStringLiteral(
               "QFrame#BorderFrame {"
               " background-color: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 %1, stop:1 %2);"
               " %3 }"
               "QWidget#ContainerControl { background-color: transparent; }"
               "QLabel#ContainerTitle { color: %4; font-weight: bold; padding: 4px 8px;"
               " background-color: transparent; border: none; }"
               "QPushButton#ContainerClose { color: white; min-height: 30px; padding: 0px 10px;"
               " border: 1px solid %5; border-radius: 4px;"
               " background-color: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 %6, stop:1 %2); }"
               "QPushButton#ContainerClose:pressed { background-color: %2; }")
        .arg(CSS::gradientMiddle(), CSS::gradientDark(), frameBorder, CSS::highlight(), CSS::border(),
             CSS::gradientLight());
}

void ContainerBasePrivate::applyFrameStyleSheet(QFrame *frame, bool border)
{
    const QString current = frame->styleSheet();
    if (!current.isEmpty() && current != frameStyleSheet(true) && current != frameStyleSheet(false)) {
        return;
    }
    frame->setStyleSheet(frameStyleSheet(border));
}

QString ContainerBasePrivate::closeKeyText()
{
    return ContainerBase::tr("Close");
}

ContainerBase::ContainerBase(QWidget *parent)
    : QWidget(parent)
    , d_ptr(new ContainerBasePrivate(this))
{
    Q_D(ContainerBase);

    auto *outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->setSpacing(0);

    d->borderFrame = new QFrame(this);
    d->borderFrame->setObjectName(QStringLiteral("BorderFrame"));
    outer->addWidget(d->borderFrame);

    auto *frameLayout = new QVBoxLayout(d->borderFrame);
    frameLayout->setContentsMargins(2, 2, 2, 2);
    frameLayout->setSpacing(0);

    d->control = new QWidget(d->borderFrame);
    d->control->setObjectName(QStringLiteral("ContainerControl"));
    auto *controlLayout = new QHBoxLayout(d->control);
    controlLayout->setContentsMargins(0, 0, 0, 0);
    controlLayout->setSpacing(4);

    d->title = new QLabel(d->control);
    d->title->setObjectName(QStringLiteral("ContainerTitle"));
    controlLayout->addWidget(d->title, 1);

    d->closeKey = new QPushButton(ContainerBasePrivate::closeKeyText(), d->control);
    d->closeKey->setObjectName(QStringLiteral("ContainerClose"));
    d->closeKey->setFocusPolicy(Qt::NoFocus);
    d->closeKey->hide();
    controlLayout->addWidget(d->closeKey);
    connect(d->closeKey, &QPushButton::clicked, this, &QWidget::hide);

    d->content = new QFrame(d->borderFrame);
    d->content->setObjectName(QStringLiteral("ContainerFrame"));

    frameLayout->addWidget(d->control);
    frameLayout->addWidget(d->content, 1);

    d->borderFrame->setStyleSheet(ContainerBasePrivate::frameStyleSheet(d->border));
}

ContainerBase::~ContainerBase() = default;

QFrame *ContainerBase::getContainerFrame() const
{
    Q_D(const ContainerBase);
    return d->content;
}

QFrame *ContainerBase::borderFrame() const
{
    Q_D(const ContainerBase);
    return d->borderFrame;
}

QWidget *ContainerBase::controlWidget() const
{
    Q_D(const ContainerBase);
    return d->control;
}

void ContainerBase::setLayout(QLayout *layout, bool adjust)
{
    Q_D(ContainerBase);
    QLayout *old = d->content->layout();
    if (old && old != layout) {
        // Editors rebuild their layout around the same keys, so the old layout goes but the widgets it
        // managed stay children of the content frame for the new one to take.
        if (layout) {
            detachNestedLayout(old, layout);
        }
        delete old;
    }
    if (layout && layout != old) {
        d->content->setLayout(layout);
    }
    if (adjust) {
        resize(sizeHint());
    }
}

void ContainerBase::setWindowTitle(const QString &title, int flags)
{
    Q_D(ContainerBase);
    d->title->setText(title);
    d->closeKey->setVisible((flags & CloseButton) != 0);
    // A top-level container also names its window, for task lists and debug tools.
    QWidget::setWindowTitle(title);
}

QString ContainerBase::windowTitle() const
{
    Q_D(const ContainerBase);
    return d->title->text();
}

void ContainerBase::setBorder(bool border)
{
    Q_D(ContainerBase);
    if (d->border == border) {
        return;
    }
    d->border = border;
    ContainerBasePrivate::applyFrameStyleSheet(d->borderFrame, border);
}

bool ContainerBase::hasBorder() const
{
    Q_D(const ContainerBase);
    return d->border;
}

bool ContainerBase::isVisible() const
{
    return QWidget::isVisible();
}

void ContainerBase::showEvent(QShowEvent *event)
{
    Q_D(ContainerBase);
    QWidget::showEvent(event);
    // Spontaneous shows and hides come from the window system (minimise, restore) and are not openings
    // or closings of the popup; counting them would unbalance the listeners' pairs.
    if (!event->spontaneous() && !d->announcedOpen) {
        d->announcedOpen = true;
        emit WindowOpened();
    }
}

void ContainerBase::hideEvent(QHideEvent *event)
{
    Q_D(ContainerBase);
    QWidget::hideEvent(event);
    if (!event->spontaneous() && d->announcedOpen) {
        d->announcedOpen = false;
        emit WindowClosed();
    }
}
