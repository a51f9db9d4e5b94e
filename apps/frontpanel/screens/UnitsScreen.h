// SPDX-License-Identifier: BSD-3-Clause
#ifndef UNITSSCREEN_H
#define UNITSSCREEN_H

#include "PanelScreen.h"

// Numeric fields with units: values the engine keeps in a base unit, entered in any unit of the
// field's list on the numeric pad's unit keys, or chosen from a discrete list. A tap on the unit
// between edits shows the value in the field's next unit.
class UnitsScreen : public PanelScreen
{
    Q_OBJECT
public:
    QString id() const override;
    void addAttributes(SimulatedEngine &engine) override;
    QWidget *createPage() override;
    void wire(PanelHost &host, QWidget *page) override;
    // The generator frequency shown in MHz, typed 2.5 on the numeric pad and committed with its kHz
    // key, stored by the engine as 2500 Hz and shown as 2.500 kHz; then the resolution bandwidth
    // chosen from its discrete list. Each is rendered with its popup open and after the answer.
    bool play(ScreenRunner &runner) override;
};

#endif // UNITSSCREEN_H
