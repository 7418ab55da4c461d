#pragma once

#include <korvane/voice/AudioSource.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace Korvane::voice {

/// Finds where something is said in a stream of sound, by its loudness above what is usual around it.
///
///     Endpointer endpointer;
///     switch (endpointer.push(frame)) {
///     case Endpointer::Pausing: answer = recognise(endpointer.said()); ...   // it may be over
///     case Endpointer::Over: deliver(answer); ...                            // nothing more was said
///     }
///
/// A frame is 10 ms. `Pausing` is told after `pause` of quiet, so that the work of recognising is done while
/// it is not yet known whether more is said; `Over` after `hangover` of it. Something longer than `longest`
/// is no command and no date: nothing more is told of it until it is over, and that only by `TooLong`.
class Endpointer {
  public:
    static constexpr std::size_t frame = AudioSource::sampleRate / 100;
    /// In dB.
    static constexpr double clearBy = 17;
    /// In frames.
    static constexpr int pause = 12, hangover = 22, longest = 450, least = 8, before = 25;

    /// What is told of the sound so far.
    enum Told {
        Nothing,
        Pausing,
        Over,
        TooLong,
    };

    Told push(std::span<const std::int16_t, frame> samples);

    /// What was said and the quiet around it; until the next `push` that tells of something else.
    std::span<const std::int16_t> said() const { return mSaid; }

    /// Whether something is being said, also what is dropped.
    bool isSaying() const { return mState != State::Quiet; }

    /// Whether it stands out from its surroundings by enough that its words can be told: `clearBy` on
    /// average. In more noise than that a wrong word is likelier than the right one.
    bool isClear() const;

    /// Forgets what was being said; the rest of it is not listened to. How loud it is around stays known.
    void drop();

  private:
    bool loud(double level);
    Told during(std::optional<double> loudness);

    enum class State { Quiet, Said, Dropped } mState = State::Quiet;
    std::vector<std::int16_t> mSaid;
    double mFloor = 0;  ///< the level of the surroundings, in dB
    double mPeak = 0;   ///< of what is being said
    double mLevels = 0; ///< of the loud frames, summed up
    int mFrames = 0;    ///< pushed so far, up to where the floor is known
    int mLoud = 0;      ///< loud frames of what is being said
    int mQuiet = 0;     ///< quiet frames since the last loud one
};

} // namespace Korvane::voice
