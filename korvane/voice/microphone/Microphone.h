#pragma once

#include <korvane/voice/AudioSource.h>

#include <memory>
#include <string>

namespace Korvane::voice {

/// The sound of a microphone. This folder alone of the voice layer knows Qt, whose multimedia module speaks
/// to the sound system of every platform; an engine without a microphone does without.
///
///     auto engine = voice::openPocketSphinx(std::make_shared<voice::Microphone>(), post);
///
/// Any rate and number of channels that the device offers will do. It needs a QCoreApplication and its event
/// loop; created, started and stopped on the user-interface thread.
class Microphone : public AudioSource {
  public:
    /// The device with this description ("USB Headset"), or the system's default.
    explicit Microphone(std::string device = {});
    ~Microphone() override;

    /// Raises `RuntimeError` 57 when there is no microphone, none of that name, or it cannot be opened;
    /// always in a build without Qt Multimedia.
    void Start() override;

    void Stop() noexcept override;
    std::optional<std::size_t> Read(std::span<std::int16_t> samples,
                                    std::chrono::milliseconds patience) override;
    std::string WhyEnded() const override;

  private:
    class Device;
    std::unique_ptr<Device> mDevice;
};

} // namespace Korvane::voice
