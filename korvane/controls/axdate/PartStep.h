#pragma once

#include <korvane/controls/axdate/DateParts.h>
#include <korvane/runtime/Date.h>

namespace Korvane {

/// The text of the part `index` (0 to 2) after `by` steps up, within its range: months to 12, days to the
/// last one of the month where that is known, years from 100 to 9999, with four digits. An empty part, or one
/// that is no number, becomes that of `today`.
///
///     steppedPart({{"2", "28", "2001"}}, DateParts::day, 1, today);   // "28", the last one
std::string steppedPart(const DateParts& parts, std::size_t index, int by, Date today);

} // namespace Korvane
