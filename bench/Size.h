#pragma once

#include <array>
#include <string>

namespace Korvane::Bench {

/// How large a Nip is measured.
struct Size {
    int groups;
    int fields; ///< of each group

    std::string name() const { return std::to_string(groups) + "x" + std::to_string(fields); }
    bool operator==(const Size&) const = default;
};

inline constexpr std::array sizes{Size{5, 12}, Size{20, 40}, Size{50, 100}};
inline constexpr int storedEncounters = 10'000;

} // namespace Korvane::Bench
