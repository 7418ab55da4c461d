#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Korvane::Testing {

/// The rows of a table in tests/cases, cell by cell. Lines that begin with "# " and empty lines are left out.
std::vector<std::vector<std::string>> readCases(std::string_view file);

/// A cell that holds a text in double quotes, with its escapes (\" \\ \t \n \f \v \r \uXXXX) resolved.
std::string quotedText(std::string_view cell);

} // namespace Korvane::Testing
