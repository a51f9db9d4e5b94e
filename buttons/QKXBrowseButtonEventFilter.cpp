// SPDX-License-Identifier: BSD-3-Clause
#include "QKXBrowseButtonEventFilter.h"
#include "QKXEventFilterBase_p.h"

#include "GlobalImpl.h"
#include "SystemModule.h"

#include <QDebug>
#include <QPointer>
#include <QWidget>

// The host's browser is reached by name only: its class belongs to the application.
namespace {

const char *const BrowserScreen = "SimpleFileBrowser";

} // namespace

class QKXBrowseButtonEventFilterPrivate : public QKXEventFilterBasePrivate
{
public:
    explicit QKXBrowseButtonEventFilterPrivate(QKXBrowseButtonEventFilter *q) : QKXEventFilterBasePrivate(q) {}

    // The browser this filter listens to, between a granted tap and the answer.
    QPointer<QWidget> browser;
};

QKXBrowseButtonEventFilter::QKXBrowseButtonEventFilter(QObject *parent)
    : QKXEventFilterBase(*new QKXBrowseButtonEventFilterPrivate(this), parent)
{
}

QKXBrowseButtonEventFilter::~QKXBrowseButtonEventFilter() = default;

void QKXBrowseButtonEventFilter::lockAcquired(QWidget *widget)
{
    Q_D(QKXBrowseButtonEventFilter);
    if (!widget || widget != parentWidget()) {
        return;
    }
    QWidget *screen = GlobalImpl::getInstance()->systemModule()->getSystemScreen(QLatin1String(BrowserScreen));
    if (!screen) {
        qDebug().noquote() << "UserInterface - QKXBrowseButtonEventFilter::lockAcquired : no SimpleFileBrowser screen;"
                              " no file can be chosen.";
    } else if (screen->metaObject()->indexOfSignal("fileSelected(QString)") < 0
               || screen->metaObject()->indexOfSignal("cancelled()") < 0) {
        qDebug().noquote() << "UserInterface - QKXBrowseButtonEventFilter::lockAcquired : the SimpleFileBrowser screen"
                              " has no fileSelected(QString) or cancelled() signal; no file can be chosen.";
    } else {
        disconnectBrowser();
        // The latest granted button takes the browser over: whoever listened before, stops.
        QObject::disconnect(screen, SIGNAL(fileSelected(const QString &)), nullptr, nullptr);
        QObject::disconnect(screen, SIGNAL(cancelled()), nullptr, nullptr);
        connect(screen, SIGNAL(fileSelected(const QString &)), this, SLOT(fileSelected(QString)));
        connect(screen, SIGNAL(cancelled()), this, SLOT(cancel()));
        d->browser = screen;
    }
    emit attemptSetLock(widget, false);
}

void QKXBrowseButtonEventFilter::fileSelected(QString filename)
{
    if (!filename.isEmpty()) {
        emit submit(filename);
    }
    // Afterwards, whatever happened meanwhile: a host that answers the submit with another granted
    // tap of this button loses that listening again here.
    disconnectBrowser();
}

void QKXBrowseButtonEventFilter::cancel()
{
    disconnectBrowser();
}

void QKXBrowseButtonEventFilter::disconnectBrowser()
{
    Q_D(QKXBrowseButtonEventFilter);
    if (!d->browser) {
        return;
    }
    disconnect(d->browser, SIGNAL(fileSelected(const QString &)), this, SLOT(fileSelected(QString)));
    disconnect(d->browser, SIGNAL(cancelled()), this, SLOT(cancel()));
    d->browser = nullptr;
}
