#pragma once

#include <korvane/ado/sql/Literal.h>

#include <string>

struct sqlite3_stmt;

namespace Korvane::ado::sqlite {

/// A value as it is written in this engine's statements: dates as ISO text, True and False as 1 and 0.
std::string literalText(const sql::ColumnValue& value);

/// How long a text that is bound stays where it is.
enum class TextLives : bool { UntilTheStatementIsDone, OnlyNow };

/// Binds a value to a parameter (counted from 1) and returns the engine's result code.
int bind(sqlite3_stmt* statement, int parameter, const sql::ColumnValue& value, TextLives lives);

/// Reads a cell of the current row by the column's type. A stored value that is not of this type is handed
/// out as what it is: a text that is no date in a date column as text, a number wider than 32 bits as a
/// decimal.
void read(sqlite3_stmt* statement, int column, DataType type, Variant& value);

/// The same value to be looked at.
CellView peek(sqlite3_stmt* statement, int column, DataType type);

} // namespace Korvane::ado::sqlite
