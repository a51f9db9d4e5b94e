// SPDX-License-Identifier: BSD-3-Clause
#ifndef EDITORTESTSUPPORT_H
#define EDITORTESTSUPPORT_H

// A screen the way the host builds one for a numeric edit: a main window with a field and its filter,
// the numeric pad floating over the window, and the host's side of the protocol (the pad opens on
// editStart; the edit lock is granted from the event loop, as the host's lock owner does).

#include <QtTest>

#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTimer>

#include "QKXNumeric.h"
#include "QKXNumericEventFilter.h"
#include "QKXNumericValueObj.h"
#include "QKXNumericValueObjEventFilter.h"
#include "QKXNumpad.h"
#include "QKXRichTextPushButton.h"
#include "ValueHelper.h"

#include "../common/NumericTestSupport.h"

namespace kxtest {

class LockOwner : public QObject
{
    Q_OBJECT
public:
    QPointer<QWidget> holder;
    QStringList requests;

    void attach(QKXEditStateFilter *filter)
    {
        connect(filter, &QKXEventFilterBase::attemptSetLock, this, [this, filter](QWidget *widget, bool locked) {
            if (!locked) {
                if (holder == widget)
                    holder = nullptr;
                return;
            }
            requests << widget->objectName();
            if (holder && holder != widget)
                return;   // someone else edits: no grant
            holder = widget;
            QTimer::singleShot(0, filter, [filter, widget] { filter->lockAcquired(widget); });
        });
    }
};

template <typename Field, typename Filter>
struct PadScreen
{
    PadScreen(const char *name, int width)
    {
        window.resize(800, 480);
        window.setObjectName(QStringLiteral("MainWindow"));
        field->setObjectName(QLatin1String(name));
        field->setGeometry(40, 40, width, 60);
    }
    void install(Filter *installed)
    {
        filter = installed;
        field->installEventFilter(filter);
        lockOwner.attach(filter);
        // Through the host's own receiver: the pad cuts its connections with a filter after each edit.
        QObject::connect(filter, &QKXEventFilterBase::editStart, &lockOwner,
                         [this](QObject *f, QWidget *w) { pad->registerWidget(f, w); });
    }
    bool show()
    {
        window.show();
        return QTest::qWaitForWindowExposed(&window) && QTest::qWaitFor([this] { return !entry->isEnabled(); });
    }
    // A finger on the field: press and release through the window system.
    void tap()
    {
        const QPoint at = entry->geometry().center();
        QTest::mousePress(field, Qt::LeftButton, Qt::NoModifier, at);
        QTest::mouseRelease(field, Qt::LeftButton, Qt::NoModifier, at);
    }
    bool tapAndWaitForPad()
    {
        tap();
        return QTest::qWaitFor([this] { return pad->isVisible() && filter->isEditing(); });
    }
    void click(QPushButton *key)
    {
        QVERIFY2(key && key->isVisible() && key->isEnabled(), key ? qPrintable(key->objectName()) : "no key");
        QTest::mouseClick(key, Qt::LeftButton, Qt::NoModifier, key->rect().center());
    }
    void press(const QString &key) { click(pad->button(key)); }

    // The engine's side outlives the window, whose filter reports to it while going.
    LockOwner lockOwner;
    IntAdapter intAdapter{0};
    DoubleAdapter doubleAdapter{0.0};
    QStringList road;
    QWidget window;
    Field *field = new Field(&window);
    QLineEdit *entry = field->template findChild<QLineEdit *>();
    Filter *filter = nullptr;
    QKXNumpad *pad = new QKXNumpad(&window);
};

struct Screen : PadScreen<QKXNumeric, QKXNumericEventFilter>
{
    explicit Screen(const QString &dataType = QStringLiteral("Int")) : PadScreen("Channel", 200)
    {
        install(new QKXNumericEventFilter(field, dataType, dataType == QLatin1String("Double")
                                              ? static_cast<QObject *>(&doubleAdapter) : &intAdapter));
        logFilter(filter, road);
    }
};

// A frequency field: the engine keeps hertz (1 MHz to begin with), takes every submit and answers later
// with setValue(value, Hz); the field shows MHz and offers Hz, kHz and MHz.
struct UnitScreen : PadScreen<QKXNumericValueObj, QKXNumericValueObjEventFilter>
{
    explicit UnitScreen(const QString &dataType = QStringLiteral("ValueDouble")) : PadScreen("GeneratorFrequency", 220)
    {
        doubleAdapter.current = 1.0e6;
        intAdapter.current = 1000000;
        field->setPrecision(3);
        field->setBaseUnit(hertz());
        field->setDefaultUnit(2);
        field->setUnitListString(frequencyUnits());
        field->setValue(doubleAdapter.current, hertz());
        install(new QKXNumericValueObjEventFilter(field, dataType, nullptr, dataType == QLatin1String("ValueLong")
                                                      ? static_cast<QObject *>(&intAdapter) : &doubleAdapter));
        QObject::connect(filter, &QKXEventFilterBase::attemptSetLock,
                         [this](QWidget *, bool locked) { road << (locked ? "lock" : "release"); });
        QObject::connect(filter, &QKXEventFilterBase::editStart, [this] { road << "editStart"; });
        QObject::connect(filter, &QKXEventFilterBase::editEnd, [this] { road << "editEnd"; });
        QObject::connect(filter, QOverload<double, QString>::of(&QKXNumericValueObjEventFilter::submit),
                         [this](double value, const QString &unit) {
                             road << QStringLiteral("submit %1 %2").arg(value).arg(unitText(unit));
                             // The neutral string means the value is in the base unit already.
                             const double hz = unit == neutralUnits() ? value
                                 : ValueHelper::convertValue(value, ValueHelper::convertToUnits(unit),
                                                             ValueHelper::convertToUnits(hertz()));
                             QTimer::singleShot(0, field, [this, hz] {
                                 doubleAdapter.current = hz;
                                 road << QStringLiteral("engine %1 Hz").arg(hz);
                                 field->setValue(hz, hertz());
                             });
                         });
        QObject::connect(filter, QOverload<int, QString>::of(&QKXNumericValueObjEventFilter::submit),
                         [this](int v, const QString &u) { road << QStringLiteral("submit int %1 %2").arg(v).arg(unitText(u)); });
        QObject::connect(field, QOverload<double, QString>::of(&QKXNumericValueObj::valueChanged),
                         [this](double v, const QString &u) { road << QStringLiteral("setValue %1 %2").arg(v).arg(unitText(u)); });
    }
    static QString unitText(const QString &unit)
    {
        return unit == neutralUnits() ? QStringLiteral("(neutral)")
                                      : ValueHelper::getUnitString(ValueHelper::convertToUnits(unit));
    }
    // The shown unit keys as "caption/objectName".
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
};

} // namespace kxtest

#endif // EDITORTESTSUPPORT_H
