#pragma once

#include <korvane/runtime/RuntimeError.h>

#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

namespace Korvane {

/// One more; the counters of the model are 16-bit. Raises Overflow with what there are too many of.
inline std::int16_t countedUp(std::int16_t count, std::string_view what, const std::string& where = {}) {
    constexpr std::int16_t most = std::numeric_limits<std::int16_t>::max();
    if (count == most)
        throw RuntimeError(RuntimeError::Overflow,
                           "More than " + std::to_string(most) + ' ' + std::string(what) + where);
    return static_cast<std::int16_t>(count + 1);
}

} // namespace Korvane
