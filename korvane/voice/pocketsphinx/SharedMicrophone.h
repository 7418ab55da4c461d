#pragma once

#include <korvane/runtime/Translation.h>
#include <korvane/voice/MicrophoneSwitch.h>
#include <korvane/voice/pocketsphinx/Listener.h>

#include <memory>
#include <string>

namespace Korvane::voice {

/// The one microphone of an engine, and the switches that follow it. For the user-interface thread.
class SharedMicrophone {
  public:
    explicit SharedMicrophone(std::shared_ptr<AudioSource> source) : mSource(std::move(source)) {}

    /// Who reads it; null once the engine is gone, and then it cannot be switched on.
    void reader(Listener* listener) { mListener = listener; }

    const std::shared_ptr<AudioSource>& source() const { return mSource; }

    bool on() const { return mSession != 0; }
    /// Raises as `MicrophoneSwitch::On`.
    void on(bool on);
    /// The sound of a session has ended by itself; without a reason, for that of the source.
    void ended(std::uint64_t session, const std::string& why);
    void problem(std::string why) { mStatus = std::move(why); }

    const std::string& status() const { return mStatus; }
    Event<bool> Changed;

  private:
    void off(std::string why);

    std::shared_ptr<AudioSource> mSource;
    Listener* mListener = nullptr;
    std::uint64_t mSession = 0; ///< 0 while it is off
    std::uint64_t mSessions = 0;
    std::string mStatus = translate("Korvane::voice", "The microphone is off.");
};

/// A switch that turns it on and off.
std::unique_ptr<MicrophoneSwitch> makeSwitch(const std::shared_ptr<SharedMicrophone>& microphone);

} // namespace Korvane::voice
