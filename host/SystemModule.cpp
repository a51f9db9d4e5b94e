// SPDX-License-Identifier: BSD-3-Clause
#include "SystemModule.h"

#include <QWidget>

SystemModule::SystemModule(QObject *parent)
    : QObject(parent)
{
}

SystemModule::~SystemModule() = default;

QWidget *SystemModule::getSystemScreen(const QString &name) const
{
    return screens.value(name).data();
}

void SystemModule::registerSystemScreen(const QString &name, QWidget *screen)
{
    if (!screen) {
        unregisterSystemScreen(name);
        return;
    }
    screens.insert(name, screen);
    emit systemScreenRegistered(name);
}

void SystemModule::unregisterSystemScreen(const QString &name)
{
    screens.remove(name);
}

QStringList SystemModule::systemScreenNames() const
{
    QStringList names;
    for (auto it = screens.cbegin(); it != screens.cend(); ++it) {
        // A destroyed screen is gone for its callers too, whether or not anyone unregistered it.
        if (it.value()) {
            names.append(it.key());
        }
    }
    names.sort();
    return names;
}
