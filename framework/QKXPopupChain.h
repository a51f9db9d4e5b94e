// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXPOPUPCHAIN_H
#define QKXPOPUPCHAIN_H

#include "standaloneplugins_export.h"

class QObject;

// The connections between a popup editor and the edit filter of the widget it edits, made when the
// popup registers the widget and undone by the popup's unregister(). Filters and popups address each
// other by name (SIGNAL()/SLOT() texts), so any filter with these members can drive any popup.
//
// Registration: the popup's cancel signal reaches the filter's cancel(), the filter's editEnd()
// reaches the popup's unregister(), the popup's closing signal (where it has one) makes the filter
// emit editEnd(), and each value signal the popup forwards makes the filter emit the same signal.
// Unregistering: the filter's editEnd() no longer reaches the popup and nothing of the popup reaches
// the filter. Other connections between the two stay: the host's editStart() -> registerWidget()
// has to survive for the next edit.
// Registering over a registration: a popup first lets go of the filter it still holds, as its
// unregister() would, but without ending that filter's edit (the host does that, or takes the edit
// on). Left connected, the old filter's editEnd() would reach unregister(), whose closing signal
// reaches the old filter again, without end; the same filter registered again would be chained twice.
class STANDALONEPLUGINS_EXPORT QKXPopupChain
{
public:
    // The popup's cancel and closing signals as SIGNAL() texts; a null closingSignal for popups that
    // close through the filter's editEnd() only.
    static void chain(QObject *popup, QObject *filter, const char *cancelSignal, const char *closingSignal);
    // The popup's value signal re-emitted by the filter's signal (both SIGNAL() texts). False, with
    // nothing connected, when the filter has no such signal.
    static bool forward(QObject *popup, const char *popupSignal, QObject *filter, const char *filterSignal);
    // The same signature on both sides, the usual case.
    static bool forward(QObject *popup, QObject *filter, const char *signal);
    static void unchain(QObject *popup, QObject *filter);
    // The key pads and the keyboard let go of the filter whole: every connection between the two
    // goes, in both directions, whoever made it.
    static void unchainAll(QObject *popup, QObject *filter);

private:
    QKXPopupChain() = delete;
};

#endif // QKXPOPUPCHAIN_H
