// SPDX-License-Identifier: BSD-3-Clause
// Whole edits of text fields, from the finger on the field to the engine, through real mouse events.
#define QTEST_QPA_MOUSE_HANDLING
#include <QtTest>

#include "QKXDtmfKeypad.h"
#include "QKXKeyboard.h"
#include "QKXNumpad.h"

#include "TextEditorTestSupport.h"

using kxtest::TextScreen;

class tst_TextEntryRoad : public QObject
{
    Q_OBJECT

private slots:
    void setupNameOnTheKeyboard();
    void passwordNeverShows();
    void addressOnTheNumericPad();
    void liveDialStringSoundsWhileHeld();
};

void tst_TextEntryRoad::setupNameOnTheKeyboard()
{
    TextScreen<QKXKeyboard> screen(QKXTextEntry::KeyboardEntry, QStringLiteral("Old"));
    QVERIFY(screen.show());
    QVERIFY(screen.tapAndWaitForPopup());
    QCOMPARE(screen.lockOwner.requests, QStringList({"SetupName"}));
    QCOMPARE(screen.popup->display()->text(), QStringLiteral("Old"));

    // Clear, a capital, two letters, a page of digits and punctuation, and back to the letters.
    for (const char *caption : {"Clear", "Shift", "R", "Shift", "u", "n", ".?123", "2", "&&", "ABC", "x", "Spacebar"})
        screen.click(screen.popup->key(QString::fromUtf8(caption)));
    QCOMPARE(screen.entry->text(), QStringLiteral("Run2&x "));
    QCOMPARE(screen.popup->display()->text(), screen.entry->text());
    QCOMPARE(screen.popup->keyMode(), QKXKeyboard::LOWER_CASES);

    screen.road.clear();
    screen.click(screen.popup->key(QStringLiteral("Enter")));
    QTRY_COMPARE(screen.road, QStringList({"submit Run2&x ", "editEnd", "release"}));
    QVERIFY(!screen.popup->isVisible());
    QVERIFY(!screen.entry->isEnabled());

    // The next opening starts on the lower-case page, wherever the last edit left it.
    QVERIFY(screen.tapAndWaitForPopup());
    screen.click(screen.popup->key(QStringLiteral("#+=")));
    screen.click(screen.popup->key(QStringLiteral("Cancel")));
    QTRY_VERIFY(!screen.filter->isEditing());
    QVERIFY(screen.tapAndWaitForPopup());
    QCOMPARE(screen.popup->keyMode(), QKXKeyboard::LOWER_CASES);
    QVERIFY(screen.popup->key(QStringLiteral("q")));
}

void tst_TextEntryRoad::passwordNeverShows()
{
    TextScreen<QKXKeyboard> screen(QKXTextEntry::PasswordEntry, QStringLiteral("abc"));
    QVERIFY(screen.show());
    const auto shownNowhere = [&screen](const QString &secret) {
        for (QLineEdit *edit : {screen.entry, screen.popup->display()}) {
            for (const QChar c : secret) {
                if (edit->displayText().contains(c))
                    return false;
            }
        }
        return true;
    };
    QVERIFY(shownNowhere(QStringLiteral("abc")));
    QVERIFY(screen.tapAndWaitForPopup());
    QString typed = QStringLiteral("abc");
    for (const char *caption : {"z", "Shift", "Q", ".?123", "7", "ABC", "Spacebar"}) {
        QPushButton *key = screen.popup->key(QString::fromUtf8(caption));
        screen.click(key);
        QVERIFY2(shownNowhere(typed + QStringLiteral("zQ7")), caption);
    }
    QCOMPARE(screen.entry->text(), QStringLiteral("abczQ7 "));
    QCOMPARE(screen.popup->display()->displayText().size(), 7);
    screen.road.clear();
    screen.click(screen.popup->key(QStringLiteral("Enter")));
    QTRY_COMPARE(screen.road, QStringList({"submit abczQ7 ", "editEnd", "release"}));
    QCOMPARE(screen.entry->echoMode(), QLineEdit::Password);
}

void tst_TextEntryRoad::addressOnTheNumericPad()
{
    TextScreen<QKXNumpad> screen(QKXTextEntry::IPEntry, QStringLiteral("10.0.0.1"));
    QVERIFY(screen.show());
    QVERIFY(screen.tapAndWaitForPopup());
    QVERIFY(!screen.popup->rotateButton()->isVisible());
    for (const char *key : {"clear", "1", "7", "2", "dot", "1", "6", "dot", "0", "dot", "9", "dot"})
        screen.click(screen.popup->button(QLatin1String(key)));
    // A fourth dot is refused.
    QCOMPARE(screen.entry->text(), QStringLiteral("172.16.0.9"));
    QCOMPARE(screen.popup->display()->text(), screen.entry->text());
    screen.road.clear();
    screen.click(screen.popup->button(QStringLiteral("enter")));
    QTRY_COMPARE(screen.road, QStringList({"submit 172.16.0.9", "editEnd", "release"}));
    QVERIFY(!screen.popup->isVisible());
}

void tst_TextEntryRoad::liveDialStringSoundsWhileHeld()
{
    TextScreen<QKXDtmfKeypad> screen(QKXTextEntry::DtmfEntry, QString());
    screen.popup->setLive(true);
    // The host sounds the tone of the last key while the pad says a key is held.
    QObject::connect(screen.popup, &QKXDtmfKeypad::holding, [&screen](bool held) {
        screen.road << (held ? QStringLiteral("tone %1 on").arg(screen.entry->text().right(1)) : QStringLiteral("tone off"));
    });
    QVERIFY(screen.show());
    QVERIFY(screen.tapAndWaitForPopup());
    screen.road.clear();
    for (const char *name : {"0", "#"}) {
        QPushButton *key = screen.popup->button(QLatin1String(name));
        QTest::mousePress(key, Qt::LeftButton, Qt::NoModifier, key->rect().center());
        QTest::qWait(50);   // held
        QTest::mouseRelease(key, Qt::LeftButton, Qt::NoModifier, key->rect().center());
    }
    QCOMPARE(screen.road, QStringList({"submit 0", "tone 0 on", "tone off", "submit 0#", "tone # on", "tone off"}));
    QVERIFY(screen.filter->isEditing());
    screen.click(screen.popup->button(QStringLiteral("enter")));
    QTRY_COMPARE(screen.road.mid(6), QStringList({"submit 0#", "editEnd", "release"}));
    QCOMPARE(screen.field->text(), QStringLiteral("0#"));
}

QTEST_MAIN(tst_TextEntryRoad)
#include "tst_TextEntryRoad.moc"
