#include <korvane/voice/StreamSource.h>

#include <algorithm>
#include <utility>

namespace Korvane::voice {

void StreamSource::Push(std::span<const std::int16_t> samples) {
    constexpr std::size_t most = longest.count() * sampleRate;
    {
        const std::lock_guard lock(mMutex);
        if (!mStarted || mEnded) return;
        mSamples.insert(mSamples.end(), samples.begin(), samples.end());
        if (mSamples.size() > most)
            mSamples.erase(mSamples.begin(), mSamples.end() - static_cast<std::ptrdiff_t>(most));
    }
    mArrived.notify_one();
}

void StreamSource::End(std::string why) {
    {
        const std::lock_guard lock(mMutex);
        mEnded = true;
        mWhy = std::move(why);
    }
    mArrived.notify_one();
}

void StreamSource::Start() {
    const std::lock_guard lock(mMutex);
    mSamples.clear();
    mStarted = true;
    mEnded = false;
}

void StreamSource::Stop() noexcept {
    {
        const std::lock_guard lock(mMutex);
        mStarted = false;
        mSamples.clear();
    }
    mArrived.notify_one();
}

std::optional<std::size_t> StreamSource::Read(std::span<std::int16_t> samples,
                                              std::chrono::milliseconds patience) {
    std::unique_lock lock(mMutex);
    mArrived.wait_for(lock, patience, [&] { return !mSamples.empty() || mEnded || !mStarted; });
    if (mSamples.empty()) return mEnded ? std::nullopt : std::optional<std::size_t>(0);
    const auto count = std::min(samples.size(), mSamples.size());
    const auto end = mSamples.begin() + static_cast<std::ptrdiff_t>(count);
    std::copy(mSamples.begin(), end, samples.begin());
    mSamples.erase(mSamples.begin(), end);
    return count;
}

std::string StreamSource::WhyEnded() const {
    const std::lock_guard lock(mMutex);
    return mWhy;
}

} // namespace Korvane::voice
