#include "KXWidgets.h"
#include "QKXPushButton.h"

#include <QBuffer>
#include <QLibrary>
#include <QPluginLoader>
#include <QPointer>
#include <QPushButton>
#include <QtTest>
#include <QUiLoader>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

// Everything here goes through the built shared library the way Designer and QUiLoader reach it.
class tst_KXWidgets : public QObject
{
    Q_OBJECT

private:
    static QString libraryDir() { return qEnvironmentVariable("KX_BUILD_LIB_DIR"); }
    static QString libraryPath() { return libraryDir() + QStringLiteral("/libstandaloneplugins.so"); }

private slots:
    void pluginLoaderHandsOutOneCollection();
    void pushButtonPluginDescribesTheWidget();
    void sliderPluginsDescribeTheirWidgets();
    void initializeIsIdempotent();
    void createWidgetBuildsAParentlessWidget();
    void verificationTextIsExported();
    void uiLoaderBuildsAFormWithThePushButton();
};

void tst_KXWidgets::pluginLoaderHandsOutOneCollection()
{
    QPluginLoader loader(libraryPath());
    QVERIFY2(loader.load(), qPrintable(loader.errorString()));
    QCOMPARE(loader.metaData().value(QStringLiteral("IID")).toString(),
             QStringLiteral("org.qt-project.Qt.QDesignerCustomWidgetCollectionInterface"));

    QObject *first = loader.instance();
    QObject *second = loader.instance();
    QVERIFY(first);
    QCOMPARE(first, second);
    auto *collection = qobject_cast<QDesignerCustomWidgetCollectionInterface *>(first);
    QVERIFY(collection);
    QVERIFY(qobject_cast<Norvane::gui::KXWidgets *>(first));
    QVERIFY(!first->parent());

    const QList<QDesignerCustomWidgetInterface *> widgets = collection->customWidgets();
    QVERIFY(!widgets.isEmpty());
    QStringList names;
    for (QDesignerCustomWidgetInterface *plugin : widgets) {
        names << plugin->name();
        QCOMPARE(plugin->group(), QStringLiteral("Kexal (Stand-alone)"));
        QCOMPARE(plugin->toolTip(), plugin->name());
        QCOMPARE(plugin->includeFile(), plugin->name() + QStringLiteral(".h"));
        QVERIFY(!plugin->isContainer());
        QVERIFY(plugin->icon().isNull());
    }
    QVERIFY(names.contains(QStringLiteral("QKXPushButton")));
    QCOMPARE(names.count(), QSet<QString>(names.begin(), names.end()).count());
}

static QDesignerCustomWidgetInterface *pluginNamed(const QString &name, QObject *owner)
{
    auto *collection = new Norvane::gui::KXWidgets(owner);
    for (QDesignerCustomWidgetInterface *plugin : collection->customWidgets()) {
        if (plugin->name() == name) {
            return plugin;
        }
    }
    return nullptr;
}

void tst_KXWidgets::pushButtonPluginDescribesTheWidget()
{
    QObject owner;
    QDesignerCustomWidgetInterface *plugin = pluginNamed(QStringLiteral("QKXPushButton"), &owner);
    QVERIFY(plugin);
    QCOMPARE(plugin->whatsThis(), QStringLiteral("QKXPushButton widget."));
    QCOMPARE(plugin->domXml(), QStringLiteral("<widget class=\"QKXPushButton\" name=\"QKXPushButton\">\n</widget>\n"));
    QCOMPARE(dynamic_cast<QObject *>(plugin)->objectName(), QStringLiteral("QKXPushButtonPlugin"));
    QVERIFY(!plugin->isInitialized());
}

void tst_KXWidgets::sliderPluginsDescribeTheirWidgets()
{
    // Forms name a new vertical slider as they always have.
    QObject owner;
    QDesignerCustomWidgetInterface *horizontal = pluginNamed(QStringLiteral("QKXSliderHorizontal"), &owner);
    QDesignerCustomWidgetInterface *vertical = pluginNamed(QStringLiteral("QKXSliderVertical"), &owner);
    QVERIFY(horizontal && vertical);
    QCOMPARE(horizontal->whatsThis() + '|' + vertical->whatsThis(), QStringLiteral("Horizontal Slider|Vertical Slider"));
    QCOMPARE(horizontal->domXml(), QStringLiteral("<widget class=\"QKXSliderHorizontal\" name=\"QKXSliderHorizontal\">\n</widget>\n"));
    QCOMPARE(vertical->domXml(), QStringLiteral("<widget class=\"QKXSliderVertical\" name=\"QKXSliderVertial\">\n</widget>\n"));
}

void tst_KXWidgets::initializeIsIdempotent()
{
    QObject owner;
    QDesignerCustomWidgetInterface *plugin = pluginNamed(QStringLiteral("QKXPushButton"), &owner);
    QVERIFY(plugin);
    plugin->initialize(nullptr);
    plugin->initialize(nullptr);
    QVERIFY(plugin->isInitialized());
}

void tst_KXWidgets::createWidgetBuildsAParentlessWidget()
{
    QObject owner;
    auto *collection = new Norvane::gui::KXWidgets(&owner);
    for (QDesignerCustomWidgetInterface *plugin : collection->customWidgets()) {
        QScopedPointer<QWidget> widget(plugin->createWidget(nullptr));
        QVERIFY(widget);
        QVERIFY(!widget->parent());
        QCOMPARE(QString::fromLatin1(widget->metaObject()->className()), plugin->name());
    }
    // The plug-ins belong to the collection and go with it.
    QPointer<QObject> firstPlugin = dynamic_cast<QObject *>(collection->customWidgets().first());
    delete collection;
    QVERIFY(firstPlugin.isNull());
}

void tst_KXWidgets::verificationTextIsExported()
{
    QLibrary library(libraryPath());
    using Query = const char *(*)();
    auto query = reinterpret_cast<Query>(library.resolve("qt_plugin_query_verification_data"));
    QVERIFY2(query, qPrintable(library.errorString()));
    QCOMPARE(QByteArray(query()),
             QByteArray("pattern=QT_PLUGIN_VERIFICATION_DATA\nversion=4.6.2\ndebug=false\n"
                        "buildkey=arm qws/linux g++-4 full-config"));
}

void tst_KXWidgets::uiLoaderBuildsAFormWithThePushButton()
{
    const QByteArray form = R"(<?xml version="1.0" encoding="UTF-8"?>
<ui version="4.0">
 <class>Form</class>
 <widget class="QWidget" name="Form">
  <layout class="QVBoxLayout" name="layout">
   <item>
    <widget class="QKXPushButton" name="presetButton">
     <property name="AttributeName"><string>Preset</string></property>
     <property name="LabelText"><string>Preset</string></property>
     <property name="Locked"><bool>true</bool></property>
    </widget>
   </item>
  </layout>
 </widget>
 <customwidgets>
  <customwidget>
   <class>QKXPushButton</class>
   <extends>QWidget</extends>
   <header>QKXPushButton.h</header>
  </customwidget>
 </customwidgets>
</ui>
)";
    QUiLoader loader;
    loader.clearPluginPaths();
    loader.addPluginPath(libraryDir());
    QVERIFY(loader.availableWidgets().contains(QStringLiteral("QKXPushButton")));

    QBuffer buffer;
    buffer.setData(form);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    QScopedPointer<QWidget> root(loader.load(&buffer));
    QVERIFY2(root, qPrintable(loader.errorString()));

    auto *button = root->findChild<QKXPushButton *>(QStringLiteral("presetButton"));
    QVERIFY(button);
    QCOMPARE(button->attributeName(), QStringLiteral("Preset"));
    QCOMPARE(button->buttonText(), QStringLiteral("Preset"));
    QVERIFY(button->isLocked());
    auto *inner = button->findChild<QPushButton *>(QStringLiteral("PushButton"));
    QVERIFY(inner);
    QCOMPARE(inner->text(), QStringLiteral("Preset"));
}

QTEST_MAIN(tst_KXWidgets)
#include "tst_KXWidgets.moc"
