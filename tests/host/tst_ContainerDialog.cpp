// SPDX-License-Identifier: BSD-3-Clause
#include "ContainerDialog.h"
#include "KXTestSupport.h"

#include <QBoxLayout>
#include <QFrame>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimer>
#include <QtTest>

namespace {

QPushButton *answerKey(const ContainerDialog &dialog, const QString &label)
{
    const auto keys = dialog.findChildren<QPushButton *>(QStringLiteral("DialogButton"));
    const auto it = std::find_if(keys.begin(), keys.end(), [&](QPushButton *key) { return key->text() == label; });
    return it == keys.end() ? nullptr : *it;
}

// Builds the dialog the way a confirmation prompt does; a stuck exec() ends as 99 instead of hanging.
void prepare(ContainerDialog &dialog, const QString &keys)
{
    long count = 0;
    dialog.setLayout(ContainerDialog::createButtonLayout(&dialog, keys, count), true);
    QTimer::singleShot(5000, &dialog, [&dialog] { dialog.done(99); });
}

} // namespace

class tst_ContainerDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void buttonLayout_data();
    void buttonLayout();
    void execEnds_data();
    void execEnds();
    void veilCoversParentWhileNotModal();
    void deletedWhileRunning();

private:
    QScopedPointer<QWidget> screen;
};

void tst_ContainerDialog::init()
{
    screen.reset(new QWidget);
    screen->resize(800, 480);
    screen->show();
    QVERIFY(QTest::qWaitForWindowExposed(screen.data()));
}

void tst_ContainerDialog::buttonLayout_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QStringList>("labels");
    QTest::addColumn<QList<int>>("codes");
    QTest::addColumn<QStringList>("ignored");   // each reported in a debug line, as written

    QTest::newRow("loose spacing") << " No , -5 | Yes, erase,1|" << QStringList{"No", "Yes, erase"} << QList<int>{-5, 1} << QStringList();
    // Blank entries ask for no key and are not reported.
    QTest::newRow("malformed") << "OK| |No,x|Go,2|Yes,1.5|,1|Stop," << QStringList{"Go"} << QList<int>{2}
                               << QStringList{"OK", "No,x", "Yes,1.5", ",1", "Stop,"};
}

void tst_ContainerDialog::buttonLayout()
{
    QFETCH(QString, keys);
    QFETCH(QStringList, labels);
    QFETCH(QList<int>, codes);
    QFETCH(QStringList, ignored);
    ContainerDialog dialog(screen.data());
    kxtest::DebugLines debug;
    long count = -1;
    QScopedPointer<QBoxLayout> row(ContainerDialog::createButtonLayout(&dialog, keys, count));

    QCOMPARE(count, long(labels.size()));
    QCOMPARE(row->count(), labels.size());
    for (int i = 0; i < labels.size(); ++i) {
        auto *key = qobject_cast<QPushButton *>(row->itemAt(i)->widget());
        QVERIFY(key);
        QCOMPARE(key->objectName(), QStringLiteral("DialogButton"));
        QCOMPARE(key->text(), labels.at(i));
        QCOMPARE(key->property("returnCode").toInt(), codes.at(i));
        QVERIFY(key->minimumHeight() >= 50);
    }
    QStringList lines;
    for (const QString &pair : ignored)
        lines << QStringLiteral("UserInterface - ContainerDialog: ignored malformed button \"%1\"").arg(pair);
    QCOMPARE(kxtest::DebugLines::lines(), lines);
}

void tst_ContainerDialog::execEnds_data()
{
    // The close key and the top container's WindowClosed() are taken through the prompting buttons.
    QTest::addColumn<QString>("how");
    QTest::addColumn<int>("code");
    QTest::newRow("answer key") << "Later" << 2;
    QTest::newRow("escape key") << "escape" << int(ContainerDialog::Cancelled);
    QTest::newRow("screen hidden") << "screen" << int(ContainerDialog::Cancelled);
}

void tst_ContainerDialog::execEnds()
{
    QFETCH(QString, how);
    QFETCH(int, code);
    ContainerDialog dialog(screen.data());
    prepare(dialog, QStringLiteral("No,0|Yes,1|Later,2"));
    QStringList events;
    connect(&dialog, &ContainerBase::WindowOpened, [&] { events << QStringLiteral("opened"); });
    connect(&dialog, &ContainerBase::WindowClosed, [&] { events << QStringLiteral("closed"); });
    connect(&dialog, &ContainerDialog::finished, [&](int code) { events << QStringLiteral("finished %1").arg(code); });
    QTimer::singleShot(0, &dialog, [&] {
        if (how == QLatin1String("escape"))   // typed while an answer key has focus, it travels up to the dialog
            QTest::keyClick(answerKey(dialog, QStringLiteral("Yes")), Qt::Key_Escape);
        else if (how == QLatin1String("screen"))
            screen->hide();
        else
            QTest::mouseClick(answerKey(dialog, how), Qt::LeftButton);
    });
    QCOMPARE(dialog.exec(true), code);
    QCOMPARE(dialog.result(), code);
    QVERIFY(dialog.isHidden());
    // The screen's hide reaches the dialog and its own cancel hides it again: still one closing.
    QCOMPARE(events, (QStringList{"opened", "closed", QStringLiteral("finished %1").arg(code)}));
}

void tst_ContainerDialog::veilCoversParentWhileNotModal()
{
    screen->setAutoFillBackground(true);
    screen->setPalette(QPalette(Qt::white));
    ContainerDialog dialog(screen.data());
    prepare(dialog, QStringLiteral("No,0|Yes,1"));
    QSignalSpy finished(&dialog, &ContainerDialog::finished);
    QSignalSpy closed(&dialog, &ContainerBase::WindowClosed);
    // Closing a dialog that is not open only records the result.
    dialog.done(4);
    QCOMPARE(dialog.result(), 4);
    QCOMPARE(finished.count() + closed.count(), 0);

    QCOMPARE(dialog.exec(false), int(ContainerDialog::Cancelled));
    QVERIFY(dialog.isVisible());
    QCOMPARE(dialog.geometry(), screen->rect());
    QFrame *box = dialog.borderFrame();
    QVERIFY(box->width() >= 360);
    QVERIFY((box->geometry().center() - dialog.rect().center()).manhattanLength() <= 2);
    // The screen behind is dimmed, not hidden.
    const QColor corner = screen->grab().toImage().pixelColor(3, 3);
    QVERIFY2(corner.red() < 200 && corner.red() > 20 && corner.red() == corner.blue(), qPrintable(corner.name()));
    // A new layout while open, or a screen that changes size, leaves the veil over the whole screen.
    dialog.setLayout(new QVBoxLayout, true);
    QCOMPARE(dialog.geometry(), screen->rect());
    screen->resize(480, 800);
    QCOMPARE(dialog.geometry(), QRect(0, 0, 480, 800));

    dialog.done(1);
    QVERIFY(dialog.isHidden());
    QCOMPARE(dialog.result(), 1);
    // Its top window closing afterwards does not answer a second time.
    dialog.cancelDialog();
    QCOMPARE(QList<QVariantList>(finished), QList<QVariantList>{{1}});
    QCOMPARE(closed.count(), 1);
}

void tst_ContainerDialog::deletedWhileRunning()
{
    QPointer<ContainerDialog> dialog = new ContainerDialog(screen.data());
    prepare(*dialog, QStringLiteral("OK,1"));
    // Deleted from under its own exec(): exec() must come back without touching it.
    QTimer::singleShot(0, this, [dialog] { delete dialog.data(); });
    QCOMPARE(dialog->exec(true), int(ContainerDialog::Cancelled));
    QVERIFY(dialog.isNull());
}

QTEST_MAIN(tst_ContainerDialog)
#include "tst_ContainerDialog.moc"
