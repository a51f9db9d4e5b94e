#include <QtTest>

#include <QLabel>

#include "../common/EnumTestSupport.h"
#include "CSS.h"
#include "QKXWheelEnum.h"

using kxtest::record;

class tst_QKXWheelEnum : public QObject
{
    Q_OBJECT
private slots:
    void values_data();
    void values();
    void styleSheets_data();
    void styleSheets();
};

void tst_QKXWheelEnum::values_data()
{
    QTest::addColumn<QVariant>("rec");
    QTest::addColumn<QVariantList>("steps");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<int>("index");
    QTest::addColumn<QList<int>>("signalled");
    const QVariant onOff = record({{1, "On"}, {0, "Off"}});
    // Before the host's first value, the record shows the start value's literal, if it has one.
    QTest::newRow("start value listed") << onOff << QVariantList() << "Off" << 0 << QList<int>{0};
    QTest::newRow("start value not listed") << record({{1, "On"}, {2, "Auto"}}) << QVariantList() << "" << 0 << QList<int>{0};
    QTest::newRow("value the record lacks shows nothing") << onOff << QVariantList{5} << "" << 5 << QList<int>{0, 5};
    QTest::newRow("literal") << onOff << QVariantList{5, "On"} << "On" << 1 << QList<int>{0, 5, 1};
    QTest::newRow("unknown literal") << onOff << QVariantList{1, "Auto"} << "On" << 1 << QList<int>{0, 1};
    // Markup and translatable words are shown exactly as the record spells them.
    QTest::newRow("markup, not processed") << record({{2, "<b>dBm^2</b>"}}) << QVariantList{2} << "<b>dBm^2</b>" << 2 << QList<int>{0, 2};
    QTest::newRow("untranslated") << record({{3, "Off"}}) << QVariantList{3} << "Off" << 3 << QList<int>{0, 3};
}

void tst_QKXWheelEnum::values()
{
    QFETCH(QVariant, rec);
    QFETCH(QVariantList, steps);
    QFETCH(QString, shown);
    QFETCH(int, index);
    QFETCH(QList<int>, signalled);
    kxtest::AppProperty state("state", QStringLiteral("initialized"));
    kxtest::WordTranslator german("Off", "Aus");
    qApp->installTranslator(&german);
    kxtest::DebugLines debug;
    QKXWheelEnum wheel;
    QSignalSpy changed(&wheel, QOverload<int>::of(&QKXWheelEnum::currentIndexChanged));
    QSignalSpy changedText(&wheel, SIGNAL(currentIndexChanged(QString)));
    wheel.setMetaData(rec);
    QVERIFY(kxtest::replay(&wheel, steps));
    qApp->removeTranslator(&german);
    QLabel *field = wheel.findChild<QLabel *>(QStringLiteral("ComboText"));
    QCOMPARE(field->textFormat(), Qt::PlainText);
    QCOMPARE(field->text(), shown);
    QCOMPARE(wheel.text(), shown);
    QCOMPARE(wheel.currentIndex(), index);
    QCOMPARE(kxtest::firstInts(changed), signalled);
    QCOMPARE(changedText.count(), 0);
    QCOMPARE(kxtest::takeLines(), QStringList());   // the wheel reports no missing values
}

void tst_QKXWheelEnum::styleSheets_data()
{
    QTest::addColumn<bool>("locked");
    QTest::addColumn<bool>("readOnly");
    QTest::addColumn<QString>("size");
    QTest::addColumn<QString>("overlays");
    const QString padlock = QStringLiteral("    QLabel#ComboText {    background-image: url(:/images/lock_generic.png);"
                                           "    background-position: top right;    background-repeat: no-repeat;}");
    const QString readOnly = QStringLiteral("QLabel#ComboText {    border-color: ") + CSS::border() + QStringLiteral(";}");
    QTest::newRow("plain") << false << false << "Min" << QString();
    QTest::newRow("locked, large") << true << false << "Max" << padlock;
    QTest::newRow("read-only") << false << true << "Min" << readOnly;
    QTest::newRow("both, large: padlock first") << true << true << "Max" << padlock + readOnly;
}

void tst_QKXWheelEnum::styleSheets()
{
    QFETCH(bool, locked);
    QFETCH(bool, readOnly);
    QFETCH(QString, size);
    QFETCH(QString, overlays);
    const bool large = size == QLatin1String("Max");
    const QString field = QStringLiteral(
        "QLabel#ComboText { background-color: transparent; color: #fff; border: 2px solid #fff; border-radius: 10px; "
        "margin: 0px; min-height: %1; max-height: %1; font-size: %2; padding: %3; }")
        .arg(large ? "32px" : "25px", large ? "20px" : "14px", large ? "1px 5px 0px 5px" : "2px 5px -1px 5px");
    // Unlike the combo box's, the caption has neither "border: none" nor a minimum height.
    const QString caption = QStringLiteral("QLabel#Label { color: #fff; padding: 4px 5px 0px 8px; margin: 0px; font-size: %1; }")
                                .arg(large ? "16px" : "12px");
    QKXWheelEnum wheel;
    wheel.setLocked(locked);
    wheel.setReadOnly(readOnly);
    wheel.changeSize(size);
    const QString sheet = wheel.styleSheet();
    QVERIFY2(sheet.endsWith(overlays), qPrintable(sheet));
    QCOMPARE(sheet.left(sheet.size() - overlays.size()).simplified(), field + QLatin1Char(' ') + caption);
}

QTEST_MAIN(tst_QKXWheelEnum)
#include "tst_QKXWheelEnum.moc"
