// SPDX-License-Identifier: BSD-3-Clause
#ifndef KXTESTSUPPORT_H
#define KXTESTSUPPORT_H

// What every widget test needs: the library's debug lines caught as they are written, and a
// translator that knows a few words.

#include <QtTest>

#include <QHash>
#include <QTranslator>

#include <initializer_list>
#include <utility>

namespace kxtest {

// Collects the library's diagnostic lines while it lives: debug and warning messages that begin
// "UserInterface - ", or "Userinterface - " as a few lines hosts filter on are spelt. Every other
// warning (Qt's own too) is kept in warnings(). Everything but the library's lines goes on to the
// handler that was there before.
class DebugLines
{
public:
    enum Scope { LibraryLines, AllDebugLines };   // AllDebugLines: also lines without the prefix

    explicit DebugLines(Scope scope = LibraryLines)
    {
        all() = scope == AllDebugLines;
        previous() = qInstallMessageHandler(&DebugLines::handle);
        lines().clear();
        warnings().clear();
    }
    ~DebugLines() { qInstallMessageHandler(previous()); }
    static QStringList &lines() { static QStringList all; return all; }
    static QStringList &warnings() { static QStringList all; return all; }

private:
    static QtMessageHandler &previous() { static QtMessageHandler handler = nullptr; return handler; }
    static bool &all() { static bool everything = false; return everything; }
    static bool isLibraryLine(QtMsgType type, const QString &msg)
    {
        return (type == QtDebugMsg || type == QtWarningMsg)
            && (msg.startsWith(QLatin1String("UserInterface - ")) || msg.startsWith(QLatin1String("Userinterface - ")));
    }
    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &msg)
    {
        if ((type == QtDebugMsg && all()) || isLibraryLine(type, msg)) {
            QString line = msg;
            while (line.endsWith(QLatin1Char(' ')))   // a trailing blank is the stream's business
                line.chop(1);
            lines() << line;
            return;
        }
        if (type == QtWarningMsg || type == QtCriticalMsg)
            warnings() << msg;
        if (previous())
            previous()(type, context, msg);
    }
};

// Translates the given source words, whatever their context.
class WordTranslator : public QTranslator
{
public:
    WordTranslator(const char *from, const char *to) : WordTranslator({{from, to}}) {}
    WordTranslator(std::initializer_list<std::pair<const char *, const char *>> pairs)
    {
        for (const auto &pair : pairs)
            words.insert(QByteArray(pair.first), QString::fromUtf8(pair.second));
    }
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *sourceText, const char *, int) const override
    {
        return words.value(QByteArray(sourceText));
    }

private:
    QHash<QByteArray, QString> words;
};

} // namespace kxtest

#endif // KXTESTSUPPORT_H
