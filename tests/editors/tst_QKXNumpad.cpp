// SPDX-License-Identifier: BSD-3-Clause
// Mouse events travel through the window system, as a finger on the panel does.
#define QTEST_QPA_MOUSE_HANDLING
#include <QtTest>

#include <QApplication>
#include <QLabel>

#include "QKXRichTextPushButton.h"

#include "EditorTestSupport.h"

using kxtest::Screen;

namespace {

// The text family's side of a dotted-address edit, as far as the pad talks to it.
class AddressFilter : public QObject
{
    Q_OBJECT
public:
    explicit AddressFilter(QObject *parent) : QObject(parent) { setProperty("DataType", QStringLiteral("TextString")); }
public Q_SLOTS:
    void cancel() { emit editEnd(); }
Q_SIGNALS:
    void editEnd();
    void submit(QString text);
};

QString enabledDigits(QKXNumpad &pad)
{
    QString enabled;
    for (int d = 0; d <= 9; ++d)
        if (pad.button(QString::number(d))->isEnabled())
            enabled += QString::number(d);
    return enabled;
}

} // namespace

class tst_QKXNumpad : public QObject
{
    Q_OBJECT

private slots:
    void keys();
    void styleSheet();
    void padFitsTheField_data();
    void padFitsTheField();
    void keyEdits_data();
    void keyEdits();
    void commit_data();
    void commit();
    void reRegistrationCancelsPrevious();
    void unknownDataType_data();
    void unknownDataType();
    void dottedAddress();
    void placement_data();
    void placement();
};

void tst_QKXNumpad::keys()
{
    QKXNumpad pad;
    QCOMPARE(pad.objectName(), QStringLiteral("NumpadEntry"));
    QCOMPARE(pad.buttonNames().size(), 23);
    // key/object name the application's sheets select on/caption
    for (const QString &key : QStringList{"cancel/cancel/Cancel", "bksp/bksp/ ", "1/kbBtnLeft/1", "2/kbBtn/2", "dot/kbBtnBottomLeft/.",
                               "plmin/kbBtnBottom/\u00b1", "D/kbBtnRight/D", "hexEnter/enter/Enter"}) {
        QPushButton *button = pad.button(key.section('/', 0, 0));
        QVERIFY2(button, qPrintable(key));
        QCOMPARE(key.section('/', 0, 0) + '/' + button->objectName() + '/' + button->text(), key);
    }
    // The units page holds four rich-text keys.
    auto *unit = qobject_cast<QKXRichTextPushButton *>(pad.unitButton(3));
    QVERIFY(unit && !pad.unitButton(4));
    QCOMPARE(unit->objectName(), QStringLiteral("unit"));

    // A language change renames the control keys and the decimal page's Enter only.
    kxtest::WordTranslator german("Enter", "Eingabe");
    qApp->installTranslator(&german);
    pad.retranslate();
    qApp->removeTranslator(&german);
    QCOMPARE(pad.button(QStringLiteral("enter"))->text() + '|' + pad.button(QStringLiteral("hexEnter"))->text(),
             QStringLiteral("Eingabe|Enter"));
}

void tst_QKXNumpad::styleSheet()
{
    const QString opaquePanel = QStringLiteral("QFrame#MainFrame{    background-color: #000;}");
    for (const QVariant &noTransparency : {QVariant(), QVariant(QStringLiteral("true")), QVariant(QStringLiteral("yes"))}) {
        qApp->setProperty("-notransparency", noTransparency);
        QKXNumpad pad;
        qApp->setProperty("-notransparency", QVariant());
        const QString sheet = pad.styleSheet();
        QCOMPARE(sheet.endsWith(opaquePanel), noTransparency.toString() == QLatin1String("true"));
        // The application supplies these images under exactly these names.
        for (const char *image : {"url(:/images/backspace.png)", "url(:/images/bksp_pressed.png)",
                                  "url(:/images/rotateEntry.png)", "url(:/images/rotateEntryPressed.png)"})
            QVERIFY2(sheet.contains(QLatin1String(image)), image);
    }
}

void tst_QKXNumpad::padFitsTheField_data()
{
    QTest::addColumn<QString>("dataType");
    QTest::addColumn<int>("base");
    QTest::addColumn<int>("precision");
    QTest::addColumn<double>("lower");
    QTest::addColumn<QString>("digits");
    QTest::addColumn<bool>("dot");
    QTest::addColumn<bool>("sign");
    QTest::addColumn<int>("w");

    QTest::newRow("int hex") << "Int" << 16 << 3 << 0.0 << "0123456789" << false << false << 318;
    QTest::newRow("int bin, negative lower limit") << "Int" << 2 << 0 << -0.5 << "01" << false << true << 260;
    QTest::newRow("double, no decimals") << "Double" << 10 << 0 << -10.0 << "0123456789" << false << true << 260;
    QTest::newRow("double, decimals") << "Double" << 10 << 2 << 5.0 << "0123456789" << true << false << 260;
}

void tst_QKXNumpad::padFitsTheField()
{
    QFETCH(QString, dataType);
    QFETCH(int, base);
    QFETCH(int, precision);
    QFETCH(double, lower);
    QFETCH(QString, digits);
    QFETCH(bool, dot);
    QFETCH(bool, sign);
    QFETCH(int, w);
    const int h = 400;

    Screen screen(dataType);
    screen.field->setBaseType(QKXNumeric::BaseType(base));
    screen.field->setPrecision(precision);
    screen.field->setLowerLimit(lower);
    screen.field->setValue(4);
    QVERIFY(screen.show());
    QVERIFY(screen.tapAndWaitForPad());
    QKXNumpad &pad = *screen.pad;
    QCOMPARE(enabledDigits(pad), digits);
    QCOMPARE(pad.button(QStringLiteral("dot"))->isEnabled(), dot);
    QCOMPARE(pad.button(QStringLiteral("plmin"))->isEnabled(), sign);
    QCOMPARE(pad.size(), QSize(w, h));
    QCOMPARE(pad.findChild<QFrame *>(QStringLiteral("NumpadFrame"))->geometry(), QRect(0, 78, w, h - 128));
    QCOMPARE(pad.rotateButton()->geometry(), QRect(w - 46, h - 46, 36, 36));
    QCOMPARE(pad.rotateButton()->objectName(), QStringLiteral("RotateEntry"));
    QCOMPARE(pad.button(QStringLiteral("A"))->isVisible(), base == 16);
    QCOMPARE(pad.button(QStringLiteral("enter"))->isVisible(), base != 16);
    // Keys never take the focus from the field being edited.
    QCOMPARE(pad.button(QStringLiteral("7"))->focusProxy(), screen.entry);
    QCOMPARE(QApplication::focusWidget(), screen.entry);

    // The next field, in base 10, gets the whole decimal pad back.
    screen.press(QStringLiteral("cancel"));
    screen.field->setBaseType(QKXNumeric::DEC);
    QVERIFY(screen.tapAndWaitForPad());
    QCOMPARE(enabledDigits(pad), QStringLiteral("0123456789"));
    QCOMPARE(pad.size(), QSize(260, h));
}

void tst_QKXNumpad::keyEdits_data()
{
    QTest::addColumn<QString>("start");
    QTest::addColumn<int>("cursor");   // -1: the whole text selected
    QTest::addColumn<double>("lower");
    QTest::addColumn<double>("upper");
    QTest::addColumn<QStringList>("keys");
    QTest::addColumn<QString>("text");

    QTest::newRow("sign removes first minus") << "7-3" << 3 << -10.0 << 10.0 << QStringList({"plmin"}) << "73";
    QTest::newRow("backspace drops lone sign") << "-5" << 2 << -10.0 << 10.0 << QStringList({"bksp"}) << "";
    QTest::newRow("backspace at start") << "12" << 0 << -10.0 << 10.0 << QStringList({"bksp"}) << "12";
    QTest::newRow("backspace keeps cursor") << "123" << 2 << -10.0 << 10.0 << QStringList({"bksp", "9"}) << "193";
    QTest::newRow("dot on empty") << "" << 0 << -10.0 << 10.0 << QStringList({"dot", "5"}) << "0.5";
    QTest::newRow("second dot refused") << "1.5" << 3 << -10.0 << 10.0 << QStringList({"dot"}) << "1.5";
    QTest::newRow("dot over selection with dot") << "1.5" << -1 << -10.0 << 10.0 << QStringList({"dot"}) << "0.";
    QTest::newRow("negative range: clear leaves sign") << "-12" << 3 << -100.0 << -1.0 << QStringList({"clear", "4"}) << "-4";
    QTest::newRow("negative range: typed text signed") << "35" << 3 << -100.0 << -1.0 << QStringList() << "-35";
    QTest::newRow("upper limit 0 is not negative") << "" << 0 << -100.0 << 0.0 << QStringList({"5"}) << "5";
}

void tst_QKXNumpad::keyEdits()
{
    QFETCH(QString, start);
    QFETCH(int, cursor);
    QFETCH(double, lower);
    QFETCH(double, upper);
    QFETCH(QStringList, keys);
    QFETCH(QString, text);

    Screen screen(QStringLiteral("Double"));
    screen.field->setPrecision(2);
    screen.field->setLowerLimit(lower);
    screen.field->setUpperLimit(upper);
    QVERIFY(screen.show());
    QVERIFY(screen.tapAndWaitForPad());

    // Typed in on the keyboard first, the way the pad mirrors it.
    screen.entry->selectAll();
    if (start.isEmpty())
        QTest::keyClick(screen.entry, Qt::Key_Backspace);
    else
        QTest::keyClicks(screen.entry, start);
    if (cursor < 0)
        screen.entry->selectAll();
    else
        screen.entry->setCursorPosition(cursor);
    for (const QString &key : keys)
        screen.press(key);

    QCOMPARE(screen.entry->text(), text);
    QCOMPARE(screen.pad->display()->text(), text);
    QVERIFY(screen.filter->isEditing());
}

void tst_QKXNumpad::commit_data()
{
    QTest::addColumn<QString>("dataType");
    QTest::addColumn<int>("base");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("submitted");
    QTest::addColumn<QString>("debugLine");

    const QString unread = QStringLiteral("UserInterface - QKXNumpad: \"%1\" is not a number in base %2 - committing 0");
    const QString beyond = QStringLiteral("UserInterface - QKXNumpad: \"%1\" is beyond the integer range - committing %2");
    QTest::newRow("int dec truncates") << "Int" << 10 << "-2.9" << "int -2" << "";
    QTest::newRow("double") << "Double" << 10 << "2.5" << "double 2.5" << "";
    QTest::newRow("lone sign") << "Int" << 10 << "-" << "int 0" << unread.arg("-", "10");
    QTest::newRow("fraction in hex") << "Int" << 16 << "1.5" << "int 0" << unread.arg("1.5", "16");
    QTest::newRow("huge int") << "Int" << 10 << "99999999999" << "int 2147483647" << beyond.arg("99999999999", "2147483647");
    QTest::newRow("huge hex") << "Int" << 16 << "-FFFFFFFFF" << "int -2147483648" << beyond.arg("-FFFFFFFFF", "-2147483648");
}

void tst_QKXNumpad::commit()
{
    QFETCH(QString, dataType);
    QFETCH(int, base);
    QFETCH(QString, text);
    QFETCH(QString, submitted);
    QFETCH(QString, debugLine);

    Screen screen(dataType);
    QStringList &seen = screen.road;
    screen.field->setBaseType(QKXNumeric::BaseType(base));
    QVERIFY(screen.show());
    QVERIFY(screen.tapAndWaitForPad());
    screen.entry->setText(text);
    seen.clear();

    kxtest::DebugLines debug;
    QSignalSpy padEnd(screen.pad, &QKXKeyPadBase::editEnd);
    screen.press(base == 16 ? QStringLiteral("hexEnter") : QStringLiteral("enter"));

    // The pad's commit leaves through the filter in the data type's one form only.
    QCOMPARE(seen, QStringList({submitted, "editEnd", "release"}));
    QCOMPARE(debug.lines(), debugLine.isEmpty() ? QStringList() : QStringList(debugLine));
    QCOMPARE(padEnd.count(), 1);
    QVERIFY(!screen.pad->isVisible());
    QVERIFY(!screen.pad->registeredFilter());

    // Unchained: the pad's signals no longer reach the filter.
    seen.clear();
    emit screen.pad->submit(5);
    emit screen.pad->done();
    QVERIFY(seen.isEmpty());
}

void tst_QKXNumpad::reRegistrationCancelsPrevious()
{
    QStringList second;
    Screen screen(QStringLiteral("Int"));
    QStringList &first = screen.road;
    screen.intAdapter.current = 11;

    // A second field on the screen, edited without lock (no adapter), on the same pad.
    auto *other = new QKXNumeric(&screen.window);
    other->setGeometry(40, 300, 200, 60);
    other->setBaseType(QKXNumeric::OCT);
    auto *otherFilter = new QKXNumericEventFilter(other, QStringLiteral("Int"), nullptr);
    other->installEventFilter(otherFilter);
    kxtest::logFilter(otherFilter, second);
    // Straight from the filter to the pad, which lasts one edit only.
    QObject::connect(otherFilter, &QKXEventFilterBase::editStart, screen.pad, &QKXNumpad::registerWidget);
    QVERIFY(screen.show());
    QVERIFY(screen.tapAndWaitForPad());
    first.clear();
    second.clear();

    otherFilter->forceClick();
    QCOMPARE(first, QStringList({"int 11", "editEnd", "release"}));
    QCOMPARE(screen.pad->registeredWidget(), other);
    QVERIFY(screen.pad->isVisible());
    QTRY_VERIFY(otherFilter->isEditing());
    screen.press(QStringLiteral("1"));
    screen.press(QStringLiteral("7"));
    screen.press(QStringLiteral("enter"));
    QCOMPARE(second, QStringList({"editStart", "int 15", "editEnd", "release"}));
    QCOMPARE(first, QStringList({"int 11", "editEnd", "release"}));
    // The pad let go of every connection with that filter when its edit ended.
    otherFilter->forceClick();
    QVERIFY(!screen.pad->isVisible() && !screen.pad->registeredWidget());
}

void tst_QKXNumpad::unknownDataType_data()
{
    QTest::addColumn<QString>("dataType");
    QTest::newRow("unknown") << "Bogus";
    QTest::newRow("empty") << "";
    QTest::newRow("case matters") << "int";
}

void tst_QKXNumpad::unknownDataType()
{
    QFETCH(QString, dataType);
    Screen screen(dataType);
    QStringList &seen = screen.road;
    QVERIFY(screen.show());
    kxtest::DebugLines debug;
    QVERIFY(screen.tapAndWaitForPad());

    // The widget as the debug stream prints it (its class, address and name).
    QString widget;
    QDebug(&widget) << static_cast<QWidget *>(screen.field);
    QCOMPARE(debug.lines(), QStringList{QStringLiteral("UserInterface - QKXNumpad attempting to register unknown data type: "
                                                       "\"%1\" Widget: %2").arg(dataType, widget.trimmed())});

    // The pad shows, but a commit only ends the edit.
    seen.clear();
    screen.press(QStringLiteral("4"));
    screen.press(QStringLiteral("enter"));
    QCOMPARE(seen, QStringList({"editEnd", "release"}));
}

void tst_QKXNumpad::dottedAddress()
{
    QWidget window;
    window.resize(800, 480);
    auto *field = new QWidget(&window);
    field->setGeometry(40, 40, 200, 60);
    auto *entry = new QLineEdit(field);
    auto *filter = new AddressFilter(field);
    auto *pad = new QKXNumpad(&window);
    QStringList road;
    connect(filter, &AddressFilter::submit, [&road](const QString &text) { road << text; });
    connect(filter, &AddressFilter::editEnd, [&road] { road << QStringLiteral("editEnd"); });
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    pad->registerWidget(filter, field);
    QVERIFY(pad->isVisible() && !pad->rotateButton()->isVisible());
    QVERIFY(pad->button(QStringLiteral("dot"))->isEnabled() && !pad->button(QStringLiteral("plmin"))->isEnabled());
    // Three dots at most; each key types at the cursor.
    for (const char *key : {"1", "9", "2", "dot", "1", "6", "8", "dot", "1", "dot", "dot", "5"})
        QTest::mouseClick(pad->button(QLatin1String(key)), Qt::LeftButton);
    QCOMPARE(entry->text(), QStringLiteral("192.168.1.5"));
    QCOMPARE(pad->display()->text(), entry->text());
    QTest::mouseClick(pad->button(QStringLiteral("enter")), Qt::LeftButton);
    QCOMPARE(road, QStringList({"192.168.1.5", "editEnd"}));
    QVERIFY(!pad->isVisible());
}

void tst_QKXNumpad::placement_data()
{
    QTest::addColumn<QSize>("window");
    QTest::addColumn<QRect>("field");
    QTest::addColumn<int>("base");
    QTest::addColumn<QPoint>("place");

    QTest::newRow("pushed up") << QSize(800, 480) << QRect(40, 40, 200, 60) << 10 << QPoint(245, 80);
    QTest::newRow("just fits right") << QSize(800, 600) << QRect(0, 0, 534, 60) << 10 << QPoint(539, 65);
    QTest::newRow("touching right edge flips") << QSize(800, 600) << QRect(300, 0, 235, 60) << 10 << QPoint(35, 65);
    QTest::newRow("no room either side") << QSize(800, 480) << QRect(100, 40, 650, 60) << 10 << QPoint(540, 80);
    // Into the bottom-right corner even then: the pad overhangs the top and left edges.
    QTest::newRow("window smaller than pad") << QSize(200, 300) << QRect(10, 10, 50, 30) << 10 << QPoint(-60, -100);
}

void tst_QKXNumpad::placement()
{
    QFETCH(QSize, window);
    QFETCH(QRect, field);
    QFETCH(int, base);
    QFETCH(QPoint, place);

    Screen screen;
    screen.window.resize(window);
    // The field sits in a panel of the window: placement works in the window's coordinates.
    auto *panel = new QWidget(&screen.window);
    panel->setGeometry(10, 20, window.width(), window.height());
    screen.field->setParent(panel);
    screen.field->setGeometry(field.translated(-10, -20));
    screen.field->setBaseType(QKXNumeric::BaseType(base));
    QVERIFY(screen.show());
    QVERIFY(screen.tapAndWaitForPad());
    QCOMPARE(screen.pad->pos(), place);
}

QTEST_MAIN(tst_QKXNumpad)
#include "tst_QKXNumpad.moc"
