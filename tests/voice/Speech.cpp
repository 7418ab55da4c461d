#include "voice/Speech.h"

#include "support/ScratchDir.h"

#include <korvane/voice/FileSource.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <map>

namespace Korvane::Testing {

namespace {

bool run(const std::string& command) {
    return std::system((command + " >/dev/null 2>&1").c_str()) == 0;
}

std::filesystem::path scratch(const std::string& name) {
    static const ScratchDir dir;
    return dir.path() / name;
}

double power(const Sound& sound) {
    double sum = 0;
    for (const auto sample : sound)
        sum += static_cast<double>(sample) * sample;
    return sum / static_cast<double>(std::max<std::size_t>(1, sound.size()));
}

Sound madeNoise(const std::string& kind) {
    constexpr const char* talkers[] = {"en-us+m2", "en-gb+f2", "en-us+f4",
                                       "en-us+m5", "en-gb+m1", "en-us+f1"};
    const auto file = scratch("noise.wav").string();
    if (kind != "babble") {
        run("sox -R -n -r 16000 -c 1 -b 16 " + file + " synth 30 " + kind + "noise vol 0.3");
        return voice::readSoundFile(file);
    }
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

} // namespace

bool canSpeak() {
    static const bool can = run("espeak-ng --version") && run("sox --version");
    return can;
}

bool hasRecordedVoices() {
    static const bool has = run("flite -lv");
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
    const auto said = scratch("said.wav").string(), cut = scratch("cut.wav").string();
    const bool spoken =
        speaker.voice.starts_with("flite ")
            ? run("flite -voice " + speaker.voice.substr(6) + " --setf duration_stretch=" +
                  std::to_string(130.0 / speaker.speed) + " -t '" + words + "' -o " + said)
            : run("espeak-ng -v " + speaker.voice + " -s " + std::to_string(speaker.speed) + " -p " +
                  std::to_string(speaker.pitch) + " -w " + said + " '" + words + "'");
    const std::string trim = " silence 1 0.01 0.1% reverse silence 1 0.01 0.1% reverse";
    if (!spoken || !run("sox -D " + said + " -r 16000 -c 1 -b 16 " + cut + " norm -9" + trim)) return {};
    return voice::readSoundFile(cut);
}

const Sound& noise(const std::string& kind) {
    static std::map<std::string, Sound> made;
    const auto [at, isNew] = made.try_emplace(kind);
    if (isNew) at->second = madeNoise(kind);
    return at->second;
}

Sound amid(const Sound& sound, const std::string& kind, double decibels, std::mt19937& chance) {
    Sound all(silenceBefore);
    all.insert(all.end(), sound.begin(), sound.end());
    all.resize(all.size() + silenceBehind);
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
