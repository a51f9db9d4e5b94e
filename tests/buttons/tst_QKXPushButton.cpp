// Mouse events travel through the window system, as a finger on the panel does.
#define QTEST_QPA_MOUSE_HANDLING
#include <QtTest>

#include <QLabel>
#include <QPushButton>

#include "ButtonTestSupport.h"
#include "CSS.h"
#include "QKXPushButton.h"
#include "QKXPushButtonEventFilter.h"
#include "QKXRichTextPushButton.h"
#include "QKXUtil.h"

using namespace kxtest;

namespace {

// A button on a screen, with the host's filter installed as the host does it; the host grants nothing.
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
    }

    // Everything the button and its filter announce, in one ordered log.
    void record()
    {
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
    void labelTextIsTranslated();
    void lockLabel();
    void clicks_data();
    void clicks();
    void styleSheet();
    void tapEndToEnd_data();
    void tapEndToEnd();
    void dragAsksNothing();
    void filterIgnoresForeignGrant();
    void richTextButton();
};

void tst_QKXPushButton::labelTextIsTranslated()
{
    QKXPushButton b;
    auto *inner = b.findChild<QPushButton *>(QStringLiteral("PushButton"));
    WordTranslator german("Preset", "Voreinstellung");
    qApp->installTranslator(&german);
    QVERIFY(b.setProperty("LabelText", QStringLiteral("Preset")));
    qApp->removeTranslator(&german);
    // Shown translated, kept as written for the host.
    QCOMPARE(inner->text(), QStringLiteral("Voreinstellung"));
    QCOMPARE(b.property("LabelText").toString(), QStringLiteral("Preset"));
}

void tst_QKXPushButton::lockLabel()
{
    QKXPushButton b;
    auto *lock = b.findChild<QPushButton *>(QStringLiteral("PushButton"))->findChild<QLabel *>();
    const QString sheet = b.styleSheet();
    // The object name picks the sheet's locked rule; the sheet itself never changes.
    b.setLocked(true);
    QCOMPARE(lock->text() + QLatin1Char('|') + lock->objectName(), QStringLiteral("Locked  |Locked"));
    QCOMPARE(b.styleSheet(), sheet);
    b.setLocked(false);
    QCOMPARE(lock->text() + QLatin1Char('|') + lock->objectName(), QStringLiteral("|"));
    QCOMPARE(b.styleSheet(), sheet);
}

void tst_QKXPushButton::clicks_data()
{
    QTest::addColumn<QList<bool>>("lockSteps");
    QTest::addColumn<QString>("renameVia");
    QTest::addColumn<QStringList>("expected");

    const QStringList defaultClick{"clicked", "buttonPressed PushButton"};
    QTest::newRow("default name") << QList<bool>() << "" << defaultClick;
    QTest::newRow("renamed by slot") << QList<bool>() << "slot" << QStringList{"clicked", "buttonPressed RFOnButton"};
    QTest::newRow("renamed by method") << QList<bool>() << "method" << QStringList{"clicked", "buttonPressed RFOnButton"};
    QTest::newRow("locked") << QList<bool>{true} << "" << QStringList();
    QTest::newRow("locked then unlocked") << QList<bool>{true, false} << "" << defaultClick;
}

void tst_QKXPushButton::clicks()
{
    QFETCH(QList<bool>, lockSteps);
    QFETCH(QString, renameVia);
    QFETCH(QStringList, expected);

    Stage s;
    QVERIFY(s.inner);
    QVERIFY(exposed(s.screen));
    if (renameVia == QLatin1String("slot"))
        QVERIFY(QMetaObject::invokeMethod(s.button, "setButtonName", Q_ARG(QString, QStringLiteral("RFOnButton"))));
    else if (renameVia == QLatin1String("method"))
        s.button->setButtonObjectName(QStringLiteral("RFOnButton"));
    if (!renameVia.isEmpty())
        QCOMPARE(s.inner->objectName(), QStringLiteral("RFOnButton"));
    for (bool locked : lockSteps)
        s.button->setLocked(locked);

    watchClicks(s.button, s.log);
    QTest::mouseClick(s.inner, Qt::LeftButton);
    QCOMPARE(s.log, expected);
}

void tst_QKXPushButton::styleSheet()
{
    QKXPushButton b;
    const QString sheet = b.styleSheet();

    // The fragments the host's palette splices in, exactly.
    const QString gradient = QStringLiteral("qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 %1, stop:0.8 %2, stop:1 %3)")
                                 .arg(CSS::gradientDark(), CSS::gradientMiddle(), CSS::gradientLight());
    const QString lockedBorder = QStringLiteral("1px solid ") + CSS::border();
    QVERIFY2(sheet.contains(gradient), qPrintable(sheet));
    QVERIFY2(sheet.contains(lockedBorder), qPrintable(sheet));
    QVERIFY2(sheet.contains(QStringLiteral("bold 16 px")), qPrintable(sheet));

    QCOMPARE(describeSheet(sheet),
             (QStringList{"QPushButton { background-color: " + gradient.simplified() + "; color: white; "
                              "border-style: solid; border-width: 2px; border-color: " + CSS::border().simplified()
                              + "; border-radius: 15px; padding: 3px 0px 0px 8px; margin: 0px; min-height: 40px; "
                                "max-height: 40px; text-align: top left; font-size: 18px }",
                          "QPushButton:pressed { color: white; background-color: " + CSS::gradientDark().simplified() + " }",
                          "QLabel { color: white; background-color: " + CSS::highlight().simplified() + "; "
                              "border-radius: 7px; padding: 0px; min-height: 14px; max-height: 14px; "
                              "margin: 17px 0px 0px 0px; font: bold 16 px }",
                          "QLabel#Locked { border: " + lockedBorder.simplified() + "; background-color: #666666 }"}));

    // One sheet for both sizes, with no locked or read-only overlay.
    b.changeSize(QStringLiteral("Max"));
    QCOMPARE(b.currentSize(), QStringLiteral("Max"));
    QCOMPARE(b.styleSheet(), sheet);
    b.setReadOnly(true);
    b.setLocked(true);
    b.changeSize(QStringLiteral("Min"));
    QCOMPARE(b.currentSize(), QStringLiteral("Min"));
    QCOMPARE(b.styleSheet(), sheet);
}

void tst_QKXPushButton::tapEndToEnd_data()
{
    QTest::addColumn<bool>("locked");
    QTest::newRow("unlocked") << false;
    QTest::newRow("locked") << true;   // the filter still asks; only the widget's own signals stay quiet
}

void tst_QKXPushButton::tapEndToEnd()
{
    QFETCH(bool, locked);

    Stage s;
    QVERIFY(s.inner);
    QVERIFY(exposed(s.screen));
    s.button->setLocked(locked);
    s.record();

    QTest::mouseClick(s.inner, Qt::LeftButton);
    // The filter sees the release before the button turns it into a click; only the widget's own
    // pair has a fixed order.
    QCOMPARE(s.log.count(QStringLiteral("request")), 1);
    s.log.removeAll(QStringLiteral("request"));
    QCOMPARE(s.log, locked ? QStringList() : QStringList({"clicked", "buttonPressed PushButton"}));

    s.log.clear();
    QVERIFY(QMetaObject::invokeMethod(s.filter, "lockAcquired", Q_ARG(QWidget *, s.button)));
    QCOMPARE(s.log, QStringList({"submit", "release"}));
}

void tst_QKXPushButton::dragAsksNothing()
{
    Stage s;
    QVERIFY(exposed(s.screen));
    s.record();
    drag(s.inner);
    QVERIFY(!s.log.contains(QStringLiteral("request")));
    QVERIFY(!s.log.contains(QStringLiteral("submit")));
}

void tst_QKXPushButton::filterIgnoresForeignGrant()
{
    Stage s;
    s.record();
    QWidget other;
    s.filter->lockAcquired(&other);
    QCOMPARE(s.log, QStringList());

    QVERIFY(QMetaObject::invokeMethod(s.filter, "submitWidgetVoid"));
    QCOMPARE(s.log, QStringList({"submit"}));
}

void tst_QKXPushButton::richTextButton()
{
    const QString raw = QStringLiteral("  Power\\ndBm^2 ");
    QString shown = raw;
    QKXUtil::processString(shown);
    QVERIFY(shown != raw);

    QWidget screen;
    screen.resize(200, 100);
    auto *b = new QKXRichTextPushButton(raw, &screen);
    b->setGeometry(10, 10, 120, 60);
    QLabel *label = b->label();
    QVERIFY(label);
    // The raw text stays with the button; the label shows it marked up, and the button paints none.
    QCOMPARE(b->text(), raw);
    QCOMPARE(label->text(), shown);
    QCOMPARE(static_cast<QAbstractButton *>(b)->text(), QString());
    QCOMPARE(label->textFormat(), Qt::RichText);

    const QString unit = QStringLiteral("m/s^2");
    QString unitShown = unit;
    QKXUtil::processString(unitShown);
    b->setText(unit);
    QCOMPARE(b->text(), unit);
    QCOMPARE(label->text(), unitShown);

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
