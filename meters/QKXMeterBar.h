// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXMETERBAR_H
#define QKXMETERBAR_H

#include "QKXWidgetBase.h"

#include <QVariant>

class QKXMeterBarPrivate;

// One measured reading of the instrument as a bar between its lower and upper limit, with the
// limits printed at the bar's ends. The engine hands it whole reading lists (several reading types,
// seven status flags, the two limits); the meter shows the reading type chosen by ReadingType in
// the unit chosen by UnitIndex from its unit list, or in the unit that reads best for the limits
// when UnitIndex is negative, and colours the bar by the status flags. Read-only: no edit filter,
// no signals. Vertical in the sizes "Min" and "Max", horizontal in "Thumb".
//
// A reading list the meter cannot read whole (fewer than ten elements, no entry at ReadingType,
// value records too short or not numbers, a UnitIndex past the unit list, a conversion the units
// cannot make, a value or limit that is no finite number) is reported on the debug stream with the
// meter's object name and keeps the previous display. Two exceptions hold what the meter has
// always done: a reading below -300 in a unit flagged as fixed is drawn at the lower limit (the
// engine's "no signal" level), and with status flag 1 (no reading) a reading that is no number is
// drawn at the lower limit too, without a line. Limits in either order are drawn as they come.
// Value records longer than four elements are read from their first four.
class STANDALONEPLUGINS_EXPORT QKXMeterBar : public QKXWidgetBase
{
    Q_OBJECT
    Q_PROPERTY(bool Horizontal READ horizontal WRITE setHorizontal DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(int ReadingType READ readingTypeIndex WRITE setReadingTypeIndex DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(int UnitIndex READ unitIndex WRITE setUnitIndex DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(int MinBarWidth READ minBarWidth WRITE setMinBarWidth DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(int MaxBarWidth READ maxBarWidth WRITE setMaxBarWidth DESIGNABLE true SCRIPTABLE true STORED true)

public:
    explicit QKXMeterBar(QWidget *parent = nullptr);
    ~QKXMeterBar() override;

    Q_INVOKABLE virtual int readingTypeIndex() const;
    // The [index, name] pairs of the reading types of the first reading list.
    Q_INVOKABLE virtual QVariant readingTypes() const;
    Q_INVOKABLE virtual int unitIndex() const;
    virtual bool horizontal() const;
    // True lays the bar out horizontally in size "Thumb"; false lays it out vertically and keeps
    // the size name, so a "Thumb" meter set vertical keeps its fixed height.
    virtual void setHorizontal(bool horizontal);
    virtual int minBarWidth() const;
    virtual void setMinBarWidth(int width);
    virtual int maxBarWidth() const;
    virtual void setMaxBarWidth(int width);

public Q_SLOTS:
    virtual void setValue(const QVariant &readingList);
    // Takes effect with the next reading list.
    virtual void setReadingTypeIndex(int index);
    // Takes effect with the next reading list; a negative index chooses the unit automatically.
    virtual void setUnitIndex(int index);
    // Units property strings joined by "|"; takes effect with the next reading list.
    virtual void setUnitListString(const QString &unitList);

protected:
    QKXMeterBar(QKXMeterBarPrivate &dd, QWidget *parent);
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    Q_DISABLE_COPY(QKXMeterBar)
    Q_DECLARE_PRIVATE(QKXMeterBar)
};

#endif // QKXMETERBAR_H
