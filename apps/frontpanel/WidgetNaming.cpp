// SPDX-License-Identifier: BSD-3-Clause
#include "WidgetNaming.h"

#include <QObject>
#include <QVariant>

namespace WidgetNaming {

QString boundAttribute(const QObject *widget)
{
    if (!widget) {
        return QString();
    }
    const QString attribute = widget->property("AttributeName").toString().trimmed();
    return attribute == QLatin1String("AttributeName") ? QString() : attribute;
}

QString describe(const QObject *widget)
{
    if (!widget) {
        return QStringLiteral("(none)");
    }
    const QString attribute = boundAttribute(widget);
    if (!attribute.isEmpty()) {
        return attribute;
    }
    if (!widget->objectName().isEmpty()) {
        return widget->objectName();
    }
    return QString::fromLatin1(widget->metaObject()->className());
}

QString caption(const QObject *widget)
{
    const QString label = widget ? widget->property("LabelText").toString().trimmed() : QString();
    return label.isEmpty() ? describe(widget) : label;
}

} // namespace WidgetNaming
