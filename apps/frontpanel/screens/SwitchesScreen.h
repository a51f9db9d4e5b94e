// SPDX-License-Identifier: BSD-3-Clause
#ifndef SWITCHESSCREEN_H
#define SWITCHESSCREEN_H

#include "PanelScreen.h"

class QDir;

// Switches and status indicators: the RF output toggle, a confirmed Preset, the sweep's progress and
// overload lamp, the recording keys, and settings loaded through the file browser.
class SwitchesScreen : public PanelScreen
{
    Q_OBJECT
public:
    QString id() const override;
    void addAttributes(SimulatedEngine &engine) override;
    QWidget *createPage() override;
    void wire(PanelHost &host, QWidget *page) override;
    // The sweep running into overload; the RF toggle in its loading look and then confirmed; the
    // confirmed Preset with its prompt open, answered Yes; a settings file loaded through the file
    // browser.
    bool play(ScreenRunner &runner) override;
};

#endif // SWITCHESSCREEN_H
