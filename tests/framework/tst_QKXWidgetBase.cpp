// SPDX-License-Identifier: BSD-3-Clause
// Mouse events travel through the window system, as a finger on the panel does.
#define QTEST_QPA_MOUSE_HANDLING
#include <QtTest>

#include <QLabel>

#include "KXTestSupport.h"

#include "QKXWidgetBase.h"
#include "QKXWidgetBase_p.h"

using kxtest::DebugLines;
using kxtest::WordTranslator;

namespace {

const QString MinSheet = QStringLiteral("QLabel#Label {font-size: 14px;}");
const QString MaxSheet = QStringLiteral("QLabel#Label {font-size: 22px;}");
const QString LockedOverlay = QStringLiteral("QLabel#Label {background-color: #666666;}");
const QString ReadOnlyOverlay = QStringLiteral("QLabel#Label {color: gray;}");

} // namespace

class SizedWidget;

// A widget family in miniature: a caption label and two looks with locked and read-only overlays.
class SizedWidgetPrivate : public QKXWidgetBasePrivate
{
public:
    explicit SizedWidgetPrivate(QKXWidgetBase *q) : QKXWidgetBasePrivate(q) {}

    void init() override
    {
        auto *caption = new QLabel(q);
        caption->setObjectName(QStringLiteral("Label"));
        setLabel(caption);
        updateStyle();
    }
    void updateStyle() override { setOverlaidStyles(MinSheet, MaxSheet, LockedOverlay, ReadOnlyOverlay); }

    void setAttributeName(const QString &name) override
    {
        calls << QStringLiteral("setAttributeName");
        QKXWidgetBasePrivate::setAttributeName(name);
    }
    void setReadOnly(bool v) override
    {
        calls << QStringLiteral("setReadOnly");
        QKXWidgetBasePrivate::setReadOnly(v);
    }
    void setLocked(bool v) override
    {
        calls << QStringLiteral("setLocked");
        QKXWidgetBasePrivate::setLocked(v);
    }
    void setUpdateDelay(int v) override
    {
        calls << QStringLiteral("setUpdateDelay");
        QKXWidgetBasePrivate::setUpdateDelay(v);
    }

    QStringList calls;
};

class SizedWidget : public QKXWidgetBase
{
    Q_OBJECT
public:
    explicit SizedWidget(QWidget *parent = nullptr) : QKXWidgetBase(*new SizedWidgetPrivate(this), parent) {}

    SizedWidgetPrivate *priv() const { return static_cast<SizedWidgetPrivate *>(d_ptr.data()); }

    void setLocked(bool isL) override
    {
        widgetLockedCalls++;
        QKXWidgetBase::setLocked(isL);
    }

    int widgetLockedCalls = 0;
    int styleChanges = 0;

protected:
    void changeEvent(QEvent *event) override
    {
        if (event->type() == QEvent::StyleChange)
            ++styleChanges;
        QKXWidgetBase::changeEvent(event);
    }
};

class tst_QKXWidgetBase : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void labelText();
    void changeSize_data();
    void changeSize();
    void unchangedStyleIsNotReapplied();
    void overlays_data();
    void overlays();
    void readOnlyRoundTripRestoresSheet();
    void propertyWritesReachOverrides();
    void debugSwitchLines();
    void debugSwitchRelease_data();
    void debugSwitchRelease();
};

void tst_QKXWidgetBase::cleanup()
{
    qApp->setProperty("-size", QVariant());
}

void tst_QKXWidgetBase::labelText()
{
    SizedWidget w;
    QLabel *caption = w.findChild<QLabel *>(QStringLiteral("Label"));
    QVERIFY(caption);

    const QString nonLatin = QString::fromUtf8("Pegel µV / Ω");
    w.setProperty("LabelText", nonLatin);
    QCOMPARE(caption->text(), nonLatin);
    QCOMPARE(w.property("LabelText").toString(), nonLatin);

    WordTranslator german("Frequency", "Frequenz");
    qApp->installTranslator(&german);
    w.setLabelText(QStringLiteral("Frequency"));
    qApp->removeTranslator(&german);
    QCOMPARE(caption->text(), QStringLiteral("Frequenz"));
    QCOMPARE(w.labelText(), QStringLiteral("Frequenz"));
}

void tst_QKXWidgetBase::changeSize_data()
{
    QTest::addColumn<QString>("startSize");
    QTest::addColumn<QVariant>("displayMode");
    QTest::addColumn<QString>("request");
    QTest::addColumn<QString>("expectedSize");
    QTest::addColumn<QString>("expectedSheet");

    const QVariant none;
    QTest::newRow("Max, no display mode") << "Min" << none << "Max" << "Max" << MaxSheet;
    QTest::newRow("Max, landscape") << "Min" << QVariant("landscape") << "Max" << "Min" << MinSheet;
    QTest::newRow("Max, small_portrait") << "Min" << QVariant("small_portrait") << "Max" << "Min" << MinSheet;
    QTest::newRow("Max, other mode") << "Min" << QVariant("portrait") << "Max" << "Max" << MaxSheet;
    QTest::newRow("Min from Max, landscape") << "Max" << QVariant("landscape") << "Min" << "Min" << MinSheet;
    QTest::newRow("unknown from Max") << "Max" << none << "max" << "Max" << MaxSheet;
}

void tst_QKXWidgetBase::changeSize()
{
    QFETCH(QString, startSize);
    QFETCH(QVariant, displayMode);
    QFETCH(QString, request);
    QFETCH(QString, expectedSize);
    QFETCH(QString, expectedSheet);

    SizedWidget w;
    QCOMPARE(w.styleSheet(), MinSheet);
    w.changeSize(startSize);
    QCOMPARE(w.currentSize(), startSize);

    qApp->setProperty("-size", displayMode);
    QVERIFY(QMetaObject::invokeMethod(&w, "changeSize", Q_ARG(QString, request)));
    QCOMPARE(w.currentSize(), expectedSize);
    QCOMPARE(w.styleSheet(), expectedSheet);
}

void tst_QKXWidgetBase::unchangedStyleIsNotReapplied()
{
    SizedWidget w;
    w.ensurePolished();
    const int before = w.styleChanges;

    w.changeSize(QStringLiteral("Min"));
    w.setReadOnly(false);     // rebuilds the table with the same content
    w.retranslate();
    QCOMPARE(w.styleChanges, before);

    w.changeSize(QStringLiteral("Max"));   // the counter does see a real change
    QVERIFY(w.styleChanges > before);
}

void tst_QKXWidgetBase::overlays_data()
{
    QTest::addColumn<bool>("locked");
    QTest::addColumn<bool>("readOnly");
    QTest::addColumn<QString>("minSheet");
    QTest::addColumn<QString>("maxSheet");

    QTest::newRow("plain") << false << false << MinSheet << MaxSheet;
    QTest::newRow("locked") << true << false << QString(MinSheet + LockedOverlay)
                            << QString(MaxSheet + LockedOverlay);
    QTest::newRow("read-only") << false << true << QString(MinSheet + ReadOnlyOverlay)
                               << QString(MaxSheet + ReadOnlyOverlay);
    QTest::newRow("locked and read-only") << true << true << QString(MinSheet + LockedOverlay + ReadOnlyOverlay)
                                          << QString(MaxSheet + LockedOverlay + ReadOnlyOverlay);
}

void tst_QKXWidgetBase::overlays()
{
    QFETCH(bool, locked);
    QFETCH(bool, readOnly);
    QFETCH(QString, minSheet);
    QFETCH(QString, maxSheet);

    SizedWidget w;
    // Read-only first: the order of the overlays is the rule's, not the order of the calls.
    w.setProperty("ReadOnly", readOnly);
    w.setProperty("Locked", locked);
    QCOMPARE(w.priv()->styles.value(QStringLiteral("Min")), minSheet);
    QCOMPARE(w.priv()->styles.value(QStringLiteral("Max")), maxSheet);
    QCOMPARE(w.styleSheet(), minSheet);
    w.changeSize(QStringLiteral("Max"));
    QCOMPARE(w.styleSheet(), maxSheet);
}

void tst_QKXWidgetBase::readOnlyRoundTripRestoresSheet()
{
    SizedWidget w;
    w.setLocked(true);
    w.changeSize(QStringLiteral("Max"));
    const QString before = w.styleSheet();

    w.setReadOnly(true);
    QCOMPARE(w.styleSheet(), QString(before + ReadOnlyOverlay));
    w.setReadOnly(false);
    QCOMPARE(w.styleSheet(), before);
    QCOMPARE(w.currentSize(), QStringLiteral("Max"));
}

void tst_QKXWidgetBase::propertyWritesReachOverrides()
{
    SizedWidget w;
    w.setProperty("AttributeName", QStringLiteral("RFGen.Frequency"));
    w.setProperty("ReadOnly", true);
    w.setProperty("Locked", true);
    w.setProperty("UpdateDelay", 250);

    QCOMPARE(w.priv()->calls, QStringList({"setAttributeName", "setReadOnly", "setLocked", "setUpdateDelay"}));
    QCOMPARE(w.widgetLockedCalls, 1);
    QCOMPARE(w.attributeName(), QStringLiteral("RFGen.Frequency"));
    QVERIFY(w.isReadOnly());
    QVERIFY(w.isLocked());
    QCOMPARE(w.updateDelay(), 250);

    // Hosts also reach the slots by name.
    QVERIFY(QMetaObject::invokeMethod(&w, "setLocked", Q_ARG(bool, false)));
    QCOMPARE(w.widgetLockedCalls, 2);
    QVERIFY(!w.property("Locked").toBool());
}

void tst_QKXWidgetBase::debugSwitchLines()
{
    QWidget screen;
    screen.setObjectName(QStringLiteral("MeasurementScreen"));
    screen.resize(300, 200);
    auto *w = new SizedWidget(&screen);
    w->setGeometry(20, 20, 120, 40);
    screen.show();
    QVERIFY(QTest::qWaitForWindowExposed(&screen));

    QSignalSpy spy(w, &QKXWidgetBase::suppressDebug);
    DebugLines capture;
    QTest::mouseClick(w, Qt::LeftButton, Qt::ControlModifier, QPoint(10, 10));
    QTest::mouseClick(w, Qt::LeftButton, Qt::ControlModifier, QPoint(10, 10));

    QCOMPARE(spy.count(), 2);
    QCOMPARE(spy.at(0).at(0).toBool(), false);
    QCOMPARE(spy.at(1).at(0).toBool(), true);
    QCOMPARE(DebugLines::lines(), QStringList({
        QStringLiteral("UserInterface - Debug is now ON for: @ \"MeasurementScreen\""),
        QStringLiteral("UserInterface - Debug is now OFF for: @ \"MeasurementScreen\"")}));
    QVERIFY(w->priv()->supressDebug());
}

void tst_QKXWidgetBase::debugSwitchRelease_data()
{
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QPoint>("release");
    QTest::addColumn<bool>("toggles");

    // The widget is 120 x 40; every press is at (10, 10).
    QTest::newRow("control, last pixel") << int(Qt::ControlModifier) << QPoint(119, 39) << true;
    QTest::newRow("control with shift") << int(Qt::ControlModifier | Qt::ShiftModifier) << QPoint(10, 10) << true;
    QTest::newRow("no modifier") << int(Qt::NoModifier) << QPoint(10, 10) << false;
    QTest::newRow("control, right of widget") << int(Qt::ControlModifier) << QPoint(120, 10) << false;
    QTest::newRow("control, below widget") << int(Qt::ControlModifier) << QPoint(10, 40) << false;
}

void tst_QKXWidgetBase::debugSwitchRelease()
{
    QFETCH(int, modifiers);
    QFETCH(QPoint, release);
    QFETCH(bool, toggles);

    QWidget screen;
    screen.setObjectName(QStringLiteral("Scope"));
    screen.resize(300, 200);
    auto *w = new SizedWidget(&screen);
    w->setGeometry(20, 20, 120, 40);
    screen.show();
    QVERIFY(QTest::qWaitForWindowExposed(&screen));

    QSignalSpy spy(w, &QKXWidgetBase::suppressDebug);
    DebugLines capture;
    const auto mods = Qt::KeyboardModifiers(modifiers);
    QTest::mousePress(w, Qt::LeftButton, mods, QPoint(10, 10));
    QTest::mouseMove(w, release);
    QTest::mouseRelease(w, Qt::LeftButton, mods, release);

    QCOMPARE(spy.count(), toggles ? 1 : 0);
    QCOMPARE(DebugLines::lines().size(), toggles ? 1 : 0);
    QCOMPARE(w->priv()->supressDebug(), !toggles);
    if (toggles) {
        QCOMPARE(spy.at(0).at(0).toBool(), false);
        QCOMPARE(DebugLines::lines().first(), QStringLiteral("UserInterface - Debug is now ON for: @ \"Scope\""));
    }
}

QTEST_MAIN(tst_QKXWidgetBase)
#include "tst_QKXWidgetBase.moc"
