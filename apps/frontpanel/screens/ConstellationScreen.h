// SPDX-License-Identifier: BSD-3-Clause
#ifndef CONSTELLATIONSCREEN_H
#define CONSTELLATIONSCREEN_H

#include "PanelScreen.h"

#include <QPointer>

class QKXComplexTraceManager;
class QTimer;

// A demodulator's constellation: the engine publishes the measured I/Q points of a noisy QAM signal,
// the ideal symbol positions as pattern points and the range of the display, each on its own topic.
// The plot lays the library's reference points of the modulation over them; two keys switch the
// simulated signal between 4-QAM and 16-QAM.
class ConstellationScreen : public PanelScreen
{
    Q_OBJECT
public:
    ConstellationScreen();
    ~ConstellationScreen() override;

    QString id() const override;
    void addAttributes(SimulatedEngine &engine) override;
    QWidget *createPage() override;
    void wire(PanelHost &host, QWidget *page) override;
    bool play(ScreenRunner &runner) override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    // Publishes what the demodulator sees now: points, and on a change of modulation its pattern
    // points and range.
    void publish(bool modulationChanged);

    QPointer<SimulatedEngine> engine;
    QPointer<QKXComplexTraceManager> display;
    QTimer *symbols;
    int burst;
};

#endif // CONSTELLATIONSCREEN_H
