// SPDX-License-Identifier: BSD-3-Clause
// The wheel: circles drawn with a finger on it, the steps they take, and each step submitted live.
#include <QtTest>

#include <QtMath>

#include "QKXSpinner.h"

#include "LiveEditorTestSupport.h"

using namespace kxtest;

namespace {

// The wheel serving a field, editing within [0, 100].
struct SpinnerScreen : LiveScreen<QKXSpinner>
{
    SpinnerScreen(const QString &dataType, double value, int precision) : LiveScreen(dataType, value, precision)
    {
        editor = new QKXSpinner(&window, 0.0, 100.0, 0, 260, 334);
    }
    QString shown() const { return editor->display()->text(); }
};

// A finger on the wheel, 80 pixels from its centre: pressed at the first angle (degrees, clockwise
// from the right), moved to each following one msPerMove milliseconds later by the events' own
// clock, and lifted. Once pressed on the wheel the gesture is the spinner's, as with the grab a real
// press gives it.
void drawOnWheel(QKXSpinner *spinner, const QList<int> &degrees, int msPerMove)
{
    QWidget *wheel = spinner->findChild<QWidget *>(QStringLiteral("SpinFrame"));
    ulong time = 5000;
    const auto send = [&](QEvent::Type type, int deg) {
        const double a = qDegreesToRadians(double(deg));
        const QPoint inWheel(110 + qRound(80 * std::cos(a)), 110 + qRound(80 * std::sin(a)));
        QWidget *target = type == QEvent::MouseButtonPress ? wheel : spinner;
        const QPoint pos = target == wheel ? inWheel : wheel->mapTo(spinner, inWheel);
        const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, pos, target->mapToGlobal(pos), button, held, Qt::NoModifier);
        event.setTimestamp(time);
        QApplication::sendEvent(target, &event);
    };
    send(QEvent::MouseButtonPress, degrees.first());
    for (int i = 1; i < degrees.size(); ++i) {
        time += msPerMove;
        send(QEvent::MouseMove, degrees.at(i));
    }
    send(QEvent::MouseButtonRelease, degrees.last());
}

// 31 finger positions from the start angle, each the next step of the pattern of angle changes.
QList<int> path(int start, const QList<int> &pattern)
{
    QList<int> degrees{start};
    for (int i = 0; i < 30; ++i)
        degrees << degrees.last() + pattern.at(i % pattern.size());
    return degrees;
}

} // namespace

class tst_QKXSpinner : public QObject
{
    Q_OBJECT

private slots:
    void circlesStepLive_data();
    void circlesStepLive();
    void stepSizeAndLimits_data();
    void stepSizeAndLimits();
    void stepKeysAndMarkedDigit();
    void submitsByDataType_data();
    void submitsByDataType();
    void unitFieldIsEditedInItsUnit();
    void enterCancelAndASecondEdit();
    void textThatIsNoNumber();
};

void tst_QKXSpinner::circlesStepLive_data()
{
    QTest::addColumn<QList<int>>("degrees");
    QTest::addColumn<int>("msPerMove");
    QTest::addColumn<QStringList>("submits");

    // Value 50.0 with one decimal: the wheel starts on the tenths. A fresh wheel takes its first step
    // at the 11th analysis (15th sample) and then one every 7th: three steps in 31 samples.
    const QStringList up{"double 50.1", "double 50.2", "double 50.3"};
    const QStringList down{"double 49.9", "double 49.8", "double 49.7"};
    QTest::newRow("clockwise steps up") << path(10, {10}) << 10 << up;
    QTest::newRow("slow steady clockwise steps up by one") << path(10, {10}) << 400 << up;
    QTest::newRow("counter-clockwise steps down") << path(350, {-10}) << 10 << down;
    QTest::newRow("jitter does not step") << path(90, {10, 10, 10, -10, -10, -10}) << 10 << QStringList();
    // Samples of one millisecond have no speed, and no speed counts as turning back.
    QTest::newRow("equal timestamps step down") << path(10, {10}) << 0 << down;
}

void tst_QKXSpinner::circlesStepLive()
{
    QFETCH(QList<int>, degrees);
    QFETCH(int, msPerMove);
    QFETCH(QStringList, submits);

    SpinnerScreen screen(QStringLiteral("Double"), 50.0, 1);
    QVERIFY(screen.open());
    QCOMPARE(screen.editor->power(), -1.0);
    drawOnWheel(screen.editor, degrees, msPerMove);
    QCOMPARE(screen.road, submits);
    QCOMPARE(screen.shown(), submits.isEmpty() ? QStringLiteral("50.0") : submits.last().mid(7));
}

void tst_QKXSpinner::stepSizeAndLimits_data()
{
    QTest::addColumn<double>("speed");
    QTest::addColumn<double>("start");
    QTest::addColumn<QString>("shown");

    QTest::newRow("slow: one step") << 0.05 << 50.0 << "50.1";
    QTest::newRow("above 15: two") << 15.5 << 50.0 << "50.2";
    QTest::newRow("above 30: three") << 30.5 << 50.0 << "50.3";
    QTest::newRow("above 60: four") << 61.0 << 50.0 << "50.4";
    QTest::newRow("back, above 15: two down") << -20.0 << 50.0 << "49.8";
    QTest::newRow("no speed: one down") << 0.0 << 50.0 << "49.9";
    // A step beyond a limit is not taken, not even up to the limit, and nothing is submitted.
    QTest::newRow("beyond the upper limit") << 61.0 << 99.8 << "99.8";
    QTest::newRow("beyond the lower limit") << -0.5 << 0.0 << "0.0";
    QTest::newRow("onto the upper limit") << 0.5 << 99.9 << "100.0";
}

void tst_QKXSpinner::stepSizeAndLimits()
{
    QFETCH(double, speed);
    QFETCH(double, start);
    QFETCH(QString, shown);

    SpinnerScreen screen(QStringLiteral("Double"), start, 1);
    QVERIFY(screen.open());
    screen.editor->resetStep();
    screen.editor->changeStep(-1);
    emit screen.editor->updateValue(speed);
    QCOMPARE(screen.shown(), shown);
    QCOMPARE(screen.road, shown == QString::number(start, 'f', 1) ? QStringList()
                                                                   : QStringList{"double " + QString::number(shown.toDouble())});
}

void tst_QKXSpinner::stepKeysAndMarkedDigit()
{
    SpinnerScreen screen(QStringLiteral("Double"), 5.0, 2);
    screen.editor->updateLimits(0.0, 50.0);
    QVERIFY(screen.open());
    QLineEdit *display = screen.editor->display();
    const auto press = [&](const char *name) {
        auto *key = screen.editor->findChild<QPushButton *>(QLatin1String(name));
        QTest::mouseClick(key, Qt::LeftButton, Qt::NoModifier, QPoint(23, 23));
        return qMakePair(screen.editor->power(), display->selectedText());
    };
    using Step = QPair<double, QString>;
    // The selection ends at the digit the wheel changes.
    QCOMPARE(Step(screen.editor->power(), display->selectedText()), Step(-1.0, "5.0"));
    QCOMPARE(press("Decrement"), Step(-2.0, "5.00"));
    QCOMPARE(press("Decrement"), Step(-2.0, "5.00"));   // not finer than the last decimal
    QCOMPARE(press("Increment"), Step(-1.0, "5.0"));
    QCOMPARE(press("Increment"), Step(0.0, "5"));
    QCOMPARE(press("Increment"), Step(1.0, ""));
    QCOMPARE(press("Increment"), Step(1.0, ""));        // not coarser than the limit's tens

    // Fewer decimals than the step: the step moves to the last decimal shown.
    press("Decrement");
    press("Decrement");
    press("Decrement");
    screen.editor->changePrecision(1);
    QCOMPARE(Step(screen.editor->power(), display->selectedText()), Step(-1.0, "5.0"));
    QCOMPARE(screen.road, QStringList());
}

void tst_QKXSpinner::submitsByDataType_data()
{
    QTest::addColumn<QString>("dataType");
    QTest::addColumn<QStringList>("road");

    // One step up, then Enter: each submit leaves the filter once, in the data type's form only.
    QTest::newRow("Int") << "Int" << QStringList{"int 51", "int 51", "editEnd", "release"};
    QTest::newRow("Double") << "Double" << QStringList{"double 51", "double 51", "editEnd", "release"};
    QTest::newRow("unknown") << "Text" << QStringList{"editEnd", "release"};
}

void tst_QKXSpinner::submitsByDataType()
{
    QFETCH(QString, dataType);
    QFETCH(QStringList, road);

    DebugLines lines;
    SpinnerScreen screen(dataType, 50.0, 0);
    QVERIFY(screen.open());
    emit screen.editor->updateValue(1.0);
    QTest::mouseClick(screen.editor->findChild<QPushButton *>(QStringLiteral("Enter")), Qt::LeftButton);
    QVERIFY(screen.waitForEnd());
    QCOMPARE(screen.road, road);
    QVERIFY(!screen.editor->isVisible());
    QCOMPARE(lines.lines().size(), dataType == "Text" ? 1 : 0);
    if (dataType == "Text")
        QVERIFY(lines.lines().first().startsWith(
            "UserInterface - QKXSPinner attempting to register unknown data type: \"Text\" Widget: QKXNumeric("));
}

void tst_QKXSpinner::unitFieldIsEditedInItsUnit()
{
    // The wheel works in the unit the field shows, within the limits converted to it.
    QWidget window;
    FrequencyField frequency(&window);
    auto *spinner = new QKXSpinner(&window, 0.0, 1.0, 0, 260, 334);
    window.show();
    spinner->registerWidget(frequency.filter, frequency.field);
    QCOMPARE(spinner->display()->text(), QStringLiteral("2.5"));
    QCOMPARE(spinner->minimum(), 0.0);
    QCOMPARE(spinner->maximum(), 10.0);
    emit spinner->updateValue(-1.0);
    QCOMPARE(frequency.road, QStringList{"2.4 " + kilohertz()});
}

void tst_QKXSpinner::enterCancelAndASecondEdit()
{
    SpinnerScreen screen(QStringLiteral("Double"), 50.0, 1);
    QVERIFY(screen.open());
    emit screen.editor->updateValue(1.0);
    // Cancel gives the engine back the value the edit began with, and closes the wheel.
    QTest::mouseClick(screen.editor->findChild<QPushButton *>(QStringLiteral("Cancel")), Qt::LeftButton,
                      Qt::NoModifier, QPoint(23, 23));
    QVERIFY(screen.waitForEnd());
    QCOMPARE(screen.road, QStringList({"double 50.1", "double 50", "editEnd", "release"}));
    QVERIFY(!screen.editor->isVisible());
    QVERIFY(!screen.editor->registeredFilter());

    // The next edit is served by the same wheel: still one submit per step.
    QVERIFY(screen.open());
    emit screen.editor->updateValue(1.0);
    QCOMPARE(screen.road, QStringList{"double 50.1"});

    // A second registration takes the wheel over; ending the first edit is the host's business.
    auto *otherField = new QKXNumeric(&screen.window);
    auto *otherFilter = new QKXNumericEventFilter(otherField, QStringLiteral("Double"), nullptr);
    otherField->installEventFilter(otherFilter);
    otherField->show();
    QCoreApplication::processEvents();   // the filter's machine starts from the event loop
    otherFilter->lockAcquired(otherField);
    QVERIFY(QTest::qWaitFor([otherFilter] { return otherFilter->isEditing(); }));
    screen.editor->registerWidget(otherFilter, otherField);
    QCOMPARE(screen.road, QStringList{"double 50.1"});
    QVERIFY(screen.filter->isEditing());
}

void tst_QKXSpinner::textThatIsNoNumber()
{
    DebugLines lines;
    SpinnerScreen screen(QStringLiteral("Double"), 50.0, 1);
    QVERIFY(screen.open());
    screen.editor->setValue(QStringLiteral("5O.1"));
    QCOMPARE(screen.shown(), QStringLiteral("50.0"));
    emit screen.editor->valueChanged(QStringLiteral("nan"));
    QCOMPARE(screen.road, QStringList());
    QCOMPARE(lines.lines(), QStringList({"UserInterface - QKXSpinner: Channel \"5O.1\" is not a number - the wheel keeps 50.0",
                                         "UserInterface - QKXSpinner: Channel \"nan\" is not a number - nothing submitted"}));
}

QTEST_MAIN(tst_QKXSpinner)
#include "tst_QKXSpinner.moc"
