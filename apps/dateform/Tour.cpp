#include "dateform/Tour.h"

#include "dateform/KeySteps.h"
#include "dateform/VoiceSteps.h"
#include "dateform/engine/Engine.h"
#include "shared/ScaledFont.h"

#include <QApplication>

namespace DateForm {

namespace {

/// Why the steps with voice are left out; empty when they are not.
std::string whyNoVoice() {
    if (!Speaker::isThere()) return "There is nothing to speak with: espeak-ng is not installed.";
    return Korvane::voice::whyAbsent();
}

void drive(const QDir& directory, int textSize, const char*& title) {
    QApplication::setFont(Apps::scaled(QApplication::font(), textSize));
    Speaker speaker(directory.filePath(QStringLiteral("sounds")));
    const InstalledEngine engine(speaker.source());
    TestForm form;
    Apps::showActive(form);
    Journey journey(form, speaker, directory.absolutePath());
    Apps::travel(journey, keySteps(), title);
    if (const std::string why = whyNoVoice(); why.empty())
        Apps::travel(journey, voiceSteps(), title);
    else
        std::printf("--  the voice is skipped. %s\n", why.c_str());
    journey.album.printCount();
}

} // namespace

int runTour(const QString& directory, int textSize) {
    return Apps::runTour(directory,
                         [&](const QDir& place, const char*& title) { drive(place, textSize, title); });
}

} // namespace DateForm
