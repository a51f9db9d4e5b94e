#ifndef KXPOPUPPLACEMENT_P_H
#define KXPOPUPPLACEMENT_P_H

//
//  W A R N I N G
//  -------------
// Not part of the library's public API: the placement rule every popup editor shares.
//

#include <QPoint>
#include <QSize>

class QWidget;

namespace kxpopup {

// Where a popup of the given size opens for the widget it edits, in the coordinates that the popup's
// move() takes (its parent's; the screen's for a popup without parent): 5 pixels right of and below
// the widget's bottom-right corner, pushed up to stay inside the area, flipped to the widget's left
// when it would leave the area on the right, and into the area's bottom-right corner when neither
// side has room. A popup larger than the area keeps its top-left corner inside it.
QPoint besideWidget(const QWidget *popup, const QWidget *widget, const QSize &popupSize);

} // namespace kxpopup

#endif // KXPOPUPPLACEMENT_P_H
