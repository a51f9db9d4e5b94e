// SPDX-License-Identifier: BSD-3-Clause
// Cost of a flood of engine events into the text log: 100 000 lines into a log that keeps the last
// 1000, on a shown widget whose event loop runs every 100 lines, as the panel's would between bursts.
// Read against two references measured in the same run: a plain QTextEdit appending the same lines
// (it keeps all of them) and a QTextEdit whose document keeps at most 1000 paragraphs. Besides the
// times, each case reports the worst single burst of 100 lines (how long the panel could stall) and
// the growth of the process's resident memory; `./kx bench` prints them all.

#include "QKXTextLog.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTextDocument>
#include <QTextEdit>
#include <QtTest>

#include <functional>

namespace {

const int kxbench_lines = 100000;
const int kxbench_limit = 1000;
const int kxbench_burst = 100;

// Resident memory of the process, in kilobytes.
long residentKilobytes()
{
    QFile statm(QStringLiteral("/proc/self/statm"));
    if (!statm.open(QIODevice::ReadOnly)) {
        return 0;
    }
    const QList<QByteArray> fields = statm.readAll().split(' ');
    return fields.size() > 1 ? fields.at(1).toLong() * 4 : 0;
}

// The lines of an instrument's event log, all different.
QStringList eventLines()
{
    QStringList lines;
    lines.reserve(kxbench_lines);
    for (int i = 0; i < kxbench_lines; ++i) {
        lines << QStringLiteral("%1 squelch open on channel %2, level -%3.5 dBm").arg(i).arg(i % 16).arg(40 + i % 60);
    }
    return lines;
}

// Appends every line to the shown widget, letting the event loop run after each burst. Prints the worst
// burst and the memory the run left behind.
void flood(QWidget *widget, const std::function<void(const QString &)> &append, const char *name)
{
    static const QStringList lines = eventLines();
    widget->resize(400, 300);
    widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(widget));
    const long before = residentKilobytes();
    qint64 worstBurst = 0;
    QElapsedTimer burst;
    burst.start();
    for (int i = 0; i < kxbench_lines; ++i) {
        append(lines.at(i));
        if ((i + 1) % kxbench_burst == 0) {
            QCoreApplication::processEvents();
            worstBurst = qMax(worstBurst, burst.nsecsElapsed());
            burst.restart();
        }
    }
    qInfo("%s: worst burst of %d lines %.2f ms, resident memory +%ld kB", name, kxbench_burst,
          worstBurst / 1.0e6, residentKilobytes() - before);
}

} // namespace

class bench_textlog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reference_textEdit();
    void reference_textEditLimited();
    void textLog();
};

void bench_textlog::reference_textEdit()
{
    QBENCHMARK {
        QTextEdit edit;
        edit.setReadOnly(true);
        flood(&edit, [&edit](const QString &line) { edit.append(line); }, "reference_textEdit");
    }
}

void bench_textlog::reference_textEditLimited()
{
    QBENCHMARK {
        QTextEdit edit;
        edit.setReadOnly(true);
        edit.document()->setMaximumBlockCount(kxbench_limit);
        flood(&edit, [&edit](const QString &line) { edit.append(line); }, "reference_textEditLimited");
    }
}

void bench_textlog::textLog()
{
    QBENCHMARK {
        QKXTextLog log;
        log.setLimit(kxbench_limit);
        flood(&log, [&log](const QString &line) { log.setText(line); }, "textLog");
        QCOMPARE(log.textEdit()->document()->blockCount(), kxbench_limit);
    }
}

QTEST_MAIN(bench_textlog)
#include "bench_textlog.moc"
