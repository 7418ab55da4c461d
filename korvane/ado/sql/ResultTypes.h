#pragma once

#include <korvane/ado/sql/Statement.h>

#include <optional>
#include <string>
#include <vector>

namespace Korvane::ado::sql {

/// The types of the columns of a Select that are computed rather than read, by position: Max and Min have the
/// type of their column, Count is a number. Nothing for a column that is not such a one. Empty when there is
/// a `*`, whose columns the text does not tell, and for a statement that is no Select.
std::vector<std::optional<DataType>> resultTypes(const Statement& statement, const Tables& tables);

/// The names that a Select gives to its columns, by position, as they are written there. Nothing for a column
/// without one; empty as above.
std::vector<std::optional<std::string>> resultNames(const Statement& statement);

} // namespace Korvane::ado::sql
