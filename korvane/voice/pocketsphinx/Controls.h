#pragma once

#include <korvane/voice/SpeechEngine.h>
#include <korvane/voice/pocketsphinx/Audience.h>

#include <memory>

namespace Korvane::voice {

/// The parts that a control uses, on one audience. They may outlive it.
std::unique_ptr<VoiceCommandControl> makeVoiceCommand(std::weak_ptr<Audience> audience);
std::unique_ptr<DictationControl> makeDictation(std::weak_ptr<Audience> audience);

} // namespace Korvane::voice
