// SPDX-License-Identifier: BSD-3-Clause
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
    void overlaysStack();
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

void tst_QKXWheelEnum::overlaysStack()
{
    // Unlike the combo box, locked and read-only show both overlays, the padlock first.
    QKXWheelEnum wheel;
    const QString plain = wheel.styleSheet();
    const QString padlock = QStringLiteral("    QLabel#ComboText {    background-image: url(:/images/lock_generic.png);"
                                           "    background-position: top right;    background-repeat: no-repeat;}");
    const QString readOnly = QStringLiteral("QLabel#ComboText {    border-color: ") + CSS::border() + QStringLiteral(";}");
    wheel.setReadOnly(true);
    wheel.setLocked(true);
    QCOMPARE(wheel.styleSheet(), plain + padlock + readOnly);
    QVERIFY(plain.contains(QLatin1String("padding: 2px 5px -1px 5px;")));   // its own compact field
}

QTEST_MAIN(tst_QKXWheelEnum)
#include "tst_QKXWheelEnum.moc"
