// SPDX-License-Identifier: BSD-3-Clause
// Mouse events travel through the window system, as a finger on the panel does.
#define QTEST_QPA_MOUSE_HANDLING
#include <QtTest>

#include <QMap>

#include "QKXDtmfKeypad.h"
#include "QKXToneCodeEntry.h"
#include "QKXdPMRKeypad.h"

#include "TextEditorTestSupport.h"

namespace {

// The keys' captions row by row as the pad shows them ("1 2 3/4 5 6"), from where they are drawn.
QString layoutOf(QKXKeyPadBase &pad, const QStringList &names)
{
    QMap<int, QMap<int, QString>> rows;
    for (const QString &name : names) {
        QPushButton *key = pad.button(name);
        if (key && key->isVisible())
            rows[key->geometry().center().y()][key->geometry().center().x()] = key->text();
    }
    QStringList lines;
    for (const auto &row : qAsConst(rows))
        lines << QStringList(row.values()).join(QLatin1Char(' '));
    return lines.join(QLatin1Char('/'));
}

QStringList names(const char *keys)
{
    return QString::fromLatin1(keys).split(QLatin1Char(' '));
}

// What the pads say of what they were given, in order.
QStringList *watch(QKXKeyPadBase *pad, QStringList *seen)
{
    QObject::connect(pad, QOverload<QString>::of(&QKXKeyPadBase::submit), [seen](const QString &t) { *seen << "submit " + t; });
    QObject::connect(pad, &QKXKeyPadBase::done, [seen] { *seen << "done"; });
    if (auto *dtmf = qobject_cast<QKXDtmfKeypad *>(pad))
        QObject::connect(dtmf, &QKXDtmfKeypad::holding, [seen](bool held) { *seen << (held ? "held" : "let go"); });
    return seen;
}

// A filter of another family, as far as the pads talk to it.
class NumberFilter : public QObject
{
    Q_OBJECT
public:
    explicit NumberFilter(QObject *parent) : QObject(parent) { setProperty("DataType", QStringLiteral("Int")); }
public Q_SLOTS:
    void cancel() { emit editEnd(); }
Q_SIGNALS:
    void editEnd();
    void submit(QString text);
};

} // namespace

class tst_SignallingKeypads : public QObject
{
    Q_OBJECT

private slots:
    void layouts();
    void dtmfTypesAndCommits();
    void dtmfLive();
    void dpmrKeys();
    void toneCode();
    void otherDataTypeGetsNoCommit();
};

void tst_SignallingKeypads::layouts()
{
    QKXDtmfKeypad dtmf;
    QKXdPMRKeypad dpmr;
    QKXToneCodeEntry tone;
    for (QKXKeyPadBase *pad : std::initializer_list<QKXKeyPadBase *>{&dtmf, &dpmr, &tone}) {
        pad->show();
        QVERIFY(QTest::qWaitForWindowExposed(pad));
    }
    QCOMPARE(dtmf.objectName(), QStringLiteral("QKXDtmfKeypad"));
    QCOMPARE(dtmf.size(), QSize(318, 400));
    QCOMPARE(layoutOf(dtmf, names("0 1 2 3 4 5 6 7 8 9 * # A B C D")), QStringLiteral("1 2 3 A/4 5 6 B/7 8 9 C/* 0 # D"));
    QCOMPARE(dtmf.button(QStringLiteral("D"))->objectName(), QStringLiteral("kbBtnBottom"));
    QVERIFY(dtmf.button(QStringLiteral("enter"))->isVisible());

    QCOMPARE(dpmr.objectName(), QStringLiteral("QKXdPMRKeypad"));
    QCOMPARE(dpmr.size(), QSize(260, 400));
    QCOMPARE(layoutOf(dpmr, names("0 1 2 3 4 5 6 7 8 9 star")), QStringLiteral("1 2 3/4 5 6/7 8 9/* 0"));

    QCOMPARE(tone.objectName(), QStringLiteral("QKXToneCodeEntry"));
    QCOMPARE(tone.size(), QSize(318, 400));
    QCOMPARE(tone.dataType(), QStringLiteral("TextString"));
    QCOMPARE(layoutOf(tone, names("0 1 2 3 4 5 6 7 8 9 dash dot plmin")), QStringLiteral("1 2 3/4 5 6/7 8 9/- 0"));
    QCOMPARE(layoutOf(tone, names("A B C D E F hexEnter enter")), QStringLiteral("A D/B E/C F/Enter"));

    // No key lies below 9 or right of 0 on these two: the outline closes there.
    for (QKXKeyPadBase *pad : std::initializer_list<QKXKeyPadBase *>{&dpmr, &tone}) {
        QCOMPARE(pad->button(QStringLiteral("9"))->objectName(), QStringLiteral("kbBtnBottom"));
        QCOMPARE(pad->button(QStringLiteral("0"))->objectName(), QStringLiteral("kbBtnRightBottom"));
    }
}

void tst_SignallingKeypads::dtmfTypesAndCommits()
{
    kxtest::TextScreen<QKXDtmfKeypad> screen(QKXTextEntry::DtmfEntry, QString());
    QVERIFY(screen.show());
    QVERIFY(screen.tapAndWaitForPopup());
    QStringList seen;
    watch(screen.popup, &seen);
    for (const char *key : {"1", "*", "D", "#", "bksp"})
        screen.click(screen.popup->button(QLatin1String(key)));
    QCOMPARE(screen.entry->text(), QStringLiteral("1*D"));
    QCOMPARE(screen.popup->display()->text(), QStringLiteral("1*D"));
    QCOMPARE(seen, QStringList());   // nothing leaves the pad before Enter
    screen.road.clear();
    screen.click(screen.popup->button(QStringLiteral("enter")));
    QCOMPARE(seen, QStringList({"submit 1*D", "done"}));
    QTRY_COMPARE(screen.road, QStringList({"submit 1*D", "editEnd", "release"}));
    QVERIFY(!screen.popup->isVisible());
}

void tst_SignallingKeypads::dtmfLive()
{
    kxtest::TextScreen<QKXDtmfKeypad> screen(QKXTextEntry::DtmfEntry, QString());
    QVERIFY(screen.popup->setProperty("IsLive", true));
    QVERIFY(screen.show());
    QVERIFY(screen.tapAndWaitForPopup());
    QStringList seen;
    watch(screen.popup, &seen);
    QPushButton *five = screen.popup->button(QStringLiteral("5"));

    // The grown string leaves at the press; the hold is bracketed; the release adds nothing.
    QTest::mousePress(five, Qt::LeftButton, Qt::NoModifier, five->rect().center());
    QCOMPARE(seen, QStringList({"submit 5", "held"}));
    QTest::mouseRelease(five, Qt::LeftButton, Qt::NoModifier, five->rect().center());
    QCOMPARE(seen, QStringList({"submit 5", "held", "let go"}));

    // The control keys are clicked as ever and report too.
    seen.clear();
    screen.click(screen.popup->button(QStringLiteral("bksp")));
    screen.click(screen.popup->button(QStringLiteral("bksp")));   // at the start: nothing to say
    screen.click(screen.popup->button(QStringLiteral("clear")));
    QCOMPARE(seen, QStringList({"submit ", "submit "}));

    // Twenty characters and more: the next press starts a new string.
    seen.clear();
    screen.entry->setText(QStringLiteral("12345678901234567890"));
    screen.click(screen.popup->button(QStringLiteral("#")));
    QCOMPARE(seen, QStringList({"submit ", "submit #", "held", "let go"}));
    QCOMPARE(screen.entry->text(), QStringLiteral("#"));

    // Back to taps: a key is typed on its click and nothing is reported.
    screen.popup->setLive(false);
    seen.clear();
    screen.click(five);
    QCOMPARE(screen.entry->text(), QStringLiteral("#5"));
    QCOMPARE(seen, QStringList());
}

void tst_SignallingKeypads::dpmrKeys()
{
    kxtest::TextScreen<QKXdPMRKeypad> screen(QKXTextEntry::dPMREntry, QStringLiteral("-5"));
    QVERIFY(screen.show());
    QVERIFY(screen.tapAndWaitForPopup());
    screen.click(screen.popup->button(QStringLiteral("bksp")));
    // A lone "-" left over goes too.
    QCOMPARE(screen.entry->text(), QString());
    for (const char *key : {"star", "4", "star", "2"})
        screen.click(screen.popup->button(QLatin1String(key)));
    QCOMPARE(screen.popup->display()->text(), QStringLiteral("*4*2"));
    screen.road.clear();
    screen.click(screen.popup->button(QStringLiteral("enter")));
    QTRY_COMPARE(screen.road, QStringList({"submit *4*2", "editEnd", "release"}));
}

void tst_SignallingKeypads::toneCode()
{
    kxtest::TextScreen<QKXToneCodeEntry> screen(QKXTextEntry::ToneCodeEntry, QString());
    auto *second = new QKXTextEntry(&screen.window);
    second->setGeometry(40, 120, 300, 60);
    QVERIFY(screen.show());
    QVERIFY(screen.tapAndWaitForPopup());
    for (const char *key : {"1", "A", "dash", "F", "0"})
        screen.click(screen.popup->button(QLatin1String(key)));
    QCOMPARE(screen.entry->text(), QStringLiteral("1A-F0"));
    QVERIFY(!screen.popup->button(QStringLiteral("dot"))->isVisible());
    screen.road.clear();
    screen.click(screen.popup->button(QStringLiteral("hexEnter")));
    QTRY_COMPARE(screen.road, QStringList({"submit 1A-F0", "editEnd", "release"}));
    screen.adapter.current = QStringLiteral("1A-F0");   // the engine took it

    // A second field while the first is served: the first edit is given back first.
    QVERIFY(screen.tapAndWaitForPopup());
    screen.click(screen.popup->button(QStringLiteral("7")));
    screen.road.clear();
    auto *secondFilter = new QKXTextEventFilter(second, nullptr);
    screen.popup->registerWidget(secondFilter, second);
    QTRY_COMPARE(screen.road, QStringList({"editEnd", "release"}));
    QCOMPARE(screen.field->text(), QStringLiteral("1A-F0"));
    QCOMPARE(screen.popup->registeredWidget(), second);
}

void tst_SignallingKeypads::otherDataTypeGetsNoCommit()
{
    kxtest::DebugLines lines;
    QWidget window;
    window.resize(800, 480);
    QWidget field(&window);
    field.setGeometry(40, 40, 200, 60);
    new QLineEdit(QStringLiteral("12"), &field);
    auto *filter = new NumberFilter(&field);
    QStringList road;
    connect(filter, &NumberFilter::submit, [&road](const QString &t) { road << "submit " + t; });
    connect(filter, &NumberFilter::editEnd, [&road] { road << "editEnd"; });
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    QKXDtmfKeypad dtmf(&window);
    QKXdPMRKeypad dpmr(&window);
    const QStringList padNames({"QKXDtmfKeypad", "QKXdPMRKeypad"});
    int i = 0;
    for (QKXKeyPadBase *pad : std::initializer_list<QKXKeyPadBase *>{&dtmf, &dpmr}) {
        lines.lines().clear();
        road.clear();
        pad->registerWidget(filter, &field);
        QVERIFY(pad->isVisible());
        QCOMPARE(lines.lines().size(), 1);
        QVERIFY2(lines.lines().first().startsWith("UserInterface - " + padNames.at(i++)
                                                  + " attempting to register unknown data type: \"Int\" Widget: QWidget("),
                 qPrintable(lines.lines().first()));
        // Enter ends the edit, but its text reaches nobody.
        QTest::mouseClick(pad->button(QStringLiteral("enter")), Qt::LeftButton);
        QCOMPARE(road, QStringList({"editEnd"}));
        QVERIFY(!pad->isVisible());
    }
}

QTEST_MAIN(tst_SignallingKeypads)
#include "tst_SignallingKeypads.moc"
