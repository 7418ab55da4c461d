#include "clinic/tour/NoScreen.h"

#include <QTemporaryFile>
#include <QtGlobal>

#include <cstdio>

namespace Clinic {

namespace {

void passOn(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (message.startsWith(QStringLiteral("This plugin does not support")) ||
        message.startsWith(QStringLiteral("QStandardPaths: XDG_RUNTIME_DIR")))
        return;
    std::fprintf(stderr, "%s\n", qUtf8Printable(qFormatLogMessage(type, context, message)));
}

} // namespace

void prepareNoScreen() {
    if (qgetenv("QT_QPA_PLATFORM") != "offscreen") return;
    qInstallMessageHandler(passOn);
    static QTemporaryFile screens; // read when the application object is made, removed at the end
    if (!screens.open()) return;
    screens.write(R"({"screens": [{"name": "tour", "x": 0, "y": 0, "width": 1920, "height": 1200,
                      "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
    screens.close();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screens.fileName().toUtf8());
}

} // namespace Clinic
