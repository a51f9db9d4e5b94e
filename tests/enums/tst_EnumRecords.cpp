// SPDX-License-Identifier: BSD-3-Clause
#include <QtTest>

#include <QTableView>
#include <QItemSelectionModel>

#include "../common/EnumTestSupport.h"
#include "QKXComboWheel.h"
#include "QKXTableEnum.h"
#include "QKXWheelEnum.h"

using kxtest::record;

// Every enumerated widget and both popups read the same record; fed the same bad record they must
// agree on the entries that count, report what is wrong once per widget, and never read past an end.
class tst_EnumRecords : public QObject
{
    Q_OBJECT
private slots:
    void badRecords_data();
    void badRecords();
};

void tst_EnumRecords::badRecords_data()
{
    QTest::addColumn<QVariant>("rec");
    QTest::addColumn<QStringList>("lines");     // each after "UserInterface - <reporter>::setMetaData - "
    QTest::addColumn<QStringList>("entries");   // value=literal, in column order
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("shown");         // for that value, by the combo box and the wheel enum
    QTest::newRow("text") << QVariant(QStringLiteral("1,On")) << QStringList{"record is not a list, shown as empty: QString"}
                          << QStringList() << 1 << "";
    QTest::newRow("cleared") << QVariant() << QStringList() << QStringList() << 0 << "";
    QVariantList shortEntries{QVariant(QVariantList{1}), QVariant(QVariantList()), QVariant(QStringLiteral("x")),
                              QVariant(QVariantList{2, "Two"}), QVariant(QVariantList{3, "Three", "extra"})};
    const QString leftOut = QStringLiteral("entry %1 left out, it needs a value and a literal");
    QTest::newRow("short entries") << QVariant(shortEntries) << QStringList{leftOut.arg(0), leftOut.arg(1), leftOut.arg(2)}
                                   << QStringList{"2=Two", "3=Three"} << 3 << "Three";
    QTest::newRow("value listed three times") << record({{2, "A"}, {4, "D"}, {2, "B"}, {2, "C"}})
                                              << QStringList{"value 2 listed more than once, its last entry counts"}
                                              << QStringList{"2=A", "4=D", "2=B", "2=C"} << 2 << "C";
    QTest::newRow("empty literal") << record({{1, ""}, {2, "Two"}}) << QStringList()
                                   << QStringList{"1=", "2=Two"} << 1 << "";
    QTest::newRow("value that is no number") << QVariant(QVariantList{QVariant(QVariantList{"x", "Ex"})}) << QStringList()
                                             << QStringList{"0=Ex"} << 0 << "Ex";
    QStringList many;
    for (int i = 0; i < 2000; ++i)
        many << QStringLiteral("%1=Item %1").arg(i * 10);
    QTest::newRow("two thousand entries") << kxtest::longRecord(2000) << QStringList() << many << 19990 << "Item 19990";
}

void tst_EnumRecords::badRecords()
{
    QFETCH(QVariant, rec);
    QFETCH(QStringList, lines);
    QFETCH(QStringList, entries);
    QFETCH(int, value);
    QFETCH(QString, shown);
    kxtest::DebugLines debug;
    QWidget screen;
    auto *combo = new QKXComboBox(&screen);
    auto *wheel = new QKXWheelEnum(&screen);
    auto *table = new QKXTableEnum(&screen);
    auto *list = new QKXComboBoxList(&screen);
    auto *wheelPopup = new QKXComboWheel(&screen);
    screen.show();
    const QVariant good = record({{77, "Previous"}});   // a bad record replaces a good one entirely
    QStringList expectedLines;
    const QList<QWidget *> widgets{combo, wheel, table};
    for (QWidget *w : widgets)
        QMetaObject::invokeMethod(w, "setMetaData", Q_ARG(QVariant, good));
    kxtest::takeLines();
    for (QWidget *w : widgets) {
        QMetaObject::invokeMethod(w, "setMetaData", Q_ARG(QVariant, rec));
        QMetaObject::invokeMethod(w, "setIndex", Q_ARG(int, value));
        for (const QString &line : lines)
            expectedLines << QStringLiteral("UserInterface - %1Private::setMetaData - ").arg(w->metaObject()->className()) + line;
    }
    QCOMPARE(kxtest::takeLines(), expectedLines);
    QCOMPARE(combo->text(), shown);
    QCOMPARE(wheel->text(), shown);
    QCOMPARE(table->rowCount(), entries.size());
    QStringList rows;
    const QAbstractItemModel *model = table->findChild<QTableView *>()->model();
    for (int row = 0; row < table->rowCount(); ++row)
        rows << QStringLiteral("%1=%2").arg(table->getRowIndex(row)).arg(model->index(row, 0).data().toString().mid(3));
    // The popups list the same entries; each reads the record silently, the widget has reported it.
    QKXComboEventFilter listFilter(combo);
    list->registerWidget(&listFilter, combo);
    QStringList listed;
    for (int row = 0; row < list->shownItems().size(); ++row)
        listed << QStringLiteral("%1=%2").arg(list->valueOfRow(row, -1)).arg(list->shownItems().at(row)->text());
    QCOMPARE(listed, entries);
    QKXComboEventFilter wheelFilter(wheel);
    wheelPopup->registerWidget(&wheelFilter, wheel);
    // The wheel has one item per value.
    QSet<QString> values;
    for (const QString &entry : entries)
        values.insert(entry.section(QLatin1Char('='), 0, 0));
    QCOMPARE(wheelPopup->shownItems().size(), values.size());
    QCOMPARE(kxtest::takeLines(), QStringList());
    // Row by row the table agrees, but a row whose value a later entry took over answers 0.
    if (QTest::currentDataTag() != QByteArray("value listed three times"))
        QCOMPARE(rows, entries);
    else
        QCOMPARE(rows, QStringList({"0=A", "4=D", "0=B", "2=C"}));
}

QTEST_MAIN(tst_EnumRecords)
#include "tst_EnumRecords.moc"
