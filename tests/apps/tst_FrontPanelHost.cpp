// SPDX-License-Identifier: BSD-3-Clause
#include "AppProperties.h"
#include "EditLockOwner.h"
#include "MainWindow.h"
#include "PanelHost.h"
#include "PanelScreen.h"
#include "ScreenList.h"
#include "ScreenRunner.h"
#include "SimpleFileBrowser.h"
#include "SimulatedEngine.h"
#include "StatusStrip.h"
#include "TopContainer.h"

#include "GlobalImpl.h"
#include "QKXEditStateFilter.h"
#include "QKXPushButton.h"
#include "QKXPushButtonEventFilter.h"
#include "QKXToggleButton.h"
#include "SystemModule.h"

#include <QApplication>
#include <QBoxLayout>
#include <QDir>
#include <QImage>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QScopedPointer>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <cmath>

class tst_FrontPanelHost : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void hostRegistrationAndTopContainer();
    void tapSendsCommandOnceAndFreesLock();
    void tapIsRefusedWhileAnotherWidgetEdits();
    void guiLockedTapGivesNoticeOnly();
    void badBindings();
    void statusStripSwitchesWriteAndFollowProperties();
    void panelFitsEveryDisplayMode_data();
    void panelFitsEveryDisplayMode();
    void progressFillStandsOutOfItsGroove();
    void settingsFileShownOnOneLine();
    void scriptedSessionTapsAndRenders();

private:
    QWidget *commandsScreen() const;
    QKXPushButton *commandButton(const QString &attribute) const;
    static QPushButton *innerButton(QKXPushButton *button);
    // Lets queued grants and anything they set going run out.
    static void settle() { QTest::qWait(50); }

    QScopedPointer<SimulatedEngine> engine;
    QScopedPointer<MainWindow> window;
};

void tst_FrontPanelHost::init()
{
    AppProperties::setDisplayMode(QStringLiteral("normal"));
    AppProperties::setGuiLocked(false);
    engine.reset(new SimulatedEngine);
    window.reset(new MainWindow(engine.data()));
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.data()));
    settle();
    engine->clearLog();
}

void tst_FrontPanelHost::cleanup()
{
    window.reset();
    engine.reset();
    qApp->setProperty("guilocked", QVariant());
    qApp->setProperty("-size", QVariant());
}

QWidget *tst_FrontPanelHost::commandsScreen() const
{
    ScreenList *screens = window->screens();
    for (int i = 0; i < screens->count(); ++i) {
        if (screens->screenId(i) == QLatin1String("commands")) {
            return screens->screen(i);
        }
    }
    return nullptr;
}

QKXPushButton *tst_FrontPanelHost::commandButton(const QString &attribute) const
{
    // The plain command buttons of the Commands screen; other screens bind derived buttons (with
    // prompts) to the same attributes.
    QWidget *commands = commandsScreen();
    if (!commands) {
        return nullptr;
    }
    const QList<QKXPushButton *> buttons = commands->findChildren<QKXPushButton *>();
    for (QKXPushButton *button : buttons) {
        if (button->metaObject() == &QKXPushButton::staticMetaObject && button->attributeName() == attribute) {
            return button;
        }
    }
    return nullptr;
}

QPushButton *tst_FrontPanelHost::innerButton(QKXPushButton *button)
{
    return button ? button->findChild<QPushButton *>(QStringLiteral("PushButton")) : nullptr;
}

void tst_FrontPanelHost::hostRegistrationAndTopContainer()
{
    GlobalImpl *global = GlobalImpl::getInstance();
    QCOMPARE(global->systemModule()->getSystemScreen(QStringLiteral("MainWindow")), window.data());
    QCOMPARE(global->desktop(), window.data());
    QCOMPARE(window->size(), QSize(800, 480));
    // The application ships the picture its save-trace buttons' style names.
    QVERIFY(QFile::exists(QStringLiteral(":/images/svg/saveTrace.svg")));

    // Widgets find the top container by name, walking up from themselves.
    QKXPushButton *preset = commandButton(QStringLiteral("Preset"));
    QVERIFY(preset);
    QWidget *up = preset->parentWidget();
    while (up && up->objectName() != QLatin1String("TopContainerObject")) {
        up = up->parentWidget();
    }
    QCOMPARE(up, window->topContainer());

    // Every button of the form is bound, captioned and carries exactly one push-button filter.
    const QStringList expected = {QStringLiteral("Preset"), QStringLiteral("SelfTest"), QStringLiteral("RfOn"),
                                  QStringLiteral("RfOff"), QStringLiteral("StartSweep"), QStringLiteral("StopSweep")};
    for (const QString &attribute : expected) {
        QKXPushButton *button = commandButton(attribute);
        QVERIFY2(button, qPrintable(attribute));
        QVERIFY(!innerButton(button)->text().isEmpty());
        QVERIFY(qobject_cast<QKXPushButtonEventFilter *>(button->getEventFilter()));
        QCOMPARE(button->findChildren<QKXEventFilterBase *>().size(), 1);
    }
    QCOMPARE(innerButton(preset)->text(), QStringLiteral("Preset"));

    // Prompts close on WindowClosed(); a window restored by the window system is no reopening.
    QSignalSpy opened(window->topContainer(), &TopContainer::WindowOpened);
    QSignalSpy closed(window->topContainer(), &TopContainer::WindowClosed);
    window->hide();
    QCOMPARE(closed.count(), 1);
    QCOMPARE(opened.count(), 0);
    window->show();
    QCOMPARE(opened.count(), 1);
    QCOMPARE(closed.count(), 1);
}

void tst_FrontPanelHost::tapSendsCommandOnceAndFreesLock()
{
    // Wiring a screen twice must not give its buttons a second filter (and every tap two commands).
    QCOMPARE(window->host()->wireScreen(window->panelScreen(QStringLiteral("commands"))), 0);

    QKXPushButton *preset = commandButton(QStringLiteral("Preset"));
    QSignalSpy granted(window->lockOwner(), &EditLockOwner::lockGranted);
    QTest::mouseClick(innerButton(preset), Qt::LeftButton);
    QTRY_VERIFY(engine->log().contains(QStringLiteral("lock released Preset")));
    settle();

    const QStringList expected = {QStringLiteral("lock request Preset"), QStringLiteral("lock granted Preset"),
                                  QStringLiteral("command Preset"), QStringLiteral("lock released Preset")};
    QCOMPARE(engine->log(), expected);
    QCOMPARE(granted.count(), 1);
    QCOMPARE(granted.at(0).at(0).value<QWidget *>(), static_cast<QWidget *>(preset));
    QVERIFY(window->lockOwner()->isFree());
    QCOMPARE(window->statusStrip()->notice(), QStringLiteral("Preset sent"));

    // A command with an effect: the value change follows the command, inside the lock.
    engine->clearLog();
    QTest::mouseClick(innerButton(commandButton(QStringLiteral("RfOff"))), Qt::LeftButton);
    QTRY_VERIFY(window->lockOwner()->isFree() && !engine->log().isEmpty());
    settle();
    const QStringList rfOff = {QStringLiteral("lock request RfOff"), QStringLiteral("lock granted RfOff"),
                               QStringLiteral("command RfOff"), QStringLiteral("set RfOutput = false"),
                               QStringLiteral("lock released RfOff")};
    QCOMPARE(engine->log(), rfOff);
    QCOMPARE(engine->value(QStringLiteral("RfOutput")), QVariant(false));
    // The notice names the command as its button does, not by the engine's name for it.
    QCOMPARE(window->statusStrip()->notice(), QStringLiteral("RF off sent"));

    // A drag that starts on the button and leaves it is not a tap.
    engine->clearLog();
    QPushButton *inner = innerButton(preset);
    QTest::mousePress(inner, Qt::LeftButton, {}, inner->rect().center());
    QMouseEvent move(QEvent::MouseMove, inner->rect().center() + QPoint(31, 0), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(inner, &move);
    QTest::mouseRelease(inner, Qt::LeftButton, {}, inner->rect().center() + QPoint(31, 0));
    settle();
    QCOMPARE(engine->log(), QStringList());
}

void tst_FrontPanelHost::tapIsRefusedWhileAnotherWidgetEdits()
{
    // A field on the same screen, in the middle of an edit, holds the lock.
    QWidget *commands = commandsScreen();
    auto *field = new QKXWidgetBase(commands);
    field->setAttributeName(QStringLiteral("Frequency"));
    field->setGeometry(20, 300, 200, 40);
    field->show();
    auto *fieldFilter = new QKXEditStateFilter(field, nullptr);
    field->installEventFilter(fieldFilter);
    // The edit machine starts on the next turn of the event loop with an idle entry, which releases;
    // let that pass before the field asks, as it always has on a running panel.
    QCoreApplication::processEvents();
    window->lockOwner()->attach(fieldFilter);
    fieldFilter->forceClick();
    QTRY_VERIFY(fieldFilter->isEditing());
    QCOMPARE(window->lockOwner()->holder(), static_cast<QWidget *>(field));

    engine->clearLog();
    QKXPushButton *preset = commandButton(QStringLiteral("Preset"));
    QSignalSpy refused(window->lockOwner(), &EditLockOwner::lockRefused);
    QTest::mouseClick(innerButton(preset), Qt::LeftButton);
    QTRY_COMPARE(refused.count(), 1);
    settle();
    const QStringList expected = {QStringLiteral("lock request Preset"),
                                  QStringLiteral("lock refused Preset (held by Frequency)")};
    QCOMPARE(engine->log(), expected);
    QCOMPARE(window->lockOwner()->holder(), static_cast<QWidget *>(field));

    // Only the holder can release.
    emit qobject_cast<QKXEventFilterBase *>(preset->getEventFilter())->attemptSetLock(preset, false);
    QCOMPARE(window->lockOwner()->holder(), static_cast<QWidget *>(field));

    // The edit ends, the lock comes free, and the button works again.
    fieldFilter->cancel();
    QTRY_VERIFY(window->lockOwner()->isFree());
    QCOMPARE(engine->log().last(), QStringLiteral("lock released Frequency"));
    engine->clearLog();
    QTest::mouseClick(innerButton(preset), Qt::LeftButton);
    QTRY_VERIFY(engine->log().contains(QStringLiteral("lock released Preset")));
    settle();
    QCOMPARE(engine->log().count(QStringLiteral("command Preset")), 1);
}

void tst_FrontPanelHost::guiLockedTapGivesNoticeOnly()
{
    AppProperties::setGuiLocked(true);
    auto *lockToggle = window->statusStrip()->findChild<QPushButton *>(QStringLiteral("GuiLockToggle"));
    QVERIFY(lockToggle);
    QVERIFY(lockToggle->isChecked());

    QKXPushButton *preset = commandButton(QStringLiteral("Preset"));
    QSignalSpy requested(window->host(), &PanelHost::guiLockedMessageRequested);
    QTest::mouseClick(innerButton(preset), Qt::LeftButton);
    settle();
    QCOMPARE(requested.count(), 1);
    QCOMPARE(window->statusStrip()->notice(), QStringLiteral("Interface locked"));
    QCOMPARE(engine->log(), QStringList{QStringLiteral("notice Interface locked (Preset)")});
    QVERIFY(window->lockOwner()->isFree());

    // Unlocking from the strip is a real tap too, and the next tap sends the command.
    QTest::mouseClick(lockToggle, Qt::LeftButton);
    QVERIFY(!AppProperties::isGuiLocked());
    engine->clearLog();
    QTest::mouseClick(innerButton(preset), Qt::LeftButton);
    QTRY_VERIFY(engine->log().contains(QStringLiteral("lock released Preset")));
    QVERIFY(engine->log().contains(QStringLiteral("command Preset")));
}

void tst_FrontPanelHost::badBindings()
{
    QWidget *commands = commandsScreen();
    auto *unknown = new QKXPushButton(commands);
    unknown->setAttributeName(QStringLiteral("NoSuchAttribute"));
    unknown->setButtonText(QStringLiteral("Unknown"));
    unknown->setGeometry(20, 300, 200, 60);
    unknown->show();
    // Fresh from the designer: the placeholder attribute binds to nothing.
    auto *unbound = new QKXPushButton(commands);
    unbound->setGeometry(300, 300, 200, 60);
    unbound->show();
    auto *notCommand = new QKXPushButton(commands);
    notCommand->setAttributeName(QStringLiteral("Frequency"));
    notCommand->setGeometry(560, 300, 200, 60);
    notCommand->show();

    // A family the screen does not wire would ignore every tap: said, not silently left inert.
    auto *toggle = new QKXToggleButton(commands);
    toggle->setAttributeName(QStringLiteral("RfOutput"));
    QTest::ignoreMessage(QtWarningMsg, "frontpanel: no wiring for QKXToggleButton bound to RfOutput on the commands screen");
    QTest::ignoreMessage(QtWarningMsg, "frontpanel: NoSuchAttribute is not an engine attribute");
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("is bound to no attribute and stays inert$")));
    QCOMPARE(window->host()->wireScreen(window->panelScreen(QStringLiteral("commands"))), 2);
    QVERIFY(!unbound->getEventFilter());

    QTest::mouseClick(innerButton(unknown), Qt::LeftButton);
    QTRY_VERIFY(engine->log().contains(QStringLiteral("lock released NoSuchAttribute")));
    QTest::mouseClick(innerButton(notCommand), Qt::LeftButton);
    QTRY_VERIFY(engine->log().contains(QStringLiteral("lock released Frequency")));
    QTest::mouseClick(innerButton(unbound), Qt::LeftButton);
    settle();
    const QStringList expected = {
        QStringLiteral("lock request NoSuchAttribute"), QStringLiteral("lock granted NoSuchAttribute"),
        QStringLiteral("command NoSuchAttribute rejected: unknown attribute"),
        QStringLiteral("lock released NoSuchAttribute"),
        QStringLiteral("lock request Frequency"), QStringLiteral("lock granted Frequency"),
        QStringLiteral("command Frequency rejected: not a command"),
        QStringLiteral("lock released Frequency")};
    QCOMPARE(engine->log(), expected);
    QVERIFY(window->lockOwner()->isFree());

    // A destroyed holder cannot keep the lock.
    window->lockOwner()->attemptSetLock(unknown->getEventFilter(), unknown, true);
    QCOMPARE(window->lockOwner()->holder(), static_cast<QWidget *>(unknown));
    delete unknown;
    QVERIFY(window->lockOwner()->isFree());
    settle();
}

void tst_FrontPanelHost::statusStripSwitchesWriteAndFollowProperties()
{
    auto *sizeToggle = window->statusStrip()->findChild<QPushButton *>(QStringLiteral("SizeToggle"));
    QVERIFY(sizeToggle);
    QSignalSpy modeChanged(window->statusStrip(), &StatusStrip::displayModeChanged);
    QTest::mouseClick(sizeToggle, Qt::LeftButton);
    QCOMPARE(qApp->property("-size").toString(), QStringLiteral("landscape"));
    QCOMPARE(sizeToggle->text(), QStringLiteral("Size: landscape"));
    qApp->setProperty("-size", QStringLiteral("small_portrait"));
    QCOMPARE(sizeToggle->text(), QStringLiteral("Size: small_portrait"));
    QTest::mouseClick(sizeToggle, Qt::LeftButton);
    QCOMPARE(qApp->property("-size").toString(), QStringLiteral("normal"));
    QCOMPARE(modeChanged.count(), 3);

    // An unknown mode from the command line changes nothing.
    QTest::ignoreMessage(QtWarningMsg, "frontpanel: unknown display mode huge");
    QVERIFY(!AppProperties::setDisplayMode(QStringLiteral("huge")));
    QCOMPARE(qApp->property("-size").toString(), QStringLiteral("normal"));
}

void tst_FrontPanelHost::panelFitsEveryDisplayMode_data()
{
    // The panel's own screens are topped up to a fixed count, so that new screens keep the rows.
    QTest::addColumn<QString>("mode");
    QTest::addColumn<int>("screens");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("tabRows");
    QTest::newRow("normal, twelve screens") << "normal" << 12 << QSize(800, 480) << 3;
    QTest::newRow("normal, sixteen screens") << "normal" << 16 << QSize(800, 480) << 4;
    QTest::newRow("portrait, twelve screens") << "small_portrait" << 12 << QSize(480, 800) << 4;
    QTest::newRow("portrait, sixteen screens") << "small_portrait" << 16 << QSize(480, 800) << 6;
}

void tst_FrontPanelHost::panelFitsEveryDisplayMode()
{
    QFETCH(QString, mode);
    QFETCH(int, screens);
    QFETCH(QSize, size);
    QFETCH(int, tabRows);
    QVERIFY(window->screens()->count() <= screens);
    while (window->screens()->count() < screens) {
        window->screens()->addScreen(QStringLiteral("extra"), QStringLiteral("Commands"), new QWidget);
    }
    // Switched while running, as the strip's size key does.
    AppProperties::setDisplayMode(mode);
    settle();
    QCOMPARE(window->size(), size);
    const bool portrait = size.height() > size.width();
    QCOMPARE(qobject_cast<QBoxLayout *>(commandsScreen()->layout())->direction(),
             portrait ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    QCOMPARE(window->screens()->tabRowCount(), tabRows);
    // Every key of the strip and every tab lies on the panel, wide enough for its text.
    QList<QPushButton *> keys = window->findChildren<QPushButton *>(QStringLiteral("ScreenTab"));
    keys << window->statusStrip()->findChildren<QPushButton *>();
    for (QPushButton *key : qAsConst(keys)) {
        const QRect onPanel(key->mapTo(window.data(), QPoint()), key->size());
        QVERIFY2(window->rect().contains(onPanel) && key->width() >= key->sizeHint().width(), qPrintable(key->text()));
    }
}

void tst_FrontPanelHost::progressFillStandsOutOfItsGroove()
{
    auto *progress = window->findChild<QWidget *>(QStringLiteral("sweepProgress"));
    QVERIFY(progress);
    engine->setValue(QStringLiteral("SweepProgress"), 50);
    window->screens()->setCurrentIndex(window->screens()->indexOfScreenHolding(progress));
    settle();
    auto *bar = progress->findChild<QProgressBar *>();
    const QImage image = bar->grab().toImage();
    // Beside the percentage in the middle: filled at a quarter, empty at three quarters.
    const int y = image.height() / 2;
    const auto luminance = [](QRgb rgb) {
        const auto linear = [](int c) {
            const double v = c / 255.0;
            return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(qRed(rgb)) + 0.7152 * linear(qGreen(rgb)) + 0.0722 * linear(qBlue(rgb));
    };
    const double fill = luminance(image.pixel(image.width() / 4, y));
    const double groove = luminance(image.pixel(image.width() * 3 / 4, y));
    QVERIFY2((qMax(fill, groove) + 0.05) / (qMin(fill, groove) + 0.05) >= 3.0,
             qPrintable(QStringLiteral("fill %1, groove %2").arg(fill).arg(groove)));
}

void tst_FrontPanelHost::settingsFileShownOnOneLine()
{
    auto *label = window->findChild<QLabel *>(QStringLiteral("settingsFileLabel"));
    auto *browser = window->findChild<SimpleFileBrowser *>();
    QVERIFY(label && browser);
    window->screens()->setCurrentIndex(window->screens()->indexOfScreenHolding(label));
    settle();
    // Below the settings folder the browser shows, the path from there; elsewhere, a long name is
    // shortened to the label's width.
    engine->setValue(QStringLiteral("SettingsFile"), QString(browser->rootPath() + QStringLiteral("/archive/bench-2025.cfg")));
    QCOMPARE(label->text(), QStringLiteral("archive/bench-2025.cfg"));
    const QString longName = QStringLiteral("/media/usb/%1.cfg").arg(QString(60, QLatin1Char('x')));
    engine->setValue(QStringLiteral("SettingsFile"), longName);
    QVERIFY(label->text().contains(QChar(0x2026)));
    QVERIFY(label->text().endsWith(QLatin1String("x.cfg")));
    QVERIFY(label->fontMetrics().horizontalAdvance(label->text()) <= label->contentsRect().width());
}

void tst_FrontPanelHost::scriptedSessionTapsAndRenders()
{
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    ScreenRunner session(window.data(), QDir(dir.path()));
    const QStringList images = session.renderScreens();
    QCOMPARE(images.size(), window->screens()->count());
    QCOMPARE(QFileInfo(images.first()).fileName(), QStringLiteral("01-commands.png"));
    for (const QString &path : images) {
        QVERIFY(QFileInfo(path).isAbsolute());
        QCOMPARE(QImage(path).size(), QSize(800, 480));
    }

    QVERIFY2(session.tapPushButton(QStringLiteral("Preset")), qPrintable(session.failure()));
    QVERIFY(engine->log().first().startsWith(QLatin1String("tap Preset at (")));
    QCOMPARE(engine->log().count(QStringLiteral("command Preset")), 1);
    QVERIFY(!session.tapPushButton(QStringLiteral("NoSuchAttribute")));
    QCOMPARE(session.failure(), QStringLiteral("no command button is bound to NoSuchAttribute"));

    // With the interface locked the expected road is the notice alone.
    AppProperties::setGuiLocked(true);
    engine->clearLog();
    QVERIFY2(session.tapPushButton(QStringLiteral("StartSweep")), qPrintable(session.failure()));
    QCOMPARE(engine->log().last(), QStringLiteral("notice Interface locked (StartSweep)"));
    QCOMPARE(engine->value(QStringLiteral("SweepState")), QVariant(QStringLiteral("Stopped")));
}

QTEST_MAIN(tst_FrontPanelHost)
#include "tst_FrontPanelHost.moc"
