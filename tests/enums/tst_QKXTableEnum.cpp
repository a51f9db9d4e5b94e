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

// Translates every text, so that the tests see which texts were handed to translation.
class MarkingTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *sourceText, const char *, int) const override
    {
        return QStringLiteral("<%1>").arg(QString::fromUtf8(sourceText));
    }
};

struct Stage
{
    explicit Stage(int rows = 3, bool withAdapter = false)
    {
        screen.resize(500, 400);
        table = new QKXTableEnum(&screen);
        table->setGeometry(20, 20, 400, 300);
        if (withAdapter)
            adapter.reset(new Adapter(7));
        filter = new QKXTableEnumEventFilter(table, adapter.data());
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
    // Where a row is on the screen, in the middle of its first cell.
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

    QWidget screen;
    QKXTableEnum *table;
    QScopedPointer<Adapter> adapter;
    QKXTableEnumEventFilter *filter;
};

} // namespace

class tst_QKXTableEnum : public QObject
{
    Q_OBJECT

private slots:
    void columnWidths_data();
    void columnWidths();
    void splitColumns();
    void headingTranslation();
    void rowLookups();
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
    QList<int> actual;
    for (int c = 0; c < pixels.size(); ++c)
        actual << s.view()->columnWidth(c);
    QCOMPARE(actual, pixels);
}

void tst_QKXTableEnum::splitColumns()
{
    QKXTableEnum table;
    QAbstractItemModel *model = table.findChild<QTableView *>()->model();
    table.setColumnHeading(QStringLiteral("Channel,Frequency,Power"));
    table.setMetaData(record({{1, "CH1,400.000,10 W"}, {2, "CH2,,5 W"}}));
    QCOMPARE(model->columnCount(), 1);
    QCOMPARE(model->headerData(0, Qt::Horizontal).toString(), QStringLiteral("Channel,Frequency,Power"));

    // The headings follow the switch at once; the rows follow with the next record.
    QVERIFY(table.setProperty("SplitCSVData", true));
    QCOMPARE(model->headerData(1, Qt::Horizontal).toString(), QStringLiteral("Frequency"));
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

void tst_QKXTableEnum::headingTranslation()
{
    MarkingTranslator marking;
    qApp->installTranslator(&marking);
    QKXTableEnum table;
    QAbstractItemModel *model = table.findChild<QTableView *>()->model();
    table.setColumnHeading(QStringLiteral("Fréquence"));
    QCOMPARE(model->headerData(0, Qt::Horizontal).toString(), QStringLiteral("<Fréquence>"));
    // A heading Latin-1 cannot carry is not looked up; an empty one leaves the header alone.
    table.setColumnHeading(QStringLiteral("Kanał"));
    QCOMPARE(model->headerData(0, Qt::Horizontal).toString(), QStringLiteral("Kanał"));
    table.setColumnHeading(QString());
    QCOMPARE(model->headerData(0, Qt::Horizontal).toString(), QStringLiteral("Kanał"));
    QCOMPARE(table.getColumnHeading(), QString());
    qApp->removeTranslator(&marking);
}

void tst_QKXTableEnum::rowLookups()
{
    QKXTableEnum table;
    table.setMetaData(record({{2, "A"}, {2, "B"}, {3, "C"}, {-4, "D"}}));
    QCOMPARE(table.rowCount(), 4);
    QList<int> values;
    for (int row = -1; row <= 4; ++row)
        values << table.getRowIndex(row);
    // Row 0's value belongs to the later row 1; rows outside the table have none.
    QCOMPARE(values, QList<int>({0, 0, 2, 3, -4, 0}));
    QCOMPARE(table.getLiteral(2), QStringLiteral("   B"));
    QCOMPARE(table.getLiteral(-4), QStringLiteral("   D"));
    QCOMPARE(table.getLiteral(9), QString());
    QCOMPARE(table.getLiteral(long(1) << 40), QString());
    QVERIFY(table.literalExists(QStringLiteral("A")));
    QVERIFY(!table.literalExists(QStringLiteral("a")));
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
    // A value without a row changes only the current value.
    s.table->setIndex(3);
    QCOMPARE(s.selectedRow(), -1);
    QCOMPARE(s.table->currentIndex(), 3);

    // Read-only shows no bar and ignores taps; taken back, the current row shows again.
    s.table->setIndex(9);
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
    QVERIFY(s.barBehind(3));

    // A new record selects the current value's row again.
    s.table->setIndex(13);
    s.table->setMetaData(record({{13, "Only"}}));
    QCOMPARE(s.selectedRow(), 0);
    QVERIFY(s.barBehind(0));
}

void tst_QKXTableEnum::taps_data()
{
    QTest::addColumn<bool>("withAdapter");
    QTest::addColumn<bool>("grant");
    QTest::addColumn<QString>("gesture");
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
    QTest::newRow("gui locked") << true << true << "guilocked" << QStringList{"gui locked"} << 0 << 7;
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
    kxtest::AppProperty guiLock("guilocked", gesture == QLatin1String("guilocked"));
    s.table->setIndex(5);
    QStringList actual;
    kxtest::HostDouble host(s.filter, s.table, nullptr, actual);
    host.grant = grant;

    if (gesture != QLatin1String("drag")) {
        const QPoint at = gesture.startsWith(QLatin1String("tap ")) ? s.rowCentre(gesture.mid(4).toInt())
                          : gesture == QLatin1String("below")       ? s.rowCentre(2) + QPoint(0, 84)
                                                                    : s.rowCentre(1);
        QTest::mouseClick(&s.screen, Qt::LeftButton, Qt::NoModifier, at);
    } else {
        const QPoint start = s.rowCentre(4);
        QTest::mousePress(&s.screen, Qt::LeftButton, Qt::NoModifier, start);
        for (int step = 1; step <= 5; ++step)
            QTest::mouseMove(&s.screen, start - QPoint(0, 30 * step));
        QTest::mouseRelease(&s.screen, Qt::LeftButton, Qt::NoModifier, start - QPoint(0, 150));
        // The rows follow the finger from where the press turned into a drag, 60 pixels on.
        QCOMPARE(s.view()->verticalScrollBar()->value(), 150 - 60);
    }
    QCOMPARE(actual, log);
    QCOMPARE(s.selectedRow(), barRow);
    if (gesture == QLatin1String("tap 2"))
        QCOMPARE(s.filter->pending(), 9);
    QCOMPARE(s.filter->current(), current);
}

QTEST_MAIN(tst_QKXTableEnum)
#include "tst_QKXTableEnum.moc"
