#ifndef EDITORTESTSUPPORT_H
#define EDITORTESTSUPPORT_H

// A screen the way the host builds one for a numeric edit: a main window with a numeric field and its
// filter, the numeric pad floating over the window, and the host's side of the protocol (the pad opens
// on editStart; the edit lock is granted from the event loop, as the host's lock owner does).

#include <QtTest>

#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTimer>

#include "QKXNumeric.h"
#include "QKXNumericEventFilter.h"
#include "QKXNumpad.h"

#include "../common/NumericTestSupport.h"

namespace kxtest {

class LockOwner : public QObject
{
    Q_OBJECT
public:
    QPointer<QWidget> holder;
    QStringList requests;

    void attach(QKXNumericEventFilter *filter)
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

struct Screen
{
    explicit Screen(const QString &dataType = QStringLiteral("Int"))
    {
        window.resize(800, 480);
        window.setObjectName(QStringLiteral("MainWindow"));
        field = new QKXNumeric(&window);
        field->setObjectName(QStringLiteral("Channel"));
        field->setGeometry(40, 40, 200, 60);
        QObject *adapter = dataType == QLatin1String("Double") ? static_cast<QObject *>(&doubleAdapter)
                                                               : static_cast<QObject *>(&intAdapter);
        filter = new QKXNumericEventFilter(field, dataType, adapter);
        field->installEventFilter(filter);
        lockOwner.attach(filter);
        pad = new QKXNumpad(&window);
        QObject::connect(filter, &QKXEventFilterBase::editStart, pad, &QKXNumpad::registerWidget);
        entry = field->findChild<QLineEdit *>();
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
    void press(const QString &key)
    {
        QPushButton *button = pad->button(key);
        QVERIFY2(button && button->isVisible(), qPrintable(key));
        QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, button->rect().center());
    }

    // The engine's side outlives the window, whose filter reports to it while going.
    LockOwner lockOwner;
    IntAdapter intAdapter{0};
    DoubleAdapter doubleAdapter{0.0};
    QWidget window;
    QKXNumeric *field;
    QLineEdit *entry;
    QKXNumericEventFilter *filter;
    QKXNumpad *pad;
};

} // namespace kxtest

#endif // EDITORTESTSUPPORT_H
