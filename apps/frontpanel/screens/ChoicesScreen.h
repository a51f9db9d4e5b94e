// SPDX-License-Identifier: BSD-3-Clause
#ifndef CHOICESSCREEN_H
#define CHOICESSCREEN_H

#include "PanelScreen.h"

// Enumerated choices: combo boxes edited on the list popup, a wheel enum on the wheel popup, and a
// table of radio channels chosen by a tap on a row. The engine's codes are its own, neither
// contiguous nor sorted by literal.
class ChoicesScreen : public PanelScreen
{
    Q_OBJECT
public:
    QString id() const override;
    void addAttributes(SimulatedEngine &engine) override;
    QWidget *createPage() override;
    void wire(PanelHost &host, QWidget *page) override;
    // A modulation picked on the list popup, the long bandwidth list dragged and picked from, a
    // detector turned to and picked on the wheel popup, and a channel row tapped after scrolling the
    // table; each popup rendered while open, and each value checked in the engine and in the widget.
    bool play(ScreenRunner &runner) override;
};

#endif // CHOICESSCREEN_H
