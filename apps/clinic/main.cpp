// korvane-clinic: patients, their encounters, and the Nip of each encounter.

#include "clinic/Database.h"
#include "clinic/MainWindow.h"
#include "clinic/Options.h"
#include "clinic/tour/NoScreen.h"
#include "clinic/tour/Tour.h"

#include <korvane/controls/container/Busy.h>
#include <korvane/controls/container/QtInteraction.h>
#include <korvane/controls/container/Text.h>
#include <korvane/runtime/RuntimeError.h>

#include <QApplication>
#include <QMessageBox>

#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <string_view>

namespace {

/// --help and --version work where no window can be opened.
bool needsNoScreen(int argc, char** argv) {
    constexpr std::array<std::string_view, 5> words{"--help", "-h", "--help-all", "--version", "-v"};
    return std::any_of(argv + 1, argv + argc, [&](std::string_view argument) {
        return std::find(words.begin(), words.end(), argument) != words.end();
    });
}

bool hasScreen(int argc, char** argv) {
    const bool platformNamed =
        qEnvironmentVariableIsSet("QT_QPA_PLATFORM") ||
        std::any_of(argv + 1, argv + argc, [](std::string_view a) { return a == "-platform"; });
    return platformNamed || !qEnvironmentVariableIsEmpty("DISPLAY") ||
           !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

bool wantsTour(int argc, char** argv) {
    return std::any_of(argv + 1, argv + argc, [](std::string_view a) { return a.starts_with("--tour"); });
}

/// Says why the program cannot start: on standard error, and in a box where somebody can press its buttons.
/// True when that somebody wants to try once more.
bool failed(const QString& why) {
    std::fprintf(stderr, "korvane-clinic: %s\n", qUtf8Printable(why));
    const QString platform = QGuiApplication::platformName();
    if (platform == QStringLiteral("offscreen") || platform == QStringLiteral("minimal")) return false;
    return QMessageBox::critical(nullptr, QStringLiteral("Korvane Clinic"), why,
                                 QMessageBox::Retry | QMessageBox::Close,
                                 QMessageBox::Retry) == QMessageBox::Retry;
}

/// Nothing when the database cannot be opened, and the user has given up.
std::shared_ptr<Korvane::ado::Connection> openAtLast(QString& address) {
    for (;;) {
        QString why;
        try {
            const Korvane::Hourglass hourglass;
            if (address.isEmpty()) address = Clinic::defaultDatabase();
            return Clinic::openDatabase(address);
        } catch (...) {
            why = Korvane::qt(Korvane::currentError().Description());
        }
        if (!failed(QCoreApplication::translate("main", "The database %1 cannot be opened: %2")
                        .arg(Clinic::shownAddress(address), why)))
            return nullptr;
    }
}

int openWindow(const Clinic::Options& options) {
    QString address = options.database;
    const auto connection = openAtLast(address);
    if (!connection) return 1;
    Clinic::MainWindow window(connection, Clinic::shownAddress(address), options.fontScale);
    window.show();
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv) {
    // The database and the logs hold clinical text: what is created is for its owner alone.
    ::umask(077);
    QCoreApplication::setOrganizationName(QStringLiteral("Korvane"));
    QCoreApplication::setApplicationName(QStringLiteral("korvane-clinic"));
    QCoreApplication::setApplicationVersion(QStringLiteral(KORVANE_VERSION));
    if (needsNoScreen(argc, argv)) {
        const QCoreApplication application(argc, argv);
        Clinic::readOptions(QCoreApplication::arguments());
    }
    if (!hasScreen(argc, argv)) {
        if (!wantsTour(argc, argv)) {
            std::fputs(
                "korvane-clinic: there is no display. Set DISPLAY, or see the guided tour with --tour DIR.\n",
                stderr);
            return 1;
        }
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    if (wantsTour(argc, argv)) Clinic::prepareNoScreen();
    const QApplication application(argc, argv);
    const Clinic::Options options = Clinic::readOptions(QCoreApplication::arguments());
    Korvane::QtInteraction::installOnce();
    if (!options.tourDirectory.isEmpty())
        return Clinic::runTour(options.tourDirectory, options.database, options.fontScale);
    return openWindow(options);
}
