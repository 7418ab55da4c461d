#pragma once

#include <string>
#include <string_view>

namespace Korvane::ado::sql {

/// A name as it is written in a statement of any engine, whatever characters it has.
std::string quotedName(std::string_view name);
/// A table's, behind that of its schema unless this is empty.
std::string quotedName(std::string_view schema, std::string_view name);

} // namespace Korvane::ado::sql
