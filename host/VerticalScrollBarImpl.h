// SPDX-License-Identifier: BSD-3-Clause
#ifndef VERTICALSCROLLBARIMPL_H
#define VERTICALSCROLLBARIMPL_H

#include "norvanehost_export.h"

#include <QScopedPointer>
#include <QScrollBar>

namespace Norvane {
namespace gui {

// The instrument's vertical scroll bar for scrolling views (logs, long texts): as wide as a finger,
// a rounded outline in the palette's border colour with a handle that never shrinks below a
// fingertip, and no arrow buttons. A tap on the groove moves by a page, as on any scroll bar.
// A bar at its end stays there as the range changes, so a log keeps its newest line in view however
// it grows or is resized (also while hidden); moved away from the end, it stays where it was put.
class NORVANEHOST_EXPORT VerticalScrollBarImpl : public QScrollBar
{
    Q_OBJECT
public:
    // Width of the bar, in pixels.
    static constexpr int BarWidth = 44;

    explicit VerticalScrollBarImpl(QWidget *parent = nullptr);
    ~VerticalScrollBarImpl() override;

protected:
    void sliderChange(SliderChange change) override;

private:
    Q_DISABLE_COPY(VerticalScrollBarImpl)
    struct Data;
    QScopedPointer<Data> m;
};

} // namespace gui
} // namespace Norvane

#endif // VERTICALSCROLLBARIMPL_H
