#include "gallery/Tour.h"

#include "gallery/Journey.h"
#include "shared/ScaledFont.h"

#include <korvane/controls/container/Text.h>
#include <korvane/runtime/App.h>

#include <QApplication>

namespace Gallery {

int runTour(const QString& target, int textSize) {
    return Apps::runTour(target, [&](const QDir& directory, const char*& title) {
        Korvane::App::Path(Korvane::utf8(directory.absolutePath()));
        QApplication::setFont(Apps::scaled(QApplication::font(), textSize));
        GalleryWindow window;
        Apps::showActive(window);
        Journey journey(window, directory.absolutePath());
        Apps::travel(journey, steps(), title);
        journey.album.printCount();
    });
}

} // namespace Gallery
