// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXCOMPLEXTRACEPATTERN_H
#define QKXCOMPLEXTRACEPATTERN_H

#include "QKXWidgetBase.h"

#include <QList>
#include <QVariant>

class QKXComplexTracePatternPrivate;
class QKXComplexTracePlot;
class QKXPlotInterfaceImpl;
class QwtPlotMarker;

// The pattern points the engine publishes for a constellation (the ideal symbol positions), drawn
// as symbols behind the measured points. The widget itself shows nothing; it builds the markers and
// attaches them to a plot.
//
// A PatternStyle value outside the four known ones draws ellipses.
class STANDALONEPLUGINS_EXPORT QKXComplexTracePattern : public QKXWidgetBase
{
    Q_OBJECT
    Q_PROPERTY(bool TracePatternEnable READ isTracePatternEnabled WRITE enableTracePattern DESIGNABLE true STORED true)
    Q_PROPERTY(int TracePatternSize READ getTracePatternSize WRITE setTracePatternSize DESIGNABLE true STORED true)
    Q_PROPERTY(PatternStyle PatternStyle READ getPatternStyle WRITE setPatternStyle DESIGNABLE true STORED true)
    Q_PROPERTY(ReferencePattern ReferencePattern READ currentRefPattern WRITE setRefPattern DESIGNABLE true STORED true)

public:
    // Over int, so that any number a form or host writes is a value the widget can hold.
    enum PatternStyle : int { ELLIPSE = 0, DIAMOND = 1, XCROSS = 2, STAR = 3 };
    Q_ENUM(PatternStyle)
    enum ReferencePattern : int {
        SIMPLE_LINE = 0,
        CONSTELLATION_BPSK = 1,
        CONSTELLATION_8BPSK = 2,
        CONSTELLATION_4QAM = 3,
        CONSTELLATION_16QAM = 4,
        CONSTELLATION_64QAM = 5,
        CONSTELLATION_256QAM = 6,
        CONSTELLATION_FSK = 7,
        CONSTELLATION_4FSK = 8,
        EYE_DIAGRAM = 9
    };
    Q_ENUM(ReferencePattern)

    explicit QKXComplexTracePattern(QWidget *parent = nullptr);
    ~QKXComplexTracePattern() override;

    bool isTracePatternEnabled() const;
    int getTracePatternSize() const;
    PatternStyle getPatternStyle() const;
    ReferencePattern currentRefPattern() const;

    // Attaches the pattern points to the canvas and asks it for a replot.
    void attach(QKXPlotInterfaceImpl *canvas);
    QList<QwtPlotMarker *> getTracePatterns() const;

public Q_SLOTS:
    void enableTracePattern(bool b);
    void setTracePatternSize(int size);
    void setPatternStyle(PatternStyle style);
    void setRefPattern(ReferencePattern pattern);
    void addTraceType(QString type, QString topName);
    void setTrace(QString type, QString topName, QVariant data);
    void attachPlot(QKXComplexTracePlot *plot);

Q_SIGNALS:
    void patternChanged();

private:
    Q_DISABLE_COPY(QKXComplexTracePattern)
    Q_DECLARE_PRIVATE(QKXComplexTracePattern)
};

#endif // QKXCOMPLEXTRACEPATTERN_H
