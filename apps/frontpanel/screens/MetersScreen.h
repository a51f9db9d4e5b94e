// SPDX-License-Identifier: BSD-3-Clause
#ifndef METERSSCREEN_H
#define METERSSCREEN_H

#include "PanelScreen.h"

#include <QVariant>

class QTimer;

// Measurements: a transmitter's power, average and peak, that wanders and now and then over-ranges
// the meters' 50 W, and a frequency error in Hz that loses the signal from time to time; each as
// vertical meter bars, numeric readings and horizontal meters. The engine publishes a reading list
// for each ten times a second, with the status flags this panel's measurements set:
//   1 no signal (nothing to measure)       2 the reading is in doubt (the peak was clipped)
//   3 over range (the peak passed 50 W)    4 the limit test is on
//   7 the reading is inside its test limit (average up to 40 W, error within 200 Hz)
class MetersScreen : public PanelScreen
{
    Q_OBJECT
public:
    QString id() const override;
    void addAttributes(SimulatedEngine &engine) override;
    QWidget *createPage() override;
    void wire(PanelHost &host, QWidget *page) override;
    // Stops the measurement and shows three moments of it: both readings inside their limits, the
    // power over range while the frequency error fails its test, and the power failing its test
    // while the frequency error has no signal. Each is rendered and checked on the readings.
    bool play(ScreenRunner &runner) override;

    // The two reading lists at a moment of the simulated measurement (tenths of a second).
    static QVariant powerReading(int tick);
    static QVariant frequencyErrorReading(int tick);

private:
    void publish(int tick);

    SimulatedEngine *engine = nullptr;
    QTimer *clock = nullptr;
    int tick = 0;
};

#endif // METERSSCREEN_H
