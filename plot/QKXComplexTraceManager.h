// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXCOMPLEXTRACEMANAGER_H
#define QKXCOMPLEXTRACEMANAGER_H

#include "QKXComplexTracePattern.h"
#include "QKXPlotManager.h"

#include <QFrame>
#include <QScopedPointer>

class QKXComplexTracePlot;
class QKXComplexTraceRange;

// A constellation display as one widget: the measured points, the pattern points and the range, each
// bound to its own engine topic, wired together, with their settings under one set of properties.
class STANDALONEPLUGINS_EXPORT QKXComplexTraceManager : public QFrame
{
    Q_OBJECT
    Q_PROPERTY(QString PlotAttribName READ getPlotAttribName WRITE setPlotAttribName DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(QString RangeAttribName READ getRangeAttribName WRITE setRangeAttribName DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(QString PatternAttribName READ getPatternAttribName WRITE setPatternAttribName DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(int PlotXLines READ getPlotXLines WRITE setPlotXLines DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(int PlotYLines READ getPlotYLines WRITE setPlotYLines DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(bool PlotXGrid READ isPlotXGridEnabled WRITE setPlotXGridEnable DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(bool PlotYGrid READ isPlotYGridEnabled WRITE setPlotYGridEnable DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(bool PlotAutoScale READ isPlotAutoScaled WRITE enablePlotAutoScale DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(bool PlotYLeftScaleEnable READ getPlotYLeftScaleEnable WRITE setPlotYLeftScaleEnable DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(bool PlotBorderVisible READ isPlotBorderVisibled WRITE setPlotBorderVisible DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(bool PlotLocked READ plotIsLocked WRITE setPlotLocked DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(QKXPlotManager::PlotCurveStyle PlotCurveStyle READ getPlotCurveStyle WRITE setPlotCurveStyle DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(bool PatternEnable READ isPatternEnabled WRITE enablePattern DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(int PatternSize READ getPatternSize WRITE setPatternSize DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(QKXComplexTracePattern::PatternStyle PatternStyle READ getPatternStyle WRITE setPatternStyle DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(double RangeXMin READ getRangeXMin WRITE setRangeXMin DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(double RangeXMax READ getRangeXMax WRITE setRangeXMax DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(double RangeYMin READ getRangeYMin WRITE setRangeYMin DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(double RangeYMax READ getRangeYMax WRITE setRangeYMax DESIGNABLE true SCRIPTABLE true STORED true)

public:
    explicit QKXComplexTraceManager(QWidget *parent = nullptr);
    ~QKXComplexTraceManager() override;

    Q_INVOKABLE QKXComplexTracePlot *getTracePlot() const;
    QKXComplexTracePattern *getTracePlotPattern() const;
    QKXComplexTraceRange *getTraceRange() const;

    QString getPlotAttribName() const;
    QString getRangeAttribName() const;
    QString getPatternAttribName() const;
    int getPlotXLines() const;
    int getPlotYLines() const;
    bool isPlotXGridEnabled() const;
    bool isPlotYGridEnabled() const;
    bool isPlotAutoScaled() const;
    bool getPlotYLeftScaleEnable() const;
    bool isPlotBorderVisibled() const;
    bool plotIsLocked() const;
    QKXPlotManager::PlotCurveStyle getPlotCurveStyle() const;
    bool isPatternEnabled() const;
    int getPatternSize() const;
    QKXComplexTracePattern::PatternStyle getPatternStyle() const;
    double getRangeXMin() const;
    double getRangeXMax() const;
    double getRangeYMin() const;
    double getRangeYMax() const;

public Q_SLOTS:
    void setPlotAttribName(const QString &name);
    void setRangeAttribName(const QString &name);
    void setPatternAttribName(const QString &name);
    void setPlotXLines(int lines);
    void setPlotYLines(int lines);
    void setPlotXGridEnable(bool enable);
    void setPlotYGridEnable(bool enable);
    void enablePlotAutoScale(bool enable);
    void setPlotYLeftScaleEnable(bool enable);
    void setPlotBorderVisible(bool visible);
    void setPlotLocked(bool locked);
    void setPlotCurveStyle(QKXPlotManager::PlotCurveStyle style);
    void enablePattern(bool enable);
    void setPatternSize(int size);
    void setPatternStyle(QKXComplexTracePattern::PatternStyle style);
    void setRangeXMin(double value);
    void setRangeXMax(double value);
    void setRangeYMin(double value);
    void setRangeYMax(double value);
    void showTracePatternsInPlot();
    void requestReplotPlot();
    void setPlotRange();

private:
    Q_DISABLE_COPY(QKXComplexTraceManager)
    struct Data;
    QScopedPointer<Data> d;
};

#endif // QKXCOMPLEXTRACEMANAGER_H
