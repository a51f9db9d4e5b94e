// A value with units edited on the numeric pad: the pad's unit keys, and the whole road of one edit
// from the finger on the field to the engine's value shown again in the unit the user chose.
#define QTEST_QPA_MOUSE_HANDLING
#include <QtTest>

#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTimer>

#include "QKXNumericValueObj.h"
#include "QKXNumericValueObjEventFilter.h"
#include "QKXNumpad.h"
#include "QKXRichTextPushButton.h"
#include "ValueHelper.h"

#include "NumericTestSupport.h"
#include "UnitsTestSupport.h"

using namespace kxtest;

namespace {

// The host around one field with units: the lock owner grants from the event loop, the pad opens on
// editStart, and the engine stores every submit in hertz and answers later with setValue(value, Hz).
struct UnitScreen
{
    explicit UnitScreen(const QString &dataType = QStringLiteral("ValueDouble"))
    {
        window.resize(800, 480);
        window.setObjectName(QStringLiteral("MainWindow"));
        field = new QKXNumericValueObj(&window);
        field->setObjectName(QStringLiteral("GeneratorFrequency"));
        field->setGeometry(40, 40, 220, 60);
        field->setPrecision(3);
        field->setBaseUnit(hertz());
        field->setDefaultUnit(2);
        field->setUnitListString(frequencyUnits());
        field->setValue(engineHz.current, hertz());
        QObject *adapter = dataType == QLatin1String("ValueLong") ? static_cast<QObject *>(&engineLong)
                                                                  : static_cast<QObject *>(&engineHz);
        filter = new QKXNumericValueObjEventFilter(field, dataType, nullptr, adapter);
        field->installEventFilter(filter);
        entry = field->findChild<QLineEdit *>();
        pad = new QKXNumpad(&window);

        QObject::connect(filter, &QKXEventFilterBase::attemptSetLock, [this](QWidget *widget, bool locked) {
            road << (locked ? QStringLiteral("lock") : QStringLiteral("release"));
            holder = locked ? widget : nullptr;
            if (locked)
                QTimer::singleShot(0, filter, [this, widget] { filter->lockAcquired(widget); });
        });
        QObject::connect(filter, &QKXEventFilterBase::editStart, [this](QObject *edit, QWidget *widget) {
            road << QStringLiteral("editStart");
            pad->registerWidget(edit, widget);
        });
        QObject::connect(filter, &QKXEventFilterBase::editEnd, [this] { road << QStringLiteral("editEnd"); });
        QObject::connect(filter, QOverload<double, QString>::of(&QKXNumericValueObjEventFilter::submit),
                         [this](double value, const QString &unit) {
                             road << QStringLiteral("submit %1 %2").arg(value).arg(unitText(unit));
                             engineStore(value, unit);
                         });
        QObject::connect(filter, QOverload<int, QString>::of(&QKXNumericValueObjEventFilter::submit),
                         [this](int value, const QString &unit) {
                             road << QStringLiteral("submit int %1 %2").arg(value).arg(unitText(unit));
                         });
        QObject::connect(field, QOverload<double, QString>::of(&QKXNumericValueObj::valueChanged),
                         [this](double value, const QString &unit) {
                             road << QStringLiteral("setValue %1 %2").arg(value).arg(unitText(unit));
                         });
    }

    static QString unitText(const QString &unit)
    {
        return unit == neutralUnits() ? QStringLiteral("(neutral)")
                                      : ValueHelper::getUnitString(ValueHelper::convertToUnits(unit));
    }

    // The engine keeps hertz; the neutral string means the value is in the base unit already.
    void engineStore(double value, const QString &unit)
    {
        const double hz = unit == neutralUnits()
            ? value
            : ValueHelper::convertValue(value, ValueHelper::convertToUnits(unit), ValueHelper::convertToUnits(hertz()));
        QTimer::singleShot(0, field, [this, hz] {
            engineHz.current = hz;
            road << QStringLiteral("engine %1 Hz").arg(hz);
            field->setValue(hz, hertz());
        });
    }

    bool show()
    {
        window.show();
        return QTest::qWaitForWindowExposed(&window) && QTest::qWaitFor([this] { return !entry->isEnabled(); });
    }
    bool tapAndWaitForPad()
    {
        const QPoint at = entry->geometry().center();
        QTest::mousePress(field, Qt::LeftButton, Qt::NoModifier, at);
        QTest::mouseRelease(field, Qt::LeftButton, Qt::NoModifier, at);
        return QTest::qWaitFor([this] { return pad->isVisible() && filter->isEditing(); });
    }
    void click(QPushButton *key)
    {
        QVERIFY(key && key->isVisible() && key->isEnabled());
        QTest::mouseClick(key, Qt::LeftButton, Qt::NoModifier, key->rect().center());
    }
    QStringList unitKeys() const
    {
        QStringList keys;
        for (int i = 0; i < 4; ++i) {
            auto *key = qobject_cast<QKXRichTextPushButton *>(pad->unitButton(i));
            if (key && key->isVisible())
                keys << key->text() + QLatin1Char('/') + key->objectName();
        }
        return keys;
    }

    DoubleAdapter engineHz{1.0e6};
    IntAdapter engineLong{1000000};
    QStringList road;
    QPointer<QWidget> holder;
    QWidget window;
    QKXNumericValueObj *field;
    QLineEdit *entry;
    QKXNumericValueObjEventFilter *filter;
    QKXNumpad *pad;
};

} // namespace

class tst_UnitEntryRoad : public QObject
{
    Q_OBJECT

private slots:
    void unitKeysFollowTheUnitList();
    void plainNumberCommitsWithEnterInTheBaseUnit();
    void longValuesCommitTheIntegerForm();
    void roadOfOneEditThenACancel();
    void keyboardAndHostCommits();
};

void tst_UnitEntryRoad::unitKeysFollowTheUnitList()
{
    UnitScreen screen;
    QVERIFY(screen.show());
    QVERIFY(screen.tapAndWaitForPad());
    QCOMPARE(screen.unitKeys(), QStringList({"Hz/unit", "kHz/unit", "MHz/lastUnit"}));
    QVERIFY(!screen.pad->button(QStringLiteral("enter"))->isVisible());
    QCOMPARE(screen.pad->unitButton(1)->property("UnitString").toString(), kilohertz());
    QVERIFY(screen.pad->button(QStringLiteral("dot"))->isEnabled());
    screen.filter->cancel();

    // Five units: four keys, the last shown one closes the column. Short entries get no key.
    DebugLines lines;
    const QString five = QStringList{hertz(), kilohertz(), megahertz(), "0,9,1:1;0:0;0:0;0:0;0:0",
                                     "0,-3,1:1;0:0;0:0;0:0;0:0"}.join('|');
    screen.field->setUnitListString(five);
    QVERIFY(QTest::qWaitFor([&] { return !screen.filter->isEditing(); }));
    QVERIFY(screen.tapAndWaitForPad());
    QCOMPARE(screen.unitKeys(), QStringList({"Hz/unit", "kHz/unit", "MHz/unit", "GHz/lastUnit"}));
    screen.filter->cancel();
    QVERIFY(QTest::qWaitFor([&] { return !screen.pad->isVisible() && !screen.filter->isEditing(); }));

    QVariantList list = screen.field->property("UnitList").toList();
    list.insert(1, QVariant(QVariantList{5, QStringLiteral("odd")}));
    screen.field->setProperty("UnitList", list.mid(0, 3));
    QVERIFY(screen.tapAndWaitForPad());
    QCOMPARE(screen.unitKeys(), QStringList({"Hz/unit", "kHz/lastUnit"}));
    QCOMPARE(lines.lines(), QStringList({"UserInterface - QKXNumpad: unit list entry 1 is not "
                                         "[index, name, true, units string] - no key for it"}));
}

void tst_UnitEntryRoad::plainNumberCommitsWithEnterInTheBaseUnit()
{
    UnitScreen screen;
    screen.field->setUnitListString(QString());
    screen.field->setValue(12.0, neutralUnits());
    QVERIFY(screen.show());
    QVERIFY(screen.tapAndWaitForPad());
    QVERIFY(screen.unitKeys().isEmpty());
    screen.click(screen.pad->button(QStringLiteral("4")));
    screen.road.clear();
    screen.click(screen.pad->button(QStringLiteral("enter")));
    QCOMPARE(screen.road.mid(0, 3), QStringList({"submit 4 (neutral)", "editEnd", "release"}));
    QCOMPARE(screen.field->unitIndex(), -1);
}

void tst_UnitEntryRoad::longValuesCommitTheIntegerForm()
{
    UnitScreen screen(QStringLiteral("ValueLong"));
    QVERIFY(screen.show());
    QVERIFY(screen.tapAndWaitForPad());
    QVERIFY(!screen.pad->button(QStringLiteral("dot"))->isEnabled());
    screen.click(screen.pad->button(QStringLiteral("7")));
    screen.road.clear();
    screen.click(screen.pad->unitButton(0));
    QCOMPARE(screen.road.mid(0, 3), QStringList({"submit int 7 Hz", "editEnd", "release"}));
    QCOMPARE(screen.field->unitIndex(), 0);
}

void tst_UnitEntryRoad::roadOfOneEditThenACancel()
{
    UnitScreen screen;
    QVERIFY(screen.show());
    QCOMPARE(screen.entry->text(), QStringLiteral("1.000"));
    QCOMPARE(screen.field->currentUnitName(), QStringLiteral("MHz"));
    screen.road.clear();

    // Tap: the lock is asked for and granted, the edit starts, the pad opens with one key per unit.
    QVERIFY(screen.tapAndWaitForPad());
    QCOMPARE(screen.holder, screen.field);
    QCOMPARE(screen.road, QStringList({"lock", "editStart"}));
    QCOMPARE(screen.pad->registeredWidget(), screen.field);
    QCOMPARE(screen.unitKeys(), QStringList({"Hz/unit", "kHz/unit", "MHz/lastUnit"}));
    QCOMPARE(screen.pad->display()->text(), QStringLiteral("1.000"));

    // The keys type into the field itself; the first replaces the old value.
    screen.click(screen.pad->button(QStringLiteral("2")));
    screen.click(screen.pad->button(QStringLiteral("dot")));
    screen.click(screen.pad->button(QStringLiteral("5")));
    QCOMPARE(screen.entry->text(), QStringLiteral("2.5"));
    QCOMPARE(screen.pad->display()->text(), QStringLiteral("2.5"));

    // kHz commits the number in kHz; the edit ends and the lock goes back before the engine answers.
    screen.click(screen.pad->unitButton(1));
    QVERIFY(QTest::qWaitFor([&] { return screen.road.size() >= 7; }));
    QCOMPARE(screen.road, QStringList({"lock", "editStart", "submit 2.5 kHz", "editEnd", "release", "engine 2500 Hz",
                                       "setValue 2500 Hz"}));
    QVERIFY(!screen.holder);
    QVERIFY(!screen.pad->isVisible());
    QVERIFY(!screen.filter->isEditing());
    QVERIFY(!screen.entry->isEnabled());

    // The engine's hertz, shown in the unit the user chose.
    QCOMPARE(screen.field->value(), 2500.0);
    QCOMPARE(screen.field->unitIndex(), 1);
    QCOMPARE(screen.field->currentUnitName(), QStringLiteral("kHz"));
    QCOMPARE(screen.entry->text(), QStringLiteral("2.500"));

    // Cancel gives back the engine's value, in hertz, and the chosen unit stays.
    QVERIFY(screen.tapAndWaitForPad());
    screen.click(screen.pad->button(QStringLiteral("9")));
    screen.road.clear();
    screen.click(screen.pad->button(QStringLiteral("cancel")));
    QVERIFY(QTest::qWaitFor([&] { return screen.road.size() >= 5; }));
    QCOMPARE(screen.road, QStringList({"submit 2500 Hz", "editEnd", "release", "engine 2500 Hz", "setValue 2500 Hz"}));
    QCOMPARE(screen.entry->text(), QStringLiteral("2.500"));
    QCOMPARE(screen.field->currentUnitName(), QStringLiteral("kHz"));
}

void tst_UnitEntryRoad::keyboardAndHostCommits()
{
    UnitScreen screen;
    QVERIFY(screen.show());
    QVERIFY(screen.tapAndWaitForPad());
    QCOMPARE(screen.filter->savedValue(), 1.0e6);
    QVERIFY(screen.filter->unitLabel()->isEnabled());

    // Typed text that is no number keeps the edit open and says why.
    DebugLines lines;
    screen.road.clear();
    screen.entry->setText(QStringLiteral("2,5k"));
    QTest::keyClick(screen.entry, Qt::Key_Enter);
    QVERIFY(screen.road.isEmpty());
    QCOMPARE(lines.lines(), QStringList({"UserInterface - QKXNumericValueObjEventFilter: \"2,5k\" is not a number "
                                         "for ValueDouble - nothing submitted"}));

    // Return commits both forms in the unit shown.
    screen.entry->setText(QStringLiteral("2.5"));
    QTest::keyClick(screen.entry, Qt::Key_Return);
    QCOMPARE(screen.road.mid(0, 4), QStringList({"submit 2.5 MHz", "submit int 2 MHz", "editEnd", "release"}));
    QVERIFY(QTest::qWaitFor([&] { return !screen.filter->isEditing() && !screen.filter->unitLabel()->isEnabled(); }));

    // The host's own calls: both forms in a given unit, or the double form in the unit shown.
    QVERIFY(QTest::qWaitFor([&] { return screen.road.size() >= 6; }));
    screen.road.clear();
    screen.filter->submitWidgetValue(3.75, kilohertz());
    screen.filter->enterVale(4.5);
    QCOMPARE(screen.road, QStringList({"submit 3.75 kHz", "submit int 3 kHz", "submit 4.5 MHz"}));
}

QTEST_MAIN(tst_UnitEntryRoad)
#include "tst_UnitEntryRoad.moc"
