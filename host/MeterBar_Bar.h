// SPDX-License-Identifier: BSD-3-Clause
#ifndef METERBAR_BAR_H
#define METERBAR_BAR_H

#include "norvanehost_export.h"

#include <QColor>
#include <QString>
#include <QWidget>

// The bar of a meter: a track between a lower and an upper limit, filled up to the reading in the
// colour of the bar state. Vertical bars fill upwards from the lower limit, horizontal ones to the
// right; when zero lies between the limits (a frequency error of -500 to 500 Hz) the fill starts
// at zero and a line marks it. A reading beyond a limit fills the track and shows a notch at that
// end, so that an off-scale reading does not look like one exactly at the limit.
//
// The meter hands over numbers as it has them, limits in either order included: the track always
// runs from the lower limit at the bottom (or left) to the upper one. A reading that does not move
// the fill by a pixel, in the same state, repaints nothing; one that does repaints only the stretch
// between the old and the new end. The track is opaque, so nothing behind the bar is repainted.
class NORVANEHOST_EXPORT MeterBar_Bar : public QWidget
{
    Q_OBJECT
public:
    // The states a meter derives from its reading's status flags, by the colour each is drawn in.
    // Any other number is drawn as Green.
    enum BarState {
        Green = 0,     // the ordinary reading
        Red = 2,
        Blue = 3,
        Empty = 4,     // no reading: the track is hatched and nothing is filled
        Yellow = 5,
        Amber = 6,
        Grey = 7,
        Hatched = 8    // a reading in doubt: the ordinary fill, hatched
    };
    Q_ENUM(BarState)

    explicit MeterBar_Bar(QWidget *parent = nullptr);
    ~MeterBar_Bar() override;

    // Takes the reading. The unit text is kept (unitText()); the bar itself draws no text.
    virtual void updateReading(double value, double lower, double upper, int barState, const QString &unitText);
    virtual void setHorizontal(bool horizontal);

    bool isHorizontal() const;
    double value() const;
    double lower() const;
    double upper() const;
    int barState() const;
    QString unitText() const;

    // The colour a state fills with.
    static QColor fillColor(int barState);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void resized();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    // What one reading looks like in pixels along the bar, from the lower-limit end.
    struct Geometry {
        int origin = 0;       // where the fill starts
        int end = 0;          // where it ends (before or after origin)
        bool zeroLine = false;
        bool belowRange = false;
        bool aboveRange = false;
        bool operator==(const Geometry &other) const;
    };

    int length() const;
    Geometry geometryFor(double value, double lower, double upper) const;
    // The widget rectangle covering positions a to b along the bar.
    QRect spanRect(int a, int b) const;

    double readingValue;
    double lowerLimit;
    double upperLimit;
    int state;
    QString unit;
    bool horizontal;
    Geometry shown;

    Q_DISABLE_COPY(MeterBar_Bar)
};

#endif // METERBAR_BAR_H
