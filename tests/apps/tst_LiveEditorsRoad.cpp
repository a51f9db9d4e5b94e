// SPDX-License-Identifier: BSD-3-Clause
// The host's live editing duties on the real panel: the rotate key going round the editors a field's
// flags allow, the arrow keys stepping the focused field, and the screens' own roads of the spinner,
// the slider bar, the direction pad and the slider widgets.
#include <QtTest>

#include "AppProperties.h"
#include "EditLockOwner.h"
#include "MainWindow.h"
#include "PanelScreen.h"
#include "ScreenRunner.h"
#include "SimulatedEngine.h"
#include "WidgetNaming.h"

#include "QKXNumeric.h"
#include "QKXNumpad.h"
#include "QKXSliderBar.h"
#include "QKXSpinner.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>

class tst_LiveEditorsRoad : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void screensPlayTheirRoads_data();
    void screensPlayTheirRoads();
    void rotateKeyGoesRoundTheFlags_data();
    void rotateKeyGoesRoundTheFlags();
    void arrowKeysNeedAnOpenInterface();

private:
    QKXNumeric *field(const QString &attribute) const;
    QStringList logLines(const QString &start) const;

    QScopedPointer<SimulatedEngine> engine;
    QScopedPointer<MainWindow> window;
};

void tst_LiveEditorsRoad::init()
{
    AppProperties::setDisplayMode(QStringLiteral("normal"));
    AppProperties::setGuiLocked(false);
    engine.reset(new SimulatedEngine);
    window.reset(new MainWindow(engine.data()));
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.data()));
}

void tst_LiveEditorsRoad::cleanup()
{
    window.reset();
    engine.reset();
    AppProperties::setGuiLocked(false);
}

QKXNumeric *tst_LiveEditorsRoad::field(const QString &attribute) const
{
    for (QKXNumeric *candidate : window->findChildren<QKXNumeric *>())
        if (WidgetNaming::boundAttribute(candidate) == attribute)
            return candidate;
    return nullptr;
}

QStringList tst_LiveEditorsRoad::logLines(const QString &start) const
{
    QStringList lines;
    for (const QString &line : engine->log())
        if (line.startsWith(start))
            lines << line;
    return lines;
}

void tst_LiveEditorsRoad::screensPlayTheirRoads_data()
{
    QTest::addColumn<QString>("screen");
    QTest::newRow("numeric: pad, spinner, slider bar, arrow keys") << "numeric";
    QTest::newRow("sliders: a horizontal and a vertical drag") << "sliders";
}

void tst_LiveEditorsRoad::screensPlayTheirRoads()
{
    QFETCH(QString, screen);
    QTemporaryDir images;
    ScreenRunner runner(window.data(), QDir(images.path()));
    QVERIFY2(runner.play(window->panelScreen(screen)), qPrintable(runner.failure()));
    QVERIFY(runner.lockOwner()->isFree());
}

void tst_LiveEditorsRoad::rotateKeyGoesRoundTheFlags_data()
{
    QTest::addColumn<bool>("numpad");
    QTest::addColumn<bool>("spinner");
    QTest::addColumn<bool>("slider");
    QTest::addColumn<QStringList>("editors");

    // The editor each of three rotate keys leads to, from the one the edit opens on.
    QTest::newRow("all three") << true << true << true
                               << QStringList{"numeric pad", "spinner", "slider bar", "numeric pad"};
    QTest::newRow("no spinner") << true << false << true
                                << QStringList{"numeric pad", "slider bar", "numeric pad", "slider bar"};
    QTest::newRow("spinner only") << false << true << false << QStringList{"spinner"};
}

void tst_LiveEditorsRoad::rotateKeyGoesRoundTheFlags()
{
    QFETCH(bool, numpad);
    QFETCH(bool, spinner);
    QFETCH(bool, slider);
    QFETCH(QStringList, editors);

    QKXNumeric *level = field(QStringLiteral("Level"));
    QTemporaryDir images;
    ScreenRunner runner(window.data(), QDir(images.path()));
    QVERIFY(runner.showScreenOf(level, QStringLiteral("level")));
    level->setNumpad(numpad);
    level->setSpinner(spinner);
    level->setSlider(slider);
    engine->clearLog();
    ScreenRunner::tap(level, level->findChild<QLineEdit *>()->geometry().center());
    for (int turn = 0; turn < 3; ++turn) {
        QPushButton *rotate = nullptr;
        QVERIFY(runner.waitFor([&] {
            for (QPushButton *key : window->findChildren<QPushButton *>(QStringLiteral("RotateEntry")))
                if (key->isVisible())
                    rotate = key;
            return rotate != nullptr;
        }));
        ScreenRunner::tap(rotate);
    }
    QStringList road{"edit Level on the " + editors.first()};
    for (int turn = 1; turn <= 3; ++turn) {
        road << (editors.size() == 1 ? QString("rotate: the " + editors.first() + " is the only editor for Level")
                                     : QString("rotate Level from the " + editors.at(turn - 1) + " to the " + editors.at(turn)));
    }
    QCOMPARE(logLines(QStringLiteral("edit Level")) + logLines(QStringLiteral("rotate")), road);
    // The edit stayed open all along: one lock, the value untouched.
    QCOMPARE(runner.lockOwner()->holder(), level);
    QCOMPARE(logLines(QStringLiteral("lock request")).size(), 1);
}

void tst_LiveEditorsRoad::arrowKeysNeedAnOpenInterface()
{
    QKXNumeric *channel = field(QStringLiteral("Channel"));
    QTemporaryDir images;
    ScreenRunner runner(window.data(), QDir(images.path()));
    QVERIFY(runner.showScreenOf(channel, QStringLiteral("channel")));
    const QVariant start = engine->value(QStringLiteral("Channel"));
    const auto up = [channel] {
        QKeyEvent event(QEvent::KeyPress, Qt::Key_Up, Qt::NoModifier);
        QCoreApplication::sendEvent(channel, &event);
    };
    AppProperties::setGuiLocked(true);
    up();
    channel->setReadOnly(true);
    AppProperties::setGuiLocked(false);
    up();
    QTest::qWait(50);
    QCOMPARE(engine->value(QStringLiteral("Channel")), start);
    QVERIFY(runner.lockOwner()->isFree());
    QCOMPARE(logLines(QStringLiteral("notice")).size(), 1);
}

QTEST_MAIN(tst_LiveEditorsRoad)
#include "tst_LiveEditorsRoad.moc"
