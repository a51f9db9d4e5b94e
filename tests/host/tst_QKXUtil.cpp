// SPDX-License-Identifier: BSD-3-Clause
#include "QKXUtil.h"

#include <QFontMetrics>
#include <QtTest>

class tst_QKXUtil : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void processString_data();
    void processString();
    void stringWidth_data();
    void stringWidth();
};

void tst_QKXUtil::processString_data()
{
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("expected");

    QTest::newRow("blank") << " \t\n " << "";
    QTest::newRow("line break") << "Carrier\nLevel" << "Carrier<br>Level";
    QTest::newRow("crlf") << "a\r\nb" << "a<br>b";
    QTest::newRow("escaped break") << "Carrier\\nLevel" << "Carrier<br>Level";
    QTest::newRow("inverse") << "s^-1" << "s<sup>-1</sup>";
    QTest::newRow("two digits") << "2^10 Hz" << "2<sup>10</sup> Hz";
    QTest::newRow("caret at end") << "dB^" << "dB^";
    QTest::newRow("sign at end") << "dB^-" << "dB^-";
    QTest::newRow("caret letter") << "x^n" << "x^n";
    QTest::newRow("double caret") << "^^2" << "^<sup>2</sup>";
    QTest::newRow("backslash at end") << "path\\" << "path\\";
}

void tst_QKXUtil::processString()
{
    QFETCH(QString, input);
    QFETCH(QString, expected);
    QKXUtil::processString(input);
    QCOMPARE(input, expected);
}

void tst_QKXUtil::stringWidth_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("widestLine");

    QTest::newRow("empty") << "" << "";
    QTest::newRow("plain lines") << "ab\nlonger line\ncd" << "longer line";
    QTest::newRow("rich lines") << "kHz<br>Deviation<br>%" << "Deviation";
    QTest::newRow("entity") << "<i>A &amp; B</i>" << "A & B";
    QTest::newRow("superscript") << "dBm<sup>2</sup>" << "dBm2";
    QTest::newRow("angle in plain text") << "1 < 2" << "1 < 2";
}

void tst_QKXUtil::stringWidth()
{
    QFETCH(QString, text);
    QFETCH(QString, widestLine);
    QFont font;
    font.setPixelSize(20);
    const QFontMetrics metrics(font);
    QCOMPARE(QKXUtil::calculateStringWidth(metrics, text), metrics.horizontalAdvance(widestLine));
}

QTEST_MAIN(tst_QKXUtil)
#include "tst_QKXUtil.moc"
