// SPDX-License-Identifier: BSD-3-Clause
#ifndef LIVEEDITORTESTSUPPORT_H
#define LIVEEDITORTESTSUPPORT_H

// What the tests of the live editors share: a numeric field with its filter and an editor serving
// the field's edit, and a frequency field with units.

#include <QtTest>

#include <QLineEdit>
#include <QPushButton>

#include "QKXNumeric.h"
#include "QKXNumericEventFilter.h"
#include "QKXNumericValueObj.h"
#include "QKXNumericValueObjEventFilter.h"

#include "../common/NumericTestSupport.h"

namespace kxtest {

// A field "Channel" limited to [0, 200] with its filter (no adapter: a cancel gives back the field's
// value), on a window, and the editor the test makes for it. road logs the filter's traffic.
template <typename Editor>
struct LiveScreen
{
    LiveScreen(const QString &dataType, double value, int precision)
    {
        window.resize(800, 480);
        field->setObjectName(QStringLiteral("Channel"));
        field->setGeometry(40, 40, 200, 60);
        field->setPrecision(precision);
        field->setUpperLimit(200.0);
        field->setValue(value);
        filter = new QKXNumericEventFilter(field, dataType, nullptr);
        field->installEventFilter(filter);
        logFilter(filter, road);
    }
    // Shows the window, begins the field's edit and hands it to the editor.
    bool open()
    {
        window.show();
        if (!QTest::qWaitForWindowExposed(&window))
            return false;
        filter->lockAcquired(field);
        if (!QTest::qWaitFor([this] { return filter->isEditing(); }))
            return false;
        editor->registerWidget(filter, field);
        road.clear();
        return true;
    }
    bool waitForEnd() { return QTest::qWaitFor([this] { return !filter->isEditing(); }); }

    QStringList road;
    QWidget window;
    QKXNumeric *field = new QKXNumeric(&window);
    QKXNumericEventFilter *filter = nullptr;
    Editor *editor = nullptr;
};

// 2500 Hz shown in kHz with one decimal, limits 0 to 10 000 Hz, and its "ValueDouble" filter whose
// submits are logged as "value units".
struct FrequencyField
{
    explicit FrequencyField(QWidget *window)
    {
        field = new QKXNumericValueObj(window);
        field->setPrecision(1);
        field->setBaseUnit(hertz());
        field->setDefaultUnit(1);
        field->setUnitListString(frequencyUnits());
        field->setUpperLimit(10000.0);
        field->setValue(2500.0, hertz());
        filter = new QKXNumericValueObjEventFilter(field, QStringLiteral("ValueDouble"), nullptr, nullptr);
        QObject::connect(filter, QOverload<double, QString>::of(&QKXNumericValueObjEventFilter::submit),
                         [this](double v, const QString &unit) { road << QString::number(v) + ' ' + unit; });
    }
    QKXNumericValueObj *field;
    QKXNumericValueObjEventFilter *filter;
    QStringList road;
};

} // namespace kxtest

#endif // LIVEEDITORTESTSUPPORT_H
