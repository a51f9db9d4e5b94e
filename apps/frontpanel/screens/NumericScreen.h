// SPDX-License-Identifier: BSD-3-Clause
#ifndef NUMERICSCREEN_H
#define NUMERICSCREEN_H

#include "PanelScreen.h"

// Numeric fields, integer and floating-point, decimal and hexadecimal, edited on the numeric pad and
// on the other editors their flags allow (the level also on the spinner, every field on the slider
// bar), which the rotate key goes round; the arrow keys step the focused field. The engine clamps
// what lies beyond an attribute's limits.
class NumericScreen : public PanelScreen
{
    Q_OBJECT
public:
    QString id() const override;
    void addAttributes(SimulatedEngine &engine) override;
    QWidget *createPage() override;
    void wire(PanelHost &host, QWidget *page) override;
    // The hex unit address typed and committed with its Enter key, then a level beyond the engine's
    // limits, which the engine clamps and the field shows clamped; each rendered while the pad is open
    // beside the field and after the commit. Then the level turned down on the spinner and dragged on the
    // slider bar, the rotate key leading from the pad to each, every step reaching the engine at once;
    // and the channel stepped with the arrow keys and committed with Return.
    bool play(ScreenRunner &runner) override;
};

#endif // NUMERICSCREEN_H
