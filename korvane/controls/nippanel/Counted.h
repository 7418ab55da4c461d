#pragma once

#include <cstdint>
#include <ranges>

namespace Korvane {

/// The indexes 1 to `count` of groups or fields. A loop that counts in 16 bits itself never ends at 32767.
///
///     for (const std::int16_t group : countedFrom1(nip.GroupCount())) ...
inline auto countedFrom1(std::int16_t count) {
    return std::views::iota(1, count + 1) |
           std::views::transform([](int index) { return static_cast<std::int16_t>(index); });
}

} // namespace Korvane
