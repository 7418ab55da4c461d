#pragma once

#include <korvane/ado/sql/Statement.h>

#include <optional>
#include <vector>

namespace Korvane::ado::sql {

/// The types of the columns of a Select that are computed rather than read, by position: Max and Min have the
/// type of their column, Count is a number. Nothing for a column that is not such a one. Empty when there is
/// a `*`, whose columns the text does not tell, and for a statement that is no Select.
std::vector<std::optional<DataType>> resultTypes(const Statement& statement, const Tables& tables);

} // namespace Korvane::ado::sql
