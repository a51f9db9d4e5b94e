#ifndef ENUMTESTSUPPORT_H
#define ENUMTESTSUPPORT_H

// What the tests of the enumerated widgets and their popups share: catching the library's debug
// lines, a translator for single words, records built from pairs, and a stand-in host that answers
// lock requests, opens popups and carries submitted values back the way the front panel does, writing
// everything into one ordered log.

#include <QtTest>

#include <QApplication>
#include <QLabel>
#include <QTranslator>

#include "QKXComboBox.h"
#include "QKXComboBoxList.h"
#include "QKXEventFilterBase.h"

namespace kxtest {

// Collects debug lines that start with one of the prefixes; everything else goes to the usual handler.
class DebugLines
{
public:
    explicit DebugLines(QStringList prefixes = {QStringLiteral("UserInterface - ")})
    {
        active() = std::move(prefixes);
        lines().clear();
        previous() = qInstallMessageHandler(&DebugLines::handle);
    }
    ~DebugLines() { qInstallMessageHandler(previous()); }
    static QStringList &lines() { static QStringList all; return all; }
    QStringList take() { QStringList out = lines(); lines().clear(); return out; }

private:
    static QStringList &active() { static QStringList prefixes; return prefixes; }
    static QtMessageHandler &previous() { static QtMessageHandler handler = nullptr; return handler; }
    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &msg)
    {
        if (type == QtDebugMsg) {
            for (const QString &prefix : active()) {
                if (msg.startsWith(prefix)) {
                    lines() << msg;
                    return;
                }
            }
        }
        if (previous())
            previous()(type, context, msg);
    }
};

class WordTranslator : public QTranslator
{
public:
    WordTranslator(const char *from, const char *to) : from(from), to(QString::fromUtf8(to)) {}
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *sourceText, const char *, int) const override
    {
        // Engine literals live in the generic context.
        return qstrcmp(context, "QObject") == 0 && qstrcmp(sourceText, from) == 0 ? to : QString();
    }

private:
    QByteArray from;
    QString to;
};

// A record from value/literal pairs, in the order given.
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

// Sets an application property for the life of the object.
class AppProperty
{
public:
    AppProperty(const char *name, const QVariant &value) : name(name) { qApp->setProperty(name, value); }
    ~AppProperty() { qApp->setProperty(name, QVariant()); }

private:
    const char *name;
};

// The host side of an edit: grants every lock request at once (unless told not to), opens the popup on
// editStart, and on a submit confirms the value to the widget through setIndex, as the engine does.
class HostDouble
{
public:
    template <typename Filter>
    HostDouble(Filter *filter, QWidget *widget, QObject *popup, QStringList &log)
        : log(log)
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
        QObject::connect(filter, &QKXEventFilterBase::showGuiLockedMessage, &context,
                         [this] { this->log << QStringLiteral("gui locked"); });
        QObject::connect(filter, &Filter::submit, &context, [this, widget](int value) {
            this->log << QStringLiteral("submit %1").arg(value);
            // The engine confirms the value it took.
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
