// SPDX-License-Identifier: BSD-3-Clause
#include "AppProperties.h"

#include <QCoreApplication>
#include <QDebug>
#include <QVariant>

static const char appPropSize[] = "-size";
static const char appPropResolution[] = "-res";
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
    // The screen's resolution goes with the mode: the portrait panel is the 480 x 800 screen, whose
    // keyboard is the compact one.
    qApp->setProperty(appPropResolution, isPortrait(mode) ? QStringLiteral("480x800") : QStringLiteral("800x480"));
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
