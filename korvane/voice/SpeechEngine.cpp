#include <korvane/voice/SpeechEngine.h>

#include <korvane/runtime/Translation.h>

#include <utility>

namespace Korvane::voice {

namespace {

struct Installed {
    std::shared_ptr<SpeechEngine> engine;
    std::string why;
};

Installed& installed() {
    static Installed it;
    return it;
}

std::string usualReason() {
#ifdef KORVANE_HAS_VOICE
    return translate("Korvane::voice", "Voice is not there: the application has not set up a speech engine.");
#else
    return translate("Korvane::voice", "Voice is not there: this build has no speech engine.");
#endif
}

} // namespace

std::shared_ptr<SpeechEngine> current() {
    return installed().engine;
}

std::shared_ptr<SpeechEngine> install(std::shared_ptr<SpeechEngine> engine, std::string why) {
    installed().why = std::move(why);
    return std::exchange(installed().engine, std::move(engine));
}

std::string whyAbsent() {
    if (installed().engine) return {};
    return installed().why.empty() ? usualReason() : installed().why;
}

} // namespace Korvane::voice
