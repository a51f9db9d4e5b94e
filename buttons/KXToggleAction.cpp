// SPDX-License-Identifier: BSD-3-Clause
#include "KXToggleAction_p.h"

#include <QDebug>
#include <QMetaObject>
#include <QWidget>

namespace {

bool kx_hasMethod(const QObject *object, const char *signature)
{
    return object->metaObject()->indexOfMethod(signature) >= 0;
}

} // namespace

bool KXToggleAction::readStateAndShowLoading(const QObject *filter, QWidget *widget, bool &state)
{
    const QString where = QString::fromLatin1(filter->metaObject()->className()) + QStringLiteral("::lockAcquired");
    if (!kx_hasMethod(widget, "activeState()")
        || !QMetaObject::invokeMethod(widget, "activeState", Q_RETURN_ARG(bool, state))) {
        qDebug().noquote() << QStringLiteral("UserInterface - %1 : %2 has no activeState(); nothing submitted.")
                                  .arg(where, QString::fromLatin1(widget->metaObject()->className()));
        return false;
    }
    if (!kx_hasMethod(widget, "setButtonLoading()")) {
        qDebug().noquote() << QStringLiteral("UserInterface - %1 : %2 has no setButtonLoading(); no loading look.")
                                  .arg(where, QString::fromLatin1(widget->metaObject()->className()));
        return true;
    }
    QMetaObject::invokeMethod(widget, "setButtonLoading");
    return true;
}

bool KXToggleAction::isDisabledControl(const QObject *watched)
{
    return watched && watched->isWidgetType() && !static_cast<const QWidget *>(watched)->isEnabled();
}
