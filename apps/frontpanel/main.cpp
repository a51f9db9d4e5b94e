// SPDX-License-Identifier: BSD-3-Clause
#include "AppProperties.h"
#include "MainWindow.h"
#include "PanelScreen.h"
#include "ScreenList.h"
#include "ScreenRunner.h"
#include "SimulatedEngine.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QTextStream>

#include <cstring>

// Decided before the application object exists, because the platform plug-in is chosen when it is
// built: without a display to show on, or when asked, the panel runs on the offscreen platform.
static bool frontpanel_wantsHeadless(int argc, char *argv[])
{
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--headless") == 0) {
            return true;
        }
    }
    if (qgetenv("QT_QPA_PLATFORM") == "offscreen") {
        return true;
    }
    return qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

static int frontpanel_runHeadless(MainWindow &window, const QString &outputDir, const QString &tapTarget)
{
    QTextStream out(stdout);
    QTextStream err(stderr);
    QDir dir(outputDir);
    if (!dir.mkpath(QStringLiteral("."))) {
        err << "frontpanel: cannot create " << dir.absolutePath() << '\n';
        return 1;
    }
    out << "frontpanel: headless run on the " << QGuiApplication::platformName() << " platform, images in "
        << dir.absolutePath() << Qt::endl;

    window.show();
    ScreenRunner runner(&window, dir);
    bool ok = true;
    QStringList images = runner.renderScreens();
    if (images.size() != window.screens()->count()) {
        err << "frontpanel: " << runner.failure() << Qt::endl;
        ok = false;
    }
    QStringList notOnAScreen;
    const QStringList widgetImages = runner.renderWidgets(&notOnAScreen);
    out << "frontpanel: " << widgetImages.size() << " widget pictures in " << dir.absoluteFilePath(QStringLiteral("widgets"))
        << Qt::endl;
    if (!notOnAScreen.isEmpty()) {
        out << "frontpanel: not shown on their own: " << notOnAScreen.join(QStringLiteral(", ")) << Qt::endl;
    }
    if (runner.tapPushButton(tapTarget)) {
        out << "frontpanel: scripted tap on " << tapTarget << " complete" << Qt::endl;
    } else {
        err << "frontpanel: scripted tap failed: " << runner.failure() << Qt::endl;
        ok = false;
    }
    const QString afterTap = runner.renderWindow(QStringLiteral("after-tap-%1").arg(tapTarget));
    if (afterTap.isEmpty()) {
        err << "frontpanel: " << runner.failure() << Qt::endl;
        ok = false;
    } else {
        images.append(afterTap);
    }
    // Each screen's script, in tab order; a failed one does not keep the others from playing.
    for (PanelScreen *screen : window.panelScreens()) {
        if (runner.play(screen)) {
            out << "frontpanel: " << screen->id() << " screen played" << Qt::endl;
        } else {
            err << "frontpanel: " << screen->id() << " screen failed: " << runner.failure() << Qt::endl;
            ok = false;
        }
    }
    images.append(runner.images());
    for (const QString &image : qAsConst(images)) {
        out << image << '\n';
    }
    out.flush();
    return ok ? 0 : 1;
}

int main(int argc, char *argv[])
{
    if (frontpanel_wantsHeadless(argc, argv)) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("frontpanel"));
    QApplication::setApplicationVersion(QStringLiteral("0.1"));
    // One look on the bench and in the rack, whatever the desktop around it prefers.
    QApplication::setStyle(QStringLiteral("Fusion"));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Front panel of the instrument, with a simulated engine."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption sizeOption(QStringLiteral("size"),
                                        QStringLiteral("Display mode: %1.").arg(AppProperties::displayModes().join(QStringLiteral(", "))),
                                        QStringLiteral("mode"), QStringLiteral("normal"));
    const QCommandLineOption guiLockedOption(QStringLiteral("guilocked"), QStringLiteral("Start with the interface locked."));
    const QCommandLineOption headlessOption(QStringLiteral("headless"),
                                            QStringLiteral("Render every screen to images, play a scripted tap and each screen's edits, then exit."));
    const QCommandLineOption outputOption(QStringLiteral("output"), QStringLiteral("Folder for the images of a headless run."),
                                          QStringLiteral("dir"), QStringLiteral("screens"));
    const QCommandLineOption tapOption(QStringLiteral("tap"), QStringLiteral("Attribute of the command button the headless run taps."),
                                       QStringLiteral("attribute"), QStringLiteral("Preset"));
    parser.addOptions({sizeOption, guiLockedOption, headlessOption, outputOption, tapOption});
    parser.process(app);

    if (!AppProperties::setDisplayMode(parser.value(sizeOption))) {
        QTextStream(stderr) << "frontpanel: --size takes one of " << AppProperties::displayModes().join(QStringLiteral(", "))
                            << Qt::endl;
        return 2;
    }
    AppProperties::setGuiLocked(parser.isSet(guiLockedOption));

    SimulatedEngine engine;
    engine.setEchoToStdout(true);
    MainWindow window(&engine);
    // Widgets that draw engine data wait for this; the screens and their bindings now exist.
    AppProperties::markInitialized();

    const QString platform = QGuiApplication::platformName();
    if (parser.isSet(headlessOption) || platform == QLatin1String("offscreen") || platform == QLatin1String("minimal")) {
        return frontpanel_runHeadless(window, parser.value(outputOption), parser.value(tapOption));
    }
    window.show();
    return app.exec();
}
