#include <korvane/voice/pocketsphinx/Listener.h>

#include <korvane/runtime/RuntimeError.h>

#include <utility>

namespace Korvane::voice {

Listener::Listener(std::shared_ptr<AudioSource> source, std::unique_ptr<Decoder> decoder, Reports reports)
    : mSource(std::move(source)), mDecoder(std::move(decoder)), mReports(std::move(reports)),
      mThread([this] { run(); }) {}

Listener::~Listener() {
    {
        const std::lock_guard lock(mMutex);
        mStop = true;
        mNextSession = 0;
    }
    mTold.notify_one();
    mThread.join();
}

void Listener::want(Wanted wanted) {
    const std::lock_guard lock(mMutex);
    mNextWanted = std::move(wanted);
}

void Listener::listen(std::uint64_t session) {
    {
        const std::lock_guard lock(mMutex);
        mNextSession = session;
    }
    mTold.notify_one();
}

void Listener::pause() {
    std::unique_lock lock(mMutex);
    mNextSession = 0;
    mPaused.wait(lock, [this] { return !mReading; });
}

void Listener::run() {
    while (takeOver())
        read();
}

/// Waits for something to do; false when it is time to end.
bool Listener::takeOver() {
    std::unique_lock lock(mMutex);
    mReading = false;
    mPaused.notify_all();
    mTold.wait(lock, [this] { return mStop || mNextSession != 0; });
    if (mStop) return false;
    mReading = true;
    if (mSession != mNextSession) {
        mSession = mNextSession;
        mEndpointer = Endpointer();
        mFilled = 0;
    }
    const bool isOther = mWanted.version != mNextWanted.version;
    if (!isOther && mWanted.awaited == mNextWanted.awaited) return true;
    mWanted = mNextWanted;
    lock.unlock();
    if (isOther) mEndpointer.drop();
    try {
        if (!mWanted.nothing()) mDecoder->want(mWanted);
    } catch (...) {
        mWanted.commands.clear();
        mWanted.dates = false;
        mReports.failed(currentError().Description());
    }
    return true;
}

void Listener::read() {
    constexpr std::chrono::milliseconds patience{20};
    std::optional<std::size_t> count;
    std::string why;
    try {
        count = mSource->Read(std::span(mFrame).subspan(mFilled), patience);
    } catch (...) {
        why = currentError().Description();
    }
    if (!count) return finish(std::move(why));
    mFilled += *count;
    if (mFilled < mFrame.size()) return;
    mFilled = 0;
    push(mFrame);
}

void Listener::push(std::span<const std::int16_t, Endpointer::frame> frame) {
    if (!mEndpointer.isSaying()) mAwaited = mWanted.awaited;
    switch (mEndpointer.push(frame)) {
    case Endpointer::Pausing:
        mAnswer = answer();
        break;
    case Endpointer::Over:
        if (!mAnswer.empty()) mReports.heard({mWanted.version, mAwaited, std::exchange(mAnswer, {})});
        break;
    default:
        break;
    }
}

/// What was said up to the very end is over with it.
void Listener::finish(std::string why) {
    mFrame.fill(0);
    for (int i = 0; i < Endpointer::hangover; ++i)
        push(mFrame);
    const auto session = mSession;
    {
        const std::lock_guard lock(mMutex);
        if (mNextSession == session) mNextSession = 0;
    }
    mReports.ended(session, std::move(why));
}

std::string Listener::answer() {
    if (mWanted.nothing() || !mEndpointer.isClear()) return {};
    return mDecoder->words(mEndpointer.said(), mAwaited);
}

} // namespace Korvane::voice
