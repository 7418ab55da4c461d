#pragma once

#include <korvane/voice/AudioSource.h>

#include <condition_variable>
#include <deque>
#include <mutex>

namespace Korvane::voice {

/// Sound that the host has from somewhere else and pushes.
///
///     auto stream = std::make_shared<voice::StreamSource>();
///     voice::install(voice::openPocketSphinx(stream, post));
///     ...
///     stream->Push(samples);        // on any thread, as they come
///
/// What is pushed while the microphone is off is dropped, and so is the oldest of more than `longest` that
/// nobody has read yet.
class StreamSource : public AudioSource {
  public:
    /// How much unread sound is kept.
    static constexpr std::chrono::seconds longest{30};

    /// Samples as `AudioSource` gives them; see `Resampler` for others.
    void Push(std::span<const std::int16_t> samples);

    /// No more is to come until the microphone is switched on anew. `why` is the sentence for the user.
    void End(std::string why);

    void Start() override;
    void Stop() noexcept override;
    std::optional<std::size_t> Read(std::span<std::int16_t> samples,
                                    std::chrono::milliseconds patience) override;
    std::string WhyEnded() const override;

  private:
    mutable std::mutex mMutex;
    std::condition_variable mArrived;
    std::deque<std::int16_t> mSamples;
    std::string mWhy;
    bool mStarted = false;
    bool mEnded = false;
};

} // namespace Korvane::voice
