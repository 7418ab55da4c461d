#pragma once

#include <korvane/ado/sql/Statement.h>

#include <optional>

namespace Korvane::ado::sql {

/// The column that a value meets, and what happens there.
struct Meeting {
    const ColumnInfo* column = nullptr;
    Use use = Use::Compare;
};

/// Which column the value at a token meets directly: its place in the Values of an Insert, `column = value`
/// in Set, `column <op> value` or `value <op> column`, `column In (value, ...)`, `column Between value And
/// value`. The value's tokens run from `first` (its sign, if it has one) to `last`. Nothing when it is part
/// of a larger expression, or meets no known column.
std::optional<Meeting> meeting(const Statement& statement, std::size_t first, std::size_t last,
                               const Tables& tables);

/// Whether a value may begin at a token, judged by what stands before it (so that a minus there is a sign).
bool valueMayBegin(const Statement& statement, std::size_t token);

} // namespace Korvane::ado::sql
