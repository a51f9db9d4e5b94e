// SPDX-License-Identifier: BSD-3-Clause
// The host's slider popup: what the finger, the keys and typing do to the value, and which changes
// reach updateIndicatorValue().
#define QTEST_QPA_MOUSE_HANDLING
#include <QtTest>

#include <QLineEdit>
#include <QPushButton>

#include "SingleSliderImpl.h"
#include "SliderBarImpl.h"

namespace {

// Records every change the popup announces.
class RecordingSlider : public SingleSliderImpl
{
public:
    explicit RecordingSlider(QWidget *parent) : SingleSliderImpl(parent, 5.0, 0.0, 10.0, 1) {}
    QStringList changes;

protected:
    void updateIndicatorValue(const QString &value, const QString &unit) override
    {
        changes << (unit.isEmpty() ? value : value + ' ' + unit);
        SingleSliderImpl::updateIndicatorValue(value, unit);
    }
};

} // namespace

class tst_SingleSliderImpl : public QObject
{
    Q_OBJECT

private slots:
    void fingerKeysAndTyping();
    void stepStaysBetweenDecimalsAndRange();
};

void tst_SingleSliderImpl::fingerKeysAndTyping()
{
    QWidget window;
    window.resize(800, 480);
    auto *slider = new RecordingSlider(&window);
    window.show();
    slider->show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    slider->setStep(0.1);
    SliderBarImpl *bar = slider->sliderBar();

    // The finger lands on the grid of steps and stays within the limits, wherever it goes.
    QTest::mousePress(bar, Qt::LeftButton, Qt::NoModifier, QPoint(2, 10));
    QTest::mouseMove(bar, QPoint(bar->width() + 50, 10));
    QTest::mouseRelease(bar, Qt::LeftButton, Qt::NoModifier, QPoint(bar->width() + 50, 10));
    QTest::mouseClick(slider->key(QStringLiteral("StepUp")), Qt::LeftButton);   // at the limit: no change
    QTest::mouseClick(slider->key(QStringLiteral("StepDown")), Qt::LeftButton);
    slider->indicator()->setText(QStringLiteral("-3"));
    QTest::keyClick(slider->indicator(), Qt::Key_Return);
    slider->indicator()->setText(QStringLiteral("abc"));
    QTest::keyClick(slider->indicator(), Qt::Key_Return);
    QCOMPARE(slider->changes, QStringList({"0.0", "10.0", "9.9", "0.0"}));
    QCOMPARE(slider->indicator()->text(), QStringLiteral("0.0"));

    QTest::mouseClick(slider->key(QStringLiteral("SliderEnter")), Qt::LeftButton);
    QVERIFY(!slider->isVisible());
}

void tst_SingleSliderImpl::stepStaysBetweenDecimalsAndRange()
{
    QWidget window;
    auto *slider = new RecordingSlider(&window);
    slider->setStep(1.0);
    QPushButton *finer = slider->key(QStringLiteral("PowerDown"));
    QPushButton *coarser = slider->key(QStringLiteral("PowerUp"));
    finer->click();
    finer->click();
    QCOMPARE(slider->step(), 0.1);
    coarser->click();
    coarser->click();
    coarser->click();
    QCOMPARE(slider->step(), 10.0);
    // The digit one step changes is the one marked.
    slider->updateValue(QStringLiteral("7.5"), QString());
    QCOMPARE(slider->indicator()->selectedText(), QStringLiteral("7"));
    finer->click();
    finer->click();
    QCOMPARE(slider->indicator()->selectedText(), QStringLiteral("5"));
}

QTEST_MAIN(tst_SingleSliderImpl)
#include "tst_SingleSliderImpl.moc"
