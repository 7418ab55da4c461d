#include <korvane/voice/Resampler.h>

#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Translation.h>
#include <korvane/voice/AudioSource.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>

namespace Korvane::voice {

namespace {

constexpr int zeroCrossings = 12;

std::int16_t toSample(double value) {
    return static_cast<std::int16_t>(std::clamp(std::lround(value), -32768L, 32767L));
}

} // namespace

Resampler::Resampler(int rate, int channels) : mChannels(channels) {
    if (rate < 4000 || rate > 384000 || channels < 1)
        throw RuntimeError(
            RuntimeError::InvalidProcedureCall,
            filled(translate("Korvane::voice",
                             "Sound of %1 samples a second in %2 channels cannot be listened to."),
                   {std::to_string(rate), std::to_string(channels)}));
    mStep = static_cast<double>(rate) / AudioSource::sampleRate;
    mCutoff = 0.5 * std::min(1.0, 1.0 / mStep) * 0.94;
    mReach = static_cast<int>(std::ceil(zeroCrossings / (2 * mCutoff)));
    mInput.assign(static_cast<std::size_t>(mReach), 0.0F);
    mPosition = mReach;
}

std::vector<std::int16_t> Resampler::convert(std::span<const std::int16_t> interleaved) {
    mix(interleaved);
    std::vector<std::int16_t> out;
    for (; mPosition + mReach < static_cast<double>(mInput.size()); mPosition += mStep)
        out.push_back(mStep == 1.0 ? toSample(mInput[static_cast<std::size_t>(mPosition)])
                                   : toSample(valueAt(mPosition)));
    const auto done = static_cast<std::ptrdiff_t>(mPosition) - mReach;
    if (done > 0) {
        mInput.erase(mInput.begin(), mInput.begin() + std::min(done, std::ssize(mInput)));
        mPosition -= static_cast<double>(done);
    }
    return out;
}

void Resampler::mix(std::span<const std::int16_t> interleaved) {
    mPartial.insert(mPartial.end(), interleaved.begin(), interleaved.end());
    const auto channels = static_cast<std::size_t>(mChannels);
    const std::size_t frames = mPartial.size() / channels;
    for (std::size_t i = 0; i < frames; ++i) {
        const auto* frame = &mPartial[i * channels];
        mInput.push_back(std::accumulate(frame, frame + channels, 0.0F) / static_cast<float>(channels));
    }
    mPartial.erase(mPartial.begin(), mPartial.begin() + static_cast<std::ptrdiff_t>(frames * channels));
}

/// A windowed sinc around the position.
double Resampler::valueAt(double position) const {
    const auto first = static_cast<std::size_t>(std::floor(position)) - static_cast<std::size_t>(mReach) + 1;
    double sum = 0;
    for (std::size_t i = 0; i < 2 * static_cast<std::size_t>(mReach); ++i) {
        const double distance = static_cast<double>(first + i) - position;
        const double x = 2 * std::numbers::pi * mCutoff * distance;
        const double sinc = std::abs(x) < 1e-9 ? 1.0 : std::sin(x) / x;
        const double window = 0.5 + 0.5 * std::cos(std::numbers::pi * distance / mReach);
        sum += static_cast<double>(mInput[first + i]) * 2 * mCutoff * sinc * window;
    }
    return sum;
}

} // namespace Korvane::voice
