#include "gallery/Tour.h"

#include "gallery/Journey.h"
#include "shared/ScaledFont.h"

#include <korvane/controls/container/Text.h>
#include <korvane/runtime/App.h>

#include <QApplication>

namespace Gallery {

namespace {

void drive(const QDir& directory, int textSize, const char*& title) {
    Korvane::App::Path(Korvane::utf8(directory.absolutePath()));
    QApplication::setFont(Apps::scaled(QApplication::font(), textSize));
    GalleryWindow window;
    Apps::showActive(window);
    Journey journey(window, directory.absolutePath());
    Apps::travel(journey, steps(), title);
    journey.album.printCount();
}

} // namespace

int runTour(const QString& directory, int textSize) {
    return Apps::runTour(directory,
                         [&](const QDir& place, const char*& title) { drive(place, textSize, title); });
}

} // namespace Gallery
