#pragma once

#include <cstdint>
#include <string_view>

namespace Korvane {

/// Where a date lies: 1 after the maximum, -1 before the minimum, 0 on a bound or between them. Whole days
/// count, not the times on them. A bound that does not read as a date is none, and nothing is outside when
/// the date does not read as one. Where a maximum lies before the minimum and both are broken, -1.
///
///     compareWithBounds("5/2/2001", "", "5/1/2001");   // 1
std::int16_t compareWithBounds(std::string_view wholeDate, std::string_view minimum,
                               std::string_view maximum);

} // namespace Korvane
