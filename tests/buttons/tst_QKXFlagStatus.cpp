// SPDX-License-Identifier: BSD-3-Clause
#include <QFrame>
#include <QTimer>

#include "ButtonTestSupport.h"
#include "QKXFlagStatus.h"
#include "QKXWidgetBase_p.h"

using namespace kxtest;

namespace {

QString ledSheet(const QString &fill)
{
    return QStringLiteral("QFrame#base {background: transparent;}\n"
                          "QLabel#button {border: 1px solid #fff; border-radius: 10px; background: %1; "
                          "min-width: 20px; max-width: 20px; min-height: 20px; max-height: 20px;}\n"
                          "QLabel#Label {color: white; font-weight: normal; font-size: 16px;}\n")
        .arg(fill);
}

const QString Dark = ledSheet(QStringLiteral("#222"));
const QString Lit = ledSheet(QStringLiteral("#fc0"));

// The blink timer belongs to the lamp's private side; a subclass can reach it there.
struct TimedLamp : QKXFlagStatus
{
    using QKXFlagStatus::QKXFlagStatus;
    QTimer *blinkTimer() const { return d_ptr->findChild<QTimer *>(); }
};

struct Lamp
{
    Lamp()
    {
        screen.resize(200, 60);
        auto *lamp = new TimedLamp(&screen);
        flag = lamp;
        flag->setGeometry(0, 0, 200, 40);
        base = flag->findChild<QFrame *>(QStringLiteral("base"));
        led = flag->findChild<QLabel *>(QStringLiteral("button"));
        timer = lamp->blinkTimer();
    }

    // One blink tick, as the running timer delivers it.
    void tick()
    {
        QVERIFY(timer->isActive());
        QTimerEvent event(timer->timerId());
        QCoreApplication::sendEvent(timer, &event);
    }

    QWidget screen;
    QKXFlagStatus *flag;
    QFrame *base;
    QLabel *led;
    QTimer *timer;
};

} // namespace

class tst_QKXFlagStatus : public QObject
{
    Q_OBJECT

private slots:
    void steadyAndBlinking();
    void trippedColour();
    void lampCaptionAndSize();
};

void tst_QKXFlagStatus::steadyAndBlinking()
{
    Lamp l;
    QVERIFY(l.base && l.led && l.timer);
    QCOMPARE(l.base->styleSheet(), Dark);
    QSignalSpy changed(l.flag, &QKXFlagStatus::valueChanged);
    l.flag->setValue(true);
    QCOMPARE(l.base->styleSheet(), Lit);
    QVERIFY(!l.timer->isActive());
    // Announced again even without a change.
    l.flag->setValue(true);
    l.flag->setValue(false);
    QCOMPARE(l.base->styleSheet(), Dark);
    QCOMPARE(QList<QVariantList>(changed), (QList<QVariantList>{{true}, {true}, {false}}));

    // Blink mode switched on while set starts at once; a new blink stays lit through its first tick.
    l.flag->setValue(true);
    l.flag->setBlinkMode(true);
    QVERIFY(l.timer->isActive());
    QCOMPARE(l.timer->interval(), 1000);
    QCOMPARE(l.base->styleSheet(), Lit);
    l.tick();
    QCOMPARE(l.base->styleSheet(), Lit);
    l.tick();
    QCOMPARE(l.base->styleSheet(), Dark);
    // The set flag published again lights the lamp and starts its second afresh; the rhythm goes on
    // from the phase it was in.
    QTest::qWait(300);
    const int remaining = l.timer->remainingTime();
    l.flag->setValue(true);
    QCOMPARE(l.base->styleSheet(), Lit);
    QVERIFY(l.timer->remainingTime() > remaining + 150);
    l.tick();
    QCOMPARE(l.base->styleSheet(), Lit);
    l.tick();
    QCOMPARE(l.base->styleSheet(), Dark);

    // Switched off while dark: lit and steady.
    l.flag->setBlinkMode(false);
    QVERIFY(!l.timer->isActive());
    QCOMPARE(l.base->styleSheet(), Lit);

    // Clearing the flag stops the blink, whatever the phase.
    l.flag->setBlinkMode(true);
    QVERIFY(l.timer->isActive());
    l.tick();
    l.flag->setValue(false);
    QVERIFY(!l.timer->isActive());
    QCOMPARE(l.base->styleSheet(), Dark);
    QVERIFY(l.flag->getBlinkMode());

    // Blink mode on a clear flag waits for the flag.
    l.flag->setBlinkMode(true);
    QVERIFY(!l.timer->isActive());
    l.flag->setValue(true);
    QVERIFY(l.timer->isActive());
    QCOMPARE(l.base->styleSheet(), Lit);
}

void tst_QKXFlagStatus::trippedColour()
{
    Lamp l;
    l.flag->setBlinkMode(true);
    l.flag->setValue(true);
    const QString colour = QStringLiteral("rgb(255, 0, 0)");
    QVERIFY(l.flag->setProperty("TrippedLedColor", colour));

    // The lit lamp keeps its colour until its next change.
    QCOMPARE(l.base->styleSheet(), Lit);
    QCOMPARE(l.flag->getTrippedLedColor(), colour);
    l.tick(), l.tick(), l.tick();
    QCOMPARE(l.base->styleSheet(), ledSheet(colour));
}

void tst_QKXFlagStatus::lampCaptionAndSize()
{
    // Set up before the screen is shown, then changed on screen: the sheet reaches the paint both times.
    Lamp l;
    const QPoint centre(11, 11);   // 20 pixels inside a 1-pixel ring
    l.flag->setTrippedLedColor(QStringLiteral("#e02020"));
    l.flag->setValue(true);
    QVERIFY(exposed(l.screen));
    QCOMPARE(l.led->size(), QSize(22, 22));
    QCOMPARE(colourAt(l.led, centre), QColor(QStringLiteral("#e02020")));
    l.flag->setValue(false);
    QCOMPARE(colourAt(l.led, centre), QColor(QStringLiteral("#222")));

    auto *caption = l.flag->findChild<QLabel *>(QStringLiteral("Label"));
    WordTranslator german("Overload", "Übersteuerung");
    qApp->installTranslator(&german);
    // The host's caption is shown as given; the designer's label text is translated.
    QVERIFY(QMetaObject::invokeMethod(l.flag, "updateFlagStatusLabel", Q_ARG(QString, "Overload")));
    QCOMPARE(caption->text(), QStringLiteral("Overload"));
    l.flag->setLabelText(QStringLiteral("Overload"));
    qApp->removeTranslator(&german);
    QCOMPARE(caption->text(), QString::fromUtf8("Übersteuerung"));

    l.flag->changeSize(QStringLiteral("Max"));   // one size only
    QCOMPARE(l.flag->currentSize() + QLatin1Char('|') + l.base->styleSheet(), QStringLiteral("Min|") + Dark);
}

QTEST_MAIN(tst_QKXFlagStatus)
#include "tst_QKXFlagStatus.moc"
