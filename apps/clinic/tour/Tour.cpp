#include "clinic/tour/Tour.h"

#include "clinic/Database.h"
#include "clinic/MainWindow.h"
#include "clinic/tour/Steps.h"

#include <korvane/controls/container/Text.h>
#include <korvane/runtime/App.h>
#include <korvane/runtime/Clock.h>
#include <korvane/runtime/RuntimeError.h>

#include <QApplication>
#include <QDir>
#include <QSettings>
#include <QStyle>
#include <QStyleFactory>
#include <QTest>

#include <cstdio>
#include <cstdlib>

namespace Clinic {

namespace {

/// What would make the pictures of two runs differ: the time, the caret's blinking, what the user's desktop
/// and earlier starts say about fonts, colours and sizes.
void settleLooks(const QDir& directory) {
    Korvane::Clock::set([] { return Korvane::Date::of(2026, 11, 16, 9, 30); });
    Korvane::App::Path(Korvane::utf8(directory.absolutePath()));
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope,
                       directory.filePath(QStringLiteral("settings")));
    QDir(directory.filePath(QStringLiteral("settings"))).removeRecursively();
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(QApplication::style()->standardPalette());
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 10));
    QApplication::setCursorFlashTime(0);
    for (const Qt::UIEffect effect :
         {Qt::UI_AnimateMenu, Qt::UI_FadeMenu, Qt::UI_AnimateCombo, Qt::UI_AnimateTooltip})
        QApplication::setEffectEnabled(effect, false);
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

/// A tour that hangs is a tour that failed.
void limitTime() {
    constexpr int limit = 120000;
    QTimer::singleShot(limit, [] {
        std::fputs("korvane-clinic: the tour took too long.\n", stderr);
        std::_Exit(1);
    });
}

void travel(Journey& journey, const char*& title) {
    for (const auto* steps : {&enteringSteps(), &changingSteps(), &customizingSteps()}) {
        for (const Step& step : *steps) {
            title = step.title;
            step.run(journey);
            std::printf("ok  %s\n", title);
            std::fflush(stdout);
        }
    }
}

void drive(const QDir& directory, const QString& address, int textSize, const char*& title) {
    require(directory.mkpath(QStringLiteral(".")),
            QStringLiteral("%1 cannot be made.").arg(directory.absolutePath()));
    settleLooks(directory);
    limitTime();
    const QString database = address.isEmpty() ? freshDatabase(directory) : emptyDatabase(address);
    MainWindow window(openDatabase(database), QStringLiteral("tour"), textSize);
    window.resize(1280, 800);
    window.show();
    window.activateWindow();
    require(QTest::qWaitForWindowActive(&window), QStringLiteral("The window did not become active."));
    Journey journey(window, database, directory.absolutePath());
    travel(journey, title);
    std::printf("\nThe database now holds:\n");
    for (const Visit* visit : {&journey.visit, &journey.earlier})
        print(journey.ledger.rowsOf(visit->encounter));
    std::printf("\n%d pictures in %s\n", journey.album.count(), qUtf8Printable(directory.absolutePath()));
}

} // namespace

int runTour(const QString& directory, const QString& database, int textSize) {
    const char* title = "begin";
    try {
        drive(QDir(directory), database, textSize > 0 ? textSize : 100, title);
        return 0;
    } catch (...) {
        std::fprintf(stderr, "korvane-clinic: the tour failed at \"%s\": %s\n", title,
                     Korvane::currentError().Description().c_str());
        return 1;
    }
}

} // namespace Clinic
