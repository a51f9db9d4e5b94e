// SPDX-License-Identifier: BSD-3-Clause
#ifndef SPECTRUMSCREEN_H
#define SPECTRUMSCREEN_H

#include "PanelScreen.h"

#include <QPointer>
#include <QVariantList>

class QKXPlotManager;
class QLabel;
class QTimer;

// A spectrum analyser's display: the engine publishes a 1001-point spectrum every 50 ms, the plot
// shows it with its tool box (pan, zoom, reload, save trace), two markers ride on the trace and can
// be dragged along it, and the left axis follows the engine's reference level and scale.
class SpectrumScreen : public PanelScreen
{
    Q_OBJECT
public:
    SpectrumScreen();
    ~SpectrumScreen() override;

    QString id() const override;
    void addAttributes(SimulatedEngine &engine) override;
    QWidget *createPage() override;
    void wire(PanelHost &host, QWidget *page) override;
    bool play(ScreenRunner &runner) override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void showTrace(const QVariant &trace);
    void placeMarker(const QString &key, int index);

    QPointer<SimulatedEngine> engine;
    QTimer *sweep;
    int sweepCount;
    QPointer<QKXPlotManager> plot;
    QPointer<QLabel> readouts[2];
    int markerIndex[2];
    QVariantList lastX;
    QVariantList lastY;
};

#endif // SPECTRUMSCREEN_H
