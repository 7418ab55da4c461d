#pragma once

#include <korvane/ado/postgres/Types.h>
#include <korvane/ado/sql/Translation.h>

#include <optional>
#include <string>
#include <string_view>

namespace Korvane::ado::postgres {

/// A value as it is written in this engine's statements: dates as Timestamp '...'.
std::string literalText(const sql::ColumnValue& value);

/// The same for a value that is compared with a column.
std::string comparedText(const sql::ColumnValue& value, const ColumnInfo& column);

/// A value as the text that a parameter is sent as; nothing for Null. InvalidArgument for a text with a NUL
/// in it.
std::optional<std::string> parameterText(const sql::ColumnValue& value);

/// The type that a value is sent with. It goes by the column that the value meets rather than by the value,
/// so that statements of one shape seldom differ in it.
TypeId parameterType(const sql::ParameterRule& rule, const sql::ColumnValue& value);

/// Reads a cell, which is not null, by its column's type. What cannot be read so (an infinite date) is handed
/// out as text.
void read(std::string_view cell, DataType type, Variant& value);

/// The same value to be looked at.
CellView peek(std::string_view cell, DataType type);

} // namespace Korvane::ado::postgres
