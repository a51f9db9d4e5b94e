// SPDX-License-Identifier: BSD-3-Clause
#ifndef WIDGETNAMING_H
#define WIDGETNAMING_H

#include <QString>

class QObject;

namespace WidgetNaming {

// The engine attribute a widget stands for, or "" when it has none. A widget fresh from the designer
// carries the placeholder "AttributeName"; that binds it to nothing.
QString boundAttribute(const QObject *widget);

// How the log names a widget: its attribute, else its object name, else its class.
QString describe(const QObject *widget);

// How a notice names a widget to the user: the caption shown with it, else as the log names it.
QString caption(const QObject *widget);

} // namespace WidgetNaming

#endif // WIDGETNAMING_H
