#pragma once

#include <string>
#include <string_view>

namespace Korvane::ado::sqlite {

/// A name as it is written in a statement of the engine, whatever characters it has.
std::string quotedName(std::string_view name);

} // namespace Korvane::ado::sqlite
