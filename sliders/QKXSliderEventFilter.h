// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXSLIDEREVENTFILTER_H
#define QKXSLIDEREVENTFILTER_H

#include "QKXEditStateFilter.h"

class QKXSliderEventFilterPrivate;

// The edit filter of the slider widgets. The edit lock is asked for as the finger goes down on the
// widget, the edit lasts while the finger is down and ends when it lifts, wherever that is. No popup
// opens: the host feeds the values the user chooses to submitWidgetValue(), which submits them only
// while an edit is under way. The host starts the machine (startMachine()) once it has wired the
// filter; the filter never starts it itself.
class STANDALONEPLUGINS_EXPORT QKXSliderEventFilter : public QKXEditStateFilter
{
    Q_OBJECT
public:
    // The parent is the slider widget.
    explicit QKXSliderEventFilter(QObject *parent);
    ~QKXSliderEventFilter() override;

    // True between a granted lock and the end of the edit.
    bool isSubmitting() const;

public Q_SLOTS:
    // Ends the edit. Nothing is given back: the handle stays where the user left it.
    void cancel() override;
    void lockAcquired(QWidget *widget) override;
    void submitWidgetValue(int index);

Q_SIGNALS:
    void submit(int value);
    // For hosts that want a value without an edit; the filter itself never emits it.
    void notify(int value);

protected Q_SLOTS:
    void idleStateInit() override;
    void editStateInit() override;

protected:
    // A press inside the widget asks for the lock (or, with the interface locked, for the notice);
    // the press goes on to the handle in every case, so it follows the finger at once.
    bool mousePressEventFilter(QObject *watched, QMouseEvent *event) override;
    // The release ends the edit and hands the lock back, inside the widget or not.
    bool mouseReleaseEventFilter(QObject *watched, QMouseEvent *event) override;

private:
    Q_DISABLE_COPY(QKXSliderEventFilter)
    Q_DECLARE_PRIVATE(QKXSliderEventFilter)
};

#endif // QKXSLIDEREVENTFILTER_H
