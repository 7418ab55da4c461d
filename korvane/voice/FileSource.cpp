#include <korvane/voice/FileSource.h>

#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Text.h>
#include <korvane/runtime/Translation.h>
#include <korvane/voice/Resampler.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <string_view>
#include <thread>
#include <utility>

namespace Korvane::voice {

namespace {

unsigned littleEndian(std::string_view bytes, std::size_t at, std::size_t count) {
    unsigned value = 0;
    for (std::size_t i = count; i-- > 0;)
        value = value << 8 | static_cast<unsigned char>(bytes[at + i]);
    return value;
}

std::vector<std::int16_t> samplesOf(std::string_view bytes) {
    std::vector<std::int16_t> samples(bytes.size() / 2);
    for (std::size_t i = 0; i < samples.size(); ++i)
        samples[i] = static_cast<std::int16_t>(littleEndian(bytes, 2 * i, 2));
    return samples;
}

[[noreturn]] void refuse(const std::filesystem::path& file) {
    throw RuntimeError(
        RuntimeError::InvalidProcedureCall,
        filled(translate("Korvane::voice", "The sound file %1 is no WAV file with 16-bit samples."),
               {file.string()}));
}

std::vector<std::int16_t> fromWav(std::string_view bytes, const std::filesystem::path& file) {
    if (bytes.size() < 12 || !bytes.starts_with("RIFF") || bytes.substr(8, 4) != "WAVE") refuse(file);
    constexpr unsigned samples = 1, describedFurther = 0xfffe;
    int rate = 0, channels = 0;
    for (std::size_t at = 12; at + 8 <= bytes.size();) {
        const auto name = bytes.substr(at, 4);
        // A program that writes to a pipe cannot know the size, and leaves one that is too large.
        const auto size = std::min<std::size_t>(littleEndian(bytes, at + 4, 4), bytes.size() - at - 8);
        const auto chunk = bytes.substr(at + 8, size);
        if (name == "fmt " && size >= 16) {
            const auto kind = littleEndian(chunk, 0, 2);
            if ((kind != samples && kind != describedFurther) || littleEndian(chunk, 14, 2) != 16)
                refuse(file);
            channels = static_cast<int>(littleEndian(chunk, 2, 2));
            rate = static_cast<int>(std::min(littleEndian(chunk, 4, 4), 1000000U));
        } else if (name == "data" && rate != 0) {
            return Resampler(rate, channels).convert(samplesOf(chunk));
        }
        at += 8 + size + size % 2;
    }
    refuse(file);
}

} // namespace

std::vector<std::int16_t> readSoundFile(const std::filesystem::path& file) {
    std::error_code error;
    std::ifstream in;
    // A device may have no end.
    if (std::filesystem::is_regular_file(file, error)) in.open(file, std::ios::binary);
    if (!in.is_open())
        throw RuntimeError(
            RuntimeError::FileNotFound,
            filled(translate("Korvane::voice", "The sound file %1 cannot be read."), {file.string()}));
    const std::string bytes(std::istreambuf_iterator<char>(in), {});
    return sameName(file.extension().string(), ".raw") ? samplesOf(bytes) : fromWav(bytes, file);
}

FileSource::FileSource(std::filesystem::path file, Pace pace) : mFile(std::move(file)), mPace(pace) {}

void FileSource::File(std::filesystem::path file) {
    mFile = std::move(file);
}

void FileSource::Start() {
    mSamples = readSoundFile(mFile);
    mNext = 0;
    mStarted = std::chrono::steady_clock::now();
    mStopped = false;
}

void FileSource::Stop() noexcept {
    mStopped = true;
}

std::optional<std::size_t> FileSource::Read(std::span<std::int16_t> samples,
                                            std::chrono::milliseconds patience) {
    if (mStopped || mNext == mSamples.size()) return std::nullopt;
    auto there = mSamples.size();
    if (mPace == Pace::Spoken) {
        const auto due =
            mStarted + std::chrono::microseconds(1000000LL * static_cast<long long>(mNext + 1) / sampleRate);
        std::this_thread::sleep_until(std::min(due, std::chrono::steady_clock::now() + patience));
        const auto spoken = std::chrono::steady_clock::now() - mStarted;
        there = std::min(
            there, static_cast<std::size_t>(std::chrono::duration<double>(spoken).count() * sampleRate));
        if (there <= mNext) return 0;
    }
    const auto count = std::min(samples.size(), there - mNext);
    std::copy_n(mSamples.begin() + static_cast<std::ptrdiff_t>(mNext), count, samples.begin());
    mNext += count;
    return count;
}

std::string FileSource::WhyEnded() const {
    return translate("Korvane::voice", "The sound file has ended.");
}

} // namespace Korvane::voice
