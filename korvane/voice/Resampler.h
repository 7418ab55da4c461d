#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace Korvane::voice {

/// Turns sound of any rate and number of channels into what an `AudioSource` gives, piece by piece.
///
///     Resampler resampler(48000, 2);
///     stream.Push(resampler.convert(piece));      // left, right, left, right ...
///
/// Channels are mixed; what lies above half of the lower rate is filtered out. A piece's result comes up to a
/// few milliseconds late, with the next piece.
class Resampler {
  public:
    /// Raises `RuntimeError` 5 for a rate outside 4000 to 384000 or no channel.
    Resampler(int rate, int channels);

    /// The next stretch of sound, a sample of each channel in turn; what is left over goes before the one
    /// after it.
    std::vector<std::int16_t> convert(std::span<const std::int16_t> interleaved);

  private:
    void mix(std::span<const std::int16_t> interleaved);
    double valueAt(double position) const;

    int mChannels;
    double mStep;         ///< input samples for one of the output
    double mCutoff;       ///< of the low-pass, as a part of the input's rate
    double mPosition = 0; ///< of the next output sample in `mInput`
    int mReach;           ///< input samples that a value takes on either side
    std::vector<float> mInput;
    std::vector<std::int16_t> mPartial; ///< a frame that is not complete yet
};

} // namespace Korvane::voice
