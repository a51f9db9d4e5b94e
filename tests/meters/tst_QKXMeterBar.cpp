// SPDX-License-Identifier: BSD-3-Clause
// The meter bar: the display unit and the numbers it hands to the bar and the scale labels, the bar
// state from the status flags, its sizes and orientations, and engine data it cannot draw.
#include <QtTest>

#include <QFrame>

#include "CSS.h"
#include "MeterBar_Bar.h"
#include "MeterBar_HorizontalScale.h"
#include "MeterBar_Scale.h"
#include "QKXMeterBar.h"

#include "KXTestSupport.h"
#include "MeterTestSupport.h"

#include <cmath>
#include <limits>

using namespace kxtest;

namespace {

// A meter on screen: a hidden one draws only its first reading list.
struct Meter
{
    explicit Meter(bool shown = true)
    {
        meter.setObjectName(QStringLiteral("powerMeter"));
        if (shown) {
            meter.resize(200, 300);
            meter.show();
            QTest::qWaitForWindowExposed(&meter);
        }
        bar = meter.findChild<MeterBar_Bar *>();
        for (MeterBar_Scale *scale : meter.findChildren<MeterBar_Scale *>()) {
            if (!qobject_cast<MeterBar_HorizontalScale *>(scale))
                (scale->text() == QLatin1String("2000 MHz") ? maxScale : minScale) = scale;
        }
        meterFrame = bar->parentWidget()->parentWidget();
    }
    // What the meter shows: the two vertical labels and the bar's numbers.
    QString shown() const
    {
        return QStringLiteral("%1|%2|%3 %4 %5 state %6")
            .arg(maxScale->text(), minScale->text())
            .arg(bar->value())
            .arg(bar->lower())
            .arg(bar->upper())
            .arg(bar->barState());
    }
    QKXMeterBar meter;
    MeterBar_Bar *bar = nullptr;
    MeterBar_Scale *maxScale = nullptr;
    MeterBar_Scale *minScale = nullptr;
    QWidget *meterFrame = nullptr;
};

QString shownAs(const char *top, const char *bottom, double value, double lower, double upper, int state = 0)
{
    return QStringLiteral("%1|%2|%3 %4 %5 state %6")
        .arg(QLatin1String(top), QLatin1String(bottom))
        .arg(value * 1e5)
        .arg(lower * 1e5)
        .arg(upper * 1e5)
        .arg(state);
}

// Counts the events that a style sheet change sends through a widget tree.
class RepolishCounter : public QObject
{
public:
    explicit RepolishCounter(QWidget *root)
    {
        root->installEventFilter(this);
        for (QWidget *child : root->findChildren<QWidget *>())
            child->installEventFilter(this);
    }
    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::StyleChange || event->type() == QEvent::Polish;
        return false;
    }
    int count = 0;
};

} // namespace

class tst_QKXMeterBar : public QObject
{
    Q_OBJECT

private slots:
    void newMeterShowsPlaceholders();
    void readingDrawnInDisplayUnit_data();
    void readingDrawnInDisplayUnit();
    void barStateFromStatusFlags_data();
    void barStateFromStatusFlags();
    void readingTypeAndUnitTakeEffectWithNextList();
    void invalidReadingLists_data();
    void invalidReadingLists();
    void unreadableReadingListsKeepTheDisplay_data();
    void unreadableReadingListsKeepTheDisplay();
    void mismatchedUnitsWarn_data();
    void mismatchedUnitsWarn();
    void sizesAndOrientations();
    void hiddenMeterStoresWithoutDrawing();
    void labelsSitOnTheBarEnds();
    void unchangedDisplayCostsNoRepolish();
};

void tst_QKXMeterBar::newMeterShowsPlaceholders()
{
    Meter m;
    QCOMPARE(m.shown(), QStringLiteral("2000 MHz|10 KHz|50 0 100 state 0"));
    QCOMPARE(m.meter.readingTypes(), QVariant(QVariantList()));
    QCOMPARE(m.meter.currentSize(), QStringLiteral("Min"));
    QCOMPARE(m.meter.unitIndex(), -1);
    QCOMPARE(m.meterFrame->minimumWidth(), 85);
    QCOMPARE(m.meterFrame->maximumWidth(), 85);
}

void tst_QKXMeterBar::readingDrawnInDisplayUnit_data()
{
    QTest::addColumn<QVariant>("readingList");
    QTest::addColumn<QString>("unitList");
    QTest::addColumn<int>("unitIndex");
    QTest::addColumn<QString>("shown");

    const QString W = watt();
    const QString Hz = hertzUnits();
    QTest::newRow("W, digits for 0.5") << QVariant(wattReading(0.3, 0.0, 0.5)) << QString() << -1
                                       << shownAs(" 0.50 W", " 0.0 W", 0.3, 0.0, 0.5);
    QTest::newRow("Hz limits choose kHz")
        << QVariant(readingList(valueRecord(Hz, 1500.0), {}, valueRecord(Hz, 0.0), valueRecord(Hz, 2000.0)))
        << QString() << -1 << shownAs(" 2.0 kHz", " 0.0 kHz", 1.5, 0.0, 2.0);
    QTest::newRow("centre zero, fewer digits choose")
        << QVariant(readingList(valueRecord(Hz, 12.0), {}, valueRecord(Hz, -500.0), valueRecord(Hz, 500.0)))
        << QString() << -1 << shownAs(" 500.0 Hz", " -500.0 Hz", 12.0, -500.0, 500.0);
    QTest::newRow("inverted limits drawn as they come")
        << QVariant(wattReading(3.0, 10.0, 0.0)) << QString() << -1 << shownAs(" 0.0 W", " 10.0 W", 3.0, 10.0, 0.0);
    QTest::newRow("fixed unit, no signal at the lower limit")
        << QVariant(readingList(valueRecord(fixedDBm(), -400.0), {}, valueRecord(fixedDBm(), -120.0),
                                valueRecord(fixedDBm(), 20.0)))
        << QString() << -1 << shownAs(" 20.0 dBm", " -120.0 dBm", -120.0, -120.0, 20.0);
    QTest::newRow("fixed unit, minus infinity is no signal too")
        << QVariant(readingList(valueRecord(fixedDBm(), -std::numeric_limits<double>::infinity()), {},
                                valueRecord(fixedDBm(), -120.0), valueRecord(fixedDBm(), 20.0)))
        << QString() << -1 << shownAs(" 20.0 dBm", " -120.0 dBm", -120.0, -120.0, 20.0);
    QTest::newRow("no reading: NaN drawn at the lower limit")
        << QVariant(wattReading(qQNaN(), 1.0, 5.0, {1})) << QString() << -1 << shownAs(" 5.0 W", " 1.0 W", 1.0, 1.0, 5.0, 4);
    QTest::newRow("unit from the list, digits down to the first significant one")
        << QVariant(wattReading(0.02, 0.001, 0.05)) << QStringLiteral("0,0,6:1;0:0;0:0;0:0;0:0|0,-3,6:1;0:0;0:0;0:0;0:0")
        << 0 << shownAs(" 0.050 W", " 0.0010 W", 0.02, 0.001, 0.05);
    QTest::newRow("second unit of the list, whatever the limits")
        << QVariant(wattReading(0.02, 0.001, 0.05)) << QStringLiteral("0,0,6:1;0:0;0:0;0:0;0:0|0,-3,6:1;0:0;0:0;0:0;0:0")
        << 1 << shownAs(" 50.0 mW", " 1.0 mW", 20.0, 1.0, 50.0);
}

void tst_QKXMeterBar::readingDrawnInDisplayUnit()
{
    QFETCH(QVariant, readingList);
    QFETCH(QString, unitList);
    QFETCH(int, unitIndex);
    QFETCH(QString, shown);

    Meter m;
    if (!unitList.isEmpty())
        m.meter.setUnitListString(unitList);
    m.meter.setUnitIndex(unitIndex);
    DebugLines lines;
    m.meter.setValue(readingList);
    QCOMPARE(m.shown(), shown);
    QCOMPARE(lines.lines(), QStringList());
    QCOMPARE(m.meter.readingTypes(), QVariant(QVariantList{QVariant(QVariantList{0, QStringLiteral("Average")})}));
}

void tst_QKXMeterBar::barStateFromStatusFlags_data()
{
    QTest::addColumn<QList<int>>("flags");
    QTest::addColumn<int>("state");
    QTest::newRow("4 and 7") << QList<int>{4, 7} << 0;
    QTest::newRow("4") << QList<int>{4} << 2;
    QTest::newRow("4 outranks the rest") << QList<int>{1, 2, 3, 4, 5, 6} << 2;
    QTest::newRow("1") << QList<int>{1} << 4;
    QTest::newRow("1 before 6") << QList<int>{1, 6} << 4;
    QTest::newRow("6") << QList<int>{6} << 6;
    QTest::newRow("3") << QList<int>{3} << 5;
    QTest::newRow("2") << QList<int>{2} << 8;
    QTest::newRow("5") << QList<int>{5} << 7;
    QTest::newRow("7") << QList<int>{7} << 3;
    QTest::newRow("none") << QList<int>{} << 0;
}

void tst_QKXMeterBar::barStateFromStatusFlags()
{
    QFETCH(QList<int>, flags);
    QFETCH(int, state);
    Meter m;
    QVariantList list = wattReading(1.0, 0.0, 5.0);
    for (int flag : flags)
        list[flag] = true;
    m.meter.setValue(list);
    QCOMPARE(m.bar->barState(), state);
}

void tst_QKXMeterBar::readingTypeAndUnitTakeEffectWithNextList()
{
    Meter m;
    const auto twoTypes = [](const char *first, const char *second, double peak) {
        QVariantList list = wattReading(1.0, 0.0, 5.0);
        list[0] = QVariantList{QVariant(QVariantList{QLatin1String(first), valueRecord(watt(), 1.0)}),
                               QVariant(QVariantList{QLatin1String(second), valueRecord(watt(), peak)})};
        return list;
    };
    m.meter.setValue(twoTypes("Average", "Peak", 2.0));
    m.meter.setReadingTypeIndex(1);
    m.meter.setUnitListString(QStringLiteral("0,3,6:1;0:0;0:0;0:0;0:0|0,-3,6:1;0:0;0:0;0:0;0:0"));
    m.meter.setUnitIndex(1);
    QCOMPARE(m.bar->value(), 1.0 * 1e5);

    m.meter.setValue(twoTypes("RMS", "Max", 3.0));
    QCOMPARE(m.shown(), shownAs(" 5000.0 mW", " 0.0 mW", 3000.0, 0.0, 5000.0));
    const QVariantList firstNames{QVariant(QVariantList{0, QStringLiteral("Average")}),
                                  QVariant(QVariantList{1, QStringLiteral("Peak")})};
    QCOMPARE(m.meter.readingTypes(), QVariant(firstNames));

    m.meter.setUnitIndex(-1);
    m.meter.setValue(twoTypes("RMS", "Max", 3.0));
    QCOMPARE(m.shown(), shownAs(" 5.0 W", " 0.0 W", 3.0, 0.0, 5.0));
}

void tst_QKXMeterBar::invalidReadingLists_data()
{
    QTest::addColumn<QVariant>("readingList");
    QTest::newRow("null") << QVariant();
    QTest::newRow("empty list") << QVariant(QVariantList());
    QTest::newRow("no reading types") << QVariant(QVariantList{QVariantList(), true, false});
    QTest::newRow("reading types no list") << QVariant(QVariantList{QStringLiteral("Average"), true});
}

void tst_QKXMeterBar::invalidReadingLists()
{
    QFETCH(QVariant, readingList);
    Meter m;
    DebugLines lines;
    m.meter.setValue(readingList);
    QCOMPARE(lines.lines(), QStringList{QStringLiteral("UserInterface - ReadingList is either NULL or invalid!")});
    QCOMPARE(m.shown(), QStringLiteral("2000 MHz|10 KHz|50 0 100 state 0"));
}

void tst_QKXMeterBar::unreadableReadingListsKeepTheDisplay_data()
{
    QTest::addColumn<QVariant>("readingList");
    QTest::addColumn<QString>("unitList");
    QTest::addColumn<QString>("mentions");

    const double inf = std::numeric_limits<double>::infinity();
    QVariantList shortList = wattReading(1.0, 0.0, 5.0);
    shortList.removeLast();
    QVariantList noPair = wattReading(1.0, 0.0, 5.0);
    noPair[0] = QVariantList{QStringLiteral("Average")};
    QVariantList flagList = wattReading(1.0, 0.0, 5.0);
    flagList[3] = QVariantList{true};
    QVariantList threeFields = wattReading(1.0, 0.0, 5.0);
    threeFields[9] = QVariantList{watt(), 0.0, 5.0};
    QVariantList unitNoText = wattReading(1.0, 0.0, 5.0);
    unitNoText[8] = QVariantList{6, 0.0, 0.0, 0.0};

    QTest::newRow("nine elements") << QVariant(shortList) << QString() << QStringLiteral("9 elements");
    QTest::newRow("type no pair") << QVariant(noPair) << QString() << QStringLiteral("reading type 0 is");
    QTest::newRow("flag a list") << QVariant(flagList) << QString() << QStringLiteral("status flag 3");
    QTest::newRow("record of three") << QVariant(threeFields) << QString() << QStringLiteral("upper limit");
    QTest::newRow("units no text") << QVariant(unitNoText) << QString() << QStringLiteral("lower limit");
    QTest::newRow("value no number")
        << QVariant(readingList(QVariantList{watt(), 0.0, 0.0, QStringLiteral("high")}, {}, valueRecord(watt(), 0.0),
                                valueRecord(watt(), 5.0)))
        << QString() << QStringLiteral("\"high\"");
    QTest::newRow("NaN value") << QVariant(wattReading(qQNaN(), 0.0, 5.0)) << QString() << QStringLiteral("reading nan");
    QTest::newRow("infinite limit") << QVariant(wattReading(1.0, 0.0, inf)) << QString() << QStringLiteral("and inf");
    QTest::newRow("NaN limit, even without reading") << QVariant(wattReading(1.0, qQNaN(), 5.0, {1})) << QString()
                                                     << QStringLiteral("between nan");
    QTest::newRow("too large to draw") << QVariant(wattReading(1e305, 0.0, 5.0)) << QString()
                                       << QStringLiteral("reading 1e+305");
    QTest::newRow("unit index past the list") << QVariant(wattReading(1.0, 0.0, 5.0)) << watt()
                                              << QStringLiteral("unit index 1");
}

void tst_QKXMeterBar::unreadableReadingListsKeepTheDisplay()
{
    QFETCH(QVariant, readingList);
    QFETCH(QString, unitList);
    QFETCH(QString, mentions);

    Meter m;
    m.meter.setValue(wattReading(2.0, 0.0, 4.0, {4}));
    const QString before = m.shown();
    if (!unitList.isEmpty()) {
        m.meter.setUnitListString(unitList);
        m.meter.setUnitIndex(1);
    }
    DebugLines lines;
    m.meter.setValue(readingList);
    QCOMPARE(lines.lines().size(), 1);
    const QString line = lines.lines().first();
    QVERIFY2(line.startsWith(QLatin1String("UserInterface - QKXMeterBar \"powerMeter\"")) && line.contains(mentions),
             qPrintable(line));
    QCOMPARE(m.shown(), before);
}

void tst_QKXMeterBar::mismatchedUnitsWarn_data()
{
    QTest::addColumn<QString>("valueUnit");
    QTest::addColumn<QString>("lowerUnit");
    QTest::addColumn<QString>("upperUnit");
    // The limits disagree: no unit reads best for both.
    QTest::newRow("limits of two kinds") << watt() << hertzUnits() << watt();
    // The limits agree with each other but not with the reading.
    QTest::newRow("reading of another kind") << watt() << hertzUnits() << hertzUnits();
}

void tst_QKXMeterBar::mismatchedUnitsWarn()
{
    QFETCH(QString, valueUnit);
    QFETCH(QString, lowerUnit);
    QFETCH(QString, upperUnit);

    Meter m;
    m.meter.setValue(wattReading(2.0, 0.0, 4.0));
    const QString before = m.shown();
    DebugLines lines;
    m.meter.setValue(readingList(valueRecord(valueUnit, 2.5), {}, valueRecord(lowerUnit, 1.0), valueRecord(upperUnit, 9.0)));

    QString widget;
    QDebug(&widget) << static_cast<QWidget *>(&m.meter);
    const QString expected = QStringLiteral("UserInterface - >>>>> MeterBar received mismatched unit types: %1 \n"
                                            "   -       Value:  2.5 \n"
                                            "   -     Reading:  \"%2\" \n"
                                            "   - Lower Limit:  \"%3\" \n"
                                            "   - Upper Limit:  \"%4\" \n")
                                 .arg(widget.trimmed(), valueUnit, lowerUnit, upperUnit);
    QCOMPARE(lines.lines(), QStringList{expected});
    QCOMPARE(m.shown(), before);
}

void tst_QKXMeterBar::sizesAndOrientations()
{
    Meter m;
    m.meter.setMaxBarWidth(120);
    const QString border = CSS::border();
    const QString vertical = QStringLiteral(
        "QFrame {  background: transparent;}"
        "QFrame#topCap {  border: 3px solid %1;  border-bottom-width: 0px;  border-top-left-radius: 20px;"
        "  border-top-right-radius: 20px;  min-height: 30px;}"
        "QFrame#bottomCap {  border: 3px solid %1;  border-top-width: 0px;  border-bottom-left-radius: 20px;"
        "  border-bottom-right-radius: 20px;  min-height: 30px;}"
        "QFrame#m_BarMid {  border: 3px solid %1;  border-top-width: 0px;  border-bottom-width: 0px;}"
        "QLabel#MetBar_Scale {  color: #fff;  border: 4px solid %1;  border-radius: 14px;"
        "  margin: 0px 0px 0px 14px;  padding: 0px 0px 0px 10px;}").arg(border);
    const QString horizontal = QStringLiteral(
        "QFrame {  background: transparent;}"
        "QFrame#rightCap {  border: 2px solid %1;  border-left-width: 0px;  border-top-right-radius: 10px;"
        "  border-bottom-right-radius: 10px;  min-width: 11px;}"
        "QFrame#leftCap {  border: 2px solid %1;  border-right-width: 0px;  border-bottom-left-radius: 10px;"
        "  border-top-left-radius: 10px;  min-width: 11px;}"
        "QFrame#m_BarMid {  border: 2px solid %1;  border-right-width: 0px;  border-left-width: 0px;}"
        "QLabel#MetBar_Scale {  color: #fff;  border: 4px solid %1;  border-radius: 14px;"
        "  margin: 0px 0px 0px 0px;  padding: 0px 0px 0px 0px;}").arg(border);
    QCOMPARE(m.meter.styleSheet(), vertical);

    // The caps' names are what the sheets select on; the labels of the vertical bar show only there.
    const auto layout = [&m] {
        QStringList names;
        for (QFrame *frame : m.meterFrame->findChildren<QFrame *>(QString(), Qt::FindDirectChildrenOnly))
            names << frame->objectName();
        names.sort();
        return QStringLiteral("%1 %2 %3 %4 %5x%6-%7x%8")
            .arg(m.meter.currentSize(), names.join(QLatin1Char(',')))
            .arg(m.meter.horizontal())
            .arg(m.maxScale->isVisibleTo(&m.meter))
            .arg(m.meterFrame->minimumWidth())
            .arg(m.meterFrame->minimumHeight())
            .arg(m.meterFrame->maximumWidth())
            .arg(m.meterFrame->maximumHeight());
    };
    m.meter.changeSize(QStringLiteral("Thumb"));
    QCOMPARE(layout(), QStringLiteral("Thumb leftCap,m_BarMid,rightCap 1 0 0x30-16777215x30"));
    QCOMPARE(m.meter.styleSheet(), horizontal);
    QVERIFY(m.bar->isHorizontal());

    m.meter.changeSize(QStringLiteral("Max"));
    QCOMPARE(layout(), QStringLiteral("Max bottomCap,m_BarMid,topCap 0 1 120x0-120x16777215"));
    QCOMPARE(m.meter.styleSheet(), vertical);

    m.meter.changeSize(QStringLiteral("Min"));
    m.meter.setHorizontal(true);
    QCOMPARE(layout(), QStringLiteral("Thumb leftCap,m_BarMid,rightCap 1 0 0x30-16777215x30"));
    // Vertical again, but still in size "Thumb" with its sheet and its fixed height.
    m.meter.setHorizontal(false);
    QCOMPARE(layout(), QStringLiteral("Thumb bottomCap,m_BarMid,topCap 0 1 0x30-16777215x30"));
    QCOMPARE(m.meter.styleSheet(), horizontal);
}

void tst_QKXMeterBar::hiddenMeterStoresWithoutDrawing()
{
    Meter m;
    m.meter.setValue(wattReading(1.0, 0.0, 5.0));
    const QString drawn = m.shown();
    m.meter.hide();
    m.meter.setValue(wattReading(3.0, 0.0, 50.0, {4}));
    QCOMPARE(m.shown(), drawn);
    m.meter.show();
    QCOMPARE(m.shown(), drawn);
    m.meter.setValue(wattReading(3.0, 0.0, 50.0, {4}));
    QCOMPARE(m.shown(), shownAs(" 50.0 W", " 0.0 W", 3.0, 0.0, 50.0, 2));

    // A meter that has never drawn draws its first list even while hidden.
    Meter hidden(false);
    hidden.meter.setValue(wattReading(1.0, 0.0, 5.0));
    QCOMPARE(hidden.shown(), shownAs(" 5.0 W", " 0.0 W", 1.0, 0.0, 5.0));
}

void tst_QKXMeterBar::labelsSitOnTheBarEnds()
{
    Meter m;
    m.meter.setValue(wattReading(1.0, 0.0, 5.0));
    const auto check = [&m] {
        const QRect barRect(m.bar->mapTo(&m.meter, QPoint(0, 0)), m.bar->size());
        QCOMPARE(m.maxScale->x(), barRect.right() + 1 - 20);
        QCOMPARE(m.minScale->x(), barRect.right() + 1 - 20);
        QCOMPARE(m.maxScale->y() + m.maxScale->height() / 2, barRect.top());
        QCOMPARE(m.minScale->y() + m.minScale->height() / 2, barRect.top() + barRect.height());
        QCOMPARE(m.maxScale->size(), m.maxScale->sizeHint());
    };
    check();
    m.meter.resize(240, 420);
    QTRY_COMPARE(m.bar->height() > 300, true);
    check();
}

void tst_QKXMeterBar::unchangedDisplayCostsNoRepolish()
{
    Meter m;
    m.meter.setValue(wattReading(1.0, 0.0, 5.0));
    QCoreApplication::processEvents();
    RepolishCounter counter(&m.meter);
    m.meter.setValue(wattReading(1.0, 0.0, 5.0));
    // A new unit text brings the style up to date, which finds nothing to change.
    m.meter.setValue(readingList(valueRecord(hertzUnits(), 10.0), {}, valueRecord(hertzUnits(), 0.0),
                                 valueRecord(hertzUnits(), 20.0)));
    QCoreApplication::processEvents();
    QCOMPARE(counter.count, 0);
}

QTEST_MAIN(tst_QKXMeterBar)
#include "tst_QKXMeterBar.moc"
