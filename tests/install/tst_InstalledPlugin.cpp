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
    QVERIFY(loader.availableWidgets().contains(QStringLiteral("QKXNumeric")));
    QByteArray form = R"(<?xml version="1.0" encoding="UTF-8"?>
<ui version="4.0">
 <class>Screen</class>
 <widget class="QWidget" name="Screen">
  <widget class="QKXNumeric" name="level">
   <property name="AttributeName"><string>Level</string></property>
  </widget>
  <widget class="QKXPushButton" name="preset"/>
 </widget>
</ui>
)";
    QBuffer buffer(&form);
    QScopedPointer<QWidget> screen(loader.load(&buffer));
    QVERIFY2(screen, qPrintable(loader.errorString()));
    QWidget *level = screen->findChild<QWidget *>(QStringLiteral("level"));
    QVERIFY(level);
    QCOMPARE(QString::fromLatin1(level->metaObject()->className()), QStringLiteral("QKXNumeric"));
    QCOMPARE(level->property("AttributeName").toString(), QStringLiteral("Level"));
    QVERIFY(screen->findChild<QWidget *>(QStringLiteral("preset")));
}

QTEST_MAIN(tst_InstalledPlugin)
#include "tst_InstalledPlugin.moc"
