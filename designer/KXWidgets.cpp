// SPDX-License-Identifier: BSD-3-Clause
#include "KXWidgets.h"

#include "KXDesignerPlugins.h"

namespace Norvane {
namespace gui {

KXWidgets::KXWidgets(QObject *parent)
    : QObject(parent)
    , widgets(createDesignerPlugins(this))
{
}

// The plug-ins are children of the collection and go with it.
KXWidgets::~KXWidgets() = default;

QList<QDesignerCustomWidgetInterface *> KXWidgets::customWidgets() const
{
    return widgets;
}

} // namespace gui
} // namespace Norvane

// Designer on the instrument's own Qt 4 build checks this text before loading a plug-in; current Qt
// reads the JSON metadata instead, but the text stays available to tools that still ask for it.
extern "C" Q_DECL_EXPORT const char *qt_plugin_query_verification_data()
{
    return "pattern=QT_PLUGIN_VERIFICATION_DATA\nversion=4.6.2\ndebug=false\nbuildkey=arm qws/linux g++-4 full-config";
}
