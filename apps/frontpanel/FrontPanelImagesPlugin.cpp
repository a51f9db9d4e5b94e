// SPDX-License-Identifier: BSD-3-Clause
// The front panel's images for Qt Designer. The library's style sheets name a few pictures that
// belong to the application running the form (the save-trace picture, the numeric pad's keys, the
// arrows of the date and time editors); while a form is drawn in Designer, Designer is that
// application. This plug-in hands it the front panel's images: it carries no widgets, only the
// images, and lies in Designer's plug-in folder next to the widget collection.
#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

class FrontPanelImagesPlugin : public QObject, public QDesignerCustomWidgetCollectionInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QDesignerCustomWidgetCollectionInterface")
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)

public:
    QList<QDesignerCustomWidgetInterface *> customWidgets() const override { return {}; }
};

#include "FrontPanelImagesPlugin.moc"
