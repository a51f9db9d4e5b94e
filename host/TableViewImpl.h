// SPDX-License-Identifier: BSD-3-Clause
#ifndef TABLEVIEWIMPL_H
#define TABLEVIEWIMPL_H

#include "norvanehost_export.h"

#include <QScopedPointer>
#include <QTableView>

namespace Norvane {
namespace gui {

// The instrument's table: tall rows for fingers, no grid, a transparent body so that the screen (and
// whatever the owner paints behind a row) shows through, and a wide scroll bar. A finger drags the
// rows; the selection belongs to the owner of the table, never to a tap, so a tap leaves it as it was.
// Each heading starts where its column's text starts. When the table scrolls a row into sight it
// lands on a whole row, so the top row is never cut by the headings; where a finger leaves the rows,
// they stay.
class NORVANEHOST_EXPORT TableViewImpl : public QTableView
{
    Q_OBJECT
public:
    // Height of every row, in pixels.
    static constexpr int RowHeight = 42;

    explicit TableViewImpl(QWidget *parent = nullptr);
    ~TableViewImpl() override;

    // Whether a press on the rows is currently dragging them.
    bool isDragging() const;

    void scrollTo(const QModelIndex &index, ScrollHint hint = EnsureVisible) override;

protected:
    void updateGeometries() override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &index,
                                                         const QEvent *event = nullptr) const override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    Q_DISABLE_COPY(TableViewImpl)
    struct Data;
    QScopedPointer<Data> m;
};

} // namespace gui
} // namespace Norvane

#endif // TABLEVIEWIMPL_H
