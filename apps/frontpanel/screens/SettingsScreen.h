// SPDX-License-Identifier: BSD-3-Clause
#ifndef SETTINGSSCREEN_H
#define SETTINGSSCREEN_H

#include "PanelScreen.h"

// Instrument settings kept as dates and times: the last calibration (edited on the date editor, day
// first) with the due date the engine derives from it, and the instrument clock in 12-hour local
// time (edited on the time editor) beside a read-only view of it in UTC.
class SettingsScreen : public PanelScreen
{
    Q_OBJECT
public:
    QString id() const override;
    void addAttributes(SimulatedEngine &engine) override;
    QWidget *createPage() override;
    void wire(PanelHost &host, QWidget *page) override;
    // The calibration date moved on by taps on the editor's arrows, and the clock set an hour on and
    // two minutes back and switched to the afternoon; each editor rendered while open, and each value
    // checked in the engine and in every field that shows it.
    bool play(ScreenRunner &runner) override;
};

#endif // SETTINGSSCREEN_H
