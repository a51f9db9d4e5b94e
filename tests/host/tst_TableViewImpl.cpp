// SPDX-License-Identifier: BSD-3-Clause
#include "TableViewImpl.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QtTest>

using Norvane::gui::TableViewImpl;

namespace {

// The left edge of the first light (text) pixel in the rectangle of the image, or -1.
int firstLightColumn(const QImage &image, const QRect &area)
{
    for (int x = area.left(); x <= area.right(); ++x) {
        for (int y = area.top(); y <= area.bottom(); ++y) {
            if (qGray(image.pixel(x, y)) > 180) {
                return x;
            }
        }
    }
    return -1;
}

} // namespace

class tst_TableViewImpl : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void scrollingIntoSightLandsOnWholeRows_data();
    void scrollingIntoSightLandsOnWholeRows();
    void headingsStartOverTheirColumnsText();

private:
    QScopedPointer<QWidget> screen;
    TableViewImpl *table = nullptr;
    QStandardItemModel *model = nullptr;
};

void tst_TableViewImpl::init()
{
    screen.reset(new QWidget);
    screen->setStyleSheet(QStringLiteral("background-color: #202830;"));
    screen->resize(420, 340);
    table = new TableViewImpl(screen.data());
    // Neither the rows' area nor the headings are a whole number of rows high.
    table->setGeometry(10, 10, 400, 317);
    model = new QStandardItemModel(20, 3, table);
    model->setHorizontalHeaderLabels({QStringLiteral("H"), QStringLiteral("H"), QStringLiteral("H")});
    for (int row = 0; row < model->rowCount(); ++row) {
        // The first column's text is indented, as the instrument's tables store it.
        model->setItem(row, 0, new QStandardItem(QStringLiteral("   H")));
        model->setItem(row, 1, new QStandardItem(QStringLiteral("H")));
        model->setItem(row, 2, new QStandardItem(QStringLiteral("H")));
    }
    table->setModel(model);
    for (int column = 0; column < 3; ++column) {
        table->setColumnWidth(column, 110);
    }
    screen->show();
    QVERIFY(QTest::qWaitForWindowExposed(screen.data()));
}

void tst_TableViewImpl::scrollingIntoSightLandsOnWholeRows_data()
{
    QTest::addColumn<int>("firstShown");
    QTest::addColumn<int>("row");
    QTest::newRow("down to a row below") << 0 << 9;
    QTest::newRow("up to a row above") << 12 << 3;
    QTest::newRow("down to the last row") << 0 << 19;
}

void tst_TableViewImpl::scrollingIntoSightLandsOnWholeRows()
{
    QFETCH(int, firstShown);
    QFETCH(int, row);
    table->scrollTo(model->index(firstShown, 0), QAbstractItemView::PositionAtTop);
    table->scrollTo(model->index(row, 0));
    QScrollBar *bar = table->verticalScrollBar();
    QCOMPARE(bar->value() % TableViewImpl::RowHeight, 0);
    QVERIFY(table->viewport()->rect().contains(table->visualRect(model->index(row, 0))));
}

void tst_TableViewImpl::headingsStartOverTheirColumnsText()
{
    const QImage image = screen->grab().toImage();
    const QPoint header = table->horizontalHeader()->mapTo(screen.data(), QPoint());
    const QPoint rows = table->viewport()->mapTo(screen.data(), QPoint());
    // The heading's bottom border is light too: look above it.
    const int headingHeight = table->horizontalHeader()->height() - 4;
    for (int column = 0; column < 3; ++column) {
        const int x = table->columnViewportPosition(column);
        const int heading = firstLightColumn(image, QRect(header.x() + x, header.y(), 60, headingHeight));
        const int text = firstLightColumn(image, QRect(rows.x() + x, rows.y(), 60, TableViewImpl::RowHeight));
        QVERIFY2(heading >= 0 && qAbs(heading - text) <= 1,
                 qPrintable(QStringLiteral("column %1: heading at %2, text at %3").arg(column).arg(heading).arg(text)));
    }
}

QTEST_MAIN(tst_TableViewImpl)
#include "tst_TableViewImpl.moc"
