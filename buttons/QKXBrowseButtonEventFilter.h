// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXBROWSEBUTTONEVENTFILTER_H
#define QKXBROWSEBUTTONEVENTFILTER_H

#include "QKXEventFilterBase.h"

class QKXBrowseButtonEventFilterPrivate;

// Edit filter of a browse button: once the host grants the lock, the filter takes over the host's
// "SimpleFileBrowser" screen (from whichever button had it) and hands the lock straight back; the
// next file chosen there is submitted. Showing the browser is the host's business. Taking over cuts
// every receiver of the browser's two signals, so the browser screen must not rely on its own
// connections to them. Without such a screen the tap is reported and the lock handed back.
class STANDALONEPLUGINS_EXPORT QKXBrowseButtonEventFilter : public QKXEventFilterBase
{
    Q_OBJECT
public:
    explicit QKXBrowseButtonEventFilter(QObject *parent);
    ~QKXBrowseButtonEventFilter() override;

public Q_SLOTS:
    void lockAcquired(QWidget *widget) override;

Q_SIGNALS:
    void submit(QString value);

private Q_SLOTS:
    void fileSelected(QString filename);
    void cancel();

private:
    void disconnectBrowser();

    Q_DISABLE_COPY(QKXBrowseButtonEventFilter)
    Q_DECLARE_PRIVATE(QKXBrowseButtonEventFilter)
};

#endif // QKXBROWSEBUTTONEVENTFILTER_H
