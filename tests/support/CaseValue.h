#pragma once

#include <korvane/runtime/Variant.h>

#include <string_view>

namespace Korvane::Testing {

/// The value that two cells of a table describe: its kind ("short", "decimal", "text", ...) and the value
/// itself. A decimal is written with its point, or as mantissa/scale.
Variant caseValue(std::string_view kind, std::string_view value);

} // namespace Korvane::Testing
