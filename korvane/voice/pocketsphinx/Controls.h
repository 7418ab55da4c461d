#pragma once

#include <korvane/voice/SpeechEngine.h>
#include <korvane/voice/pocketsphinx/Audience.h>

#include <memory>

namespace Korvane::voice {

/// The commands of a control, on an audience that they may outlive.
std::unique_ptr<VoiceCommandControl> makeVoiceCommand(std::weak_ptr<Audience> audience);
/// The dictation of a control, likewise.
std::unique_ptr<DictationControl> makeDictation(std::weak_ptr<Audience> audience);

} // namespace Korvane::voice
