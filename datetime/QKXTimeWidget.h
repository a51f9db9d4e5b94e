// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXTIMEWIDGET_H
#define QKXTIMEWIDGET_H

#include "QKXWidgetBase.h"

class QKXTimeWidgetPrivate;

// A time-valued attribute: the same unsigned 32-bit count of seconds since 1970-01-01 00:00 UTC as
// the date widget's, shown as a time of day, 24-hour ("13:05:09") or 12-hour ("1:05:09 PM"), in
// local time or in UTC. Edited through QKXAttribLongLongEventFilter and the time editor, which read
// Value and UseMilitaryTime; the editor always works in local time.
class STANDALONEPLUGINS_EXPORT QKXTimeWidget : public QKXWidgetBase
{
    Q_OBJECT
    Q_PROPERTY(bool UseMilitaryTime READ isMilitaryTime WRITE setMilitaryTime DESIGNABLE true STORED true)
    Q_PROPERTY(TimeMode TimeMode READ getTimeMode WRITE setTimeMode DESIGNABLE true STORED true)
    Q_PROPERTY(qlonglong Value READ value WRITE setValue DESIGNABLE true STORED true)

public:
    enum TimeMode : int { LOCALE = 0, UTC = 1 };
    Q_ENUM(TimeMode)

    explicit QKXTimeWidget(QWidget *parent = nullptr);
    ~QKXTimeWidget() override;

    Q_INVOKABLE virtual qlonglong value() const;
    Q_INVOKABLE virtual bool isMilitaryTime() const;
    virtual TimeMode getTimeMode() const;

public Q_SLOTS:
    // A count outside 0 to 4294967295 (negative ones too) is neither stored nor shown: the widget
    // keeps its value and text and says so on the debug stream.
    virtual void setValue(qlonglong value);
    // Both show with the next value.
    virtual void setTimeMode(TimeMode mode);
    virtual void setMilitaryTime(bool isMil);

private:
    Q_DISABLE_COPY(QKXTimeWidget)
    Q_DECLARE_PRIVATE(QKXTimeWidget)
};

#endif // QKXTIMEWIDGET_H
