// SPDX-License-Identifier: BSD-3-Clause
#ifndef KXWIDGETS_H
#define KXWIDGETS_H

#include "standaloneplugins_export.h"

#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

namespace Norvane {
namespace gui {

// The collection Qt Designer and QUiLoader get from the library: one plug-in per widget, all in the
// widget-box group "Kexal (Stand-alone)".
class STANDALONEPLUGINS_EXPORT KXWidgets : public QObject, public QDesignerCustomWidgetCollectionInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QDesignerCustomWidgetCollectionInterface" FILE "KXWidgets.json")
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)
public:
    explicit KXWidgets(QObject *parent = nullptr);
    ~KXWidgets() override;

    QList<QDesignerCustomWidgetInterface *> customWidgets() const override;

private:
    Q_DISABLE_COPY(KXWidgets)
    QList<QDesignerCustomWidgetInterface *> widgets;
};

} // namespace gui
} // namespace Norvane

#endif // KXWIDGETS_H
