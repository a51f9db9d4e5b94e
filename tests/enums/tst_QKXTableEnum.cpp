// SPDX-License-Identifier: BSD-3-Clause
// Mouse events travel through the window system, as a finger on the panel does.
#define QTEST_QPA_MOUSE_HANDLING
#include <QtTest>

#include <QHeaderView>
#include <QScrollBar>
#include <QTableView>

#include "../common/EnumTestSupport.h"
#include "QKXTableEnum.h"
#include "QKXTableEnumEventFilter.h"

using kxtest::record;

namespace {

// The host's go-between for an attribute: the table filter reads the value through "get".
class Adapter : public QObject
{
    Q_OBJECT
public:
    explicit Adapter(int value) : value(value) {}
    Q_INVOKABLE int get() const { return value; }
    int value;
};

struct Stage
{
    explicit Stage(int rows = 3, bool withAdapter = false)
    {
        screen.resize(500, 400);
        table = new QKXTableEnum(&screen);
        table->setGeometry(20, 20, 400, 300);
        filter = new QKXTableEnumEventFilter(table, withAdapter ? &adapter : nullptr);
        table->installEventFilter(filter);
        QList<QPair<int, QString>> entries;
        for (int r = 0; r < rows; ++r)
            entries.append({5 + 2 * r, QStringLiteral("Row %1").arg(r)});
        table->setMetaData(record(entries));
        screen.show();
    }
    QTableView *view() const { return table->findChild<QTableView *>(); }
    int selectedRow() const
    {
        const QModelIndexList rows = view()->selectionModel()->selectedRows();
        return rows.isEmpty() ? -1 : rows.first().row();
    }
    QPoint rowCentre(int row) const
    {
        const QRect cell = view()->visualRect(view()->model()->index(row, 0));
        return view()->viewport()->mapTo(const_cast<QWidget *>(&screen), cell.center());
    }
    // Whether the white bar is painted behind the row, looked at right of its text.
    bool barBehind(int row) const
    {
        const QImage image = table->grab().toImage();
        const QPoint at = table->mapFrom(const_cast<QWidget *>(&screen), rowCentre(row)) + QPoint(140, 0);
        return image.pixelColor(at) == QColor(Qt::white);
    }
    Adapter adapter{7};   // outlives the screen, and the filter with it
    QWidget screen;
    QKXTableEnum *table;
    QKXTableEnumEventFilter *filter;
};

} // namespace

class tst_QKXTableEnum : public QObject
{
    Q_OBJECT
private slots:
    void columnWidths_data();
    void columnWidths();
    void textsAndLookups();
    void currentRow();
    void taps_data();
    void taps();
};

void tst_QKXTableEnum::columnWidths_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<bool>("shown");
    QTest::addColumn<QString>("widths");
    QTest::addColumn<QList<int>>("pixels");
    // Ten rows are the first that need the scroll bar, which takes its room from the columns.
    QTest::newRow("9 rows") << 9 << true << "60,40" << QList<int>{205, 137};
    QTest::newRow("10 rows") << 10 << true << "60,40" << QList<int>{201, 134};
    QTest::newRow("no scroll bar before it is shown") << 12 << false << "60,40" << QList<int>{240, 160};
    QTest::newRow("a part that is no number") << 12 << true << "50,wide" << QList<int>{167, 0};
    QTest::newRow("fractions truncate") << 12 << true << "33.3,66.7" << QList<int>{111, 223};
}

void tst_QKXTableEnum::columnWidths()
{
    QFETCH(int, rows);
    QFETCH(bool, shown);
    QFETCH(QString, widths);
    QFETCH(QList<int>, pixels);
    Stage s(rows);
    if (!shown)
        s.screen.hide();
    QVERIFY(!shown || QTest::qWaitForWindowExposed(&s.screen));
    s.table->setSplitByCSV(true);
    s.table->setColumnHeading(QStringLiteral("Name,Frequency"));
    QSignalSpy changed(s.table, &QKXTableEnum::ColumnWidthChanged);
    QVERIFY(s.table->setProperty("ColumnWidths", widths));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(QList<int>({s.view()->columnWidth(0), s.view()->columnWidth(1)}), pixels);
}

void tst_QKXTableEnum::textsAndLookups()
{
    kxtest::WordTranslator marking({{"Fréquence", "<Fréquence>"}, {"Kanał", "<Kanał>"}});
    qApp->installTranslator(&marking);
    QKXTableEnum table;
    QAbstractItemModel *model = table.findChild<QTableView *>()->model();
    const auto heading = [model](int column) { return model->headerData(column, Qt::Horizontal).toString(); };
    table.setColumnHeading(QStringLiteral("Fréquence"));
    QCOMPARE(heading(0), QStringLiteral("<Fréquence>"));
    // A heading Latin-1 cannot carry is not looked up; an empty one leaves the header alone.
    table.setColumnHeading(QStringLiteral("Kanał"));
    QCOMPARE(heading(0), QStringLiteral("Kanał"));
    table.setColumnHeading(QString());
    QCOMPARE(heading(0), QStringLiteral("Kanał"));
    QCOMPARE(table.getColumnHeading(), QString());
    qApp->removeTranslator(&marking);
    table.setMetaData(record({{2, "A"}, {2, "B"}, {3, "C"}, {-4, "D"}}));
    QList<int> values;
    for (int row = -1; row <= 4; ++row)
        values << table.getRowIndex(row);
    // Row 0's value belongs to the later row 1; rows outside the table have none.
    QCOMPARE(values, QList<int>({0, 0, 2, 3, -4, 0}));
    QCOMPARE(table.getLiteral(2), QStringLiteral("   B"));
    QCOMPARE(table.getLiteral(-4), QStringLiteral("   D"));
    QCOMPARE(table.getLiteral(9), QString());
    QCOMPARE(table.getLiteral(long(1) << 40), QString());
    QVERIFY(!table.literalExists(QStringLiteral("a")));
    // Split columns: the headings follow the switch at once; the rows follow with the next record.
    table.setColumnHeading(QStringLiteral("Channel,Frequency,Power"));
    table.setMetaData(record({{1, "CH1,400.000,10 W"}, {2, "CH2,,5 W"}}));
    QCOMPARE(model->columnCount(), 1);
    QCOMPARE(heading(0), QStringLiteral("Channel,Frequency,Power"));
    QVERIFY(table.setProperty("SplitCSVData", true));
    QCOMPARE(heading(1), QStringLiteral("Frequency"));
    QCOMPARE(model->index(0, 0).data().toString(), QStringLiteral("   CH1,400.000,10 W"));
    table.setMetaData(table.metaData());
    QStringList cells;
    for (int r = 0; r < 2; ++r)
        for (int c = 0; c < 3; ++c)
            cells << model->index(r, c).data().toString();
    QCOMPARE(cells, QStringList({"   CH1", "400.000", "10 W", "   CH2", "", "5 W"}));
    QCOMPARE(table.getLiteral(2), QStringLiteral("   CH2"));
    QVERIFY(table.literalExists(QStringLiteral("CH1")));
    QVERIFY(!table.literalExists(QStringLiteral("CH1,400.000,10 W")));
    QVERIFY(!table.literalExists(QStringLiteral("   CH1")));
}

void tst_QKXTableEnum::currentRow()
{
    Stage s(5);
    QVERIFY(QTest::qWaitForWindowExposed(&s.screen));
    QSignalSpy submitted(s.filter, &QKXTableEnumEventFilter::submit);
    // One column headed "Data Source", over the whole width left beside the scroll bar.
    QCOMPARE(s.view()->model()->columnCount(), 1);
    QCOMPARE(s.view()->model()->headerData(0, Qt::Horizontal).toString(), QStringLiteral("Data Source"));
    QCOMPARE(s.view()->columnWidth(0), 400 - 57);
    // The start value 0 has no row: the first row is shown as current until the host's value comes.
    QCOMPARE(s.selectedRow(), 0);
    QVERIFY(s.barBehind(0));
    s.table->setIndex(11);
    QCOMPARE(s.selectedRow(), 3);
    QVERIFY(s.barBehind(3));
    QVERIFY(!s.barBehind(0));
    // The same value again does nothing, not even select its row once more.
    s.view()->clearSelection();
    s.table->setIndex(11);
    QCOMPARE(s.selectedRow(), -1);
    // A value without a row changes only the current value: the bar stays, and the table says why.
    s.table->setIndex(9);
    kxtest::DebugLines debug;
    kxtest::AppProperty state("state", QStringLiteral("initialized"));
    s.table->setIndex(3);
    QCOMPARE(s.selectedRow(), 2);
    QCOMPARE(s.table->currentIndex(), 3);
    QCOMPARE(kxtest::takeLines(), QStringList{"UserInterface - QKXTableEnumPrivate::setIndex - no row for value: 3"});
    // Read-only shows no bar and ignores taps; taken back, the current row shows again.
    QVERIFY(s.table->setProperty("ReadOnly", true));
    QCOMPARE(s.view()->selectionMode(), QAbstractItemView::NoSelection);
    QCOMPARE(s.selectedRow(), -1);
    QVERIFY(!s.barBehind(2));
    s.table->setIndex(11);
    QCOMPARE(s.selectedRow(), -1);
    QTest::mouseClick(&s.screen, Qt::LeftButton, Qt::NoModifier, s.rowCentre(1));
    QCOMPARE(submitted.count(), 0);
    s.table->setReadOnly(false);
    QCOMPARE(s.selectedRow(), 3);
    // A new record selects the current value's row again.
    s.table->setIndex(13);
    s.table->setMetaData(record({{13, "Only"}}));
    QCOMPARE(s.selectedRow(), 0);
}

void tst_QKXTableEnum::taps_data()
{
    QTest::addColumn<bool>("withAdapter");
    QTest::addColumn<bool>("grant");
    QTest::addColumn<QString>("gesture");   // "tap <row>", "guilocked <row>", "below" or "drag"
    QTest::addColumn<QStringList>("log");
    QTest::addColumn<int>("barRow");
    QTest::addColumn<int>("current");   // the filter's last submitted (or first read) value
    // Rows carry the values 5, 7, 9, ...; the host confirms a submitted value through setIndex.
    QTest::newRow("tap, no adapter: submitted at once") << false << true << "tap 2" << QStringList{"submit 9"} << 2 << 9;
    QTest::newRow("tap, adapter: after the lock") << true << true << "tap 2" << QStringList{"lock requested", "submit 9", "lock released"} << 2 << 9;
    QTest::newRow("tap, adapter, lock refused") << true << false << "tap 2" << QStringList{"lock requested"} << 0 << 7;
    QTest::newRow("tap on the current row") << false << true << "tap 0" << QStringList{"submit 5"} << 0 << 5;
    QTest::newRow("tap below the last row") << false << true << "below" << QStringList() << 0 << 0;
    QTest::newRow("drag scrolls, chooses nothing") << false << true << "drag" << QStringList() << 0 << 0;
    QTest::newRow("gui locked") << true << true << "guilocked 1" << QStringList{"gui locked"} << 0 << 7;
}

void tst_QKXTableEnum::taps()
{
    QFETCH(bool, withAdapter);
    QFETCH(bool, grant);
    QFETCH(QString, gesture);
    QFETCH(QStringList, log);
    QFETCH(int, barRow);
    QFETCH(int, current);
    Stage s(gesture == QLatin1String("drag") ? 20 : 3, withAdapter);
    QVERIFY(QTest::qWaitForWindowExposed(&s.screen));
    kxtest::AppProperty guiLock("guilocked", gesture.startsWith(QLatin1String("guilocked")));
    s.table->setIndex(5);
    QStringList actual;
    kxtest::HostDouble host(s.filter, s.table, nullptr, actual);
    host.grant = grant;
    if (gesture == QLatin1String("drag")) {
        const QPoint start = s.rowCentre(4);
        QTest::mousePress(&s.screen, Qt::LeftButton, Qt::NoModifier, start);
        for (int step = 1; step <= 5; ++step)
            QTest::mouseMove(&s.screen, start - QPoint(0, 30 * step));
        QTest::mouseRelease(&s.screen, Qt::LeftButton, Qt::NoModifier, start - QPoint(0, 150));
        // The rows follow the finger from where the press turned into a drag, 60 pixels on.
        QCOMPARE(s.view()->verticalScrollBar()->value(), 150 - 60);
    } else {
        const QPoint at = gesture == QLatin1String("below") ? s.rowCentre(2) + QPoint(0, 84) : s.rowCentre(gesture.right(1).toInt());
        QTest::mouseClick(&s.screen, Qt::LeftButton, Qt::NoModifier, at);
    }
    QCOMPARE(actual, log);
    QCOMPARE(s.selectedRow(), barRow);
    if (gesture == QLatin1String("tap 2"))
        QCOMPARE(s.filter->pending(), 9);
    QCOMPARE(s.filter->current(), current);
}

QTEST_MAIN(tst_QKXTableEnum)
#include "tst_QKXTableEnum.moc"
