// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXTIMESPIN_H
#define QKXTIMESPIN_H

#include "ContainerImpl.h"
#include "standaloneplugins_export.h"

#include <QScopedPointer>
#include <QTime>

class QKXTimeSpinPrivate;
class QShowEvent;
class QSpinBox;

// The popup time editor: hour, minute and second spin boxes, a mode label ("24h", "AM" or "PM"),
// an "AM/PM" and a "12/24" key, Cancel and Enter. It works in local time, opens in the widget's
// 12- or 24-hour form on the widget's time of day, and commits today's date at the chosen time as
// a count of seconds, through the widget's qlonglong filter.
//
// In the AM/PM form the hour column runs from 1 to 12: 12 AM is midnight, 12 PM noon. A time the
// clocks skip today (the hour lost when daylight-saving time begins) commits as the time an hour on.
class STANDALONEPLUGINS_EXPORT QKXTimeSpin : public ContainerImpl
{
    Q_OBJECT
public:
    explicit QKXTimeSpin(QWidget *parent = nullptr);
    ~QKXTimeSpin() override;

    int getWidth() const;
    int getHeight() const;
    // The time shown, in 24 hours.
    QTime getTime() const;
    // Shows the local time of day of a count of seconds, in the form the editor opens in. A count
    // outside the range is reported and changes nothing.
    void setTime(qlonglong time);
    // Switches the hour column to the AM/PM form, showing that hour of the day (0 to 23).
    void convert24ToAPM(int hour);
    void modifySpinPrefix(QSpinBox *spin);
    void modifyAllPrefixes();
    void retranslate() override;

public Q_SLOTS:
    // Reads "UseMilitaryTime" (false opens the AM/PM form; a widget without it opens in 24 hours)
    // and "Value" (a widget without one, or with a count outside the range, opens on the current
    // time), chains itself to the filter and opens. A previous registration is not cancelled; the
    // same filter registered again is chained once. Without a filter the editor stays closed.
    void registerWidget(QObject *filter, QWidget *widget);
    void unregister();

Q_SIGNALS:
    void submit(qlonglong value);
    void cancelEntry();
    void editEnd();

protected Q_SLOTS:
    void showEvent(QShowEvent *event) override;

private Q_SLOTS:
    void enterTime();
    void cancelTime();
    void modifyHour();
    void modifyMinute();
    void modifySecond();
    void toggleAP();
    void toggleMil();

private:
    Q_DISABLE_COPY(QKXTimeSpin)
    QScopedPointer<QKXTimeSpinPrivate> d_ptr;
    Q_DECLARE_PRIVATE(QKXTimeSpin)
};

#endif // QKXTIMESPIN_H
