#pragma once

#include <cstddef>
#include <string_view>

namespace Korvane {

/// The length in bytes of the one white-space character that `text` begins with: blanks, tabs, line breaks
/// and the spaces of Unicode (no-break, ideographic, ...). 0 when it begins with something else or is empty.
std::size_t whiteSpaceLength(std::string_view text);

/// Takes the white space off the front of `text`; whether there was any.
bool skipWhiteSpace(std::string_view& text);

} // namespace Korvane
