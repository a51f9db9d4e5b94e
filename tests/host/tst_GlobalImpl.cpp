// SPDX-License-Identifier: BSD-3-Clause
#include "GlobalImpl.h"
#include "SystemModule.h"

#include <QApplication>
#include <QDesktopWidget>
#include <QLabel>
#include <QSignalSpy>
#include <QtTest>

class MainScreen : public QWidget { Q_OBJECT };

class tst_GlobalImpl : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void desktopAndWindowName();
    void screenRegistry();
};

void tst_GlobalImpl::desktopAndWindowName()
{
    // A destroyed desktop does not leave a dangling pointer behind.
    GlobalImpl *global = GlobalImpl::getInstance();
    auto *mainWindow = new QWidget;
    global->setDesktop(mainWindow);
    QCOMPARE(global->desktop(), mainWindow);
    delete mainWindow;
    QCOMPARE(global->desktop(), static_cast<QWidget *>(QApplication::desktop()));

    // A window without a name is known by its class.
    MainScreen window;
    auto *field = new QLabel(new QWidget(&window));
    QCOMPARE(global->getParentWindowName(field), QStringLiteral("MainScreen"));
    window.setObjectName(QStringLiteral("MeasurementScreen"));
    QCOMPARE(global->getParentWindowName(field), QStringLiteral("MeasurementScreen"));
    QCOMPARE(global->getParentWindowName(nullptr), QString());
}

void tst_GlobalImpl::screenRegistry()
{
    // The prompting and browsing buttons find their screens here; a deleted screen drops out.
    SystemModule *module = GlobalImpl::getInstance()->systemModule();
    QSignalSpy registered(module, &SystemModule::systemScreenRegistered);
    auto *first = new QWidget;
    QWidget second;
    module->registerSystemScreen(QStringLiteral("MainWindow"), first);
    module->registerSystemScreen(QStringLiteral("SimpleFileBrowser"), &second);
    QCOMPARE(module->systemScreenNames(), (QStringList{"MainWindow", "SimpleFileBrowser"}));
    delete first;
    QCOMPARE(module->getSystemScreen(QStringLiteral("MainWindow")), nullptr);
    QCOMPARE(module->systemScreenNames(), QStringList{"SimpleFileBrowser"});

    // A null screen removes the name.
    module->registerSystemScreen(QStringLiteral("SimpleFileBrowser"), nullptr);
    QCOMPARE(module->systemScreenNames(), QStringList());
    QCOMPARE(registered.count(), 2);
}

QTEST_MAIN(tst_GlobalImpl)
#include "tst_GlobalImpl.moc"
