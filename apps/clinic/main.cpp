// korvane-clinic: patients, their encounters, and the Nip of each encounter.

#include "clinic/Database.h"
#include "clinic/MainWindow.h"
#include "clinic/Options.h"
#include "clinic/tour/Tour.h"
#include "shared/Start.h"

#include <korvane/controls/container/Busy.h>
#include <korvane/controls/container/QtInteraction.h>
#include <korvane/controls/container/Text.h>
#include <korvane/runtime/RuntimeError.h>

#include <QApplication>
#include <QMessageBox>

#include <sys/stat.h>

#include <cstdio>

namespace {

/// Says why the program cannot start: on standard error, and in a box where somebody can press its buttons.
/// True when that somebody wants to try once more.
bool failed(const QString& why) {
    std::fprintf(stderr, "korvane-clinic: %s\n", qUtf8Printable(why));
    const QString platform = QGuiApplication::platformName();
    if (platform == QStringLiteral("offscreen") || platform == QStringLiteral("minimal")) return false;
    return QMessageBox::critical(nullptr, QCoreApplication::translate("main", "Korvane Clinic"), why,
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

int run(const Clinic::Options& options) {
    Korvane::QtInteraction::installOnce();
    if (!options.tourDirectory.isEmpty())
        return Clinic::runTour(options.tourDirectory, options.database, options.fontScale);
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
    Clinic::Options options;
    return Apps::start(
        "korvane-clinic", argc, argv, [&] { options = Clinic::readOptions(QCoreApplication::arguments()); },
        [&] { return run(options); });
}
