// SPDX-License-Identifier: BSD-3-Clause
#include "GlobalImpl.h"

#include "SystemModule.h"

#include <QApplication>
#include <QDesktopWidget>
#include <QWidget>

GlobalImpl::GlobalImpl()
    : module(new SystemModule(this))
{
}

GlobalImpl::~GlobalImpl() = default;

GlobalImpl *GlobalImpl::getInstance()
{
    // Destroyed after main() returns, when the application object is already gone; nothing here
    // needs it then: the screens are weak pointers and the module dies with this object.
    static GlobalImpl instance;
    return &instance;
}

QWidget *GlobalImpl::desktop() const
{
    if (desktopWidget) {
        return desktopWidget.data();
    }
    if (!qobject_cast<QApplication *>(QCoreApplication::instance())) {
        return nullptr;
    }
    return QApplication::desktop();
}

void GlobalImpl::setDesktop(QWidget *desktop)
{
    if (desktopWidget == desktop) {
        return;
    }
    desktopWidget = desktop;
}

SystemModule *GlobalImpl::systemModule() const
{
    return module;
}

QString GlobalImpl::getParentWindowName(QWidget *widget) const
{
    if (!widget) {
        return QString();
    }
    const QWidget *window = widget->window();
    const QString name = window->objectName();
    return name.isEmpty() ? QString::fromLatin1(window->metaObject()->className()) : name;
}
