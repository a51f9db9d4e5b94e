// SPDX-License-Identifier: BSD-3-Clause
#ifndef ENUMTESTSUPPORT_H
#define ENUMTESTSUPPORT_H

// Shared by the tests of the enumerated widgets and their popups: records, a screen with a widget and its
// popup, and a stand-in host that answers as the front panel does, writing everything into one ordered log.

#include "KXTestSupport.h"

#include <QApplication>
#include <QLabel>

#include "QKXComboBox.h"
#include "QKXComboBoxList.h"
#include "QKXComboEventFilter.h"
#include "QKXComboListItem.h"
#include "QKXEventFilterBase.h"

namespace kxtest {

inline QVariant record(const QList<QPair<int, QString>> &entries)
{
    QVariantList list;
    for (const auto &entry : entries)
        list << QVariant(QVariantList{entry.first, entry.second});
    return list;
}

// A record of n entries with the values 0, 10, 20, ... and the literals "Item 0", "Item 10", ...
inline QVariant longRecord(int n)
{
    QList<QPair<int, QString>> entries;
    for (int i = 0; i < n; ++i)
        entries.append({i * 10, QStringLiteral("Item %1").arg(i * 10)});
    return record(entries);
}

// Plays steps on an enumerated widget: a number becomes its value, a text its literal, a list its
// record. False if the widget refused one.
inline bool replay(QObject *widget, const QVariantList &steps)
{
    bool ok = true;
    for (const QVariant &step : steps) {
        if (step.type() == QVariant::Int)
            ok &= QMetaObject::invokeMethod(widget, "setIndex", Q_ARG(int, step.toInt()));
        else if (step.type() == QVariant::String)
            ok &= widget->setProperty("Text", step);
        else
            ok &= QMetaObject::invokeMethod(widget, "setMetaData", Q_ARG(QVariant, step));
    }
    return ok;
}

inline QStringList takeLines()
{
    const QStringList out = DebugLines::lines();
    DebugLines::lines().clear();
    return out;
}

inline QList<int> firstInts(const QSignalSpy &spy)
{
    QList<int> out;
    for (const QList<QVariant> &args : spy)
        out << args.at(0).toInt();
    return out;
}

class AppProperty
{
public:
    AppProperty(const char *name, const QVariant &value) : name(name) { qApp->setProperty(name, value); }
    ~AppProperty() { qApp->setProperty(name, QVariant()); }
private:
    const char *name;
};

// A screen with one enumerated widget under its edit filter, and a popup floating over it.
template <typename Widget, typename Popup>
struct PopupStage
{
    explicit PopupStage(const QRect &at, int screenWidth = 800)
    {
        screen.resize(screenWidth, 480);
        widget = new Widget(&screen);
        widget->setGeometry(at);
        filter = new QKXComboEventFilter(widget);
        widget->installEventFilter(filter);
        popup = new Popup(&screen);
        screen.show();
    }
    bool ready() { return QTest::qWaitForWindowExposed(&screen) && QTest::qWaitFor([this] { return filter->isMachineStarted(); }); }
    QLabel *field() const { return widget->template findChild<QLabel *>(QStringLiteral("ComboText")); }
    int fieldTop() const { return field()->mapTo(const_cast<QWidget *>(&screen), QPoint()).y(); }
    QKXComboListItem *item(int row) const { return popup->shownItems().value(row); }
    QPoint centreOf(QWidget *w) const { return w->mapTo(const_cast<QWidget *>(&screen), w->rect().center()); }
    void open(int current) { widget->setIndex(current); popup->registerWidget(filter, widget); }
    void swipe(const QPoint &from, const QPoint &to)
    {
        QTest::mousePress(&screen, Qt::LeftButton, Qt::NoModifier, from);
        QTest::mouseMove(&screen, to);
        QTest::mouseRelease(&screen, Qt::LeftButton, Qt::NoModifier, to);
    }
    QWidget screen;
    Widget *widget;
    QKXComboEventFilter *filter;
    Popup *popup;
};

// The host side of an edit: grants every lock request at once (unless told not to), opens the popup on
// editStart, and on a submit confirms the value to the widget through setIndex, as the engine does.
class HostDouble
{
public:
    template <typename Filter>
    HostDouble(Filter *filter, QWidget *widget, QObject *popup, QStringList &log) : log(log)
    {
        QObject::connect(filter, &QKXEventFilterBase::attemptSetLock, &context, [this, filter](QWidget *w, bool locked) {
            this->log << QString(locked ? QStringLiteral("lock requested") : QStringLiteral("lock released"));
            if (locked && grant)
                filter->lockAcquired(w);
        });
        QObject::connect(filter, &QKXEventFilterBase::editStart, &context, [this, popup](QObject *f, QWidget *w) {
            this->log << QStringLiteral("editStart");
            if (popup)
                QMetaObject::invokeMethod(popup, "registerWidget", Q_ARG(QObject *, f), Q_ARG(QWidget *, w));
        });
        QObject::connect(filter, &QKXEventFilterBase::editEnd, &context, [this] { this->log << QStringLiteral("editEnd"); });
        QObject::connect(filter, &QKXEventFilterBase::showGuiLockedMessage, &context, [this] { this->log << QStringLiteral("gui locked"); });
        QObject::connect(filter, &Filter::submit, &context, [this, widget](int value) {
            this->log << QStringLiteral("submit %1").arg(value);
            QMetaObject::invokeMethod(widget, "setIndex", Q_ARG(int, value));
        });
        if (auto *combo = qobject_cast<QKXComboBox *>(widget))
            QObject::connect(combo, &QKXComboBox::currentIndexChanged, &context,
                             [this](int v) { this->log << QStringLiteral("shown %1").arg(v); });
        if (auto *list = qobject_cast<QKXComboBoxList *>(popup)) {
            QObject::connect(list, &QKXComboBoxList::WindowOpened, &context, [this] { this->log << QStringLiteral("WindowOpened"); });
            QObject::connect(list, &QKXComboBoxList::WindowClosed, &context, [this] { this->log << QStringLiteral("WindowClosed"); });
        }
    }
    bool grant = true;
private:
    QStringList &log;
    QObject context;   // the connections end with the host
};

} // namespace kxtest

#endif // ENUMTESTSUPPORT_H
