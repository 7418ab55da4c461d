#include "clinic/tour/Tour.h"

#include "clinic/Database.h"
#include "clinic/MainWindow.h"
#include "clinic/tour/Steps.h"

#include <korvane/controls/container/Text.h>
#include <korvane/runtime/App.h>

#include <QDir>
#include <QSettings>

#include <cstdio>

namespace Clinic {

using Apps::require;

namespace {

/// Earlier starts say something about sizes and the database, too.
void keepToDirectory(const QDir& directory) {
    Korvane::App::Path(Korvane::utf8(directory.absolutePath()));
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope,
                       directory.filePath(QStringLiteral("settings")));
    QDir(directory.filePath(QStringLiteral("settings"))).removeRecursively();
}

/// A tour writes into what it finds: it may find nothing but what it has made.
QString emptyDatabase(const QString& address) {
    require(isEmpty(Korvane::ado::open(Korvane::utf8(address))),
            QStringLiteral("%1 is not empty; a tour works on an empty database only.")
                .arg(shownAddress(address)));
    return address;
}

QString freshDatabase(const QDir& directory) {
    for (const char* name : {"tour.db", "tour.db-wal", "tour.db-shm", "tour.db-journal"}) {
        const QString file = directory.filePath(QLatin1String(name));
        require(!QFile::exists(file) || QFile::remove(file),
                QStringLiteral("%1 cannot be removed.").arg(file));
    }
    return QStringLiteral("sqlite:") + directory.absoluteFilePath(QStringLiteral("tour.db"));
}

void drive(const QDir& directory, const QString& address, int textSize, const char*& title) {
    keepToDirectory(directory);
    const QString database = address.isEmpty() ? freshDatabase(directory) : emptyDatabase(address);
    MainWindow window(openDatabase(database), QStringLiteral("tour"), textSize);
    window.resize(1280, 800);
    Apps::showActive(window);
    Journey journey(window, database, directory.absolutePath());
    for (const auto* steps : {&enteringSteps(), &changingSteps(), &customizingSteps()})
        Apps::travel(journey, *steps, title);
    std::printf("\nThe database now holds:\n");
    for (const Visit* visit : {&journey.visit, &journey.earlier})
        print(journey.ledger.rowsOf(visit->encounter));
    journey.album.printCount();
}

} // namespace

int runTour(const QString& directory, const QString& database, int textSize) {
    return Apps::runTour(directory, [&](const QDir& place, const char*& title) {
        drive(place, database, textSize > 0 ? textSize : 100, title);
    });
}

} // namespace Clinic
