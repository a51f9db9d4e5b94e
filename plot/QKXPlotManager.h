// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXPLOTMANAGER_H
#define QKXPLOTMANAGER_H

#include "QKXWidgetBase.h"

#include <QImage>
#include <QStringList>
#include <QVariant>

class QKXPlotInterfaceImpl;
class QKXPlotManagerPrivate;

// The plot that forms and the host put on a screen: a canvas with a tool box (hand and zoom tools,
// reload, save trace), reference patterns, an intake for the traces the engine publishes per topic,
// and the left axis set by the engine from a top value and a division value.
//
// Choices of ours: the grid's major lines are solid and its minor lines dotted, both (0, 255, 255);
// the tool buttons' pictures are the application's resources, and without them the buttons stay
// blank rather than warn.
class STANDALONEPLUGINS_EXPORT QKXPlotManager : public QKXWidgetBase
{
    Q_OBJECT
    Q_PROPERTY(int XLines READ getXLines WRITE setXLines DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(int YLines READ getYLines WRITE setYLines DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(bool XGrid READ isXGridEnabled WRITE setXGridEnable DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(bool YGrid READ isYGridEnabled WRITE setYGridEnable DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(bool UseTwoAxes READ getUseTwoAxes WRITE setUseTwoAxes DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(bool AutoScale READ isAutoScale WRITE enableAutoScale DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(bool EnableToolBar READ ToolBar WRITE enableToolBar DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(bool EnableFixedGrid READ isFixedGrid WRITE enableFixedGrid DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(bool BorderVisible READ isBorderVisible WRITE setBorderVisible DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(QString YLeftLabel READ getYLeftLabel WRITE setYLeftLabel DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(QString YRightLabel READ getYRightLabel WRITE setYRightLabel DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(QString XBottomLabel READ getXBottomLabel WRITE setXBottomLabel DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(bool YLeftScaleEnable READ getYLeftScaleEnable WRITE setYLeftScaleEnable DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(bool YRightScaleEnable READ getYRightScaleEnable WRITE setYRightScaleEnable DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(bool XBottomScaleEnable READ getXBottomScaleEnable WRITE setXBottomScaleEnable DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(double YLeftLowerLimit READ getYLeftScaleLLimit WRITE setYLeftScaleLLimit DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(double YLeftUpperLimit READ getYLeftScaleULimit WRITE setYLeftScaleULimit DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(double YRightLowerLimit READ getYRightScaleLLimit WRITE setYRightScaleLLimit DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(double YRightUpperlimit READ getYRightScaleULimit WRITE setYRightScaleULimit DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(double XBottomLowerLimit READ getXBottomScaleLLimit WRITE setXBottomScaleLLimit DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(double XBottomUpperLimit READ getXBottomScaleULimit WRITE setXBottomScaleULimit DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(QString SaveTraceCommand READ getSaveTraceCmd WRITE setSaveTraceCmd DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(bool YPrecisionEnabled READ yIsPrecise WRITE setYPrecise DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(bool ZoomAllVisible READ zoomAllIsVisible WRITE setZoomAllVisible DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(bool PlotLocked READ plotIsLocked WRITE setPlotLocked DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(PlotCurveStyle PlotCurveStyle READ getCurveStyle WRITE setCurveStyle DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(ReferencePattern ReferencePattern READ displayRefPattern WRITE setRefPattern DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(bool RefPatternEnable READ isRefPatternEnabled WRITE enableRefPattern DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(int PatternSize READ patternSize WRITE setPatternSize DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(double ReferenceRadius READ refRadius WRITE setRefRadius DESIGNABLE true SCRIPTABLE true STORED true)

public:
    enum PlotCurveStyle : int { LINES_STYLE = 0, DOTS_STYLE = 1 };
    Q_ENUM(PlotCurveStyle)
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

    explicit QKXPlotManager(QWidget *parent = nullptr);
    ~QKXPlotManager() override;

    QSize sizeHint() const override;

    int getXLines() const;
    Q_INVOKABLE void setXLines(int lines);
    int getYLines() const;
    Q_INVOKABLE void setYLines(int lines);
    bool isXGridEnabled() const;
    Q_INVOKABLE void setXGridEnable(bool enable);
    bool isYGridEnabled() const;
    Q_INVOKABLE void setYGridEnable(bool enable);
    bool getUseTwoAxes() const;
    void setUseTwoAxes(bool use);
    bool isAutoScale() const;
    Q_INVOKABLE void enableAutoScale(bool enable);
    bool ToolBar() const;
    void enableToolBar(bool enable);
    bool isFixedGrid() const;
    void enableFixedGrid(bool enable);
    bool isBorderVisible() const;
    void setBorderVisible(bool visible);

    QString getYLeftLabel() const;
    void setYLeftLabel(const QString &label);
    QString getYRightLabel() const;
    void setYRightLabel(const QString &label);
    QString getXBottomLabel() const;
    void setXBottomLabel(const QString &label);
    bool getYLeftScaleEnable() const;
    void setYLeftScaleEnable(bool enable);
    bool getYRightScaleEnable() const;
    void setYRightScaleEnable(bool enable);
    bool getXBottomScaleEnable() const;
    void setXBottomScaleEnable(bool enable);

    Q_INVOKABLE double getYLeftScaleLLimit() const;
    Q_INVOKABLE void setYLeftScaleLLimit(double limit);
    Q_INVOKABLE double getYLeftScaleULimit() const;
    Q_INVOKABLE void setYLeftScaleULimit(double limit);
    double getYRightScaleLLimit() const;
    void setYRightScaleLLimit(double limit);
    double getYRightScaleULimit() const;
    void setYRightScaleULimit(double limit);
    double getXBottomScaleLLimit() const;
    Q_INVOKABLE void setXBottomScaleLLimit(double limit);
    double getXBottomScaleULimit() const;
    Q_INVOKABLE void setXBottomScaleULimit(double limit);

    QString getSaveTraceCmd() const;
    void setSaveTraceCmd(const QString &command);
    Q_INVOKABLE bool yIsPrecise() const;
    Q_INVOKABLE void setYPrecise(bool precise);
    bool zoomAllIsVisible() const;
    void setZoomAllVisible(bool visible);
    bool plotIsLocked() const;
    void setPlotLocked(bool locked);
    PlotCurveStyle getCurveStyle() const;
    Q_INVOKABLE void setCurveStyle(PlotCurveStyle style);
    ReferencePattern displayRefPattern() const;
    Q_INVOKABLE void setRefPattern(ReferencePattern pattern);
    bool isRefPatternEnabled() const;
    int patternSize() const;
    double refRadius() const;

    Q_INVOKABLE void replot();
    Q_INVOKABLE void setTraceVisible(QString topicName, bool visible);

    QKXPlotInterfaceImpl *getPlotInterface() const;
    // Puts another canvas in place of the current one, which is deleted.
    void SetPlotterObject(QKXPlotInterfaceImpl *canvas);

public Q_SLOTS:
    virtual void addTraceType(const QString &type, const QString &topicName);
    virtual void setTrace(const QString &type, const QString &topName, QVariant data);
    void createMarker(QString key, QImage image, double xVal, double yVal);
    void setMarker(QString key, double xVal, double yVal);
    void removeMarker(QString key);
    void setMarkerFocus(QString key, bool focus);
    void setYAxis(int channel, double ll, double ul);
    void setXAxis(double ll, double ul);
    void externalUpdateUlLeftYAxis(double ul);
    void externalUpdateLlLeftYAxis(double ll);
    void externalUpdateLeftYAxis(double ll, double ul);
    void replotTrace();
    void enableRefPattern(bool enable);
    void setPatternSize(int size);
    void setRefRadius(double size);
    QStringList getTraceList();

Q_SIGNALS:
    void moveMarker(QString, int);
    void topScaleVal(double);
    void divisonVal(double);
    // Declared for hosts that connect to it; nothing emits it.
    void xScaleUpdate(double, double);

protected:
    QKXPlotManager(QKXPlotManagerPrivate &dd, QWidget *parent);
    void showEvent(QShowEvent *event) override;

private:
    Q_DISABLE_COPY(QKXPlotManager)
    Q_DECLARE_PRIVATE(QKXPlotManager)
};

#endif // QKXPLOTMANAGER_H
