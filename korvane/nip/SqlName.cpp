#include <korvane/nip/SqlName.h>

#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Text.h>

#include <algorithm>
#include <array>

namespace Korvane {

namespace {

using namespace std::string_view_literals;

/// What at least one engine, or the dialect itself, refuses or misreads as a bare name; in order.
constexpr std::array reservedWords = {
    "ADD"sv,
    "ALL"sv,
    "ALTER"sv,
    "ANALYSE"sv,
    "ANALYZE"sv,
    "AND"sv,
    "ANY"sv,
    "ARRAY"sv,
    "AS"sv,
    "ASC"sv,
    "ASYMMETRIC"sv,
    "AUTHORIZATION"sv,
    "AUTOINCREMENT"sv,
    "BEGIN"sv,
    "BETWEEN"sv,
    "BINARY"sv,
    "BOTH"sv,
    "BY"sv,
    "CASE"sv,
    "CAST"sv,
    "CHECK"sv,
    "COLLATE"sv,
    "COLLATION"sv,
    "COLUMN"sv,
    "COMMIT"sv,
    "CONCURRENTLY"sv,
    "CONSTRAINT"sv,
    "CREATE"sv,
    "CROSS"sv,
    "CURRENT_CATALOG"sv,
    "CURRENT_DATE"sv,
    "CURRENT_ROLE"sv,
    "CURRENT_SCHEMA"sv,
    "CURRENT_TIME"sv,
    "CURRENT_TIMESTAMP"sv,
    "CURRENT_USER"sv,
    "DEFAULT"sv,
    "DEFERRABLE"sv,
    "DELETE"sv,
    "DESC"sv,
    "DISTINCT"sv,
    "DISTINCTROW"sv,
    "DO"sv,
    "DROP"sv,
    "ELSE"sv,
    "END"sv,
    "ESCAPE"sv,
    "EXCEPT"sv,
    "EXISTS"sv,
    "FALSE"sv,
    "FETCH"sv,
    "FOR"sv,
    "FOREIGN"sv,
    "FREEZE"sv,
    "FROM"sv,
    "FULL"sv,
    "GRANT"sv,
    "GROUP"sv,
    "HAVING"sv,
    "ILIKE"sv,
    "IN"sv,
    "INDEX"sv,
    "INITIALLY"sv,
    "INNER"sv,
    "INSERT"sv,
    "INTERSECT"sv,
    "INTO"sv,
    "IS"sv,
    "ISNULL"sv,
    "JOIN"sv,
    "LATERAL"sv,
    "LEADING"sv,
    "LEFT"sv,
    "LIKE"sv,
    "LIMIT"sv,
    "LOCALTIME"sv,
    "LOCALTIMESTAMP"sv,
    "NATURAL"sv,
    "NOT"sv,
    "NOTHING"sv,
    "NOTNULL"sv,
    "NULL"sv,
    "OFFSET"sv,
    "ON"sv,
    "ONLY"sv,
    "OR"sv,
    "ORDER"sv,
    "OUTER"sv,
    "OVERLAPS"sv,
    "PLACING"sv,
    "PRIMARY"sv,
    "PROCEDURE"sv,
    "REFERENCES"sv,
    "RETURNING"sv,
    "REVOKE"sv,
    "RIGHT"sv,
    "ROLLBACK"sv,
    "SELECT"sv,
    "SESSION_USER"sv,
    "SET"sv,
    "SIMILAR"sv,
    "SOME"sv,
    "SYMMETRIC"sv,
    "SYSTEM_USER"sv,
    "TABLE"sv,
    "TABLESAMPLE"sv,
    "THEN"sv,
    "TO"sv,
    "TOP"sv,
    "TRAILING"sv,
    "TRANSACTION"sv,
    "TRIGGER"sv,
    "TRUE"sv,
    "UNION"sv,
    "UNIQUE"sv,
    "UPDATE"sv,
    "USER"sv,
    "USING"sv,
    "VALUES"sv,
    "VARIADIC"sv,
    "VERBOSE"sv,
    "VIEW"sv,
    "WHEN"sv,
    "WHERE"sv,
    "WINDOW"sv,
    "WITH"sv,
};
static_assert(std::ranges::is_sorted(reservedWords));

bool isPlain(std::string_view name) {
    constexpr auto letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz_0123456789"sv;
    const bool digitFirst = name.front() >= '0' && name.front() <= '9';
    return !digitFirst && name.find_first_not_of(letters) == std::string_view::npos;
}

} // namespace

bool isReservedWord(std::string_view word) {
    return std::ranges::binary_search(reservedWords, std::string_view(upperCase(word)));
}

std::string sqlName(std::string_view name) {
    if (name.empty() || name.find_first_of("]\0"sv) != std::string_view::npos)
        throw RuntimeError(RuntimeError::InvalidArgument,
                           "\"" + std::string(name) + "\" cannot be the name of a table or field");
    if (isPlain(name) && !isReservedWord(name)) return std::string(name);
    return "[" + std::string(name) + "]";
}

} // namespace Korvane
