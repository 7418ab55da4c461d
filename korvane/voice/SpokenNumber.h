#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace Korvane::voice {

/// The digits of a month, a day or a year as it is said; nothing for any other words. Case, hyphens and
/// repeated blanks do not matter.
///
///     spokenNumber("fifteen")                 // "15"
///     spokenNumber("Twenty-First")            // "21"
///     spokenNumber("twenty twenty six")       // "2026"
///     spokenNumber("two thousand and five")   // "2005"
///     spokenNumber("nineteen oh five")        // "1905"
///     spokenNumber("one nine eight four")     // "1984": digit by digit, two to four of them
///     spokenNumber("november")                // nothing: names of months are left to the host
///
/// No leading zero is made, and none is dropped that was said: "oh five" is "05".
std::optional<std::string> spokenNumber(std::string_view words);

} // namespace Korvane::voice
