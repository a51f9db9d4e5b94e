// SPDX-License-Identifier: BSD-3-Clause
#include <QtTest>

#include <QLabel>
#include <QLineEdit>

#include "KXTestSupport.h"

#include "CSS.h"
#include "QKXTextEntry.h"

class tst_QKXTextEntry : public QObject
{
    Q_OBJECT

private slots:
    void passwordMaskingSticks_data();
    void passwordMaskingSticks();
    void setTextAnnouncesAndShowsTheRightEnd_data();
    void setTextAnnouncesAndShowsTheRightEnd();
    void styleOverlaysInOrder();
    void awkwardTexts_data();
    void awkwardTexts();
    void overlongTextIsCut();
};

void tst_QKXTextEntry::passwordMaskingSticks_data()
{
    QTest::addColumn<QVariantList>("modes");
    QTest::addColumn<bool>("masked");

    QTest::newRow("new field") << QVariantList() << false;
    QTest::newRow("keyboard, IP") << QVariantList({int(QKXTextEntry::KeyboardEntry), int(QKXTextEntry::IPEntry)}) << false;
    QTest::newRow("password") << QVariantList({int(QKXTextEntry::PasswordEntry)}) << true;
    QTest::newRow("password, then keyboard") << QVariantList({int(QKXTextEntry::PasswordEntry), int(QKXTextEntry::KeyboardEntry)}) << true;
    // Forms set the mode by its name.
    QTest::newRow("by name from a form") << QVariantList({QStringLiteral("PasswordEntry"), QStringLiteral("DtmfEntry")}) << true;
}

void tst_QKXTextEntry::passwordMaskingSticks()
{
    QFETCH(QVariantList, modes);
    QFETCH(bool, masked);

    QKXTextEntry field;
    QLineEdit *edit = field.findChild<QLineEdit *>();
    for (const QVariant &mode : modes)
        QVERIFY(field.setProperty("EntryMode", mode));
    // A restyle (locking, a size change) must not unmask the field.
    field.setLocked(true);
    field.changeSize(QStringLiteral("Max"));
    QCOMPARE(edit->echoMode(), masked ? QLineEdit::Password : QLineEdit::Normal);
    if (modes.isEmpty())
        QCOMPARE(field.entryMode(), QKXTextEntry::KeyboardEntry);
}

void tst_QKXTextEntry::setTextAnnouncesAndShowsTheRightEnd_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("cursorAtEnd");

    QTest::newRow("keyboard") << int(QKXTextEntry::KeyboardEntry) << false;
    QTest::newRow("password") << int(QKXTextEntry::PasswordEntry) << false;
    // A dial string grows at its end, which stays in view.
    QTest::newRow("DTMF") << int(QKXTextEntry::DtmfEntry) << true;
}

void tst_QKXTextEntry::setTextAnnouncesAndShowsTheRightEnd()
{
    QFETCH(int, mode);
    QFETCH(bool, cursorAtEnd);

    QKXTextEntry field;
    field.setEntryMode(QKXTextEntry::EntryModeEnum(mode));
    field.resize(120, 60);
    QSignalSpy changed(&field, &QKXTextEntry::textChanged);
    const QString longText = QStringLiteral("Stored setup for the bench at the far end of the laboratory");
    // Through the property, as the filter's cancel writes it back.
    field.setProperty("text", longText);
    field.setText(longText);
    QCOMPARE(changed.count(), 2);
    QCOMPARE(changed.at(1).at(0).toString(), longText);
    QCOMPARE(field.text(), longText);
    QCOMPARE(field.findChild<QLineEdit *>()->cursorPosition(), cursorAtEnd ? longText.size() : 0);
}

void tst_QKXTextEntry::styleOverlaysInOrder()
{
    QKXTextEntry field;
    const QString plain = field.styleSheet();
    QVERIFY(plain.contains(QLatin1String("font-size: 14px;")) && plain.contains(QLatin1String("min-height: 25px;")));

    // Themes look for these texts whole, and in this order.
    const QString locked = QStringLiteral("QLineEdit:disabled {    background-image: url(:/images/lock_generic.png);"
                                          "    background-position: top right;    background-repeat: no-repeat;}");
    const QString readOnly = QStringLiteral("   QLineEdit:disabled {       border-color: ") + CSS::border()
        + QStringLiteral(";   }");
    field.setReadOnly(true);
    field.setLocked(true);
    QCOMPARE(field.styleSheet(), plain + locked + readOnly);

    field.changeSize(QStringLiteral("Max"));
    QString large = plain;
    large.replace(QLatin1String("14px"), QLatin1String("20px")).replace(QLatin1String("25px"), QLatin1String("32px"))
        .replace(QLatin1String("font-size: 12px"), QLatin1String("font-size: 16px"));
    QCOMPARE(field.styleSheet(), large + locked + readOnly);

    field.setReadOnly(false);
    field.setLocked(false);
    QCOMPARE(field.styleSheet(), large);
}

void tst_QKXTextEntry::awkwardTexts_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("Greek and CJK") << QStringLiteral("Καλημέρα 設定 №5");
    QTest::newRow("right to left") << QStringLiteral("שלום עולם");
    QTest::newRow("surrogate pairs") << QStringLiteral("tone \U0001F3B5 \U0001D11E");
    QTest::newRow("control characters") << QStringLiteral("a\tb\x01\x1b[0m\r");
    QTest::newRow("empty") << QString();
}

void tst_QKXTextEntry::awkwardTexts()
{
    QFETCH(QString, text);

    kxtest::DebugLines lines;
    QKXTextEntry field;
    field.resize(200, 60);
    field.show();
    QVERIFY(QTest::qWaitForWindowExposed(&field));
    QSignalSpy changed(&field, &QKXTextEntry::textChanged);
    field.setText(text);
    QCOMPARE(field.text(), text);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(lines.lines(), QStringList());
    field.grab();   // drawn without trouble
}

void tst_QKXTextEntry::overlongTextIsCut()
{
    kxtest::DebugLines lines;
    QKXTextEntry field;
    field.setObjectName(QStringLiteral("SetupName"));
    QSignalSpy changed(&field, &QKXTextEntry::textChanged);
    const QString huge(100000, QLatin1Char('x'));
    field.setText(huge);
    QCOMPARE(field.text(), huge.left(32767));
    QCOMPARE(changed.at(0).at(0).toString(), field.text());
    QCOMPARE(lines.lines(), QStringList({"UserInterface - SetupName text of 100000 characters cut to its first 32767"}));
}

QTEST_MAIN(tst_QKXTextEntry)
#include "tst_QKXTextEntry.moc"
