#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace Korvane::voice {

/// Where the sound comes from: samples of 16 bits, one channel, `sampleRate` of them a second. `FileSource`,
/// `StreamSource` and `Microphone` are sources; a host may bring its own.
class AudioSource {
  public:
    /// Samples a second.
    static constexpr int sampleRate = 16000;

    virtual ~AudioSource() = default;

    /// The microphone was switched on: sound is wanted from now on. Raises `RuntimeError` with a sentence for
    /// the user when there is none to be had. Called on the user-interface thread, as `Stop` is.
    virtual void Start() = 0;

    /// The microphone was switched off. What was not yet read may be dropped; a `Read` that waits returns.
    /// `Start` may follow. Does nothing on a source that was not started.
    virtual void Stop() noexcept = 0;

    /// Fills the front of `samples` and returns how many were filled; waits no longer than `patience` for
    /// the first. 0 when there is nothing yet, nothing at the end of the sound. Called on the engine's thread
    /// between `Start` and `Stop`. What it raises ends the sound, with its description as the reason.
    virtual std::optional<std::size_t> Read(std::span<std::int16_t> samples,
                                            std::chrono::milliseconds patience) = 0;

    /// After the end of the sound: why it ended, in a sentence for the user.
    virtual std::string WhyEnded() const = 0;
};

} // namespace Korvane::voice
