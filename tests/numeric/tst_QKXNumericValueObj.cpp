// SPDX-License-Identifier: BSD-3-Clause
// The numeric field with units and its edit filter: the offered units, the display converted from the
// engine's base-unit value, the order of the signals hosts bind to, the looks, and bad unit data.
#include <QtTest>

#include <QLabel>
#include <QLineEdit>

#include "CSS.h"
#include "QKXComboBox.h"
#include "QKXNumericValueObj.h"
#include "QKXNumericValueObjEventFilter.h"
#include "QKXUtil.h"

#include "NumericTestSupport.h"

using namespace kxtest;

namespace {

// A frequency field as hosts set one up: base unit hertz, offered in Hz, kHz and MHz, shown in kHz.
struct FrequencyField
{
    FrequencyField()
    {
        field.setObjectName(QStringLiteral("Frequency"));
        field.setPrecision(1);
        field.setBaseUnit(hertz());
        field.setDefaultUnit(1);
        field.setUnitListString(frequencyUnits());
        display = field.findChild<QLineEdit *>();
        selector = field.findChild<QKXComboBox *>(QStringLiteral("unit_combobox"));
    }
    QKXNumericValueObj field;
    QLineEdit *display;
    QKXComboBox *selector;
};

// Everything the field emits, in order, one entry per signal.
void logField(QKXNumericValueObj *field, QStringList &log)
{
    QObject::connect(field, QOverload<double>::of(&QKXNumeric::valueChanged),
                     [&log](double v) { log << QStringLiteral("shown %1").arg(v); });
    QObject::connect(field, QOverload<int>::of(&QKXNumeric::valueChanged),
                     [&log](int v) { log << QStringLiteral("shown int %1").arg(v); });
    QObject::connect(field, &QKXNumericValueObj::displayValueChanged,
                     [&log](double v) { log << QStringLiteral("display %1").arg(v); });
    QObject::connect(field, QOverload<double, QString>::of(&QKXNumericValueObj::valueChanged),
                     [&log](double v, const QString &u) { log << QStringLiteral("value %1 %2").arg(v).arg(u); });
    QObject::connect(field, QOverload<int, QString>::of(&QKXNumericValueObj::valueChanged),
                     [&log](int v, const QString &u) { log << QStringLiteral("value int %1 %2").arg(v).arg(u); });
    QObject::connect(field, QOverload<int>::of(&QKXNumericValueObj::unitChanged),
                     [&log](int i) { log << QStringLiteral("unit %1").arg(i); });
    QObject::connect(field, QOverload<QString>::of(&QKXNumericValueObj::unitChanged),
                     [&log](const QString &u) { log << QStringLiteral("unit %1").arg(u); });
}

QStringList offeredTexts(const QKXNumericValueObj &field)
{
    QStringList texts;
    for (const QVariant &entry : field.property("UnitList").toList())
        texts << entry.toList().value(0).toString() + QLatin1Char(' ') + entry.toList().value(1).toString();
    return texts;
}

} // namespace

class tst_QKXNumericValueObj : public QObject
{
    Q_OBJECT

private slots:
    void unitsConvertAndSignalInOrder();
    void newUnitWithTheValueRebuildsTheList();
    void badUnitData();
    void malformedUnitFromTheEngine_data();
    void malformedUnitFromTheEngine();
    void looksWithAndWithoutUnit();
    void filterHideAndUnitTaps();
};

void tst_QKXNumericValueObj::unitsConvertAndSignalInOrder()
{
    FrequencyField f;
    const QVariantList expected{
        QVariantList{0, QStringLiteral("Hz"), true, hertz()},
        QVariantList{1, QStringLiteral("kHz"), true, kilohertz()},
        QVariantList{2, QStringLiteral("MHz"), true, megahertz()},
    };
    QCOMPARE(f.field.property("UnitList").toList(), expected);
    QCOMPARE(f.selector->metaData().toList(), expected);
    QCOMPARE(f.field.property("CurrentUnit").toString(), kilohertz());
    // The selector is the right half of the field: its own caption is gone, its text centred.
    QVERIFY(!f.selector->isHidden() && !f.selector->findChild<QLabel *>(QStringLiteral("Label")));
    auto *unitText = f.selector->findChild<QLabel *>(QStringLiteral("ComboText"));
    QVERIFY(unitText && !unitText->isEnabled());
    QCOMPARE(unitText->alignment(), Qt::AlignCenter);

    QStringList log;
    logField(&f.field, log);
    f.field.setValue(1234.0);
    QCOMPARE(f.display->text(), QStringLiteral("1.2"));
    QCOMPARE(log, QStringList({"shown 1.234", "shown int 1", "display 1.234", "value 1234 " + hertz(),
                               "value int 1234 " + hertz()}));

    log.clear();
    f.field.setUnitIndex(2);
    QCOMPARE(f.display->text(), QStringLiteral("0.0"));
    QCOMPARE(log, QStringList({"unit 2", "unit " + megahertz()}));

    // Re-selecting the unit in force, from the widget or from its selector, does nothing.
    log.clear();
    f.field.setUnitIndex(2);
    f.selector->setIndex(2);
    QVERIFY(log.isEmpty());

    // The selector drives the field too; a text without "." stays without decimals.
    f.selector->setIndex(0);
    QCOMPARE(f.display->text(), QStringLiteral("1234.0"));
    f.field.setPrecision(0);
    f.selector->setIndex(1);
    QCOMPARE(f.display->text(), QStringLiteral("1"));
    QCOMPARE(log, QStringList({"unit 0", "unit " + hertz(), "shown 1234", "shown int 1234", "display 1234",
                               "value 1234 " + hertz(), "value int 1234 " + hertz(), "unit 1", "unit " + kilohertz()}));

    // A precision change shows the stored engine value again, not the shown number re-converted.
    f.field.setValue(1234.5);
    f.field.setPrecision(3);
    QCOMPARE(f.display->text(), QStringLiteral("1.234"));

    // Without conversion the stored value is shown whatever the unit.
    f.field.setConvertsUnits(false);
    f.field.setUnitIndex(2);
    QCOMPARE(f.display->text(), QStringLiteral("1234.500"));
}

void tst_QKXNumericValueObj::newUnitWithTheValueRebuildsTheList()
{
    FrequencyField f;
    f.field.setValue(5.0, kilohertz());
    QCOMPARE(f.field.baseUnit(), kilohertz());
    QCOMPARE(f.display->text(), QStringLiteral("5.0"));
    // The same unit again changes nothing but the value; MHz still converts from the new base.
    f.field.setUnitIndex(2);
    f.field.setValue(2500.0, kilohertz());
    QCOMPARE(f.display->text(), QStringLiteral("2.5"));

    // The numeric base only unit: the plain numeric look, no selector.
    QKXNumericValueObj plain;
    plain.setUnitListString(QString());
    QCOMPARE(plain.property("UnitList").toList(),
             QVariantList({QVariantList{-1, QString(), true, neutralUnits()}}));
    QVERIFY(plain.findChild<QKXComboBox *>()->isHidden());

    // Grouped, only the units converting to the base are offered; ungrouped or with none of them, the base.
    DebugLines lines;
    const QString mixed = QStringList{kilohertz(), seconds(), megahertz()}.join('|');
    plain.setBaseUnit(hertz());
    QCOMPARE(plain.currentUnit(), neutralUnits());   // shown as before until a unit is selected
    plain.setGroupUnits(QKXNumericValueObj::Convertable);
    plain.setUnitListString(mixed);
    QCOMPARE(offeredTexts(plain), QStringList({"0 kHz", "2 MHz"}));
    QCOMPARE(plain.unitIndex(), 0);
    plain.setUnitListString(seconds());
    QCOMPARE(offeredTexts(plain), QStringList({"-1 Hz"}));
    plain.setGroupUnits(QKXNumericValueObj::None);
    plain.setUnitListString(mixed);
    QCOMPARE(offeredTexts(plain), QStringList({"-1 Hz"}));
    QCOMPARE(plain.unitIndex(), -1);
    QVERIFY2(lines.lines().isEmpty(), qPrintable(lines.lines().join('\n')));
}

void tst_QKXNumericValueObj::badUnitData()
{
    DebugLines lines;
    FrequencyField f;
    f.field.setValue(1500.0);

    // One malformed part or unknown unit empties the list: only the base unit is offered.
    const QString prefix = QStringLiteral("UserInterface - QKXNumericValueObj \"Frequency\" unit list part ");
    f.field.setUnitListString(kilohertz() + "|0,3,1:1;0:0");
    QCOMPARE(offeredTexts(f.field), QStringList({"-1 Hz"}));
    QCOMPARE(f.display->text(), QStringLiteral("1500.0"));
    QVERIFY(lines.lines().contains(prefix + "\"0,3,1:1;0:0\" is no units string - only the base unit is offered"));
    f.field.setUnitListString("0,0,99:1;0:0;0:0;0:0;0:0|" + megahertz());
    QCOMPARE(offeredTexts(f.field), QStringList({"-1 Hz"}));
    QCOMPARE(lines.lines().size(), 2);

    // A value in a unit of another dimension: only that unit is offered, its number shown.
    f.field.setUnitListString(frequencyUnits());
    lines.lines().clear();
    f.field.setValue(-30.0, dBm());
    QCOMPARE(offeredTexts(f.field), QStringList({"-1 dBm"}));
    QCOMPARE(f.field.currentUnitName(), QStringLiteral("dBm"));
    QCOMPARE(f.display->text(), QStringLiteral("-30.0"));
    QCOMPARE(lines.lines(), QStringList({"UserInterface - QKXNumericValueObj \"Frequency\" no unit of its list "
                                         "converts to \"dBm\" - only the base unit is offered"}));

    // A unit the list does not offer is refused; the selector stays on the unit in use.
    f.field.setValue(1500.0, hertz());
    lines.lines().clear();
    f.field.setUnitIndex(7);
    f.selector->setIndex(5);
    QCOMPARE(f.field.unitIndex(), 1);
    QCOMPARE(f.selector->currentIndex(), 1);
    QCOMPARE(f.field.currentUnitName(), QStringLiteral("kHz"));
    QCOMPARE(lines.lines().first(), QStringLiteral("UserInterface - QKXNumericValueObj \"Frequency\" offers no unit 7 - unit kept"));
    // -1, the base unit itself, is always a unit.
    f.field.setUnitIndex(-1);
    QCOMPARE(f.field.unitIndex(), -1);
    QCOMPARE(f.display->text(), QStringLiteral("1500.0"));
}

void tst_QKXNumericValueObj::malformedUnitFromTheEngine_data()
{
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QString>("shown");   // 2500 in that unit, as the field shows it
    QTest::addColumn<QStringList>("lines");
    const QString malformed = QStringLiteral("UserInterface - Malformed Units property string. - \"%1\"");
    const QString pairs = QStringLiteral("UserInterface - Malformed Units property string (Base Unit Portion). - \"%1\"");
    const QString alone = QStringLiteral("UserInterface - QKXNumericValueObj \"Frequency\" no unit of its list converts to "
                                         "\"%1\" - only the base unit is offered");
    // The engine's unit is taken as far as it reads: two pairs of hertz are still hertz, shown in kHz.
    QTest::newRow("two pairs") << "0,0,1:1;0:0" << "2.5" << QStringList{pairs.arg("0,0,1:1;0:0")};
    QTest::newRow("no pairs") << "0,3" << "2500.0" << QStringList{malformed.arg("0,3"), pairs.arg("0,3"), alone.arg("k")};
    QTest::newRow("empty") << "" << "2500.0" << QStringList{malformed.arg(""), pairs.arg(""), alone.arg("")};
}

void tst_QKXNumericValueObj::malformedUnitFromTheEngine()
{
    QFETCH(QString, unit);
    QFETCH(QString, shown);
    QFETCH(QStringList, lines);
    FrequencyField f;
    f.field.setValue(1500.0);
    DebugLines debug;
    QSignalSpy values(&f.field, QOverload<double, QString>::of(&QKXNumericValueObj::valueChanged));
    f.field.setValue(2500.0, unit);
    QCOMPARE(DebugLines::lines(), lines);
    QCOMPARE(f.field.baseUnit(), unit);
    QCOMPARE(f.display->text(), shown);
    QCOMPARE(values.count(), 1);
    QCOMPARE(values.at(0), QVariantList({2500.0, unit}));
}

void tst_QKXNumericValueObj::looksWithAndWithoutUnit()
{
    FrequencyField f;
    const QString lock = QStringLiteral("QLineEdit:disabled {    background-image: url(:/images/lock_num_un.png);"
                                        "    background-position: top right;    background-repeat: no-repeat;}");
    const QString readOnly = "QLineEdit:disabled {    border-color: " + CSS::border()
        + ";}QKXComboBox QLabel#ComboText:disabled {    border-color: " + CSS::border() + ";}";
    const QString sheet = f.field.styleSheet();
    QVERIFY(sheet.contains("border: 2px solid #000;    border-right-width: 0px;    border-top-left-radius: 10px;"
                           "    border-bottom-left-radius: 10px;"));
    QVERIFY(sheet.contains("QKXComboBox QLabel#ComboText:disabled {    background-color: transparent;"
                           "    border-color: #fff;    border-left-width: 2px;    color: #fff;}"));
    f.field.setLocked(true);
    f.field.setReadOnly(true);
    QCOMPARE(f.field.styleSheet(), sheet + lock + readOnly);
    f.field.setLocked(false);
    f.field.setReadOnly(false);
    QCOMPARE(f.field.styleSheet(), sheet);

    // The selector is exactly as wide as its unit at the variant's pixel size, plus 22.
    QFont font = QApplication::font();
    font.setPixelSize(14);
    QCOMPARE(f.selector->minimumWidth(), QKXUtil::calculateStringWidth(QFontMetrics(font), "kHz") + 22);
    f.field.changeSize(QStringLiteral("Max"));
    f.field.setUnitIndex(2);
    font.setPixelSize(20);
    QCOMPARE(f.selector->maximumWidth(), QKXUtil::calculateStringWidth(QFontMetrics(font), "MHz") + 22);
    QCOMPARE(f.selector->minimumWidth(), f.selector->maximumWidth());

    // Without a unit text: the plain numeric look and its own lock mark.
    QKXNumericValueObj plain;
    plain.setUnitListString(QString());
    plain.setLocked(true);
    QVERIFY(plain.styleSheet().contains("url(:/images/lock_generic.png)"));
}

void tst_QKXNumericValueObj::filterHideAndUnitTaps()
{
    // Counts what reaches the host's unit filter and keeps it from the field.
    class UnitTaps : public QObject
    {
    public:
        int presses = 0;
        bool eventFilter(QObject *, QEvent *event) override
        {
            if (event->type() == QEvent::MouseButtonPress)
                ++presses;
            return event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonRelease;
        }
    } unitTaps;

    FrequencyField f;
    DoubleAdapter adapter(1499.0);
    auto *filter = new QKXNumericValueObjEventFilter(&f.field, QStringLiteral("ValueDouble"), &unitTaps, &adapter);
    f.field.installEventFilter(filter);
    QSignalSpy doubles(filter, QOverload<double, QString>::of(&QKXNumericValueObjEventFilter::submit));
    QSignalSpy starts(filter, &QKXEventFilterBase::editStart);
    QSignalSpy ends(filter, &QKXEventFilterBase::editEnd);
    f.field.show();
    QVERIFY(QTest::qWaitForWindowExposed(&f.field));
    QVERIFY(QTest::qWaitFor([&] { return filter->isMachineStarted() && !f.display->isEnabled(); }));

    // The unit filter sits on the selector only while idle.
    QTest::mouseClick(f.selector, Qt::LeftButton, {}, f.selector->rect().center());
    QCOMPARE(unitTaps.presses, 1);
    QCOMPARE(starts.count(), 0);
    filter->lockAcquired(&f.field);
    QVERIFY(QTest::qWaitFor([&] { return filter->isEditing(); }));
    QTest::mousePress(f.selector, Qt::LeftButton, {}, f.selector->rect().center());
    QCOMPARE(unitTaps.presses, 1);

    // Hiding the field mid-edit gives the engine's value back once; an idle hide is swallowed.
    f.field.hide();
    QCOMPARE(doubles.count(), 1);
    QCOMPARE(doubles.at(0), QVariantList({1499.0, hertz()}));
    QCOMPARE(ends.count(), 1);
    QVERIFY(QTest::qWaitFor([&] { return !filter->isEditing(); }));
    f.field.show();
    QTest::mousePress(f.selector, Qt::LeftButton, {}, f.selector->rect().center());
    QCOMPARE(unitTaps.presses, 2);
    f.field.hide();
    QCOMPARE(ends.count(), 1);

}

QTEST_MAIN(tst_QKXNumericValueObj)
#include "tst_QKXNumericValueObj.moc"
