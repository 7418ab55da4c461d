#pragma once

#include <korvane/ado/sql/Literal.h>
#include <korvane/ado/sql/Tables.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Korvane::ado::sqlite {

/// What a value lifted out of a statement meets; without a column it is bound as it stands.
struct ParameterRule {
    std::optional<ColumnInfo> column;
    sql::Use use = sql::Use::Compare;
};

/// A statement in the engine's own dialect.
struct Translation {
    std::string text;
    std::vector<ParameterRule> parameters; ///< one for each `?`
    /// Columns of the result whose type the engine cannot tell, by position: Max(column), Count(*). Empty
    /// when the result's columns cannot be counted from the text.
    std::vector<std::optional<DataType>> resultTypes;
};

/// Turns a statement of the library's dialect into SQLite's own: `Select Top n` into Limit, dates into ISO
/// text, values into the form of the column that they meet. A `?` stands for a value that was lifted out.
/// Whatever it does not know stays as it is. Raises what `toColumn` raises. With `addedColumns` (such as
/// ",[ID]") the outermost select list gets these behind its own.
///
///     translate("Select Top 1 A From T Where D>#11/15/2026#", tables).text;
///     // "Select A From T Where D>'2026-11-15 00:00:00' Limit 1"
Translation translate(std::string_view statement, const sql::Tables& tables,
                      std::string_view addedColumns = {});

/// The table that a Select shows row by row: the only one it reads, nothing grouped. Empty when there is no
/// such table.
struct RowSource {
    std::string table;
    std::string calledAs; ///< what its columns can be qualified with
};
std::optional<RowSource> rowSource(std::string_view statement);

} // namespace Korvane::ado::sqlite
