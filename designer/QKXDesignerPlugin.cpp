// SPDX-License-Identifier: BSD-3-Clause
#include "QKXDesignerPlugin.h"

#include <QIcon>

const char *const QKXDesignerPlugin::Group = "Kexal (Stand-alone)";

struct QKXDesignerPlugin::Data
{
    QString widgetClass;
    QString whatsThis;
    QString domName;
    bool initialized = false;
};

QKXDesignerPlugin::QKXDesignerPlugin(const QString &widgetClass, const QString &whatsThis,
                                     const QString &domName, QObject *parent)
    : QObject(parent)
    , d(new Data{widgetClass, whatsThis, domName})
{
}

QKXDesignerPlugin::~QKXDesignerPlugin() = default;

bool QKXDesignerPlugin::isContainer() const
{
    return false;
}

bool QKXDesignerPlugin::isInitialized() const
{
    return d->initialized;
}

QIcon QKXDesignerPlugin::icon() const
{
    return QIcon();
}

QString QKXDesignerPlugin::domXml() const
{
    return QStringLiteral("<widget class=\"") + d->widgetClass + QStringLiteral("\" name=\"") + d->domName
        + QStringLiteral("\">\n</widget>\n");
}

QString QKXDesignerPlugin::group() const
{
    return QString::fromLatin1(Group);
}

QString QKXDesignerPlugin::includeFile() const
{
    return d->widgetClass + QStringLiteral(".h");
}

QString QKXDesignerPlugin::name() const
{
    return d->widgetClass;
}

QString QKXDesignerPlugin::toolTip() const
{
    return d->widgetClass;
}

QString QKXDesignerPlugin::whatsThis() const
{
    return d->whatsThis;
}

void QKXDesignerPlugin::initialize(QDesignerFormEditorInterface *core)
{
    Q_UNUSED(core);
    d->initialized = true;
}
