// SPDX-License-Identifier: BSD-3-Clause
#include "TopContainer.h"

#include <QHideEvent>
#include <QShowEvent>

TopContainer::TopContainer(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("TopContainerObject"));
    // Paint the style sheet's background: a plain QWidget draws none of its own.
    setAttribute(Qt::WA_StyledBackground, true);
}

TopContainer::~TopContainer() = default;

void TopContainer::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    // Spontaneous events come from the window system (a window restored from the task bar); the
    // panel has not been opened by that, and a prompt open on it must not be disturbed.
    if (!event->spontaneous()) {
        emit WindowOpened();
    }
}

void TopContainer::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    if (!event->spontaneous()) {
        emit WindowClosed();
    }
}
