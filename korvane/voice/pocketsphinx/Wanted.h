#pragma once

#include <korvane/voice/DatePart.h>

#include <cstdint>
#include <string>
#include <vector>

namespace Korvane::voice {

/// What is listened for at a time. An answer carries the version of what it answers, so that one that comes
/// late goes to nobody. The part of a date that is awaited may change within a version: what is being said at
/// that moment is still listened to, as the part that was awaited before.
struct Wanted {
    std::uint64_t version = 0;
    std::vector<std::string> commands; ///< in lower case, words parted by one blank, each once
    bool dates = false;
    DatePart awaited = DatePart::Any;

    bool sameSentences(const Wanted& other) const {
        return commands == other.commands && dates == other.dates;
    }
    bool nothing() const { return commands.empty() && !dates; }
};

} // namespace Korvane::voice
