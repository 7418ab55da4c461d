#include "Voices.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <map>

namespace Korvane::Testing {

namespace {

double power(const Sound& sound) {
    double sum = 0;
    for (const auto sample : sound)
        sum += static_cast<double>(sample) * sample;
    return sum / static_cast<double>(std::max<std::size_t>(1, sound.size()));
}

/// Half a minute of it.
Sound madeNoise(const std::string& kind) {
    constexpr const char* talkers[] = {"en-us+m2", "en-gb+f2", "en-us+f4",
                                       "en-us+m5", "en-gb+m1", "en-us+f1"};
    if (kind != "babble")
        return soundOf("sox -R -n -r 16000 -c 1 -b 16 $said synth 30 " + kind + "noise vol 0.3");
    Sound babble(30 * 16000);
    const std::string story =
        "It rained in the morning, so we stayed inside and talked about the garden, the children, "
        "and what to cook when everybody would be home again in the evening. ";
    std::size_t shift = 0;
    for (const auto* talker : talkers) {
        const auto talk = speak({talker, 160, 50}, story);
        for (std::size_t i = 0; i < babble.size() && !talk.empty(); ++i)
            babble[i] = static_cast<std::int16_t>(babble[i] + talk[(i + shift) % talk.size()] / 6);
        shift += 21000;
    }
    return babble;
}

const Sound& noise(const std::string& kind) {
    static std::map<std::string, Sound> made;
    const auto [at, isNew] = made.try_emplace(kind);
    if (isNew) at->second = madeNoise(kind);
    return at->second;
}

} // namespace

bool hasRecordedVoices() {
    static const bool has = runs("flite -lv");
    return has;
}

bool isTuning() {
    static const bool is = std::getenv("KORVANE_VOICE_TUNING") != nullptr;
    return is;
}

Speaker anySpeaker(std::mt19937& chance, bool recorded) {
    constexpr const char* synthetic[][16] = {
        {"en-us+f5", "en-us+m8", "en-us+Andy", "en-us+Annie", "en-us+Alicia", "en-us+Denis", "en-us+Gene",
         "en-us+Michael", "en-us+adam", "en-us+belinda", "en-us+benjamin", "en-us+linda", "en-gb+david",
         "en-gb+steph", "en-gb+max", "en-gb-scotland"},
        {"en-us", "en-us+m1", "en-us+m2", "en-us+m3", "en-us+m4", "en-us+m5", "en-us+m6", "en-us+m7",
         "en-us+f1", "en-us+f2", "en-us+f3", "en-us+f4", "en-gb", "en-gb+m3", "en-gb+f2", "en-gb-x-rp"}};
    constexpr const char* people[][2] = {{"flite awb", "flite kal16"}, {"flite slt", "flite rms"}};
    const auto between = [&](int low, int high) { return std::uniform_int_distribution(low, high)(chance); };
    const char* const* voices = recorded ? people[isTuning()] : synthetic[isTuning()];
    return {voices[between(0, recorded ? 1 : 15)], between(110, 150), between(30, 70)};
}

Sound speak(const Speaker& speaker, const std::string& words) {
    if (speaker.voice.starts_with("flite "))
        return saidBy("flite -voice " + speaker.voice.substr(6) + " --setf duration_stretch=" +
                      std::to_string(130.0 / speaker.speed) + " -o $said -t '" + words + "'");
    return saidBy("espeak-ng -v " + speaker.voice + " -s " + std::to_string(speaker.speed) + " -p " +
                  std::to_string(speaker.pitch) + " -w $said '" + words + "'");
}

Sound amid(const Sound& sound, const std::string& kind, double decibels, std::mt19937& chance) {
    Sound all = amidSilence(sound);
    if (kind.empty()) return all;
    const auto& around = noise(kind);
    const double gain = std::sqrt(power(sound) / power(around)) * std::pow(10, -decibels / 20);
    const auto shift = std::uniform_int_distribution<std::size_t>(0, around.size() - 1)(chance);
    for (std::size_t i = 0; i < all.size(); ++i)
        all[i] = static_cast<std::int16_t>(
            std::clamp(all[i] + gain * around[(i + shift) % around.size()], -32768.0, 32767.0));
    return all;
}

} // namespace Korvane::Testing
