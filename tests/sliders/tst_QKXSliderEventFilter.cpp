// SPDX-License-Identifier: BSD-3-Clause
// The slider filter: the lock is held while the finger is down, values leave only during the edit,
// and the edit ends when the finger lifts, wherever that is.
#define QTEST_QPA_MOUSE_HANDLING
#include <QtTest>

#include "QKXSliderEventFilter.h"
#include "QKXSliderHorizontal.h"
#include "QKXSliderVertical.h"
#include "SliderTestSupport.h"

using namespace kxtest;

namespace {

// A slider on a window with its filter wired as a host wires it: the handle's values are fed to the
// filter, and the lock is granted from the event loop.
template <typename Slider>
struct SliderScreen
{
    SliderScreen()
    {
        window.resize(400, 400);
        slider->setGeometry(20, 20, 300, 300);
        slider->setValue(40);
        slider->installEventFilter(filter);
        QObject::connect(slider, &Slider::valueChanged, filter, &QKXSliderEventFilter::submitWidgetValue);
        QObject::connect(filter, &QKXEventFilterBase::attemptSetLock, [this](QWidget *widget, bool locked) {
            road << (locked ? "lock" : "release");
            if (locked && grant)
                QTimer::singleShot(0, filter, [this, widget] { filter->lockAcquired(widget); });
        });
        QObject::connect(filter, &QKXEventFilterBase::editStart, [this] { road << "editStart"; });
        QObject::connect(filter, &QKXEventFilterBase::editEnd, [this] { road << "editEnd"; });
        QObject::connect(filter, &QKXEventFilterBase::showGuiLockedMessage, [this] { road << "locked notice"; });
        QObject::connect(filter, &QKXSliderEventFilter::submit, [this](int v) { road << QString::number(v); });
    }
    bool show(bool start = true)
    {
        window.show();
        if (start)
            filter->startMachine();
        const bool shown = QTest::qWaitForWindowExposed(&window);
        QTest::qWait(10);
        road.clear();
        return shown;
    }
    QSlider *handle() const { return slider->template findChild<QSlider *>(); }

    QStringList road;
    bool grant = true;
    QWidget window;
    Slider *slider = new Slider(&window);
    QKXSliderEventFilter *filter = new QKXSliderEventFilter(slider);
};

} // namespace

class tst_QKXSliderEventFilter : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { qApp->setProperty("guilocked", QVariant()); }
    void pressAsksForTheLock_data();
    void pressAsksForTheLock();
    void horizontalDragSubmitsWhileTheFingerIsDown();
    void verticalSubmitsNothingOfADrag();
    void valuesOnlyBetweenGrantAndEnd();
};

void tst_QKXSliderEventFilter::pressAsksForTheLock_data()
{
    QTest::addColumn<bool>("readOnly");
    QTest::addColumn<bool>("guiLocked");
    QTest::addColumn<QPoint>("at");
    QTest::addColumn<QStringList>("road");

    // The road up to the release: the press alone, with the grant it may bring.
    QTest::newRow("inside") << false << false << QPoint(150, 150) << QStringList{"lock", "editStart"};
    QTest::newRow("interface locked") << false << true << QPoint(150, 150) << QStringList{"locked notice"};
    QTest::newRow("read-only") << true << false << QPoint(150, 150) << QStringList();
    QTest::newRow("outside the widget") << false << false << QPoint(-10, 150) << QStringList();
}

void tst_QKXSliderEventFilter::pressAsksForTheLock()
{
    QFETCH(bool, readOnly);
    QFETCH(bool, guiLocked);
    QFETCH(QPoint, at);
    QFETCH(QStringList, road);

    SliderScreen<QKXSliderHorizontal> screen;
    screen.slider->setReadOnly(readOnly);
    qApp->setProperty("guilocked", guiLocked);
    QVERIFY(screen.show());
    QMouseEvent press(QEvent::MouseButtonPress, at, screen.slider->mapToGlobal(at), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(screen.slider, &press);
    QTest::qWait(20);
    QCOMPARE(screen.road, road);
}

// Press, the host's grant, a drag of 40 pixels along the slider and a release 400 pixels away.
template <typename Slider>
static QString dragWithGrant(SliderScreen<Slider> &screen, const QPoint &along)
{
    QSlider *handle = screen.handle();
    QPoint at = handleRect(handle).center();
    QTest::mousePress(handle, Qt::LeftButton, Qt::NoModifier, at);
    QTest::qWait(20);
    QTest::mouseMove(handle, at += along);
    const QString dragged = QString::number(handle->value());
    QTest::mouseMove(handle, at += QPoint(400, 400) - along * 10);
    QTest::mouseRelease(handle, Qt::LeftButton, Qt::NoModifier, at);
    QTest::qWait(20);
    return dragged;
}

void tst_QKXSliderEventFilter::horizontalDragSubmitsWhileTheFingerIsDown()
{
    SliderScreen<QKXSliderHorizontal> screen;
    QVERIFY(screen.show());
    const QString dragged = dragWithGrant(screen, QPoint(40, 0));
    // The finger lifts away from the widget: the edit ends all the same.
    QCOMPARE(screen.road, QStringList({"lock", "editStart", dragged, "release", "editEnd", "release"}));
}

void tst_QKXSliderEventFilter::verticalSubmitsNothingOfADrag()
{
    // The vertical slider speaks when the finger lifts, after the release has ended the edit.
    SliderScreen<QKXSliderVertical> screen;
    QVERIFY(screen.show());
    QSignalSpy values(screen.slider, &QKXSliderVertical::valueChanged);
    dragWithGrant(screen, QPoint(0, -40));
    QCOMPARE(values.count(), 1);
    QCOMPARE(values.first().first().toInt(), screen.handle()->value());
    QCOMPARE(screen.slider->value(), 40);   // until the host sets it
    QCOMPARE(screen.road, QStringList({"lock", "editStart", "release", "editEnd", "release"}));
}

void tst_QKXSliderEventFilter::valuesOnlyBetweenGrantAndEnd()
{
    SliderScreen<QKXSliderHorizontal> screen;
    screen.grant = false;
    QVERIFY(screen.show(false));
    // Before the host starts the machine, a grant starts no edit.
    screen.filter->lockAcquired(screen.slider);
    screen.filter->submitWidgetValue(7);
    QTest::qWait(10);
    QCOMPARE(screen.road, QStringList{"editStart"});

    screen.filter->startMachine();
    QTest::qWait(10);
    screen.road.clear();
    screen.filter->lockAcquired(&screen.window);   // another widget's grant
    screen.filter->submitWidgetValue(7);
    screen.filter->lockAcquired(screen.slider);
    QVERIFY(QTest::qWaitFor([&] { return screen.filter->isSubmitting(); }));
    screen.filter->submitWidgetValue(8);
    screen.filter->cancel();
    QVERIFY(QTest::qWaitFor([&] { return !screen.filter->isSubmitting(); }));
    screen.filter->submitWidgetValue(9);
    QCOMPARE(screen.road, QStringList({"editStart", "8", "editEnd", "release"}));
    QCOMPARE(screen.slider->value(), 40);   // a cancel gives nothing back
}

QTEST_MAIN(tst_QKXSliderEventFilter)
#include "tst_QKXSliderEventFilter.moc"
