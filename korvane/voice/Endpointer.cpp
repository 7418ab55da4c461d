#include <korvane/voice/Endpointer.h>

#include <algorithm>
#include <cmath>

namespace Korvane::voice {

namespace {

/// Of a frame, in dB; no lower than what a quiet room has, so that a silent line is not infinitely quiet.
double levelOf(std::span<const std::int16_t> samples) {
    constexpr double lowest = 26;
    double sum = 0, squares = 0;
    for (const auto sample : samples) {
        sum += sample;
        squares += static_cast<double>(sample) * sample;
    }
    const double n = static_cast<double>(samples.size());
    const double variance = squares / n - (sum / n) * (sum / n);
    return variance <= 1 ? lowest : std::max(lowest, 10 * std::log10(variance));
}

} // namespace

Endpointer::Told Endpointer::push(std::span<const std::int16_t, frame> samples) {
    const double level = levelOf(samples);
    const bool isLoud = loud(level);
    mSaid.insert(mSaid.end(), samples.begin(), samples.end());
    if (mState != State::Quiet) return during(isLoud ? std::optional(level) : std::nullopt);

    mLoud = isLoud ? mLoud + 1 : std::max(0, mLoud - 1);
    if (mLoud >= 4) {
        mState = State::Said;
        mPeak = level;
        mLevels = level * mLoud;
        mQuiet = 0;
        return Nothing;
    }
    constexpr std::size_t kept = before * frame;
    if (mSaid.size() > kept) mSaid.erase(mSaid.begin(), mSaid.end() - static_cast<std::ptrdiff_t>(kept));
    return Nothing;
}

Endpointer::Told Endpointer::during(std::optional<double> loudness) {
    if (loudness) {
        ++mLoud;
        mLevels += *loudness;
        mQuiet = 0;
    } else {
        ++mQuiet;
    }
    if (mSaid.size() > static_cast<std::size_t>(longest) * frame) {
        mState = State::Dropped;
        mSaid.clear();
    }
    if (mQuiet == pause && mState == State::Said && mLoud >= least) return Pausing;
    if (mQuiet < hangover) return Nothing;

    const bool dropped = mState == State::Dropped, short_ = mLoud < least;
    mState = State::Quiet;
    mLoud = mQuiet = 0;
    if (dropped) return TooLong;
    return short_ ? Nothing : Over;
}

/// The floor follows quiet at once and loudness slowly, so that a fan that starts is soon no speech.
bool Endpointer::loud(double level) {
    constexpr double above = 9, belowPeak = 32, rise = 0.02, fall = 0.15;
    if (mFrames < 10) mFloor = mFrames++ == 0 ? level : std::min(mFloor, level);
    mFloor += (level - mFloor) * (level < mFloor ? fall : level < mFloor + above ? rise : rise / 20);
    mPeak = std::max(mPeak, level);
    const double needed = std::max(mFloor + above, mState == State::Quiet ? 0 : mPeak - belowPeak);
    return level > needed;
}

bool Endpointer::isClear() const {
    return mLoud > 0 && mLevels / mLoud >= mFloor + clearBy;
}

void Endpointer::drop() {
    if (mState == State::Said) mState = State::Dropped;
    mSaid.clear();
    mLoud = 0;
}

} // namespace Korvane::voice
