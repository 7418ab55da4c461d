#pragma once

#include <korvane/voice/AudioSource.h>

#include <atomic>
#include <filesystem>
#include <vector>

namespace Korvane::voice {

/// Sound from a file: WAV with 16-bit samples of any rate and number of channels, whatever it is called, or
/// raw samples as `AudioSource` gives them, in a file whose name ends in ".raw".
///
///     auto spoken = std::make_shared<voice::FileSource>("next-field.wav");
///
/// The file is read when the microphone is switched on, from its beginning each time. Its end switches the
/// microphone off.
class FileSource : public AudioSource {
  public:
    /// How fast the file is heard.
    enum class Pace {
        Spoken, ///< as it was spoken
        AtOnce, ///< as fast as it is read
    };

    /// The file need not be there yet.
    explicit FileSource(std::filesystem::path file, Pace pace = Pace::Spoken);

    /// The file to read from the next `Start` on.
    void File(std::filesystem::path file);

    /// Raises `RuntimeError` 53 for a file that cannot be read and 5 for one that holds no such sound.
    void Start() override;

    void Stop() noexcept override;
    std::optional<std::size_t> Read(std::span<std::int16_t> samples,
                                    std::chrono::milliseconds patience) override;
    std::string WhyEnded() const override;

  private:
    std::filesystem::path mFile;
    Pace mPace;
    std::vector<std::int16_t> mSamples;
    std::size_t mNext = 0;
    std::chrono::steady_clock::time_point mStarted;
    std::atomic<bool> mStopped = true;
};

/// The samples of a file as `FileSource` reads it; raises as its `Start`.
std::vector<std::int16_t> readSoundFile(const std::filesystem::path& file);

} // namespace Korvane::voice
