#include "dateform/Tour.h"

#include "dateform/KeySteps.h"
#include "shared/ScaledFont.h"

#include <QApplication>

namespace DateForm {

int runTour(const QString& directory, int textSize) {
    return Apps::runTour(directory, [&](const QDir& place, const char*& title) {
        QApplication::setFont(Apps::scaled(QApplication::font(), textSize));
        TestForm form;
        Apps::showActive(form);
        Journey journey(form, place.absolutePath());
        Apps::travel(journey, keySteps(), title);
        std::printf("\n%d pictures in %s\n", journey.album.count(), qUtf8Printable(place.absolutePath()));
    });
}

} // namespace DateForm
