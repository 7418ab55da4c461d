#pragma once

#include <optional>
#include <string_view>

namespace Korvane::Bench {

/// The greatest ratio of the library to another that is good enough; nothing where none is set.
std::optional<double> goal(std::string_view work, std::string_view size, std::string_view other);

/// The most seconds or round trips of the library that are good enough, whatever stands beside it.
std::optional<double> amountGoal(std::string_view work, std::string_view size);

} // namespace Korvane::Bench
