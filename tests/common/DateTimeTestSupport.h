// SPDX-License-Identifier: BSD-3-Clause
#ifndef DATETIMETESTSUPPORT_H
#define DATETIMETESTSUPPORT_H

// What the date and time tests share: one time zone for every run, whatever the machine's, and
// counts of seconds written as the local dates and times they stand for.

#include <QtTest>

#include <QDateTime>
#include <QSpinBox>
#include <QStyle>
#include <QStyleOptionSpinBox>

#include <algorithm>
#include <ctime>

#include "KXTestSupport.h"

namespace kxtest {

// Set before main() and so before the application reads the zone. Berlin's clocks go from 02:00 to
// 03:00 on 28 March 2021 and from 03:00 back to 02:00 on 31 October 2021.
inline const bool berlinTimeZone = [] {
    qputenv("TZ", "Europe/Berlin");
    tzset();
    return true;
}();

// The count of a Berlin wall-clock time (the first of two, where the clocks went back).
inline qlonglong berlin(int year, int month, int day, int hour = 12, int minute = 0, int second = 0)
{
    return QDateTime(QDate(year, month, day), QTime(hour, minute, second)).toSecsSinceEpoch();
}

// An editor's children of the class (and name) from left to right.
template <typename Child = QSpinBox>
inline QList<Child *> columnsOf(QWidget *editor, const QString &name = QString())
{
    // An editor just opened may not be laid out yet.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    QList<Child *> children = editor->findChildren<Child *>(name);
    std::sort(children.begin(), children.end(), [](Child *a, Child *b) { return a->x() < b->x(); });
    return children;
}

template <typename Child = QSpinBox>
inline QStringList columnTexts(QWidget *editor, const QString &name = QString())
{
    QStringList texts;
    for (Child *child : columnsOf<Child>(editor, name))
        texts << child->text();
    return texts;
}

// Clicks a spin box's arrow where the editor's sheet puts it.
inline void clickArrow(QSpinBox *spin, bool up, int times = 1)
{
    QStyleOptionSpinBox option;
    option.initFrom(spin);
    option.subControls = QStyle::SC_SpinBoxUp | QStyle::SC_SpinBoxDown | QStyle::SC_SpinBoxEditField;
    option.buttonSymbols = spin->buttonSymbols();
    option.stepEnabled = QAbstractSpinBox::StepUpEnabled | QAbstractSpinBox::StepDownEnabled;
    option.frame = spin->hasFrame();
    const QRect arrow = spin->style()->subControlRect(QStyle::CC_SpinBox, &option,
                                                      up ? QStyle::SC_SpinBoxUp : QStyle::SC_SpinBoxDown, spin);
    for (int i = 0; i < times; ++i)
        QTest::mouseClick(spin, Qt::LeftButton, Qt::NoModifier, arrow.center());
}

} // namespace kxtest

#endif // DATETIMETESTSUPPORT_H
