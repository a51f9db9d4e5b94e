// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXMETERBAR_P_H
#define QKXMETERBAR_P_H

//
//  W A R N I N G
//  -------------
// Not part of the library's public API: a host's own meter derives its Private from this one.
//

#include "QKXMeterBar.h"
#include "QKXWidgetBase_p.h"

#include "KXMeterReadingList_p.h"

#include "Units.h"
#include "Value_object.h"

#include <QList>
#include <QVariant>

class QFrame;
class QGridLayout;
class QHBoxLayout;
class QSpacerItem;
class MeterBar_Bar;
class MeterBar_Scale;
class MeterBar_HorizontalScale;

class STANDALONEPLUGINS_EXPORT QKXMeterBarPrivate : public QKXWidgetBasePrivate
{
    Q_OBJECT
public:
    explicit QKXMeterBarPrivate(QKXMeterBar *q);
    ~QKXMeterBarPrivate() override;

    void init() override;
    void changeSize(const QString &size) override;
    void updateStyle() override;

    virtual void setValue(const QVariant &readingList);
    virtual int readingTypeIndex() const;
    virtual void setReadingTypeIndex(int index);
    virtual int unitIndex() const;
    virtual void setUnitIndex(int index);
    virtual bool horizontal() const;
    virtual void setHorizontal(bool horizontal);
    virtual int minBarWidth() const;
    virtual void setMinBarWidth(int width);
    virtual int maxBarWidth() const;
    virtual void setMaxBarWidth(int width);
    virtual QVariant readingTypes() const;
    virtual void setUnitListString(const QString &unitList);
    virtual void updateBarReading(Norvane::Value::Value_object<double> value,
                                  Norvane::Value::Value_object<double> lower,
                                  Norvane::Value::Value_object<double> upper, QString unitText, int barState);
    // The status flags in the order the bar state table weighs them: 4, 1, 6, 3, 2, 5, 7.
    virtual void processData(bool flag4, bool flag1, bool flag6, bool flag3, bool flag2, bool flag5, bool flag7);
    virtual void setBarScale(double max, int maxDigits, double min, int minDigits, const QString &unitText);
    virtual void resizeMeterFrame();

    // The sheets, built once from the palette: hosts' themes compare them as text.
    static QString verticalStyleTemplate();
    static QString horizontalStyleTemplate();
    // Decimals a scale label shows for x: enough for the first significant digit of 0 < x < 1.
    static int scaleDigits(double x);
    // The bar state for the status flags, in the order processData takes them.
    static int barStateFor(bool flag4, bool flag1, bool flag6, bool flag3, bool flag2, bool flag5, bool flag7);

    QString minStyle;
    QString maxStyle;
    QString thumbStyle;
    QString meterSize;
    QFrame *meterFrame;
    QFrame *topCap;
    QFrame *barMid;
    QFrame *bottomCap;
    QGridLayout *capGrid;
    QHBoxLayout *outerLayout;
    QSpacerItem *spacer;
    MeterBar_Bar *bar;
    MeterBar_Scale *maxScale;
    MeterBar_Scale *minScale;
    MeterBar_HorizontalScale *maxHScale;
    MeterBar_HorizontalScale *minHScale;
    int readingTypeIndexValue;
    int unitIndexValue;
    int scaleInset;
    int minBarWidthValue;
    int maxBarWidthValue;
    double barScaleExponent;
    bool horizontalValue;
    bool updatedOnce;
    QList<QVariant> reading;
    QList<QVariant> lowerLimit;
    QList<QVariant> upperLimit;
    QList<QVariant> readingTypeList;
    QList<Norvane::Value::Units> unitList;
    QString unitListString;
    Norvane::Value::Units displayUnits;

    // Status flag 1 of the reading list being drawn: a reading that is no number is then simply
    // absent, not an error.
    bool noReading;

    // The units strings last read for the reading and the two limits.
    kxmeters::UnitsMemo readingUnits[3];
    // What the scale labels were last given.
    struct ScaleShown
    {
        double max;
        double min;
        int maxDigits;
        int minDigits;
        QString unitText;
    };
    ScaleShown shownScale;
    bool scaleShown;

public Q_SLOTS:
    void updateMarkerPositions();

protected:
    // One "UserInterface - " line naming the meter and what was wrong; the display stays as it was.
    void reportIgnored(const QString &what) const;
    void reportMismatchedUnits(const Norvane::Value::Value_object<double> &value,
                               const Norvane::Value::Value_object<double> &lower,
                               const Norvane::Value::Value_object<double> &upper) const;

private:
    // Moves a cap to its place for the orientation; renames it and repolishes it only when its name
    // changes, since sheets select the caps by name.
    void placeCap(QFrame *cap, const QString &name, int row, int column);

    KX_DECLARE_PUBLIC(QKXMeterBar)
};

#endif // QKXMETERBAR_P_H
