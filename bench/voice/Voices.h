#pragma once

#include "voice/Speech.h"

#include <random>

namespace Korvane::Testing {

/// Who speaks: a voice of espeak-ng ("en-us+f2") or of flite ("flite slt"), words a minute and pitch.
struct Speaker {
    std::string voice;
    int speed = 150;
    int pitch = 50;
};

/// Whether flite is there, whose voices are put together from recordings of people.
bool hasRecordedVoices();

/// KORVANE_VOICE_TUNING=1: the voices speak with which the engine was tuned, and say the sentences of then.
/// Without it others do, which the choices were not made for.
bool isTuning();

/// A speaker by chance, of espeak-ng or of flite, at the pace of dictation: 110 to 150 words a minute.
Speaker anySpeaker(std::mt19937& chance, bool recorded);

/// What somebody says, without silence around it. Empty when the program failed.
Sound speak(const Speaker& speaker, const std::string& words);

/// The sound with silence around it, in noise ("white", "pink", "babble") that lies `decibels` below it; no
/// noise for an empty kind.
Sound amid(const Sound& sound, const std::string& kind, double decibels, std::mt19937& chance);

} // namespace Korvane::Testing
