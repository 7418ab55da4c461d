#pragma once

#include <string>
#include <string_view>

namespace Korvane::ado::postgres {

/// The name of the only table that a statement makes, changes or drops, or of whose indexes it makes one;
/// empty when it may be another one too, or cannot be told.
std::string changedTable(std::string_view statement);

} // namespace Korvane::ado::postgres
