// SPDX-License-Identifier: BSD-3-Clause
// Mouse events travel through the window system, as a finger on the panel does.
#define QTEST_QPA_MOUSE_HANDLING
#include <QtTest>

#include <QApplication>
#include <QGridLayout>
#include <QStackedWidget>

#include "QKXKeyboard.h"

#include "TextEditorTestSupport.h"

using Screen = kxtest::TextScreen<QKXKeyboard>;

namespace {

// The keyboard's key with that caption on the page, the page's grid and the key's place in it.
struct Placed {
    QPushButton *key = nullptr;
    int row = -1, column = -1, span = 0;
};

Placed placedKey(QKXKeyboard &keyboard, int page, const QString &caption)
{
    QWidget *pageFrame = keyboard.findChild<QStackedWidget *>()->widget(page);
    auto *grid = static_cast<QGridLayout *>(pageFrame->layout());
    Placed placed;
    for (QPushButton *key : pageFrame->findChildren<QPushButton *>()) {
        if (key->text() == caption) {
            int rowSpan = 0;
            placed.key = key;
            grid->getItemPosition(grid->indexOf(key), &placed.row, &placed.column, &rowSpan, &placed.span);
        }
    }
    return placed;
}

} // namespace

class tst_QKXKeyboard : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void keysAndOutlines_data();
    void keysAndOutlines();
    void pages();
    void typing_data();
    void typing();
    void enterAndCancel();
    void passwordEcho_data();
    void passwordEcho();
    void anotherFieldCancelsTheEdit();
    void screenSize_data();
    void screenSize();
    void placement_data();
    void placement();
    void retranslate();
};

void tst_QKXKeyboard::cleanup()
{
    qApp->setProperty("-res", QVariant());
    qApp->setProperty("-notransparency", QVariant());
}

void tst_QKXKeyboard::keysAndOutlines_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("objectName");
    QTest::addColumn<QVector<int>>("place");   // row, column, span

    // Style sheets draw each key's borders by its object name, so that neighbours share one line.
    const struct {
        int page;
        const char *caption, *name;
        int row, column, span;
    } keys[] = {
        {0, "q", "kbBtnBottomLeft", 0, 0, 2}, {0, "p", "kbBtn", 0, 18, 2}, {0, " ", "bksp", 0, 20, 2},
        {0, "a", "kbBtnLeft", 1, 1, 2},       {0, "l", "kbBtnBottom", 1, 17, 2}, {0, "Enter", "enter", 1, 19, 3},
        {0, "Shift", "shift", 2, 0, 4},       {0, "z", "kbBtn", 2, 4, 2},    {0, "m", "kbBtnRight", 2, 16, 2},
        {0, "Clear", "clear", 2, 19, 3},      {0, ".?123", "kbBtnBottomLeft", 3, 0, 6},
        {0, "Spacebar", "kbBtnBottom", 3, 6, 9}, {0, "#+=", "kbBtnBottom", 3, 15, 4},
        {0, "Cancel", "cancelBottomRight", 3, 19, 3},
        {1, "Q", "kbBtnBottomLeft", 0, 0, 2}, {1, "L", "kbBtnBottom", 1, 17, 2}, {1, "M", "kbBtnRight", 2, 16, 2},
        {2, "0", "kbBtn", 0, 18, 2},          {2, "-", "kbBtnBottomLeft", 1, 1, 2}, {2, "/", "kbBtnBottom", 1, 3, 2},
        {2, "&&", "kbBtnBottom", 1, 15, 2},   {2, "@", "kbBtnBottom", 1, 17, 2}, {2, ".", "kbBtnLeft", 2, 4, 2},
        {2, "\"", "kbBtnRight", 2, 14, 2},    {2, "Clear", "clearAllRound", 2, 19, 3},
        {2, "ABC", "kbBtnBottomLeft", 3, 0, 6}, {2, "Spacebar", "kbBtnBottom", 3, 6, 8},
        {2, "#+=", "kbBtnBottom", 3, 14, 5},
        {3, "[", "kbBtnBottomLeft", 0, 0, 2}, {3, "]", "kbBtnBottom", 0, 2, 2}, {3, "*", "kbBtnBottom", 0, 14, 2},
        {3, "=", "kbBtnBottom", 0, 18, 2},    {3, "_", "kbBtnLeft", 1, 3, 2},  {3, "\\", "kbBtn", 1, 5, 2},
        {3, ">", "kbBtnRight", 1, 13, 2},     {3, "Enter", "enterAllRound", 1, 19, 3},
        {3, ".", "kbBtnLeft", 2, 3, 2},       {3, "\"", "kbBtnRight", 2, 13, 2},
        {3, ".?123", "kbBtnBottom", 3, 14, 5},
    };
    for (const auto &key : keys)
        QTest::addRow("page %d %s", key.page, key.caption)
            << key.page << QString::fromUtf8(key.caption) << QString::fromLatin1(key.name)
            << QVector<int>({key.row, key.column, key.span});
}

void tst_QKXKeyboard::keysAndOutlines()
{
    QFETCH(int, page);
    QFETCH(QString, caption);
    QFETCH(QString, objectName);
    QFETCH(QVector<int>, place);

    QKXKeyboard keyboard;
    const Placed placed = placedKey(keyboard, page, caption);
    QVERIFY(placed.key);
    QCOMPARE(placed.key->objectName(), objectName);
    QCOMPARE(QVector<int>({placed.row, placed.column, placed.span}), place);
    QCOMPARE(placed.key->focusPolicy(), Qt::NoFocus);
}

void tst_QKXKeyboard::pages()
{
    QKXKeyboard keyboard;
    auto *stack = keyboard.findChild<QStackedWidget *>();
    QCOMPARE(stack->count(), 4);
    const auto press = [&keyboard](const char *caption) { keyboard.key(QLatin1String(caption))->click(); };
    const auto state = [&] { return QStringLiteral("%1/%2").arg(stack->currentIndex()).arg(int(keyboard.keyMode())); };

    QCOMPARE(state(), QStringLiteral("0/0"));
    press("Shift");
    QCOMPARE(state(), QStringLiteral("1/1"));
    // Typing a letter does not leave the upper-case page.
    press("Q");
    QCOMPARE(state(), QStringLiteral("1/1"));
    press(".?123");
    QCOMPARE(state(), QStringLiteral("2/3"));
    // Only records: the page stays.
    keyboard.setKeyMode(QKXKeyboard::SYMBOLS);
    QCOMPARE(state(), QStringLiteral("2/2"));
    press("#+=");
    QCOMPARE(state(), QStringLiteral("3/2"));
    press("ABC");   // back to the letter page last shown
    QCOMPARE(state(), QStringLiteral("1/1"));
    QVERIFY(keyboard.key(QStringLiteral("shift"))->isChecked());
    press("Shift");
    QCOMPARE(state(), QStringLiteral("0/0"));
    press("#+=");
    press(".?123");
    QCOMPARE(state(), QStringLiteral("2/3"));
    press("ABC");
    QCOMPARE(state(), QStringLiteral("0/0"));
}

void tst_QKXKeyboard::typing_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("cursor");
    QTest::addColumn<int>("selected");   // characters selected forwards from the cursor
    QTest::addColumn<int>("page");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("result");
    QTest::addColumn<int>("cursorAfter");

    QTest::newRow("at the cursor") << "abd" << 2 << 0 << 0 << "c" << "abcd" << 3;
    QTest::newRow("over a selection") << "abcdef" << 1 << 2 << 0 << "x" << "axdef" << 2;
    QTest::newRow("ampersand") << "R" << 1 << 0 << 2 << "&&" << "R&" << 2;
    QTest::newRow("space") << "ab" << 2 << 0 << 0 << "Spacebar" << "ab " << 3;
    QTest::newRow("backspace") << "ab-" << 3 << 0 << 0 << " " << "ab" << 2;
    QTest::newRow("backspace leaves a lone minus") << "-5" << 2 << 0 << 0 << " " << "" << 0;
    QTest::newRow("backspace in the middle") << "abc" << 2 << 0 << 3 << " " << "ac" << 1;
    QTest::newRow("backspace at the start") << "ab" << 0 << 0 << 0 << " " << "ab" << 0;
    QTest::newRow("clear") << "abc" << 1 << 0 << 2 << "Clear" << "" << 0;
}

void tst_QKXKeyboard::typing()
{
    QFETCH(QString, text);
    QFETCH(int, cursor);
    QFETCH(int, selected);
    QFETCH(int, page);
    QFETCH(QString, key);
    QFETCH(QString, result);
    QFETCH(int, cursorAfter);

    Screen screen(QKXTextEntry::KeyboardEntry, text);
    QVERIFY(screen.show());
    QVERIFY(screen.tapAndWaitForPopup());
    screen.entry->setCursorPosition(cursor);
    if (selected)
        screen.entry->setSelection(cursor, selected);
    QMetaObject::invokeMethod(screen.popup, page == 2 ? "showNumberKeys" : page == 3 ? "showSymbolKeys" : "swapLowercase");
    Screen::click(screen.popup->key(key));
    QCOMPARE(screen.entry->text(), result);
    QCOMPARE(screen.popup->display()->text(), result);
    QCOMPARE(screen.entry->cursorPosition(), cursorAfter);
    // The keys never take the focus: the cursor stays in the field.
    QVERIFY(screen.entry->hasFocus());
}

void tst_QKXKeyboard::enterAndCancel()
{
    for (const bool enter : {true, false}) {
        Screen screen(QKXTextEntry::KeyboardEntry, QStringLiteral("Bench"));
        QVERIFY(screen.show());
        QVERIFY(screen.tapAndWaitForPopup());
        Screen::click(screen.popup->key(QStringLiteral("x")));
        QStringList seen;
        connect(screen.popup, &QKXKeyboard::submit, [&seen](const QString &t) { seen << "submit " + t; });
        connect(screen.popup, &QKXKeyboard::done, [&seen] { seen << "done"; });
        connect(screen.popup, &QKXKeyboard::cancelEntry, [&] { seen << (screen.popup->isVisible() ? "cancel shown" : "cancel hidden"); });
        screen.road.clear();
        Screen::click(screen.popup->key(enter ? QStringLiteral("Enter") : QStringLiteral("Cancel")));
        QTRY_VERIFY(!screen.filter->isEditing());
        if (enter) {
            QCOMPARE(seen, QStringList({"submit Benchx", "done"}));
            QCOMPARE(screen.road, QStringList({"submit Benchx", "editEnd", "release"}));
            QCOMPARE(screen.field->text(), QStringLiteral("Benchx"));
        } else {
            // Hidden before the filter hears of the cancel, which puts the engine's text back.
            QCOMPARE(seen, QStringList({"cancel hidden"}));
            QCOMPARE(screen.road, QStringList({"editEnd", "release"}));
            QCOMPARE(screen.field->text(), QStringLiteral("Bench"));
        }
        QVERIFY(!screen.popup->isVisible() && !screen.popup->registeredWidget());
        // The edit is over: the keyboard reaches the filter no more.
        QMetaObject::invokeMethod(screen.popup, "buttonSubmit");
        QCOMPARE(screen.road.count(), enter ? 3 : 2);
    }
}

void tst_QKXKeyboard::passwordEcho_data()
{
    QTest::addColumn<QVariant>("mode");
    QTest::addColumn<bool>("masked");

    QTest::newRow("password") << QVariant(2) << true;
    QTest::newRow("keyboard") << QVariant(0) << false;
    QTest::newRow("DTMF") << QVariant(3) << false;
    QTest::newRow("no mode") << QVariant() << false;
}

void tst_QKXKeyboard::passwordEcho()
{
    QFETCH(QVariant, mode);
    QFETCH(bool, masked);

    QWidget window;
    window.resize(800, 480);
    // Any widget with a line edit and an EntryMode: the keyboard asks nothing else of it.
    QWidget field(&window);
    auto *edit = new QLineEdit(QStringLiteral("s3cret"), &field);
    field.setProperty("EntryMode", mode);
    QObject filter;
    QKXKeyboard keyboard(&window);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    keyboard.registerWidget(&filter, &field);
    const QLineEdit::EchoMode echo = masked ? QLineEdit::Password : QLineEdit::Normal;
    QCOMPARE(edit->echoMode(), echo);
    QCOMPARE(keyboard.display()->echoMode(), echo);
    QCOMPARE(keyboard.display()->text(), QStringLiteral("s3cret"));
    QVERIFY(keyboard.isVisible());
}

void tst_QKXKeyboard::anotherFieldCancelsTheEdit()
{
    Screen screen(QKXTextEntry::KeyboardEntry, QStringLiteral("First"));
    auto *second = new QKXTextEntry(&screen.window);
    second->setGeometry(40, 120, 300, 60);
    second->setText(QStringLiteral("Second"));
    auto *secondFilter = new QKXTextEventFilter(second, nullptr);
    second->installEventFilter(secondFilter);
    QVERIFY(screen.show());
    QVERIFY(screen.tapAndWaitForPopup());
    Screen::click(screen.popup->key(QStringLiteral("x")));
    QCOMPARE(screen.field->text(), QStringLiteral("Firstx"));

    screen.road.clear();
    secondFilter->lockAcquired(second);
    QTRY_VERIFY(secondFilter->isEditing());
    screen.popup->registerWidget(secondFilter, second);
    // The first edit gave its text back and ended; only the second field takes keys now.
    QTRY_COMPARE(screen.road, QStringList({"editEnd", "release"}));
    QCOMPARE(screen.field->text(), QStringLiteral("First"));
    QCOMPARE(screen.popup->registeredWidget(), second);
    QVERIFY(screen.popup->isVisible());
    Screen::click(screen.popup->key(QStringLiteral("y")));
    QCOMPARE(second->text(), QStringLiteral("Secondy"));
    QCOMPARE(screen.popup->display()->text(), QStringLiteral("Secondy"));
    QCOMPARE(screen.field->text(), QStringLiteral("First"));
}

void tst_QKXKeyboard::screenSize_data()
{
    QTest::addColumn<QVariant>("resolution");
    QTest::addColumn<QVariant>("noTransparency");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("captionPixels");
    QTest::addColumn<bool>("opaque");

    QTest::newRow("default") << QVariant() << QVariant() << QSize(680, 325) << 40 << false;
    QTest::newRow("compact") << QVariant("480x800") << QVariant() << QSize(480, 280) << 28 << false;
    QTest::newRow("other resolution") << QVariant("800x480") << QVariant("false") << QSize(680, 325) << 40 << false;
    QTest::newRow("opaque compact") << QVariant("480x800") << QVariant("true") << QSize(480, 280) << 28 << true;
}

void tst_QKXKeyboard::screenSize()
{
    QFETCH(QVariant, resolution);
    QFETCH(QVariant, noTransparency);
    QFETCH(QSize, size);
    QFETCH(int, captionPixels);
    QFETCH(bool, opaque);

    qApp->setProperty("-res", resolution);
    qApp->setProperty("-notransparency", noTransparency);
    Screen screen(QKXTextEntry::KeyboardEntry, QStringLiteral("x"), QSize(1000, 900));
    QVERIFY(screen.show());
    QVERIFY(screen.tapAndWaitForPopup());
    QCOMPARE(screen.popup->size(), size);
    QCOMPARE(QSize(screen.popup->getWidth(), screen.popup->getHeight()), size);
    QCOMPARE(screen.popup->minimumSize(), size);
    // Letters and the bottom row's page keys follow the screen; the special keys keep their small print.
    QCOMPARE(QFontInfo(screen.popup->key(QStringLiteral("q"))->font()).pixelSize(), captionPixels);
    QCOMPARE(QFontInfo(screen.popup->key(QStringLiteral(".?123"))->font()).pixelSize(), captionPixels);
    QCOMPARE(QFontInfo(screen.popup->key(QStringLiteral("Enter"))->font()).pixelSize(), 14);
    const QString sheet = screen.popup->getContainerFrame()->styleSheet();
    QCOMPARE(sheet.contains(QLatin1String("QFrame#MainFrame{    background-color: #000;}")), opaque);
    // The panel draws itself: the container's own frame stays out of sight.
    QCOMPARE(screen.popup->borderFrame()->styleSheet(),
             QStringLiteral("QFrame#BorderFrame {\tbackground-color:transparent;\tborder: none;}"));
}

void tst_QKXKeyboard::placement_data()
{
    QTest::addColumn<QSize>("window");
    QTest::addColumn<QRect>("field");
    QTest::addColumn<QPoint>("place");

    QTest::newRow("below right") << QSize(1400, 900) << QRect(40, 40, 300, 60) << QPoint(345, 105);
    QTest::newRow("pushed up") << QSize(1400, 400) << QRect(40, 40, 300, 60) << QPoint(345, 75);
    QTest::newRow("right edge: to the left") << QSize(1400, 900) << QRect(1000, 40, 300, 60) << QPoint(315, 105);
    QTest::newRow("no room: bottom-right corner") << QSize(800, 480) << QRect(40, 40, 300, 60) << QPoint(120, 155);
}

void tst_QKXKeyboard::placement()
{
    QFETCH(QSize, window);
    QFETCH(QRect, field);
    QFETCH(QPoint, place);

    Screen screen(QKXTextEntry::KeyboardEntry, QStringLiteral("x"), window);
    screen.field->setGeometry(field);
    QVERIFY(screen.show());
    QVERIFY(screen.tapAndWaitForPopup());
    QCOMPARE(screen.popup->pos(), place);
}

void tst_QKXKeyboard::retranslate()
{
    QKXKeyboard keyboard;
    kxtest::WordTranslator german({{"Cancel", "Abbrechen"}, {"Shift", "Umschalt"}, {"Spacebar", "Leertaste"}});
    qApp->installTranslator(&german);
    keyboard.retranslate();
    qApp->removeTranslator(&german);
    // Every page's keys, not only the page shown.
    for (int page = 0; page < 4; ++page) {
        QVERIFY2(placedKey(keyboard, page, QStringLiteral("Abbrechen")).key, qPrintable(QString::number(page)));
        QVERIFY(placedKey(keyboard, page, QStringLiteral("Leertaste")).key);
        QCOMPARE(bool(placedKey(keyboard, page, QStringLiteral("Umschalt")).key), page < 2);
    }
}

QTEST_MAIN(tst_QKXKeyboard)
#include "tst_QKXKeyboard.moc"
