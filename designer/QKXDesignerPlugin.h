// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXDESIGNERPLUGIN_H
#define QKXDESIGNERPLUGIN_H

#include "standaloneplugins_export.h"

#include <QObject>
#include <QScopedPointer>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

// What every widget's plug-in has in common. A plug-in differs from the next only in the widget it
// creates and the texts it reports, so each one is a row in designer/CMakeLists.txt and the classes
// come from the two macros below.
class STANDALONEPLUGINS_EXPORT QKXDesignerPlugin : public QObject, public QDesignerCustomWidgetInterface
{
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)
public:
    static const char *const Group;

    // widgetClass is also the include file's stem and the tool tip; domName is the name a new widget
    // gets on a form.
    QKXDesignerPlugin(const QString &widgetClass, const QString &whatsThis, const QString &domName,
                      QObject *parent);
    ~QKXDesignerPlugin() override;

    bool isContainer() const override;
    bool isInitialized() const override;
    QIcon icon() const override;
    QString domXml() const override;
    QString group() const override;
    QString includeFile() const override;
    QString name() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    void initialize(QDesignerFormEditorInterface *core) override;

private:
    Q_DISABLE_COPY(QKXDesignerPlugin)
    struct Data;
    QScopedPointer<Data> d;
};

#define KX_DECLARE_DESIGNER_PLUGIN(PluginClass)                                             \
    class STANDALONEPLUGINS_EXPORT PluginClass : public QKXDesignerPlugin                 \
    {                                                                                      \
    public:                                                                                \
        explicit PluginClass(QObject *parent = nullptr);                                   \
        QWidget *createWidget(QWidget *parent) override;                                   \
    };

// The classes made from a row share the base's meta-object, so each plug-in object carries its own
// class name as its object name.
#define KX_DEFINE_DESIGNER_PLUGIN(PluginClass, WidgetClass, WhatsThis, DomName)             \
    PluginClass::PluginClass(QObject *parent)                                              \
        : QKXDesignerPlugin(QStringLiteral(#WidgetClass), QStringLiteral(WhatsThis),         \
                            QStringLiteral(DomName), parent)                               \
    {                                                                                      \
        setObjectName(QStringLiteral(#PluginClass));                                       \
    }                                                                                      \
    QWidget *PluginClass::createWidget(QWidget *parent) { return new WidgetClass(parent); }

#endif // QKXDESIGNERPLUGIN_H
