// SPDX-License-Identifier: BSD-3-Clause
#ifndef SLIDERTESTSUPPORT_H
#define SLIDERTESTSUPPORT_H

// What the slider tests share: where the handle of a slider widget is, and a finger that drags it
// through the window system.

#include <QtTest>

#include <QSlider>
#include <QStyle>
#include <QStyleOptionSlider>

namespace kxtest {

// The handle's rectangle in the inner slider's coordinates, as its style lays it out.
inline QRect handleRect(QSlider *slider)
{
    QStyleOptionSlider option;
    option.initFrom(slider);
    option.subControls = QStyle::SC_None;
    option.activeSubControls = QStyle::SC_None;
    option.orientation = slider->orientation();
    option.maximum = slider->maximum();
    option.minimum = slider->minimum();
    option.tickPosition = slider->tickPosition();
    option.tickInterval = slider->tickInterval();
    option.upsideDown = slider->orientation() == Qt::Horizontal
        ? slider->invertedAppearance() != (option.direction == Qt::RightToLeft)
        : !slider->invertedAppearance();
    option.direction = Qt::LeftToRight;
    option.sliderPosition = slider->sliderPosition();
    option.sliderValue = slider->value();
    option.singleStep = slider->singleStep();
    option.pageStep = slider->pageStep();
    if (slider->orientation() == Qt::Horizontal)
        option.state |= QStyle::State_Horizontal;
    return slider->style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, slider);
}

// Presses the handle, moves it by the offsets one after the other and lifts the finger where it is.
inline void dragHandle(QSlider *slider, const QList<QPoint> &offsets)
{
    QPoint at = handleRect(slider).center();
    QTest::mousePress(slider, Qt::LeftButton, Qt::NoModifier, at);
    for (const QPoint &offset : offsets) {
        at += offset;
        QTest::mouseMove(slider, at);
    }
    QTest::mouseRelease(slider, Qt::LeftButton, Qt::NoModifier, at);
}

} // namespace kxtest

#endif // SLIDERTESTSUPPORT_H
