#pragma once

#include <korvane/controls/axdate/DateParts.h>

namespace Korvane {

/// A whole date out of a text that was pasted or dropped, which may also hold a time. Nothing unless it names
/// a day, a month and a year, in the order month day year, year month day or day month year: what the general
/// conversion would have to make up or to turn about is not taken.
///
///     givenDate("2026-11-15 17:21");   // 11, 15, 2026
///     givenDate("3/1970");             // nothing: no day
std::optional<DateParts> givenDate(std::string_view text);

} // namespace Korvane
