#include "shared/Start.h"

#include "shared/Language.h"
#include "shared/Screen.h"

#include <QApplication>

#include <algorithm>
#include <array>
#include <string_view>

namespace Apps {

namespace {

bool needsNoScreen(int argc, char** argv) {
    constexpr std::array<std::string_view, 5> words{"--help", "-h", "--help-all", "--version", "-v"};
    return std::any_of(argv + 1, argv + argc, [&](std::string_view argument) {
        return std::find(words.begin(), words.end(), argument) != words.end();
    });
}

} // namespace

int start(const char* program, int argc, char** argv, const std::function<void()>& readOptions,
          const std::function<int()>& run) {
    QCoreApplication::setApplicationName(QLatin1String(program));
    QCoreApplication::setApplicationVersion(QStringLiteral(KORVANE_VERSION));
    if (needsNoScreen(argc, argv)) {
        const QCoreApplication application(argc, argv);
        chooseLanguage(QCoreApplication::arguments());
        readOptions();
    }
    readyScreen(argc, argv);
    const QApplication application(argc, argv);
    chooseLanguage(QCoreApplication::arguments());
    readOptions();
    return run();
}

} // namespace Apps
