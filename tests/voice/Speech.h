#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace Korvane::Testing {

using Sound = std::vector<std::int16_t>;

/// Whether espeak-ng and sox are there; without them nobody speaks.
bool canSpeak();
/// Whether a command can be run.
bool runs(const std::string& command);

/// What a command writes into the sound file $said. Empty when it failed.
Sound soundOf(const std::string& command);
/// The same without silence around it, at a level of -9 dB.
Sound saidBy(const std::string& command);
/// What espeak-ng says, with silence before and behind.
Sound said(const std::string& words);

/// How long that silence is, in samples.
constexpr std::size_t silence = 8000;
Sound amidSilence(const Sound& sound);

} // namespace Korvane::Testing
