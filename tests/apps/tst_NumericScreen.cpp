// SPDX-License-Identifier: BSD-3-Clause
// The numeric screen on the host: fields bound to engine attributes, edited on the numeric pad through
// real mouse events, committed values clamped by the engine and shown back in the fields.
#define QTEST_QPA_MOUSE_HANDLING
#include <QtTest>

#include "AppProperties.h"
#include "EditLockOwner.h"
#include "MainWindow.h"
#include "ScreenList.h"
#include "SimulatedEngine.h"
#include "StatusStrip.h"
#include "WidgetNaming.h"

#include "QKXNumeric.h"
#include "QKXNumericEventFilter.h"
#include "QKXNumpad.h"

#include <QLineEdit>
#include <QPushButton>

class tst_NumericScreen : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void fieldsTakeTypeAndLimitsFromEngine_data();
    void fieldsTakeTypeAndLimitsFromEngine();
    void edits_data();
    void edits();

private:
    QKXNumeric *field(const QString &attribute) const;
    QKXNumpad *tapAndOpenPad(QKXNumeric *numeric);

    QScopedPointer<SimulatedEngine> engine;
    QScopedPointer<MainWindow> window;
};

void tst_NumericScreen::init()
{
    AppProperties::setDisplayMode(QStringLiteral("normal"));
    AppProperties::setGuiLocked(false);
    engine.reset(new SimulatedEngine);
    window.reset(new MainWindow(engine.data()));
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.data()));
    ScreenList *screens = window->screens();
    for (int i = 0; i < screens->count(); ++i)
        if (screens->screenId(i) == QLatin1String("numeric"))
            screens->setCurrentIndex(i);
    QTest::qWait(50);
    engine->clearLog();
}

void tst_NumericScreen::cleanup()
{
    window.reset();
    engine.reset();
}

QKXNumeric *tst_NumericScreen::field(const QString &attribute) const
{
    for (QKXNumeric *candidate : window->findChildren<QKXNumeric *>())
        if (WidgetNaming::boundAttribute(candidate) == attribute)
            return candidate;
    return nullptr;
}

QKXNumpad *tst_NumericScreen::tapAndOpenPad(QKXNumeric *numeric)
{
    const QPoint at = numeric->findChild<QLineEdit *>()->geometry().center();
    QTest::mousePress(numeric, Qt::LeftButton, {}, at);
    QTest::mouseRelease(numeric, Qt::LeftButton, {}, at);
    QKXNumpad *pad = nullptr;
    const bool opened = QTest::qWaitFor([&] {
        pad = window->findChild<QKXNumpad *>();
        return pad && pad->isVisible() && pad->registeredWidget() == numeric;
    });
    return opened ? pad : nullptr;
}

void tst_NumericScreen::fieldsTakeTypeAndLimitsFromEngine_data()
{
    QTest::addColumn<QString>("attribute");
    QTest::addColumn<QString>("dataType");
    QTest::addColumn<double>("lower");
    QTest::addColumn<double>("upper");
    QTest::addColumn<QString>("shown");

    QTest::newRow("frequency") << "Frequency" << "Double" << 9e3 << 6e9 << "1000000000";
    QTest::newRow("level") << "Level" << "Double" << -130.0 << 10.0 << "-30.0";
    QTest::newRow("channel") << "Channel" << "Int" << 1.0 << 999.0 << "16";
    QTest::newRow("unit address, hex") << "UnitAddress" << "Int" << 0.0 << 65535.0 << "1A2B";
    QTest::newRow("squelch, below zero") << "Squelch" << "Int" << -120.0 << -60.0 << "-100";
}

void tst_NumericScreen::fieldsTakeTypeAndLimitsFromEngine()
{
    QFETCH(QString, attribute);
    QFETCH(QString, dataType);
    QFETCH(double, lower);
    QFETCH(double, upper);
    QFETCH(QString, shown);

    QKXNumeric *numeric = field(attribute);
    QVERIFY(numeric);
    auto *filter = qobject_cast<QKXNumericEventFilter *>(numeric->getEventFilter());
    QVERIFY(filter);
    QCOMPARE(filter->property("DataType").toString(), dataType);
    QCOMPARE(numeric->lowerLimit(), lower);
    QCOMPARE(numeric->upperLimit(), upper);
    QCOMPARE(numeric->findChild<QLineEdit *>()->text(), shown);
}

void tst_NumericScreen::edits_data()
{
    QTest::addColumn<QString>("attribute");
    QTest::addColumn<QStringList>("keys");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QStringList>("log");
    // A value the engine holds to a limit is the one change the user did not type: the notice says so.
    QTest::addColumn<QString>("notice");

    QTest::newRow("hex address") << "UnitAddress" << QStringList({"B", "E", "E", "F", "hexEnter"}) << QVariant(0xBEEF)
                                 << "BEEF" << QStringList({"set UnitAddress = 48879", "lock released UnitAddress"})
                                 << "";
    QTest::newRow("level clamped") << "Level" << QStringList({"2", "5", "enter"}) << QVariant(10.0) << "10.0"
                                   << QStringList({"request Level = 25 clamped to 10", "set Level = 10",
                                                   "lock released Level"})
                                   << "Level (dBm) set to its upper limit";
    QTest::newRow("squelch typed without sign") << "Squelch" << QStringList({"clear", "8", "0", "enter"}) << QVariant(-80)
                                                << "-80" << QStringList({"set Squelch = -80", "lock released Squelch"})
                                                << "";
    QTest::newRow("squelch beyond limit") << "Squelch" << QStringList({"5", "enter"}) << QVariant(-60) << "-60"
                                          << QStringList({"request Squelch = -5 clamped to -60", "set Squelch = -60",
                                                          "lock released Squelch"})
                                          << "Squelch (dBm) set to its upper limit";
    QTest::newRow("frequency below limit") << "Frequency" << QStringList({"5", "enter"}) << QVariant(9e3) << "9000"
                                           << QStringList({"request Frequency = 5 clamped to 9000", "set Frequency = 9000",
                                                           "lock released Frequency"})
                                           << "Frequency (Hz) set to its lower limit";
    QTest::newRow("cancel") << "Channel" << QStringList({"5", "cancel"}) << QVariant(16) << "16"
                            << QStringList({"lock released Channel"}) << "";
}

void tst_NumericScreen::edits()
{
    QFETCH(QString, attribute);
    QFETCH(QStringList, keys);
    QFETCH(QVariant, value);
    QFETCH(QString, shown);
    QFETCH(QStringList, log);
    QFETCH(QString, notice);

    QKXNumeric *numeric = field(attribute);
    QVERIFY(numeric);
    QKXNumpad *pad = tapAndOpenPad(numeric);
    QVERIFY(pad);
    QCOMPARE(window->lockOwner()->holder(), numeric);
    QCOMPARE(engine->log(), QStringList({"lock request " + attribute, "lock granted " + attribute,
                                         "edit " + attribute + " on the numeric pad"}));
    engine->clearLog();

    for (const QString &key : keys)
        QTest::mouseClick(pad->button(key), Qt::LeftButton);
    QTRY_VERIFY(window->lockOwner()->isFree());
    QCOMPARE(engine->log(), log);
    QCOMPARE(engine->value(attribute), value);
    QCOMPARE(numeric->findChild<QLineEdit *>()->text(), shown);
    QVERIFY(!pad->isVisible());
    QCOMPARE(window->statusStrip()->notice(), notice);
}

QTEST_MAIN(tst_NumericScreen)
#include "tst_NumericScreen.moc"
