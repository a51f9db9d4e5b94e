// SPDX-License-Identifier: BSD-3-Clause
// The installed plug-in, loaded the way Qt Designer loads it: from the designer folder of the
// prefix named by QT_PLUGIN_PATH, with the host layer found beside the installed library.
#include <QtTest>

#include <QFile>
#include <QPluginLoader>
#include <QUiLoader>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

class tst_InstalledPlugin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void loadsFromTheInstalledFolder();
    void formsAreBuiltFromTheInstalledPlugin();
};

void tst_InstalledPlugin::loadsFromTheInstalledFolder()
{
    const QString prefix = qEnvironmentVariable("KX_INSTALL_PREFIX");
    const QString pluginDir = qEnvironmentVariable("QT_PLUGIN_PATH") + QStringLiteral("/designer");
    QVERIFY2(!prefix.isEmpty(), "run by tst_Install, which installs first");

    QPluginLoader loader(pluginDir + QStringLiteral("/libstandaloneplugins.so"));
    QVERIFY2(loader.load(), qPrintable(loader.errorString()));
    auto *collection = qobject_cast<QDesignerCustomWidgetCollectionInterface *>(loader.instance());
    QVERIFY(collection);
    QVERIFY(!collection->customWidgets().isEmpty());

    // Both libraries come from the prefix, not from the build.
    QFile maps(QStringLiteral("/proc/self/maps"));
    QVERIFY(maps.open(QIODevice::ReadOnly));
    const QString mapped = QString::fromUtf8(maps.readAll());
    const QRegularExpression host(QStringLiteral("\\s(/\\S*/libnorvanehost\\.so\\S*)"));
    const auto match = host.match(mapped);
    QVERIFY(match.hasMatch());
    QVERIFY2(QFileInfo(match.captured(1)).canonicalFilePath().startsWith(QFileInfo(prefix).canonicalFilePath()),
             qPrintable(match.captured(1)));
}

void tst_InstalledPlugin::formsAreBuiltFromTheInstalledPlugin()
{
    QUiLoader loader;
    QFile form(QStringLiteral(KX_EVERY_WIDGET_FORM));
    QVERIFY(form.open(QIODevice::ReadOnly));
    const QByteArray text = form.readAll();
    form.seek(0);
    QScopedPointer<QWidget> screen(loader.load(&form));
    QVERIFY2(screen, qPrintable(loader.errorString()));

    // Every widget the form names is there, of the class the form gives it.
    const QRegularExpression placed(QStringLiteral("<widget class=\"(QKX\\w+)\" name=\"(\\w+)\""));
    int count = 0;
    for (auto it = placed.globalMatch(QString::fromUtf8(text)); it.hasNext(); ++count) {
        const auto match = it.next();
        QWidget *widget = screen->findChild<QWidget *>(match.captured(2));
        QVERIFY2(widget, qPrintable(match.captured(2)));
        QCOMPARE(QString::fromLatin1(widget->metaObject()->className()), match.captured(1));
        QVERIFY(loader.availableWidgets().contains(match.captured(1)));
    }
    QCOMPARE(count, 28);
}

QTEST_MAIN(tst_InstalledPlugin)
#include "tst_InstalledPlugin.moc"
