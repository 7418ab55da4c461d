#include <korvane/ado/sqlite/Values.h>

#include <korvane/ado/Numbers.h>
#include <korvane/runtime/Text.h>

#include <sqlite3.h>

namespace Korvane::ado::sqlite {

namespace {

std::string quotedText(std::string_view text) {
    std::string quoted(1, '\'');
    quoted += text;
    quoted += '\'';
    return quoted;
}

int bindText(sqlite3_stmt* statement, int parameter, std::string_view text, TextLives lives) {
    const auto destructor = lives == TextLives::OnlyNow ? SQLITE_TRANSIENT : SQLITE_STATIC;
    const char* begin = text.data() ? text.data() : "";
    return sqlite3_bind_text64(statement, parameter, begin, text.size(), destructor, SQLITE_UTF8);
}

std::string_view textOf(sqlite3_stmt* statement, int column) {
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
    if (!text) return {};
    return {text, static_cast<std::size_t>(sqlite3_column_bytes(statement, column))};
}

} // namespace

std::string literalText(const sql::ColumnValue& value) {
    return std::visit(sql::Overloaded{[](std::monostate) { return std::string("Null"); },
                                      [](bool truth) { return std::string(truth ? "1" : "0"); },
                                      [](std::int64_t number) { return std::to_string(number); },
                                      [](double number) { return exactText(number); },
                                      [](sql::Digits digits) { return std::string(digits.text); },
                                      [](Date date) { return quotedText(date.isoText()); },
                                      [](std::string_view text) { return quotedText(escapeQuotes(text)); }},
                      value);
}

int bind(sqlite3_stmt* statement, int parameter, const sql::ColumnValue& value, TextLives lives) {
    return std::visit(
        sql::Overloaded{
            [&](std::monostate) { return sqlite3_bind_null(statement, parameter); },
            [&](bool truth) { return sqlite3_bind_int(statement, parameter, truth ? 1 : 0); },
            [&](std::int64_t number) { return sqlite3_bind_int64(statement, parameter, number); },
            [&](double number) { return sqlite3_bind_double(statement, parameter, number); },
            // The engine keeps no decimals but doubles.
            [&](sql::Digits digits) {
                return sqlite3_bind_double(statement, parameter, parseNumber(digits.text).value_or(0.0));
            },
            [&](Date date) { return bindText(statement, parameter, date.isoText(), TextLives::OnlyNow); },
            [&](std::string_view text) { return bindText(statement, parameter, text, lives); }},
        value);
}

void read(sqlite3_stmt* statement, int column, DataType type, Variant& value) {
    switch (sqlite3_column_type(statement, column)) {
    case SQLITE_NULL:
        value = Variant::null();
        return;
    case SQLITE_INTEGER:
        setNumber(value, std::int64_t{sqlite3_column_int64(statement, column)}, type);
        return;
    case SQLITE_FLOAT:
        setNumber(value, sqlite3_column_double(statement, column), type);
        return;
    default:
        break;
    }
    const std::string_view text = textOf(statement, column);
    if (type == DataType::Date) {
        if (const auto date = parseIsoDate(text)) {
            value = *date;
            return;
        }
    }
    value.setText(text);
}

CellView peek(sqlite3_stmt* statement, int column, DataType type) {
    switch (sqlite3_column_type(statement, column)) {
    case SQLITE_TEXT:
        if (type != DataType::Date) return textOf(statement, column);
        return {};
    case SQLITE_INTEGER:
        if (type == DataType::SmallInt || type == DataType::Integer || type == DataType::BigInt)
            return std::int64_t{sqlite3_column_int64(statement, column)};
        return {};
    default:
        return {};
    }
}

} // namespace Korvane::ado::sqlite
