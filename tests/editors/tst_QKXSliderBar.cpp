// SPDX-License-Identifier: BSD-3-Clause
// The slider popup of a numeric field: its range, step and unit from the field, and every value the
// finger reaches submitted live through the field's filter.
#define QTEST_QPA_MOUSE_HANDLING
#include <QtTest>

#include <QLabel>

#include "KXStepPower_p.h"
#include "QKXSliderBar.h"
#include "QKXSliderEventFilter.h"
#include "SliderBarImpl.h"

#include "LiveEditorTestSupport.h"

using namespace kxtest;

namespace {

struct SliderScreen : LiveScreen<QKXSliderBar>
{
    explicit SliderScreen(const QString &dataType, double value = 150.0, int precision = 0)
        : LiveScreen(dataType, value, precision)
    {
        editor = new QKXSliderBar(&window);
    }
    // The point of the bar where the finger chooses the value.
    QPoint at(double value) const
    {
        SliderBarImpl *bar = editor->sliderBar();
        for (int x = 0; x < bar->width(); ++x) {
            if (bar->valueAt(x) == value)
                return QPoint(x, bar->height() / 2);
        }
        return QPoint(-1, -1);
    }
};

} // namespace

class tst_QKXSliderBar : public QObject
{
    Q_OBJECT

private slots:
    void dragSubmitsLiveInTheDataTypesForm_data();
    void dragSubmitsLiveInTheDataTypesForm();
    void hiddenChangesAreNotSubmitted();
    void initialStep_data();
    void initialStep();
    void unitFieldGivesRangeAndUnit();
    void confirmCancelAndRotate();
    void cancelReachesOnlyASliderFilter();
    void unknownDataTypeAndBadText();
};

void tst_QKXSliderBar::dragSubmitsLiveInTheDataTypesForm_data()
{
    QTest::addColumn<QString>("dataType");
    QTest::addColumn<QStringList>("road");

    // Pressed at 100, dragged to 200 and on beyond the bar's end, where nothing changes any more.
    QTest::newRow("Int") << "Int" << QStringList{"int 100", "int 200"};
    QTest::newRow("Double") << "Double" << QStringList{"double 100", "double 200"};
}

void tst_QKXSliderBar::dragSubmitsLiveInTheDataTypesForm()
{
    QFETCH(QString, dataType);
    QFETCH(QStringList, road);

    SliderScreen screen(dataType);
    QVERIFY(screen.open());
    SliderBarImpl *bar = screen.editor->sliderBar();
    QCOMPARE(screen.editor->indicator()->text(), QStringLiteral("150"));
    QCOMPARE(screen.editor->property("Power").toInt(), 0);   // 150 steps by 1, as the spinner would
    QVERIFY(screen.at(100.0).x() > 0 && screen.at(200.0).x() > 0);
    QTest::mousePress(bar, Qt::LeftButton, Qt::NoModifier, screen.at(100.0));
    QTest::mouseMove(bar, screen.at(200.0));
    QTest::mouseMove(bar, QPoint(bar->width() + 40, 5));
    QTest::mouseRelease(bar, Qt::LeftButton, Qt::NoModifier, QPoint(bar->width() + 40, 5));
    QCOMPARE(screen.road, road);
    QCOMPARE(screen.editor->indicator()->text(), QStringLiteral("200"));
    QVERIFY(screen.filter->isEditing());
}

void tst_QKXSliderBar::hiddenChangesAreNotSubmitted()
{
    SliderScreen screen(QStringLiteral("Double"));
    QVERIFY(screen.open());
    screen.editor->hide();
    screen.editor->updateValue(QStringLiteral("120"), QString());
    QCOMPARE(screen.editor->indicator()->text(), QStringLiteral("120"));
    screen.editor->show();
    QTest::mouseClick(screen.editor->key(QStringLiteral("StepUp")), Qt::LeftButton);
    QCOMPARE(screen.road, QStringList{"double 121"});
}

void tst_QKXSliderBar::initialStep_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("precision");
    QTest::addColumn<double>("power");

    // The spinner's and the slider bar's first step, at the edges of its digit counts.
    QTest::newRow("99, whole: ones") << 99.0 << 0 << 0.0;
    QTest::newRow("100, whole: tens") << 100.0 << 0 << 1.0;
    QTest::newRow("150, whole: ones") << 150.0 << 0 << 0.0;
    QTest::newRow("2500, whole: tens") << 2500.0 << 0 << 1.0;
    QTest::newRow("100, one decimal: tenths") << 100.0 << 1 << -1.0;
    QTest::newRow("999.9, one decimal: ones") << 999.9 << 1 << 0.0;
    QTest::newRow("1000, one decimal: tens") << 1000.0 << 1 << 1.0;
    QTest::newRow("0.5, five decimals: hundredths") << 0.5 << 5 << -2.0;
}

void tst_QKXSliderBar::initialStep()
{
    QFETCH(double, value);
    QFETCH(int, precision);
    QFETCH(double, power);
    QCOMPARE(kxstep::initialPower(value, precision), power);
}

void tst_QKXSliderBar::unitFieldGivesRangeAndUnit()
{
    QWidget window;
    window.resize(800, 480);
    FrequencyField frequency(&window);
    auto *slider = new QKXSliderBar(&window);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    slider->registerWidget(frequency.filter, frequency.field);

    QCOMPARE(slider->minimum(), 0.0);
    QCOMPARE(slider->maximum(), 10.0);
    QCOMPARE(slider->indicator()->text(), QStringLiteral("2.5"));
    QCOMPARE(slider->step(), 0.1);
    QLabel *unit = slider->unitLabel();
    QVERIFY(unit->isVisible());
    QCOMPARE(unit->text(), QStringLiteral("kHz"));
    // The unit closes the indicator's box on the right.
    QCOMPARE(unit->geometry().right() + 1, slider->width() - 10);
    QCOMPARE(unit->geometry().top(), slider->indicator()->geometry().top());
    QTest::mouseClick(slider->key(QStringLiteral("StepDown")), Qt::LeftButton);
    QCOMPARE(frequency.road, QStringList{"2.4 " + kilohertz()});
}

void tst_QKXSliderBar::confirmCancelAndRotate()
{
    SliderScreen screen(QStringLiteral("Double"));
    QVERIFY(screen.open());
    QSignalSpy rotations(screen.editor, &QKXSliderBar::rotateEntry);
    QTest::mouseClick(screen.editor->key(QStringLiteral("RotateEntry")), Qt::LeftButton);
    QCOMPARE(rotations.count(), 1);

    // Confirming ends the edit: the values went out as the slider moved.
    QTest::mouseClick(screen.editor->key(QStringLiteral("StepUp")), Qt::LeftButton);
    QTest::mouseClick(screen.editor->key(QStringLiteral("SliderEnter")), Qt::LeftButton);
    QVERIFY(screen.waitForEnd());
    QCOMPARE(screen.road, QStringList({"double 151", "editEnd", "release"}));
    QVERIFY(!screen.editor->isVisible());
    QVERIFY(!screen.editor->registeredFilter());

    // Cancel gives the engine back the value the edit began with.
    QVERIFY(screen.open());
    QTest::mouseClick(screen.editor->key(QStringLiteral("StepUp")), Qt::LeftButton);
    QTest::mouseClick(screen.editor->key(QStringLiteral("SliderCancel")), Qt::LeftButton);
    QVERIFY(screen.waitForEnd());
    QCOMPARE(screen.road, QStringList({"double 151", "double 150", "editEnd", "release"}));
}

void tst_QKXSliderBar::cancelReachesOnlyASliderFilter()
{
    SliderScreen screen(QStringLiteral("Double"));
    QVERIFY(screen.open());
    screen.editor->cancel();
    QCOMPARE(screen.road, QStringList());

    QWidget owner;
    auto *sliderFilter = new QKXSliderEventFilter(&owner);
    sliderFilter->setProperty("DataType", QStringLiteral("Int"));
    QSignalSpy ends(sliderFilter, &QKXEventFilterBase::editEnd);
    QVERIFY(screen.open());
    // A second registration takes the bar over; ending the first edit is the host's business.
    screen.editor->registerWidget(sliderFilter, screen.field);
    QCOMPARE(screen.road, QStringList());
    QVERIFY(screen.filter->isEditing());
    screen.editor->cancel();
    QCOMPARE(ends.count(), 1);
    QVERIFY(!screen.editor->isVisible());
}

void tst_QKXSliderBar::unknownDataTypeAndBadText()
{
    DebugLines lines;
    SliderScreen screen(QStringLiteral("Text"));
    QVERIFY(screen.open());
    QTest::mouseClick(screen.editor->key(QStringLiteral("StepUp")), Qt::LeftButton);
    QCOMPARE(screen.road, QStringList());
    QCOMPARE(lines.lines().size(), 1);
    QVERIFY(lines.lines().first().startsWith(
        "UserInterface - QKXSlider attempting to register unknown data type: \"Text\" Widget: QKXNumeric("));
}

QTEST_MAIN(tst_QKXSliderBar)
#include "tst_QKXSliderBar.moc"
