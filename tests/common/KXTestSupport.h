#ifndef KXTESTSUPPORT_H
#define KXTESTSUPPORT_H

// What every widget test needs: the library's debug lines caught as they are written, and a
// translator that knows one word.

#include <QtTest>

#include <QTranslator>

namespace kxtest {

// Collects the library's "UserInterface - " lines while it lives; everything else goes on to the
// handler that was there before.
class DebugLines
{
public:
    DebugLines() { previous() = qInstallMessageHandler(&DebugLines::handle); lines().clear(); }
    ~DebugLines() { qInstallMessageHandler(previous()); }
    static QStringList &lines() { static QStringList all; return all; }

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
        if (previous())
            previous()(type, context, msg);
    }
};

class WordTranslator : public QTranslator
{
public:
    WordTranslator(const char *from, const char *to) : from(from), to(QString::fromUtf8(to)) {}
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *sourceText, const char *, int) const override
    {
        return from == sourceText ? to : QString();
    }

private:
    QByteArray from;
    QString to;
};

} // namespace kxtest

#endif // KXTESTSUPPORT_H
