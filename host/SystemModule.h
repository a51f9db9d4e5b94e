// SPDX-License-Identifier: BSD-3-Clause
#ifndef SYSTEMMODULE_H
#define SYSTEMMODULE_H

#include "norvanehost_export.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QStringList>

class QWidget;

// The host's registry of its named screens ("MainWindow", "SimpleFileBrowser", ...). The application
// registers each screen once; widgets look them up by name.
class NORVANEHOST_EXPORT SystemModule : public QObject
{
    Q_OBJECT
public:
    explicit SystemModule(QObject *parent = nullptr);
    ~SystemModule() override;

    // Null for a name nobody registered, or whose screen has been destroyed.
    QWidget *getSystemScreen(const QString &name) const;

    // Registering a name again replaces the earlier screen; a null screen removes the name.
    void registerSystemScreen(const QString &name, QWidget *screen);
    void unregisterSystemScreen(const QString &name);
    QStringList systemScreenNames() const;

Q_SIGNALS:
    void systemScreenRegistered(const QString &name);

private:
    QHash<QString, QPointer<QWidget>> screens;
};

#endif // SYSTEMMODULE_H
