#pragma once

#include "support/ScratchDir.h"

#include <QProcess>
#include <QProcessEnvironment>

#include <string>

namespace Korvane::Testing {

/// How a run of the program ended.
struct Outcome {
    int code = -1;
    std::string output, errors;
};

/// Runs korvane-clinic or another application without a screen, with a home of its own, to its end.
inline Outcome run(const QString& application, const ScratchDir& home, const QStringList& arguments) {
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    environment.insert("LANGUAGE", "en"); // whatever the machine's is
    for (const char* place : {"HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_STATE_HOME"})
        environment.insert(place, QString::fromStdString(home.path().string()));
    program.setProcessEnvironment(environment);
    program.start(QStringLiteral(KORVANE_PROGRAMS "/korvane-") + application, arguments);
    constexpr int limit = 100000;
    if (!program.waitForFinished(limit)) return {};
    return {program.exitCode(), program.readAllStandardOutput().toStdString(),
            program.readAllStandardError().toStdString()};
}

} // namespace Korvane::Testing
