#include "dateform/engine/Engine.h"

#include <korvane/controls/container/Text.h>
#include <korvane/voice/FileSource.h>
#include <korvane/voice/microphone/Microphone.h>
#include <korvane/voice/pocketsphinx/PocketSphinx.h>

#include <QCoreApplication>

#include <utility>

namespace DateForm {

namespace voice = Korvane::voice;

std::shared_ptr<voice::AudioSource> soundFrom(const QString& file) {
    if (file.isEmpty()) return std::make_shared<voice::Microphone>();
    return std::make_shared<voice::FileSource>(Korvane::utf8(file));
}

std::shared_ptr<voice::SpeechEngine> openEngine(std::shared_ptr<voice::AudioSource> source) {
    return voice::openPocketSphinx(std::move(source), [](std::function<void()> work) {
        QMetaObject::invokeMethod(qApp, std::move(work), Qt::QueuedConnection);
    });
}

} // namespace DateForm
