// SPDX-License-Identifier: BSD-3-Clause
// Mouse and key events travel through the window system, as on the panel.
#define QTEST_QPA_MOUSE_HANDLING
#include <QtTest>

#include <QLineEdit>

#include "TextTestSupport.h"

#include "QKXTextEntry.h"
#include "QKXTextEventFilter.h"

using kxtest::TextAdapter;

namespace {

// A shown text field with its filter installed as the host installs it. Declare the log before the
// field: a field going out of scope mid-edit still reports to it.
struct Field
{
    Field(QObject *adapter, QStringList &log)
    {
        widget.resize(240, 60);
        widget.setText(QStringLiteral("Bench A"));
        filter = new QKXTextEventFilter(&widget, adapter);
        widget.installEventFilter(filter);
        kxtest::logTextFilter(filter, log);
        edit = widget.findChild<QLineEdit *>();
        widget.show();
    }
    bool shown() { return QTest::qWaitForWindowExposed(&widget) && QTest::qWaitFor([this] { return !edit->isEnabled(); }); }
    void tap() { QTest::mouseClick(&widget, Qt::LeftButton, Qt::NoModifier, edit->geometry().center()); }
    QKXTextEntry widget;
    QKXTextEventFilter *filter;
    QLineEdit *edit;
};

} // namespace

class tst_QKXTextEventFilter : public QObject
{
    Q_OBJECT

private slots:
    void tapStartsTheEdit_data();
    void tapStartsTheEdit();
    void keysEndTheEdit_data();
    void keysEndTheEdit();
    void cancelWithoutAStartText();
};

void tst_QKXTextEventFilter::tapStartsTheEdit_data()
{
    QTest::addColumn<bool>("withAdapter");
    QTest::addColumn<QStringList>("road");

    // Without an adapter nobody arbitrates: the edit starts at once.
    QTest::newRow("no adapter") << false << QStringList({"release", "editStart"});
    QTest::newRow("adapter") << true << QStringList({"release", "lock", "editStart"});
}

void tst_QKXTextEventFilter::tapStartsTheEdit()
{
    QFETCH(bool, withAdapter);
    QFETCH(QStringList, road);

    QStringList log;
    TextAdapter adapter(QStringLiteral("Bench A"));
    Field field(withAdapter ? &adapter : nullptr, log);
    QVERIFY(field.shown());
    QCOMPARE(field.filter->property("DataType").toString(), QStringLiteral("TextString"));
    field.tap();
    if (withAdapter) {
        QWidget other;
        field.filter->lockAcquired(&other);   // a grant for another field changes nothing
        QVERIFY(!field.filter->isEditing());
        field.filter->lockAcquired(&field.widget);
    }
    QTRY_VERIFY(field.filter->isEditing());
    QCOMPARE(log, road);
    // Editors continue the text at its end.
    QVERIFY(field.edit->isEnabled() && field.edit->hasFocus());
    QCOMPARE(field.edit->cursorPosition(), field.edit->text().size());
    QVERIFY(!field.edit->hasSelectedText());
}

void tst_QKXTextEventFilter::keysEndTheEdit_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QStringList>("road");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("announced");

    const QStringList committed({"editStart", "submit Bench A2", "editEnd", "release"});
    QTest::newRow("Return") << int(Qt::Key_Return) << committed << "Bench A2" << QStringList();
    QTest::newRow("Enter") << int(Qt::Key_Enter) << committed << "Bench A2" << QStringList();
    // The engine's text comes back, and the field says so.
    QTest::newRow("Escape") << int(Qt::Key_Escape) << QStringList({"editStart", "editEnd", "release"}) << "Bench B"
                            << QStringList({"Bench B"});
}

void tst_QKXTextEventFilter::keysEndTheEdit()
{
    QFETCH(int, key);
    QFETCH(QStringList, road);
    QFETCH(QString, text);
    QFETCH(QStringList, announced);

    QStringList log;
    TextAdapter adapter(QStringLiteral("Bench B"));
    Field field(&adapter, log);
    QVERIFY(field.shown());
    log.clear();
    field.filter->lockAcquired(&field.widget);
    QTRY_VERIFY(field.filter->isEditing());
    QCOMPARE(field.filter->savedValue(), QStringLiteral("Bench B"));
    QTest::keyClick(field.edit, Qt::Key_2);
    QStringList changes;
    connect(&field.widget, &QKXTextEntry::textChanged, [&changes](const QString &t) { changes << t; });
    QTest::keyClick(field.edit, Qt::Key(key));
    QTRY_VERIFY(!field.filter->isEditing());
    QTRY_COMPARE(log, road);
    QCOMPARE(field.widget.text(), text);
    QCOMPARE(changes, announced);
    QVERIFY(!field.edit->isEnabled());
}

void tst_QKXTextEventFilter::cancelWithoutAStartText()
{
    // An adapter without get(): there is nothing to give back, and a cancel empties the field.
    QStringList log;
    QObject mute;
    Field field(&mute, log);
    QVERIFY(field.shown());
    field.filter->lockAcquired(&field.widget);
    QTRY_VERIFY(field.filter->isEditing());
    field.filter->cancel();
    QCOMPARE(field.widget.text(), QString());
    QTRY_VERIFY(!field.filter->isEditing());
}

QTEST_MAIN(tst_QKXTextEventFilter)
#include "tst_QKXTextEventFilter.moc"
