#include "dateform/engine/Engine.h"

namespace DateForm {

std::shared_ptr<Korvane::voice::AudioSource> soundFrom(const QString& /*file*/) {
    return nullptr;
}

std::shared_ptr<Korvane::voice::SpeechEngine>
openEngine(std::shared_ptr<Korvane::voice::AudioSource> /*source*/) {
    return nullptr;
}

} // namespace DateForm
