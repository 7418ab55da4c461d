#pragma once

#include <korvane/runtime/Event.h>

#include <cstdint>
#include <string>

namespace Korvane::voice {

/// Switches the engine's microphone, made by `SpeechEngine::MakeMicrophone`: what is behind a microphone
/// button. An engine has one microphone, and all switches follow it.
///
///     auto microphone = engine.MakeMicrophone();
///     microphone->SetUp(1);
///     EventHandle h = microphone->Changed.connect([&](bool on) { button->setChecked(on); });
///     microphone->On(true);
///
/// Used on the user-interface thread only.
class MicrophoneSwitch {
  public:
    virtual ~MicrophoneSwitch() = default;

    /// Which microphone: 1, the engine's only one. A switch that is never set up works all the same.
    /// Raises `RuntimeError` 9 for another number.
    virtual void SetUp(std::int32_t number) = 0;

    /// Off until it is switched on. Raises `RuntimeError`, and stays off, when there is no sound to be had:
    /// no microphone, no such file; the description says so in a sentence for the user.
    virtual bool On() const = 0;
    virtual void On(bool on) = 0;

    /// How it stands, for the user: "The microphone is off.", or why it went off by itself.
    virtual std::string Status() const = 0;

    /// The microphone went on or off, by any switch or by itself (unplugged, end of the file). Raised on the
    /// user-interface thread, for a switch's own change within the call.
    Event<bool> Changed;
};

} // namespace Korvane::voice
