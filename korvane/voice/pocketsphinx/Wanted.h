#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace Korvane::voice {

/// What is listened for at a time. An answer carries the version of what it answers, so that one that comes
/// late goes to nobody.
struct Wanted {
    std::uint64_t version = 0;
    std::vector<std::string> commands; ///< in lower case, words parted by one blank, each once
    bool dates = false;

    bool nothing() const { return commands.empty() && !dates; }
};

} // namespace Korvane::voice
