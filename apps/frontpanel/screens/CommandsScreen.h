// SPDX-License-Identifier: BSD-3-Clause
#ifndef COMMANDSSCREEN_H
#define COMMANDSSCREEN_H

#include "PanelScreen.h"

// Command buttons: each tap runs one engine command inside the edit lock. The headless run's scripted
// tap (--tap) plays on this screen.
class CommandsScreen : public PanelScreen
{
    Q_OBJECT
public:
    QString id() const override;
    void addAttributes(SimulatedEngine &engine) override;
    QWidget *createPage() override;
    void wire(PanelHost &host, QWidget *page) override;
};

#endif // COMMANDSSCREEN_H
