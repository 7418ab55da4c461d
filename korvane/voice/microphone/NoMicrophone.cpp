#include <korvane/voice/microphone/Microphone.h>

#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Translation.h>

namespace Korvane::voice {

/// For a build without Qt Multimedia: its hosts are compiled as all others.
class Microphone::Device {};

Microphone::Microphone(std::string) {}

Microphone::~Microphone() = default;

void Microphone::Start() {
    throw RuntimeError(
        RuntimeError::DeviceIo,
        translate("Korvane::voice",
                  "No microphone was found: the application was built without Qt Multimedia."));
}

void Microphone::Stop() noexcept {}

std::optional<std::size_t> Microphone::Read(std::span<std::int16_t>, std::chrono::milliseconds) {
    return std::nullopt;
}

std::string Microphone::WhyEnded() const {
    return {};
}

} // namespace Korvane::voice
