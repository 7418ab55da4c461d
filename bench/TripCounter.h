#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace Korvane::Bench {

/// Counts in what a client of a server sends the messages behind which it waits for the server to be ready
/// again: a simple query, or the end of a pipeline.
class TripCounter {
  public:
    /// How many begin in the bytes that come next; a message may come in any number of parts.
    std::size_t count(std::string_view bytes) {
        std::size_t trips = 0;
        for (std::size_t at = 0; at < bytes.size();) {
            if (mToSkip > 0) {
                const std::size_t skipped = std::min(mToSkip, bytes.size() - at);
                mToSkip -= skipped;
                at += skipped;
            } else if (take(static_cast<unsigned char>(bytes[at++]))) {
                ++trips;
            }
        }
        return trips;
    }

  private:
    // Each message is a letter, its length without the letter in four bytes, and the rest; the first one of a
    // client has no letter.
    bool take(unsigned char byte) {
        if (mHeader == 0) {
            mKind = byte;
            mLength = 0;
        } else {
            mLength = mLength << 8U | byte;
        }
        if (++mHeader < headerSize) return false;
        mHeader = 0;
        mToSkip = mLength - lengthSize;
        return mKind == 'Q' || mKind == 'S';
    }

    static constexpr int headerSize = 5;
    static constexpr std::size_t lengthSize = 4;
    int mHeader = 1;
    unsigned char mKind = 0;
    std::size_t mLength = 0;
    std::size_t mToSkip = 0;
};

} // namespace Korvane::Bench
