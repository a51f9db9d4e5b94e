// SPDX-License-Identifier: BSD-3-Clause
// The horizontal slider: its value is the last one set, clamped; the handle announces every position.
#define QTEST_QPA_MOUSE_HANDLING
#include <QtTest>

#include "QKXSliderHorizontal.h"
#include "SliderTestSupport.h"

using namespace kxtest;

class tst_QKXSliderHorizontal : public QObject
{
    Q_OBJECT

private slots:
    void setValueClampsAndAnnounces_data();
    void setValueClampsAndAnnounces();
    void newLowerLimitMovesOnlyTheHandle();
    void dragAnnouncesEachPosition();
};

static QSlider *handleOf(QKXSliderHorizontal &widget)
{
    return widget.findChild<QSlider *>(QStringLiteral("HorizontalSlider"));
}

void tst_QKXSliderHorizontal::setValueClampsAndAnnounces_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("kept");
    QTest::addColumn<QList<int>>("announced");

    // The handle's own change announces the value, and setValue() announces it once more. A new
    // slider's handle stands at 1.
    QTest::newRow("inside") << 50 << 50 << QList<int>{50, 50};
    QTest::newRow("above the upper limit") << 150 << 100 << QList<int>{100, 100};
    QTest::newRow("below the lower limit") << -5 << 0 << QList<int>{0, 0};
    QTest::newRow("where the handle stands") << 1 << 1 << QList<int>{1};
}

void tst_QKXSliderHorizontal::setValueClampsAndAnnounces()
{
    QFETCH(int, value);
    QFETCH(int, kept);
    QFETCH(QList<int>, announced);

    QKXSliderHorizontal widget;
    QList<int> values;
    connect(&widget, &QKXSliderHorizontal::valueChanged, [&](int v) { values << v; });
    widget.setValue(value);
    QCOMPARE(widget.value(), kept);
    QCOMPARE(handleOf(widget)->value(), kept);
    QCOMPARE(values, announced);
}

void tst_QKXSliderHorizontal::newLowerLimitMovesOnlyTheHandle()
{
    QKXSliderHorizontal widget;
    widget.setValue(10);
    QList<int> values;
    connect(&widget, &QKXSliderHorizontal::valueChanged, [&](int v) { values << v; });
    widget.setLowerLimit(20);
    QCOMPARE(widget.value(), 10);
    QCOMPARE(handleOf(widget)->value(), 20);
    QCOMPARE(values, QList<int>{20});
}

void tst_QKXSliderHorizontal::dragAnnouncesEachPosition()
{
    QWidget window;
    auto *widget = new QKXSliderHorizontal(&window);
    widget->setGeometry(10, 10, 300, 60);
    window.resize(340, 100);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    widget->setValue(20);
    QList<int> values;
    connect(widget, &QKXSliderHorizontal::valueChanged, [&](int v) { values << v; });

    QSlider *handle = handleOf(*widget);
    dragHandle(handle, {QPoint(30, 0), QPoint(30, 0), QPoint(0, 25)});
    // Each new position while dragging, and the last one again as the finger lifts.
    QCOMPARE(values.size(), 3);
    QVERIFY(values.at(0) > 20 && values.at(1) > values.at(0));
    QCOMPARE(values.at(2), values.at(1));
    QCOMPARE(handle->value(), values.last());
    QCOMPARE(widget->value(), 20);
}

QTEST_MAIN(tst_QKXSliderHorizontal)
#include "tst_QKXSliderHorizontal.moc"
