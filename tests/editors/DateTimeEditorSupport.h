// SPDX-License-Identifier: BSD-3-Clause
#ifndef DATETIMEEDITORSUPPORT_H
#define DATETIMEEDITORSUPPORT_H

// A screen with one date or time field and its editor as the host builds it: the field's qlonglong
// filter, the editor over the window opened on editStart, the lock granted from the event loop, and
// one log of the filter's traffic in the order it happens.

#include <QtTest>

#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

#include "DateTimeTestSupport.h"

#include "QKXAttribLongLongEventFilter.h"

namespace kxtest {

class SecondsAdapter : public QObject
{
    Q_OBJECT
public:
    Q_INVOKABLE qlonglong get() const { return current; }
    qlonglong current = 0;
};

template <typename Field, typename Editor>
struct EditorScreen
{
    // Without an adapter a tap starts the edit at once, without asking for the lock.
    explicit EditorScreen(bool withAdapter = true)
    {
        window.resize(800, 480);
        field->setObjectName(QStringLiteral("field"));
        field->setGeometry(40, 40, 200, 60);
        field->setValue(berlin(2012, 3, 5));
        filter = new QKXAttribLongLongEventFilter(field, withAdapter ? &adapter : nullptr);
        field->installEventFilter(filter);
        QObject::connect(filter, &QKXEventFilterBase::attemptSetLock, [this](QWidget *widget, bool locked) {
            road << (locked ? "lock" : "release");
            if (locked)
                QTimer::singleShot(0, filter, [this, widget] { filter->lockAcquired(widget); });
        });
        QObject::connect(filter, &QKXEventFilterBase::editStart, [this](QObject *f, QWidget *w) {
            road << "editStart";
            editor->registerWidget(f, w);
        });
        QObject::connect(filter, &QKXEventFilterBase::editEnd, [this] { road << "editEnd"; });
        QObject::connect(filter, &QKXAttribLongLongEventFilter::submit, [this](qlonglong value) {
            road << QStringLiteral("submit %1").arg(value);
            submitted << value;
        });
    }
    bool show()
    {
        window.show();
        return QTest::qWaitForWindowExposed(&window) && QTest::qWaitFor([this] { return road.contains("release"); });
    }
    // On the value display by default, which is disabled until the edit opens, so that the field's
    // filter sees the tap; or on the named part of the field.
    bool tapAndWaitForEditor(const QString &part = QString())
    {
        QWidget *target = part.isEmpty() ? static_cast<QWidget *>(field->template findChild<QLineEdit *>())
                                         : field->template findChild<QWidget *>(part);
        QTest::mousePress(field, Qt::LeftButton, Qt::NoModifier, target->geometry().center());
        QTest::mouseRelease(field, Qt::LeftButton, Qt::NoModifier, target->geometry().center());
        return QTest::qWaitFor([this] { return editor->isVisible() && filter->isEditing(); });
    }
    void click(const QString &text)
    {
        for (QPushButton *key : editor->template findChildren<QPushButton *>()) {
            if (key->text() == text && key->isVisible())
                return QTest::mouseClick(key, Qt::LeftButton, Qt::NoModifier, key->rect().center());
        }
        QFAIL(qPrintable(QStringLiteral("no key %1").arg(text)));
    }
    QStringList columnTexts() const { return kxtest::columnTexts(editor); }

    SecondsAdapter adapter;
    QStringList road;
    QList<qlonglong> submitted;
    QWidget window;
    Field *field = new Field(&window);
    QKXAttribLongLongEventFilter *filter = nullptr;
    Editor *editor = new Editor(&window);
};

} // namespace kxtest

#endif // DATETIMEEDITORSUPPORT_H
