// SPDX-License-Identifier: BSD-3-Clause
#include <QtTest>

#include <QScrollBar>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextEdit>

#include "CSS.h"
#include "QKXTextLog.h"
#include "VerticalScrollBarImpl.h"

namespace {

QStringList paragraphs(QKXTextLog &log)
{
    QStringList shown;
    for (QTextBlock block = log.textEdit()->document()->begin(); block.isValid(); block = block.next())
        shown << block.text();
    return shown;
}

QStringList lines(int from, int to)
{
    QStringList result;
    for (int i = from; i <= to; ++i)
        result << QStringLiteral("line %1").arg(i);
    return result;
}

} // namespace

class tst_QKXTextLog : public QObject
{
    Q_OBJECT

private slots:
    void keepsTheNewestParagraphs_data();
    void keepsTheNewestParagraphs();
    void limitChangesTrimAtOnce();
    void textsAsTheyCome();
    void floodStaysBoundedAndAtTheEnd();
    void lookIsFixed();
};

void tst_QKXTextLog::keepsTheNewestParagraphs_data()
{
    QTest::addColumn<QVariant>("limit");   // invalid: the default
    QTest::addColumn<int>("count");
    QTest::addColumn<QStringList>("shown");

    QTest::newRow("default 50, 60 texts") << QVariant() << 60 << lines(11, 60);
    QTest::newRow("under the limit") << QVariant(10) << 4 << lines(1, 4);
    QTest::newRow("exactly full") << QVariant(10) << 10 << lines(1, 10);
    QTest::newRow("limit 1") << QVariant(1) << 5 << lines(5, 5);
    // Nothing is kept: the log shows one empty paragraph, as an empty text edit does.
    QTest::newRow("limit 0") << QVariant(0) << 5 << QStringList({""});
    QTest::newRow("negative limit") << QVariant(-7) << 5 << QStringList({""});
}

void tst_QKXTextLog::keepsTheNewestParagraphs()
{
    QFETCH(QVariant, limit);
    QFETCH(int, count);
    QFETCH(QStringList, shown);

    QKXTextLog log;
    if (limit.isValid())
        QVERIFY(log.setProperty("Limit", limit));
    for (int i = 1; i <= count; ++i)
        log.setText(QStringLiteral("line %1").arg(i));
    QCOMPARE(paragraphs(log), shown);
    QCOMPARE(log.limit(), limit.isValid() ? limit.toInt() : 50);
}

void tst_QKXTextLog::limitChangesTrimAtOnce()
{
    QKXTextLog log;
    for (int i = 1; i <= 30; ++i)
        log.setText(QStringLiteral("line %1").arg(i));
    log.setLimit(10);
    QCOMPARE(paragraphs(log), lines(21, 30));
    // A larger limit brings nothing back; the log fills up to it again.
    log.setLimit(12);
    log.setText(QStringLiteral("line 31"));
    QCOMPARE(paragraphs(log), lines(21, 31));
    log.setLimit(0);
    QCOMPARE(paragraphs(log), QStringList({""}));
    log.setLimit(3);

    log.clear();
    QCOMPARE(log.textEdit()->toPlainText(), QString());
    for (int i = 1; i <= 5; ++i)
        log.setText(QStringLiteral("line %1").arg(i));
    QCOMPARE(paragraphs(log), lines(3, 5));
}

void tst_QKXTextLog::textsAsTheyCome()
{
    QKXTextLog log;
    log.setLimit(4);
    // Rich text is shown as such; each line of a text is a paragraph of its own, and counts as one.
    log.setText(QStringLiteral("<b>RF</b> on"));
    log.setText(QStringLiteral("Καλημέρα 設定 \U0001F3B5"));
    log.setText(QStringLiteral("tab\there, escape \x1b[0m, bell \x07"));
    log.setText(QStringLiteral("first\nsecond"));
    QCOMPARE(paragraphs(log), QStringList({QStringLiteral("Καλημέρα 設定 \U0001F3B5"),
                                           QStringLiteral("tab\there, escape \x1b[0m, bell \x07"), "first", "second"}));
    log.setText(QString(200000, QLatin1Char('w')));
    QCOMPARE(paragraphs(log).last().size(), 200000);
}

void tst_QKXTextLog::floodStaysBoundedAndAtTheEnd()
{
    QKXTextLog log;
    log.resize(400, 240);
    log.setLimit(100);
    log.show();
    QVERIFY(QTest::qWaitForWindowExposed(&log));
    QTextDocument *document = log.textEdit()->document();
    for (int i = 1; i <= 20000; ++i) {
        log.setText(QStringLiteral("event %1: squelch open on channel %2").arg(i).arg(i % 16));
        if (i % 1000 == 0)
            QCoreApplication::processEvents();
    }
    QCoreApplication::processEvents();
    QCOMPARE(document->blockCount(), 100);
    QCOMPARE(document->lastBlock().text(), QStringLiteral("event 20000: squelch open on channel 0"));
    // Nothing that went is kept for an undo.
    QCOMPARE(document->availableUndoSteps(), 0);
    QVERIFY(!document->isUndoRedoEnabled());
    // The view follows the newest line.
    QScrollBar *bar = log.textEdit()->verticalScrollBar();
    QVERIFY(bar->maximum() > 0);
    QCOMPARE(bar->value(), bar->maximum());
}

void tst_QKXTextLog::lookIsFixed()
{
    QKXTextLog log;
    const QString sheet = QStringLiteral("QWidget#QKXTextLog {    background-color: rgb(63,63,63);    border: 2px solid ")
        + CSS::border()
        + QStringLiteral(";    border-radius: 18px;}QTextEdit {    background-color: rgb(153,153,153);    border: 2px solid ")
        + CSS::border() + QStringLiteral(";    border-radius: 14px;    padding: 0px 0px -2px 0px;}");
    QCOMPARE(log.styleSheet(), sheet);
    log.changeSize(QStringLiteral("Max"));
    log.changeSize(QStringLiteral("Min"));
    QCOMPARE(log.styleSheet(), sheet);
    QVERIFY(qobject_cast<Norvane::gui::VerticalScrollBarImpl *>(log.textEdit()->verticalScrollBar()));
    QVERIFY(log.textEdit()->isReadOnly());
}

QTEST_MAIN(tst_QKXTextLog)
#include "tst_QKXTextLog.moc"
