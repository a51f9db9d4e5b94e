// SPDX-License-Identifier: BSD-3-Clause
// Mouse events travel through the window system, as a finger on the panel does.
#define QTEST_QPA_MOUSE_HANDLING
#include <QtTest>

#include <QLineEdit>

#include "QKXNumeric.h"
#include "QKXNumericEventFilter.h"

#include "../common/NumericTestSupport.h"

using kxtest::DoubleAdapter;
using kxtest::IntAdapter;

namespace {

// A shown numeric field with its filter installed the way the host installs it. Declare the log
// before the field: a field going out of scope mid-edit still reports to it.
struct Field
{
    Field(const QString &dataType, QObject *adapter, QStringList &log, int base = 10)
    {
        widget.setBaseType(QKXNumeric::BaseType(base));
        widget.resize(200, 60);
        filter = new QKXNumericEventFilter(&widget, dataType, adapter);
        widget.installEventFilter(filter);
        kxtest::logFilter(filter, log);
        display = widget.findChild<QLineEdit *>();
        widget.show();
    }
    // Starts an edit as a granted tap does.
    bool edit()
    {
        if (!QTest::qWaitForWindowExposed(&widget) || !QTest::qWaitFor([this] { return !display->isEnabled(); }))
            return false;
        filter->forceClick();
        if (filter->adapter())
            filter->lockAcquired(&widget);
        return QTest::qWaitFor([this] { return filter->isEditing(); });
    }
    QKXNumeric widget;
    QKXNumericEventFilter *filter;
    QLineEdit *display;
};

} // namespace

class tst_QKXNumericEventFilter : public QObject
{
    Q_OBJECT

private slots:
    void tapAsksForLockAndHideEndsOnce();
    void typedCommit_data();
    void typedCommit();
    void cancel_data();
    void cancel();
    void parentlessFilterWaitsForStart();
};

void tst_QKXNumericEventFilter::tapAsksForLockAndHideEndsOnce()
{
    QStringList log;
    IntAdapter adapter(7);
    Field field(QStringLiteral("Int"), &adapter, log);
    QVERIFY(QTest::qWaitForWindowExposed(&field.widget));
    QTRY_COMPARE(log, QStringList({"release"}));   // the first idle entry
    field.widget.setValue(42);

    // The tap lands on the disabled display and reaches the filter through the widget.
    QTest::mouseClick(&field.widget, Qt::LeftButton, Qt::NoModifier, field.display->geometry().center());
    QWidget elsewhere;
    field.filter->lockAcquired(&elsewhere);
    QTest::qWait(20);
    QCOMPARE(log, QStringList({"release", "lock"}));
    QVERIFY(!field.filter->isEditing());

    field.filter->lockAcquired(&field.widget);
    QTRY_VERIFY(field.filter->isEditing());
    QCOMPARE(log, QStringList({"release", "lock", "editStart"}));
    QCOMPARE(field.filter->savedValue(), 7.0);   // the engine's value, not the display's
    QCOMPARE(QApplication::focusWidget(), field.display);
    QCOMPARE(field.display->selectedText(), QStringLiteral("42"));

    // The cancel ends the edit; the hide handling every filter shares then announces the end once more.
    log.clear();
    field.widget.hide();
    QCOMPARE(log, QStringList({"int 7", "editEnd", "release", "editEnd"}));
    QVERIFY(!field.filter->isEditing());
    log.clear();
    field.widget.show();
    field.widget.hide();
    QCOMPARE(log, QStringList({"editEnd"}));   // idle: nothing to give back
}

void tst_QKXNumericEventFilter::typedCommit_data()
{
    QTest::addColumn<QString>("dataType");
    QTest::addColumn<int>("base");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("key");
    QTest::addColumn<QStringList>("log");

    const int ret = Qt::Key_Return;
    const QStringList nothing;
    QTest::newRow("int hex") << "Int" << 16 << "1F" << ret << QStringList({"double 31", "int 31", "editEnd", "release"});
    QTest::newRow("int max") << "Int" << 10 << "2147483647" << ret
                             << QStringList({"double 2147483647", "int 2147483647", "editEnd", "release"});
    QTest::newRow("double") << "Double" << 10 << "2.75" << int(Qt::Key_Enter)
                            << QStringList({"double 2.75", "int 2", "editEnd", "release"});
    QTest::newRow("double beyond int") << "Double" << 10 << "1e12" << ret
                                       << QStringList({"double 1e+12", "int 2147483647", "editEnd", "release"});
    QTest::newRow("fraction for int") << "Int" << 10 << "2.5" << ret << nothing;
    QTest::newRow("decimal pasted into bin") << "Int" << 2 << "12" << ret << nothing;
    QTest::newRow("beyond int") << "Int" << 10 << "2147483648" << ret << nothing;
    QTest::newRow("nan") << "Double" << 10 << "nan" << ret << nothing;
    QTest::newRow("unknown data type") << "Text" << 10 << "12" << ret << nothing;
    QTest::newRow("other keys") << "Int" << 10 << "12" << int(Qt::Key_Tab) << nothing;
}

void tst_QKXNumericEventFilter::typedCommit()
{
    QFETCH(QString, dataType);
    QFETCH(int, base);
    QFETCH(QString, text);
    QFETCH(int, key);
    QFETCH(QStringList, log);

    QStringList seen;
    Field field(dataType, nullptr, seen, base);
    QVERIFY(field.edit());
    field.display->setText(text);
    seen.clear();

    kxtest::DebugLines debug;
    // Keys the display does not take travel on to the widget and its filter.
    QTest::keyClick(field.display, Qt::Key(key));
    QTest::qWait(10);
    QCOMPARE(seen, log);

    // A failed commit keeps the edit open for a correction and says why.
    const bool refused = log.isEmpty() && key != Qt::Key_Tab && dataType != QLatin1String("Text");
    QCOMPARE(debug.lines(), refused ? QStringList(QStringLiteral("UserInterface - QKXNumericEventFilter: \"%1\" is not a "
                                                                 "number for %2 - nothing submitted").arg(text, dataType))
                                    : QStringList());
    QCOMPARE(field.filter->isEditing(), log.isEmpty());
    QCOMPARE(field.display->isEnabled(), log.isEmpty());
}

void tst_QKXNumericEventFilter::cancel_data()
{
    QTest::addColumn<QString>("dataType");
    QTest::addColumn<QString>("adapterKind");
    QTest::addColumn<QStringList>("log");

    QTest::newRow("double adapter") << "Double" << "double" << QStringList({"double 4.5", "editEnd", "release"});
    QTest::newRow("int adapter") << "Int" << "int" << QStringList({"int 7", "editEnd", "release"});
    QTest::newRow("int, widget value truncated") << "Int" << "none" << QStringList({"int -2", "editEnd", "release"});
    QTest::newRow("unknown type only ends") << "Text" << "none" << QStringList({"editEnd", "release"});
}

void tst_QKXNumericEventFilter::cancel()
{
    QFETCH(QString, dataType);
    QFETCH(QString, adapterKind);
    QFETCH(QStringList, log);

    QStringList seen;
    IntAdapter intAdapter(7);
    DoubleAdapter doubleAdapter(4.5);
    QObject *adapter = adapterKind == QLatin1String("int") ? static_cast<QObject *>(&intAdapter)
        : adapterKind == QLatin1String("double")           ? static_cast<QObject *>(&doubleAdapter)
                                                           : nullptr;
    Field field(dataType, adapter, seen);
    field.widget.setValue(-2.5);
    QVERIFY(field.edit());
    field.display->setText(QStringLiteral("99"));
    // The engine moves on during the edit: the cancel gives back what the edit started from.
    intAdapter.current = 1;
    doubleAdapter.current = 1.0;
    seen.clear();
    QTest::keyClick(field.display, Qt::Key_Escape);
    QCOMPARE(seen, log);
    QVERIFY(!field.filter->isEditing());
}

void tst_QKXNumericEventFilter::parentlessFilterWaitsForStart()
{
    QStringList seen;
    DoubleAdapter adapter(3.25);
    auto *f = new QKXNumericEventFilter(nullptr, QStringLiteral("Double"), nullptr);
    kxtest::logFilter(f, seen);
    // The host completes it: a widget, an adapter, then the machine. Nothing edits before the machine runs.
    QKXNumeric widget;
    f->setParent(&widget);
    f->setAdapter(&adapter);
    f->forceClick();
    f->lockAcquired(&widget);
    QTest::qWait(30);
    QVERIFY(!f->isMachineStarted());
    QCOMPARE(seen, QStringList({"lock", "editStart"}));
    QVERIFY(!f->isEditing());

    seen.clear();
    QVERIFY(QMetaObject::invokeMethod(f, "startMachine"));
    QTRY_COMPARE(seen, QStringList({"release"}));
    f->lockAcquired(&widget);
    QTRY_VERIFY(f->isEditing());
    QCOMPARE(f->savedValue(), 3.25);
    QVERIFY(widget.findChild<QLineEdit *>()->isEnabled());
}

QTEST_MAIN(tst_QKXNumericEventFilter)
#include "tst_QKXNumericEventFilter.moc"
