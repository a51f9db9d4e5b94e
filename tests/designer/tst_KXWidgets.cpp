// SPDX-License-Identifier: BSD-3-Clause
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

namespace {
struct PluginRow
{
    const char *widgetClass;
    const char *whatsThis;
};

// The widget box in the order forms have always listed it.
const PluginRow pluginTable[] = {
    {"QKXBrowseButton", "QKXBrowseButton widget."},
    {"QKXComboBox", "ComboBox entry widget ()."},
    {"QKXConfirmationPushButton", "QKXConfirmationPushButton widget."},
    {"QKXConfirmationToggleButton", "QKXConfirmationToggleButton widget."},
    {"QKXComplexTraceManager", "QKXComplexTraceManager widget."},
    {"QKXComplexTracePlot", "Complex trace plot"},
    {"QKXComplexTraceRange", "QKXComplexTraceRange widget."},
    {"QKXDateWidget", "Date widget"},
    {"QKXFlagStatus", "Read only status widget"},
    {"QKXListDoubleValueObj", "Value double with discrete widget."},
    {"QKXMeterBar", "Meter Bar."},
    {"QKXNumeric", "Numeric entry widget (int and double)."},
    {"QKXNumericMeterReading", "Numeric entry widget with units (int and double value objects)."},
    {"QKXNumericValueObj", "Numeric entry widget with units (int and double value objects)."},
    {"QKXPlaybackControlButton", "QKXPlaybackControlButton widget."},
    {"QKXPlotManager", "QKXPlotManager entry widget ()."},
    {"QKXProgressBar", "Progress Bar"},
    {"QKXPushButton", "QKXPushButton widget."},
    {"QKXSaveTraceButton", "QKXSaveTraceButton widget."},
    {"QKXSliderHorizontal", "Horizontal Slider"},
    {"QKXSliderVertical", "Vertical Slider"},
    {"QKXTableEnum", "TableEnum"},
    {"QKXTextEntry", "ToggleButton entry widget (bool)."},
    {"QKXTextLog", "A log to append strings to ()."},
    {"QKXTimeWidget", "Date widget"},
    {"QKXToggleButton", "ToggleButton entry widget (bool)."},
    {"QKXComplexTracePattern", "QKXComplexTracePattern widget."},
    {"QKXWheelEnum", "ComboBox entry widget ()."},
};
} // namespace

// Everything here goes through the built shared library the way Designer and QUiLoader reach it.
class tst_KXWidgets : public QObject
{
    Q_OBJECT

private:
    static QString libraryDir() { return qEnvironmentVariable("KX_BUILD_LIB_DIR"); }
    static QString libraryPath() { return libraryDir() + QStringLiteral("/libstandaloneplugins.so"); }

private slots:
    void pluginLoaderHandsOutOneCollection();
    void collectionListsEveryWidgetOnceInOrder();
    void everyPluginDescribesItsWidget_data();
    void everyPluginDescribesItsWidget();
    void pluginsGoWithTheCollection();
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

    QCOMPARE(collection->customWidgets().size(), int(sizeof(pluginTable) / sizeof(pluginTable[0])));
}

void tst_KXWidgets::collectionListsEveryWidgetOnceInOrder()
{
    Norvane::gui::KXWidgets collection;
    QStringList offered;
    for (QDesignerCustomWidgetInterface *plugin : collection.customWidgets()) {
        offered << plugin->name();
    }
    QStringList expected;
    for (const PluginRow &row : pluginTable) {
        expected << QString::fromLatin1(row.widgetClass);
    }
    QCOMPARE(offered, expected);
}

void tst_KXWidgets::everyPluginDescribesItsWidget_data()
{
    QTest::addColumn<QString>("widgetClass");
    QTest::addColumn<QString>("whatsThis");
    QTest::addColumn<QString>("formName");
    for (const PluginRow &row : pluginTable) {
        const QString widgetClass = QString::fromLatin1(row.widgetClass);
        // Forms have always named a new vertical slider so.
        const QString formName = widgetClass == QLatin1String("QKXSliderVertical") ? QStringLiteral("QKXSliderVertial")
                                                                                    : widgetClass;
        QTest::newRow(row.widgetClass) << widgetClass << QString::fromLatin1(row.whatsThis) << formName;
    }
}

void tst_KXWidgets::everyPluginDescribesItsWidget()
{
    QFETCH(QString, widgetClass);
    QFETCH(QString, whatsThis);
    QFETCH(QString, formName);
    Norvane::gui::KXWidgets collection;
    QDesignerCustomWidgetInterface *plugin = nullptr;
    for (QDesignerCustomWidgetInterface *candidate : collection.customWidgets()) {
        if (candidate->name() == widgetClass) {
            plugin = candidate;
        }
    }
    QVERIFY(plugin);
    QCOMPARE(dynamic_cast<QObject *>(plugin)->objectName(), widgetClass + QStringLiteral("Plugin"));
    QCOMPARE(plugin->group(), QStringLiteral("Kexal (Stand-alone)"));
    QCOMPARE(plugin->toolTip(), widgetClass);
    QCOMPARE(plugin->whatsThis(), whatsThis);
    QCOMPARE(plugin->includeFile(), widgetClass + QStringLiteral(".h"));
    QCOMPARE(plugin->domXml(),
             QStringLiteral("<widget class=\"%1\" name=\"%2\">\n</widget>\n").arg(widgetClass, formName));
    QVERIFY(plugin->icon().isNull());
    QVERIFY(!plugin->isContainer());

    QVERIFY(!plugin->isInitialized());
    plugin->initialize(nullptr);
    plugin->initialize(nullptr);
    QVERIFY(plugin->isInitialized());

    QScopedPointer<QWidget> widget(plugin->createWidget(nullptr));
    QVERIFY(widget);
    QVERIFY(!widget->parent());
    QCOMPARE(QString::fromLatin1(widget->metaObject()->className()), widgetClass);
}

void tst_KXWidgets::pluginsGoWithTheCollection()
{
    auto *collection = new Norvane::gui::KXWidgets;
    QPointer<QObject> lastPlugin = dynamic_cast<QObject *>(collection->customWidgets().last());
    QCOMPARE(lastPlugin->parent(), collection);
    delete collection;
    QVERIFY(lastPlugin.isNull());
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
