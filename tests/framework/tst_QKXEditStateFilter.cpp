// SPDX-License-Identifier: BSD-3-Clause
// Mouse events travel through the window system, as a finger on the panel does.
#define QTEST_QPA_MOUSE_HANDLING
#include <QtTest>

#include <QLineEdit>

#include "QKXEditStateFilter.h"
#include "QKXWidgetBase.h"

namespace {

// A family filter in miniature: the widget's line edit is its inner editor, and a cancel puts the
// text back that the edit started with.
class TextFilter : public QKXEditStateFilter
{
public:
    TextFilter(QObject *parent, QObject *adapter, LockRule lockRule = AlwaysRequestLock,
               StartRule startRule = StartWithParent)
        : QKXEditStateFilter(parent, adapter, lockRule, startRule)
    {
        if (auto *w = qobject_cast<QWidget *>(parent))
            setInnerEditor(w->findChild<QLineEdit *>());
    }

    QStringList *log = nullptr;
    QString remembered;
    int remembers = 0;

protected:
    void rememberValue() override
    {
        ++remembers;
        remembered = static_cast<QLineEdit *>(innerEditor())->text();
    }
    void restoreValue() override
    {
        if (log)
            *log << QStringLiteral("restore");
        static_cast<QLineEdit *>(innerEditor())->setText(remembered);
    }
};

struct Field
{
    Field()
    {
        widget.resize(200, 60);
        edit = new QLineEdit(QStringLiteral("12"), &widget);
        edit->setGeometry(0, 0, 200, 60);
        edit->setAttribute(Qt::WA_TransparentForMouseEvents);   // taps land on the widget itself
    }
    QKXWidgetBase widget;
    QLineEdit *edit;
};

// Records the filter's edit-end and lock traffic into one ordered log. The machine hears editEnd()
// before any slot connected here, so the idle entry's release is logged ahead of "editEnd"; callers
// compare that pair as a set.
void logTraffic(TextFilter &f, QStringList &log, QWidget *widget)
{
    f.log = &log;
    QObject::connect(&f, &QKXEventFilterBase::editEnd, [&log] { log << QStringLiteral("editEnd"); });
    QObject::connect(&f, &QKXEventFilterBase::attemptSetLock, [&log, widget](QWidget *w, bool locked) {
        log << (w != widget ? QStringLiteral("foreign lock") : locked ? QStringLiteral("request")
                                                                      : QStringLiteral("release"));
    });
}

} // namespace

class tst_QKXEditStateFilter : public QObject
{
    Q_OBJECT

private slots:
    void firstIdleEntryReleasesOnce();
    void grantStartsEdit();
    void cancelRestoresThenEndsThenReleases();
    void hideEndsEdit();
    void parentlessWaitsForStart();
    void startOnRequest();
    void lockRule_data();
    void lockRule();
};

void tst_QKXEditStateFilter::firstIdleEntryReleasesOnce()
{
    Field field;
    TextFilter f(&field.widget, nullptr);
    QSignalSpy lock(&f, &QKXEventFilterBase::attemptSetLock);

    QTRY_COMPARE(lock.count(), 1);
    QCOMPARE(lock.at(0).at(0).value<QWidget *>(), &field.widget);
    QCOMPARE(lock.at(0).at(1).toBool(), false);
    QTest::qWait(50);
    QCOMPARE(lock.count(), 1);
    QVERIFY(f.isMachineStarted());
    QVERIFY(!f.isEditing());
    QCOMPARE(f.innerEditor(), field.edit);
    QVERIFY(!field.edit->isEnabled());
}

void tst_QKXEditStateFilter::grantStartsEdit()
{
    Field field;
    QWidget elsewhere;
    TextFilter f(&field.widget, nullptr);
    QTRY_VERIFY(!field.edit->isEnabled());
    QSignalSpy start(&f, &QKXEventFilterBase::editStart);

    f.lockAcquired(&elsewhere);
    QTest::qWait(20);
    QCOMPARE(start.count(), 0);
    QVERIFY(!f.isEditing());
    QCOMPARE(f.remembers, 0);

    QVERIFY(QMetaObject::invokeMethod(&f, "lockAcquired", Q_ARG(QWidget *, &field.widget)));
    QCOMPARE(start.count(), 1);
    QCOMPARE(start.at(0).at(0).value<QObject *>(), static_cast<QObject *>(&f));
    QCOMPARE(start.at(0).at(1).value<QWidget *>(), &field.widget);
    QTRY_VERIFY(f.isEditing());
    QCOMPARE(f.remembers, 1);
    QCOMPARE(f.remembered, QStringLiteral("12"));
    QVERIFY(field.edit->isEnabled());
    QCOMPARE(field.widget.focusWidget(), field.edit);
}

void tst_QKXEditStateFilter::cancelRestoresThenEndsThenReleases()
{
    QStringList log;
    Field field;
    TextFilter f(&field.widget, nullptr);
    QTRY_VERIFY(!field.edit->isEnabled());
    f.lockAcquired(&field.widget);
    QTRY_VERIFY(f.isEditing());
    field.edit->setText(QStringLiteral("99"));

    logTraffic(f, log, &field.widget);
    QVERIFY(QMetaObject::invokeMethod(&f, "cancel"));
    QTRY_COMPARE(log.size(), 3);
    QCOMPARE(log.first(), QStringLiteral("restore"));
    QCOMPARE(QSet<QString>(log.begin() + 1, log.end()), QSet<QString>({"editEnd", "release"}));
    QCOMPARE(field.edit->text(), QStringLiteral("12"));
    QVERIFY(!field.edit->isEnabled());
    QVERIFY(!f.isEditing());
}

void tst_QKXEditStateFilter::hideEndsEdit()
{
    QStringList log;
    Field field;
    auto *f = new TextFilter(&field.widget, nullptr);
    field.widget.installEventFilter(f);
    field.widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&field.widget));
    QTRY_VERIFY(!field.edit->isEnabled());
    f->lockAcquired(&field.widget);
    QTRY_VERIFY(f->isEditing());

    logTraffic(*f, log, &field.widget);
    field.widget.hide();
    QTRY_COMPARE(log.size(), 2);
    QCOMPARE(QSet<QString>(log.begin(), log.end()), QSet<QString>({"editEnd", "release"}));
    QVERIFY(!f->isEditing());

    // Hidden again while idle: the edit end does not release the lock a second time.
    log.clear();
    field.widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&field.widget));
    field.widget.hide();
    QTest::qWait(20);
    QCOMPARE(log, QStringList({"editEnd"}));
}

void tst_QKXEditStateFilter::parentlessWaitsForStart()
{
    TextFilter f(nullptr, nullptr);
    QSignalSpy lock(&f, &QKXEventFilterBase::attemptSetLock);
    QTest::qWait(50);
    QCOMPARE(lock.count(), 0);
    QVERIFY(!f.isMachineStarted());

    QVERIFY(QMetaObject::invokeMethod(&f, "startMachine"));
    QVERIFY(f.isMachineStarted());
    QTRY_COMPARE(lock.count(), 1);
    QCOMPARE(lock.at(0).at(0).value<QWidget *>(), nullptr);
    QCOMPARE(lock.at(0).at(1).toBool(), false);

    f.startMachine();   // a second start changes nothing
    QTest::qWait(50);
    QCOMPARE(lock.count(), 1);
}

void tst_QKXEditStateFilter::startOnRequest()
{
    Field field;
    TextFilter f(&field.widget, nullptr, QKXEditStateFilter::AlwaysRequestLock,
                 QKXEditStateFilter::StartOnRequest);
    QSignalSpy lock(&f, &QKXEventFilterBase::attemptSetLock);
    QTest::qWait(50);
    QCOMPARE(lock.count(), 0);
    QVERIFY(!f.isMachineStarted());
    QVERIFY(field.edit->isEnabled());

    f.startMachine();
    QTRY_COMPARE(lock.count(), 1);
    QVERIFY(!field.edit->isEnabled());
}

void tst_QKXEditStateFilter::lockRule_data()
{
    QTest::addColumn<int>("rule");
    QTest::addColumn<bool>("withAdapter");
    QTest::addColumn<bool>("editsAtOnce");

    QTest::newRow("always, no adapter") << int(QKXEditStateFilter::AlwaysRequestLock) << false << false;
    QTest::newRow("always, adapter") << int(QKXEditStateFilter::AlwaysRequestLock) << true << false;
    QTest::newRow("with adapter, none set") << int(QKXEditStateFilter::RequestLockWithAdapter) << false << true;
    QTest::newRow("with adapter, set") << int(QKXEditStateFilter::RequestLockWithAdapter) << true << false;
}

void tst_QKXEditStateFilter::lockRule()
{
    QFETCH(int, rule);
    QFETCH(bool, withAdapter);
    QFETCH(bool, editsAtOnce);

    QObject adapter;
    QStringList log;
    Field field;
    auto *f = new TextFilter(&field.widget, withAdapter ? &adapter : nullptr,
                             QKXEditStateFilter::LockRule(rule));
    QCOMPARE(f->adapter(), withAdapter ? &adapter : nullptr);
    field.widget.installEventFilter(f);
    field.widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&field.widget));
    QTRY_VERIFY(!field.edit->isEnabled());

    logTraffic(*f, log, &field.widget);
    QObject::connect(f, &QKXEventFilterBase::editStart, [&log, &field, f](QObject *filter, QWidget *w) {
        log << (filter == f && w == &field.widget ? QStringLiteral("editStart") : QStringLiteral("foreign start"));
    });

    QTest::mouseClick(&field.widget, Qt::LeftButton, Qt::NoModifier, QPoint(100, 30));
    if (editsAtOnce) {
        QCOMPARE(log, QStringList({"editStart"}));
        QTRY_VERIFY(f->isEditing());
        QCOMPARE(f->remembers, 1);
        QVERIFY(field.edit->isEnabled());
    } else {
        QCOMPARE(log, QStringList({"request"}));
        QTest::qWait(20);
        QVERIFY(!f->isEditing());
        f->lockAcquired(&field.widget);
        QCOMPARE(log, QStringList({"request", "editStart"}));
        QTRY_VERIFY(f->isEditing());
    }
}

QTEST_MAIN(tst_QKXEditStateFilter)
#include "tst_QKXEditStateFilter.moc"
