#pragma once

#include <compare>
#include <string_view>

namespace Korvane {

/// Orders two texts as a person would sort words: marks before digits before letters, the case of ASCII
/// letters and the hyphens and apostrophes inside words only deciding between texts that are otherwise alike
/// ("a" before "A" before "b"; "coop" before "co-op"). Control characters other than white space do not count
/// at all. Characters beyond ASCII come last, by their code points.
std::strong_ordering compareTexts(std::string_view a, std::string_view b);

} // namespace Korvane
