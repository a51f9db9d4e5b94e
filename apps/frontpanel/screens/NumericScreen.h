#ifndef NUMERICSCREEN_H
#define NUMERICSCREEN_H

#include "PanelScreen.h"

// Numeric fields, integer and floating-point, decimal and hexadecimal, each edited on the numeric
// pad; the engine clamps what lies beyond an attribute's limits.
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
    // beside the field and after the commit.
    bool play(ScreenRunner &runner) override;
};

#endif // NUMERICSCREEN_H
