#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Korvane::Testing {

/// The rows of a table in tests/cases, cell by cell. Lines that begin with "# " and empty lines are left out.
std::vector<std::vector<std::string>> readCases(std::string_view file);

/// The statements that belong to something that is done (statements.tsv).
std::vector<std::string> statementsOf(std::string_view what);

/// A cell that holds a text in double quotes, with its escapes (\" \\ \t \n \f \v \r \uXXXX) resolved.
std::string quotedText(std::string_view cell);

} // namespace Korvane::Testing
