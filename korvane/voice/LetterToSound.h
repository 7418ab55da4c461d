#pragma once

#include <string>
#include <string_view>

namespace Korvane::voice {

/// How an English word that no dictionary has is likely to be pronounced, in the sounds of ARPABET. Made for
/// the words of a host's own commands, by a few dozen rules: good enough to tell a command from another.
///
///     pronounce("weiter")    // "W IY T ER"
///
/// Case does not matter. Empty for a word with anything but the letters a to z and apostrophes, and for one
/// without letters.
std::string pronounce(std::string_view word);

} // namespace Korvane::voice
