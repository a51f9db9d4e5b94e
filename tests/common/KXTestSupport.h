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

// Collects the library's "UserInterface - " lines while it lives, and every warning (Qt's own too)
// in warnings(); everything but the library's lines goes on to the handler that was there before.
class DebugLines
{
public:
    DebugLines()
    {
        previous() = qInstallMessageHandler(&DebugLines::handle);
        lines().clear();
        warnings().clear();
    }
    ~DebugLines() { qInstallMessageHandler(previous()); }
    static QStringList &lines() { static QStringList all; return all; }
    static QStringList &warnings() { static QStringList all; return all; }

private:
    static QtMessageHandler &previous() { static QtMessageHandler handler = nullptr; return handler; }
    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &msg)
    {
        if (type == QtDebugMsg && msg.startsWith(QLatin1String("UserInterface - "))) {
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
