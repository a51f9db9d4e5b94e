// SPDX-License-Identifier: BSD-3-Clause
#ifndef TEXTSCREEN_H
#define TEXTSCREEN_H

#include "PanelScreen.h"

// Text attributes, each on the editor its entry mode asks for: the setup name on the keyboard, the IP
// address on the numeric pad, the DTMF dial string on the live DTMF pad (the engine logs the tone it
// would sound while a key is held), the tone code on the tone-code pad; and the engine's event log.
class TextScreen : public PanelScreen
{
    Q_OBJECT
public:
    QString id() const override;
    void addAttributes(SimulatedEngine &engine) override;
    QWidget *createPage() override;
    void wire(PanelHost &host, QWidget *page) override;
    // The setup name typed on the keyboard across a page switch, an address on the numeric pad, two
    // held keys on the live DTMF pad and a tone code; each rendered with its editor open, and the
    // screen with the event log at the end.
    bool play(ScreenRunner &runner) override;
};

#endif // TEXTSCREEN_H
