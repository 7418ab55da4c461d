#pragma once

#include <korvane/ado/Connection.h>

#include <cstdint>
#include <memory>

namespace Korvane {

/// How many characters the structure tables take of the texts that a user writes there; 0: any number.
struct StructureLimits {
    std::int32_t groupName = 0;
    std::int32_t fieldName = 0;
    std::int32_t caption = 0;
    std::int32_t choice = 0;
};

/// As the database declares them. A table or column that cannot be asked limits nothing.
StructureLimits readLimits(const std::shared_ptr<ado::Connection>& connection);

} // namespace Korvane
