#include "shared/Screen.h"

#include "shared/CommandLine.h"
#include "shared/Language.h"

#include <QCoreApplication>
#include <QTemporaryFile>
#include <QtGlobal>

#include <algorithm>
#include <cstdio>
#include <string_view>

namespace Apps {

namespace {

bool hasArgument(int argc, char** argv, std::string_view start) {
    return std::any_of(argv + 1, argv + argc, [&](std::string_view a) { return a.starts_with(start); });
}

bool hasScreen(int argc, char** argv) {
    return !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") || hasArgument(argc, argv, "-platform") ||
           !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

void passOn(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (message.startsWith(QStringLiteral("This plugin does not support")) ||
        message.startsWith(QStringLiteral("QStandardPaths: XDG_RUNTIME_DIR")))
        return;
    std::fprintf(stderr, "%s\n", qUtf8Printable(qFormatLogMessage(type, context, message)));
}

void enlargeNoScreen() {
    qInstallMessageHandler(passOn);
    static QTemporaryFile screens; // read when the application object is made, removed at the end
    if (!screens.open()) return;
    screens.write(R"({"screens": [{"name": "tour", "x": 0, "y": 0, "width": 1920, "height": 1200,
                      "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
    screens.close();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screens.fileName().toUtf8());
}

} // namespace

void readyScreen(int argc, char** argv) {
    const bool isTour = hasArgument(argc, argv, "--tour");
    if (!hasScreen(argc, argv)) {
        if (!isTour) {
            const QCoreApplication application(argc, argv);
            chooseLanguage(QCoreApplication::arguments());
            refuse(QCoreApplication::translate(
                "Apps::Screen", "there is no display. Set DISPLAY, or see the guided tour with --tour DIR."));
        }
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    if (isTour && qgetenv("QT_QPA_PLATFORM") == "offscreen") enlargeNoScreen();
}

} // namespace Apps
