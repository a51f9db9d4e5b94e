// SPDX-License-Identifier: BSD-3-Clause
#include "CommandsScreen.h"

#include "PanelHost.h"
#include "SimulatedEngine.h"

#include "QKXPushButton.h"
#include "QKXPushButtonEventFilter.h"

#include "ui_CommandsScreen.h"

QString CommandsScreen::id() const
{
    return QStringLiteral("commands");
}

void CommandsScreen::addAttributes(SimulatedEngine &engine)
{
    // Preset, the RF and the sweep commands are the engine's own: the switches screen shows them too.
    engine.addValue(QStringLiteral("SelfTestResult"), QStringLiteral("Not run"));
    SimulatedEngine *target = &engine;
    engine.addCommand(QStringLiteral("SelfTest"), tr("Self test"),
                      [target] { target->setValue(QStringLiteral("SelfTestResult"), QStringLiteral("Passed")); });
}

QWidget *CommandsScreen::createPage()
{
    return formPage<Ui::CommandsScreen>();
}

void CommandsScreen::wire(PanelHost &host, QWidget *page)
{
    host.wireEach<QKXPushButton>(page, [&host](QKXPushButton *button) {
        return host.commandFilter<QKXPushButtonEventFilter>(button);
    });
}
