#include "dateform/engine/Engine.h"

#include <korvane/runtime/RuntimeError.h>

#include <utility>

namespace DateForm {

namespace voice = Korvane::voice;

InstalledEngine::InstalledEngine(std::shared_ptr<voice::AudioSource> source) {
    try {
        voice::install(openEngine(std::move(source)));
    } catch (...) {
        voice::install(nullptr, Korvane::currentError().Description());
    }
}

InstalledEngine::~InstalledEngine() {
    voice::install(nullptr);
}

} // namespace DateForm
