#include "AppProperties.h"

#include <QCoreApplication>
#include <QDebug>
#include <QVariant>

static const char appPropSize[] = "-size";
static const char appPropGuiLocked[] = "guilocked";
static const char appPropState[] = "state";

namespace AppProperties {

QStringList displayModes()
{
    return {QStringLiteral("normal"), QStringLiteral("landscape"), QStringLiteral("small_portrait")};
}

QString displayMode()
{
    const QString mode = qApp->property(appPropSize).toString();
    return mode.isEmpty() ? QStringLiteral("normal") : mode;
}

bool setDisplayMode(const QString &mode)
{
    if (!displayModes().contains(mode)) {
        qWarning().noquote() << "frontpanel: unknown display mode" << mode;
        return false;
    }
    qApp->setProperty(appPropSize, mode);
    return true;
}

bool isPortrait(const QString &mode)
{
    return mode == QLatin1String("small_portrait");
}

bool isGuiLocked()
{
    return qApp->property(appPropGuiLocked).toBool();
}

void setGuiLocked(bool locked)
{
    qApp->setProperty(appPropGuiLocked, locked);
}

QString state()
{
    return qApp->property(appPropState).toString();
}

void markInitialized()
{
    qApp->setProperty(appPropState, QStringLiteral("initialized"));
}

} // namespace AppProperties
