#pragma once

#include <cstdint>

namespace Korvane {

/// The place of a field in a model.
struct FieldPlace {
    std::int16_t group = 0;
    std::int16_t field = 0;

    bool operator==(const FieldPlace&) const = default;
};

} // namespace Korvane
