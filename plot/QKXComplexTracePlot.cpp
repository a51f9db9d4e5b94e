// SPDX-License-Identifier: BSD-3-Clause
#include "QKXComplexTracePlot.h"
#include "QKXPlotManager_p.h"

#include <QDebug>

class QKXComplexTracePlotPrivate : public QKXPlotManagerPrivate
{
    Q_OBJECT
public:
    explicit QKXComplexTracePlotPrivate(QKXComplexTracePlot *q)
        : QKXPlotManagerPrivate(q)
    {
    }

    void setTrace(const QString &type, const QString &topName, QVariant data) override
    {
        if (data.isNull() || !data.isValid()) {
            return;
        }
        if (type != QLatin1String("EngineReadingComplexTrace")) {
            qDebug() << "UserInterface - EngineBasicTrace or EngineReadingComplexTrace. But received:" << type
                     << ", (" << topName << ")";
            return;
        }
        setComplexTrace(topName, data);
    }

private:
    KX_DECLARE_PUBLIC(QKXComplexTracePlot)
};

QKXComplexTracePlot::QKXComplexTracePlot(QWidget *parent)
    : QKXPlotManager(*new QKXComplexTracePlotPrivate(this), parent)
{
}

QKXComplexTracePlot::~QKXComplexTracePlot() = default;

void QKXComplexTracePlot::setTrace(const QString &type, const QString &topName, QVariant data)
{
    Q_D(QKXComplexTracePlot);
    d->setTrace(type, topName, data);
}

#include "QKXComplexTracePlot.moc"
