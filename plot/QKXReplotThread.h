// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXREPLOTTHREAD_H
#define QKXREPLOTTHREAD_H

#include "standaloneplugins_export.h"

#include <QMutex>
#include <QThread>
#include <QWaitCondition>

// The plot's clock: emits update() every 33 ms from its own thread, so that a canvas connected to it
// redraws at most once per tick on the GUI thread. It touches no plot data.
//
// The loop ends when the thread is asked to stop: destroying the object disconnects every receiver,
// wakes the sleeping loop and waits for it to return. A clean stop instead of terminate(): the
// canvas sees the same thing (no tick after its destruction has begun), and a thread killed while
// it posts an event could leave the receiver's event queue locked.
class STANDALONEPLUGINS_EXPORT QKXReplotThread : public QThread
{
    Q_OBJECT
public:
    static const int TickMilliseconds = 33;

    explicit QKXReplotThread(QObject *parent = nullptr);
    ~QKXReplotThread() override;

    // Disconnects every receiver and returns once the loop has ended.
    void stop();

Q_SIGNALS:
    void update();

protected:
    void run() override;

private:
    Q_DISABLE_COPY(QKXReplotThread)
    QMutex sleepLock;
    QWaitCondition wakeUp;
    bool stopping;
};

#endif // QKXREPLOTTHREAD_H
