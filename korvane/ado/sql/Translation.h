#pragma once

#include <korvane/ado/sql/Literal.h>
#include <korvane/ado/sql/Tables.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Korvane::ado::sql {

/// What a value lifted out of a statement meets; without a column it is bound as it stands.
struct ParameterRule {
    std::optional<ColumnInfo> column;
    Use use = Use::Compare;
};

/// A statement in an engine's own dialect.
struct Translation {
    std::string text;
    std::vector<ParameterRule> parameters; ///< one for each `?` of the statement
    /// The columns, as they are known, whose type decided the form of a value that is stored in them.
    std::vector<std::string> storedColumns;
    /// Columns of the result whose type the engine cannot tell, by position: Max(column), Count(*). Empty
    /// when the result's columns cannot be counted from the text.
    std::vector<std::optional<DataType>> resultTypes;
    /// The names that the statement gives to the columns of its result, by position, in its own spelling.
    /// Empty as above.
    std::vector<std::optional<std::string>> resultNames;
};

/// The table that a Select shows row by row: the only one it reads, nothing grouped. Empty when there is no
/// such table.
struct RowSource {
    std::string table;
    std::string calledAs; ///< what its columns can be qualified with
    std::string schema;

    TableName name() const { return {table, schema}; }
};
/// Of a statement that is no such Select: nothing.
std::optional<RowSource> rowSource(std::string_view statement);

/// What running a statement leaves behind.
enum class Effect : std::uint8_t { None, Rows, Schema };
/// Judged by its first word.
Effect effectOf(std::string_view statement);

} // namespace Korvane::ado::sql
