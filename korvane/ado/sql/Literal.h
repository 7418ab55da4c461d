#pragma once

#include <korvane/ado/Cursor.h>
#include <korvane/runtime/Date.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

namespace Korvane::ado::sql {

/// A value as it stands in a statement (or as it is written through a recordset).
struct Literal {
    /// What the value is written as.
    enum Kind : std::uint8_t { Null, Text, Integer, Number, Boolean, Day };

    Kind kind = Null;
    bool doubledQuotes = false; ///< `text` still has its single quotes doubled
    bool truth = false;
    std::string_view text{}; ///< what stands between the quotes; of a number its digits, without a sign
    std::int64_t integer = 0;
    double number = 0.0;
    Date date{};
};

/// A decimal number with the digits that were given: "-1234.50", "1e-9".
struct Digits {
    std::string_view text;
};

/// A value in the form in which a column of some type keeps it; the monostate is Null. A text is a view into
/// the literal it came from, or into the scratch text given with it; so are digits.
using ColumnValue = std::variant<std::monostate, bool, std::int64_t, double, Date, std::string_view, Digits>;

/// One function object made of several, for visiting a `ColumnValue`.
template <class... Ts>
struct Overloaded : Ts... {
    using Ts::operator()...;
};
/// Makes it of what stands in the parentheses.
template <class... Ts>
Overloaded(Ts...) -> Overloaded<Ts...>;

/// What happens to a value where it meets a column.
enum class Use : std::uint8_t {
    Store,   ///< it becomes the column's value
    Compare, ///< it is compared with the column's value
};

/// A literal in the form of the column it meets: text that reads as a date becomes a date in a date column,
/// and so on; empty text is Null in every column that is not a text column. Text columns take any text as it
/// stands; a fraction in a column of decimals keeps its digits. TypeMismatch, naming the column and the
/// value, for a text that cannot be what the column keeps; Overflow for a stored number outside the column's
/// range (a bare integer in an `Integer` column may be as wide as the engine's).
ColumnValue toColumn(const Literal& literal, const ColumnInfo& column, Use use, std::string& scratch);

/// The literal as it stands, for a place where no column is known.
ColumnValue asItStands(const Literal& literal, std::string& scratch);

/// Any variant but an array as a literal; `scratch` keeps what its text refers to. TypeMismatch for an array.
Literal fromVariant(const Variant& value, std::string& scratch);

/// Whether a column of the type keeps any text as it stands.
bool isTextType(DataType type);

} // namespace Korvane::ado::sql
