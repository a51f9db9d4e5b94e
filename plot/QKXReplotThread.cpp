// SPDX-License-Identifier: BSD-3-Clause
#include "QKXReplotThread.h"

#include <QMutexLocker>

QKXReplotThread::QKXReplotThread(QObject *parent)
    : QThread(parent)
    , stopping(false)
{
}

QKXReplotThread::~QKXReplotThread()
{
    stop();
}

void QKXReplotThread::stop()
{
    disconnect();
    {
        QMutexLocker locker(&sleepLock);
        stopping = true;
        wakeUp.wakeAll();
    }
    wait();
}

void QKXReplotThread::run()
{
    QMutexLocker locker(&sleepLock);
    while (!stopping) {
        locker.unlock();
        emit update();
        locker.relock();
        if (!stopping) {
            wakeUp.wait(&sleepLock, TickMilliseconds);
        }
    }
}
