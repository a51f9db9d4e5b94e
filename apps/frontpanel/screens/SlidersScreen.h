// SPDX-License-Identifier: BSD-3-Clause
#ifndef SLIDERSSCREEN_H
#define SLIDERSSCREEN_H

#include "PanelScreen.h"

// Integer attributes set by dragging: the audio section's horizontal sliders follow the finger live,
// the receiver section's vertical sliders set their attribute when the finger lifts.
//
// How the host feeds the sliders' filters: a horizontal slider's every new handle position goes to
// its filter's submitWidgetValue(), which submits it while the finger is down. A vertical slider
// speaks only as the finger lifts, after that release has already ended the edit; its value goes to
// the engine directly then, once per drag the filter saw begin, so a read-only slider or a handle
// moved without an edit sets nothing. Values the engine itself sends back are never fed again.
class SlidersScreen : public PanelScreen
{
    Q_OBJECT
public:
    QString id() const override;
    void addAttributes(SimulatedEngine &engine) override;
    QWidget *createPage() override;
    void wire(PanelHost &host, QWidget *page) override;
    // The volume dragged up with the finger, then the RF gain dragged up; each value checked in the
    // engine as the finger lifts, with the lock back, and the screen rendered after the drags.
    bool play(ScreenRunner &runner) override;
};

#endif // SLIDERSSCREEN_H
