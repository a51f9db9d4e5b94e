// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXDATESPIN_H
#define QKXDATESPIN_H

#include "ContainerImpl.h"
#include "standaloneplugins_export.h"

#include <QDate>
#include <QScopedPointer>

class QKXDateSpinPrivate;
class QShowEvent;

// The popup date editor: month, day and year spin boxes in the order the widget's inputFormat asks
// for, with Cancel and Enter. It opens on the widget's date and commits the chosen date at the
// current time of day as a count of seconds, through the widget's qlonglong filter.
//
// The day's range follows the month and year; a year divisible by 4 is a leap year (1900 and 2100
// too), and a day beyond the month's end is pulled back to it. The year column runs from 0 to 9999,
// but only dates from 1970 to 7 February 2106 have a count: Enter on any other date (or on a
// 29 February the calendar lacks) submits nothing, says so on the debug stream and leaves the editor
// open for a correction.
class STANDALONEPLUGINS_EXPORT QKXDateSpin : public ContainerImpl
{
    Q_OBJECT
public:
    // The column order, numbered as the date widget's InputDateFormat.
    enum DateFormat : int { MM_DD_YYYY = 0, DD_MM_YYYY = 1, YYYY_MM_DD = 2 };
    Q_ENUM(DateFormat)

    explicit QKXDateSpin(QWidget *parent = nullptr);
    ~QKXDateSpin() override;

    int getWidth() const;
    int getHeight() const;
    DateFormat getDateFormat() const;
    QDate getDate() const;
    // An invalid date changes nothing.
    void setDate(QDate date);
    void retranslate() override;

public Q_SLOTS:
    // Reads "inputFormat" (0, 1 or 2; anything else keeps the order, no property gives 0) and
    // "Value" (a widget without one, or with a count outside the range, opens on today's date),
    // chains itself to the filter and opens. A previous registration is not cancelled; the same
    // filter registered again is chained once. Without a filter the editor stays closed.
    void registerWidget(QObject *filter, QWidget *widget);
    void unregister();

Q_SIGNALS:
    void submit(qlonglong value);
    void cancelEntry();
    void editEnd();

protected Q_SLOTS:
    void showEvent(QShowEvent *event) override;

private Q_SLOTS:
    void modifyMonth();
    void modifyDay();
    void modifyYear();
    void enterDate();
    void cancelDate();
    void setDateFormat(QKXDateSpin::DateFormat format);

private:
    Q_DISABLE_COPY(QKXDateSpin)
    QScopedPointer<QKXDateSpinPrivate> d_ptr;
    Q_DECLARE_PRIVATE(QKXDateSpin)
};

#endif // QKXDATESPIN_H
