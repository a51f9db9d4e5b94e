// SPDX-License-Identifier: BSD-3-Clause
#include "SettingsFolder.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTextStream>

static void settings_writeExample(const QDir &folder, const QString &name, const QString &content)
{
    QFile file(folder.absoluteFilePath(name));
    if (file.exists() || !file.open(QIODevice::WriteOnly | QIODevice::Text)) {
        return;
    }
    QTextStream(&file) << content;
}

QString SettingsFolder::prepare()
{
    QDir folder(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
    if (!folder.mkpath(QStringLiteral("settings")) || !folder.cd(QStringLiteral("settings"))) {
        return QString();
    }
    if (folder.entryList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot).isEmpty()) {
        settings_writeExample(folder, QStringLiteral("factory.cfg"),
                              QStringLiteral("# Factory settings\nFrequency=1000000000\nLevel=-30\nRfOutput=true\n"));
        settings_writeExample(folder, QStringLiteral("receiver-test.cfg"),
                              QStringLiteral("# Receiver sensitivity test: low level, RF off until armed\n"
                                             "Frequency=433920000\nLevel=-107\nRfOutput=false\n"));
        folder.mkpath(QStringLiteral("archive"));
        settings_writeExample(QDir(folder.absoluteFilePath(QStringLiteral("archive"))), QStringLiteral("bench-2025.cfg"),
                              QStringLiteral("Frequency=868000000\nLevel=-60\n"));
    }
    return folder.absolutePath();
}
