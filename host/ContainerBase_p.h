// SPDX-License-Identifier: BSD-3-Clause
#ifndef CONTAINERBASE_P_H
#define CONTAINERBASE_P_H

//
//  W A R N I N G
//  -------------
//
// Not part of the host library's interface: shared by the container classes of this folder only.
//

#include <QString>

class QFrame;
class QLabel;
class QPushButton;
class QWidget;
class ContainerBase;

class ContainerBasePrivate
{
public:
    explicit ContainerBasePrivate(ContainerBase *q);

    // The sheet of the "BorderFrame" and its title bar. Selectors are by object name only, so an
    // editor's own content never inherits the container's look.
    static QString frameStyleSheet(bool border);
    // Gives the frame the container's own sheet, unless an editor has given it a sheet of its own
    // (a popup that draws its whole panel makes the frame transparent): the editor's stays.
    static void applyFrameStyleSheet(QFrame *frame, bool border);

    // The text of the title bar's close key, in the ContainerBase translation context.
    static QString closeKeyText();

    ContainerBase *q_ptr;
    QFrame *borderFrame = nullptr;
    QWidget *control = nullptr;
    QLabel *title = nullptr;
    QPushButton *closeKey = nullptr;
    QFrame *content = nullptr;
    bool border = true;
    // Whether listeners were last told of an opening: a hide that reaches the popup twice (its screen
    // hidden while a prompt cancels itself) still closes it once.
    bool announcedOpen = false;
};

#endif // CONTAINERBASE_P_H
