// SPDX-License-Identifier: BSD-3-Clause
#ifndef GLOBALIMPL_H
#define GLOBALIMPL_H

#include "norvanehost_export.h"

#include <QObject>
#include <QPointer>

class QWidget;
class SystemModule;

// The host's global object: the desktop, the screen registry, window names for debug lines.
class NORVANEHOST_EXPORT GlobalImpl : public QObject
{
    Q_OBJECT
public:
    static GlobalImpl *getInstance();

    // The widget that stands for the whole screen; full-screen overlays take its size. The host sets
    // it (on the instrument, its main window fills the display); until then it is the application's
    // desktop widget.
    QWidget *desktop() const;
    void setDesktop(QWidget *desktop);

    SystemModule *systemModule() const;

    // The name of the window that holds the widget: the top-level window's object name, or its
    // class name when it has none; "" for a null widget.
    QString getParentWindowName(QWidget *widget) const;

private:
    GlobalImpl();
    ~GlobalImpl() override;
    Q_DISABLE_COPY(GlobalImpl)

    SystemModule *module;
    QPointer<QWidget> desktopWidget;
};

#endif // GLOBALIMPL_H
