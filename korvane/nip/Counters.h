#pragma once

#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Translation.h>

#include <cstdint>
#include <limits>
#include <string>

namespace Korvane {

/// One more; the counters of the model are 16-bit. Raises Overflow with the text (%1 the most there can be,
/// %2 where).
inline std::int16_t countedUp(std::int16_t count, const char* tooMany, const std::string& where = {}) {
    constexpr std::int16_t most = std::numeric_limits<std::int16_t>::max();
    if (count == most)
        throw RuntimeError(RuntimeError::Overflow,
                           filled(translate("Korvane::nip", tooMany), {std::to_string(most), where}));
    return static_cast<std::int16_t>(count + 1);
}

} // namespace Korvane
