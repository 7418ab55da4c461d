#pragma once

#include <korvane/voice/AudioSource.h>
#include <korvane/voice/Endpointer.h>
#include <korvane/voice/pocketsphinx/Decoder.h>
#include <korvane/voice/pocketsphinx/Sentence.h>
#include <korvane/voice/pocketsphinx/Wanted.h>

#include <array>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <thread>

namespace Korvane::voice {

/// The thread on which the sound is read and recognised. It starts with the object and ends with it.
class Listener {
  public:
    /// Called on the listener's thread.
    struct Reports {
        std::function<void(Sentence)> heard;
        /// The sound is at its end; `why` is what the source raised, empty when it did not.
        std::function<void(std::uint64_t session, std::string why)> ended;
        std::function<void(std::string why)> failed; ///< what is wanted cannot be listened for
    };

    Listener(std::shared_ptr<AudioSource> source, std::unique_ptr<Decoder> decoder, Reports reports);
    ~Listener();

    /// What to listen for from now on. What is being said at this moment is not listened to when the version
    /// is a new one.
    void want(Wanted wanted);

    /// Reads the source, which was started, until `pause` or its end. Each session has a number of its own.
    void listen(std::uint64_t session);
    /// Returns once the source is not read any more.
    void pause();

  private:
    void run();
    bool takeOver();
    void read();
    void push(std::span<const std::int16_t, Endpointer::frame> frame);
    void finish(std::string why);
    std::string answer();

    std::shared_ptr<AudioSource> mSource;
    std::unique_ptr<Decoder> mDecoder;
    Reports mReports;

    std::mutex mMutex; ///< for the members up to the next blank line
    std::condition_variable mTold, mPaused;
    Wanted mNextWanted;
    std::uint64_t mNextSession = 0; ///< 0 while nothing is listened to
    bool mReading = false;
    bool mStop = false;

    Wanted mWanted;
    std::uint64_t mSession = 0;
    Endpointer mEndpointer;
    std::array<std::int16_t, Endpointer::frame> mFrame{};
    std::size_t mFilled = 0;
    DatePart mAwaited = DatePart::Any; ///< when somebody began to speak
    std::string mAnswer;               ///< to what was said up to the last pause

    std::thread mThread; ///< last: it uses the others
};

} // namespace Korvane::voice
