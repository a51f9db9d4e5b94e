// SPDX-License-Identifier: BSD-3-Clause
#define QTEST_QPA_MOUSE_HANDLING

#include "ButtonTestSupport.h"
#include "CSS.h"
#include "QKXPushButton.h"
#include "QKXPushButtonEventFilter.h"
#include "QKXRichTextPushButton.h"

using namespace kxtest;

namespace {

// A button on a screen with the host's filter; the host grants nothing. Everything the button and its
// filter announce lands in one ordered log.
struct Stage
{
    Stage()
    {
        screen.resize(300, 120);
        button = new QKXPushButton(&screen);
        button->setGeometry(20, 20, 200, 60);
        filter = new QKXPushButtonEventFilter(button);
        button->installEventFilter(filter);
        inner = button->findChild<QPushButton *>(QStringLiteral("PushButton"));
        watchClicks(button, log);
        watchLock(filter, button, log, Refuse);
        QObject::connect(filter, &QKXPushButtonEventFilter::submit, [this] { log << QStringLiteral("submit"); });
        QObject::connect(filter, &QKXEventFilterBase::editStart, [this] { log << QStringLiteral("editStart"); });
    }

    QWidget screen;
    QKXPushButton *button;
    QKXPushButtonEventFilter *filter;
    QPushButton *inner;
    QStringList log;
};

} // namespace

class tst_QKXPushButton : public QObject
{
    Q_OBJECT

private slots:
    void styleSheetAndLockLabel();
    void tapEndToEnd_data();
    void tapEndToEnd();
    void richTextButton();
};

void tst_QKXPushButton::styleSheetAndLockLabel()
{
    QKXPushButton b;
    auto *inner = b.findChild<QPushButton *>(QStringLiteral("PushButton"));
    auto *lock = inner->findChild<QLabel *>();
    const QString sheet = b.styleSheet();
    const QString gradient = QStringLiteral("qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 %1, stop:0.8 %2, stop:1 %3)")
                                 .arg(CSS::gradientDark(), CSS::gradientMiddle(), CSS::gradientLight());
    QCOMPARE(describeSheet(sheet),
             (QStringList{"QPushButton { background-color: " + gradient.simplified() + "; color: white; "
                              "border-style: solid; border-width: 2px; border-color: " + CSS::border().simplified()
                              + "; border-radius: 15px; padding: 3px 0px 0px 8px; margin: 0px; min-height: 40px; "
                                "max-height: 40px; text-align: top left; font-size: 18px }",
                          "QPushButton:pressed { color: white; background-color: " + CSS::gradientDark().simplified() + " }",
                          "QLabel { color: white; background-color: " + CSS::highlight().simplified() + "; "
                              "border-radius: 7px; padding: 0px; min-height: 14px; max-height: 14px; "
                              "margin: 17px 0px 0px 0px; font: bold 16 px }",
                          "QLabel#Locked { border: 1px solid " + CSS::border().simplified() + "; background-color: #666666 }"}));

    // One sheet for both sizes; locking only renames the label, which picks the sheet's locked rule.
    b.changeSize(QStringLiteral("Max"));
    b.setReadOnly(true);
    b.setLocked(true);
    QCOMPARE(b.currentSize() + QLatin1Char('|') + b.styleSheet(), QStringLiteral("Max|") + sheet);
    QCOMPARE(lock->text() + QLatin1Char('|') + lock->objectName(), QStringLiteral("Locked  |Locked"));
    b.setLocked(false);
    QCOMPARE(lock->text() + QLatin1Char('|') + lock->objectName(), QStringLiteral("|"));

    // Shown translated, kept as written for the host.
    WordTranslator german("Preset", "Voreinstellung");
    qApp->installTranslator(&german);
    QVERIFY(b.setProperty("LabelText", QStringLiteral("Preset")));
    qApp->removeTranslator(&german);
    QCOMPARE(inner->text(), QStringLiteral("Voreinstellung"));
    QCOMPARE(b.property("LabelText").toString(), QStringLiteral("Preset"));
}

void tst_QKXPushButton::tapEndToEnd_data()
{
    QTest::addColumn<QList<bool>>("lockSteps");
    QTest::addColumn<bool>("renamed");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("renamed by the host") << QList<bool>() << true << QStringList{"clicked", "buttonPressed RFOnButton"};
    // Locked, the filter still asks; only the widget's own signals stay quiet.
    QTest::newRow("locked") << QList<bool>{true} << false << QStringList();
    QTest::newRow("locked then unlocked") << QList<bool>{true, false} << false
                                          << QStringList{"clicked", "buttonPressed PushButton"};
}

void tst_QKXPushButton::tapEndToEnd()
{
    QFETCH(QList<bool>, lockSteps);
    QFETCH(bool, renamed);
    QFETCH(QStringList, expected);
    Stage s;
    QVERIFY(exposed(s.screen));
    if (renamed) {
        QVERIFY(QMetaObject::invokeMethod(s.button, "setButtonName", Q_ARG(QString, QStringLiteral("RFOnButton"))));
        QCOMPARE(s.inner->objectName(), QStringLiteral("RFOnButton"));
    }
    for (bool locked : lockSteps)
        s.button->setLocked(locked);
    QTest::mouseClick(s.inner, Qt::LeftButton);
    // The filter sees the release before the button turns it into a click; only the widget's own
    // pair has a fixed order.
    QCOMPARE(s.log.count(QStringLiteral("request")), 1);
    s.log.removeAll(QStringLiteral("request"));
    QCOMPARE(s.log, expected);

    // A grant for another widget is not the button's; its own is sent and handed back.
    s.log.clear();
    QWidget other;
    s.filter->lockAcquired(&other);
    QVERIFY(QMetaObject::invokeMethod(s.filter, "lockAcquired", Q_ARG(QWidget *, s.button)));
    QVERIFY(QMetaObject::invokeMethod(s.filter, "submitWidgetVoid"));
    QCOMPARE(s.log, QStringList({"submit", "release", "submit"}));
}

void tst_QKXPushButton::richTextButton()
{
    const QString raw = QStringLiteral("  Power\\ndBm^2 ");
    QWidget screen;
    screen.resize(200, 100);
    auto *b = new QKXRichTextPushButton(raw, &screen);
    b->setGeometry(10, 10, 120, 60);
    QLabel *label = b->label();
    QVERIFY(label);
    // The raw text stays with the button; the label shows it marked up, and the button paints none.
    QCOMPARE(b->text(), raw);
    QCOMPARE(label->text(), QStringLiteral("Power<br>dBm<sup>2</sup>"));
    QCOMPARE(static_cast<QAbstractButton *>(b)->text(), QString());
    QCOMPARE(label->textFormat(), Qt::RichText);

    // The label lets presses through to the button and looks disabled while it is held.
    QVERIFY(exposed(screen));
    QSignalSpy clicked(b, &QAbstractButton::clicked);
    QTest::mousePress(b, Qt::LeftButton);
    QVERIFY(b->isDown());
    QVERIFY(!label->isEnabled());
    QTest::mouseRelease(b, Qt::LeftButton);
    QVERIFY(label->isEnabled());
    QCOMPARE(clicked.count(), 1);
}

QTEST_MAIN(tst_QKXPushButton)
#include "tst_QKXPushButton.moc"
