#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Korvane::voice {

/// The values of what was dictated in one go, in their order: a month's name, a day, a year. Words that are
/// no such date are one value, as they stand.
///
///     spokenValues("november fifteen twenty twenty six")   // "november", "fifteen", "twenty twenty six"
///     spokenValues("twenty twenty six")                    // "twenty twenty six"
std::vector<std::string> spokenValues(std::string_view words);

} // namespace Korvane::voice
