#include "voice/Speech.h"

#include "support/ScratchDir.h"

#include <korvane/voice/FileSource.h>

#include <cstdlib>

namespace Korvane::Testing {

bool runs(const std::string& command) {
    return std::system((command + " >/dev/null 2>&1").c_str()) == 0;
}

bool canSpeak() {
    static const bool can = runs("espeak-ng --version") && runs("sox --version");
    return can;
}

Sound soundOf(const std::string& command) {
    static const ScratchDir dir;
    const std::string file = dir.file("said.wav");
    if (!runs("said=" + file + "; " + command)) return {};
    return voice::readSoundFile(file);
}

Sound saidBy(const std::string& command) {
    return soundOf(command +
                   " && sox -D $said -r 16000 -c 1 -b 16 $said.cut.wav norm -9 "
                   "silence 1 0.01 0.1% reverse silence 1 0.01 0.1% reverse && mv $said.cut.wav $said");
}

Sound said(const std::string& words) {
    return amidSilence(saidBy("espeak-ng -v en-us -s 150 -p 50 -w $said '" + words + "'"));
}

Sound amidSilence(const Sound& sound) {
    Sound all(silence);
    all.insert(all.end(), sound.begin(), sound.end());
    all.resize(all.size() + silence);
    return all;
}

} // namespace Korvane::Testing
