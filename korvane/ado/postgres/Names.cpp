#include <korvane/ado/postgres/Names.h>

#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Text.h>
#include <korvane/runtime/Translation.h>

#include <algorithm>
#include <array>

namespace Korvane::ado::postgres {

namespace {

constexpr std::array<std::string_view, 101> reserved{
    "all",
    "analyse",
    "analyze",
    "and",
    "any",
    "array",
    "as",
    "asc",
    "asymmetric",
    "authorization",
    "binary",
    "both",
    "case",
    "cast",
    "check",
    "collate",
    "collation",
    "column",
    "concurrently",
    "constraint",
    "create",
    "cross",
    "current_catalog",
    "current_date",
    "current_role",
    "current_schema",
    "current_time",
    "current_timestamp",
    "current_user",
    "default",
    "deferrable",
    "desc",
    "distinct",
    "do",
    "else",
    "end",
    "except",
    "false",
    "fetch",
    "for",
    "foreign",
    "freeze",
    "from",
    "full",
    "grant",
    "group",
    "having",
    "ilike",
    "in",
    "initially",
    "inner",
    "intersect",
    "into",
    "is",
    "isnull",
    "join",
    "lateral",
    "leading",
    "left",
    "like",
    "limit",
    "localtime",
    "localtimestamp",
    "natural",
    "not",
    "notnull",
    "null",
    "offset",
    "on",
    "only",
    "or",
    "order",
    "outer",
    "overlaps",
    "placing",
    "primary",
    "references",
    "returning",
    "right",
    "select",
    "session_user",
    "similar",
    "some",
    "symmetric",
    "system_user",
    "table",
    "tablesample",
    "then",
    "to",
    "trailing",
    "true",
    "union",
    "unique",
    "user",
    "using",
    "variadic",
    "verbose",
    "when",
    "where",
    "window",
    "with",
};
static_assert(std::is_sorted(reserved.begin(), reserved.end()));

} // namespace

bool isReserved(std::string_view lowerCaseWord) {
    return std::binary_search(reserved.begin(), reserved.end(), lowerCaseWord);
}

std::string newSpelling(std::string_view name) {
    const std::string lower = lowerCase(name);
    const auto inWord = [](char c) { return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_'; };
    const bool isPlain = !lower.empty() && std::all_of(lower.begin(), lower.end(), inWord) &&
                         (lower.front() < '0' || lower.front() > '9');
    return isPlain ? lower : std::string(name);
}

void requireKeepable(std::string_view name) {
    constexpr std::size_t longest = 63;
    if (name.size() <= longest) return;
    throw RuntimeError(
        RuntimeError::InvalidArgument,
        filled(
            Korvane::translate("Korvane::ado",
                               "The name \"%1\" is longer than the %2 bytes that the database keeps of one."),
            {name, std::to_string(longest)}));
}

bool isPlainFor(std::string_view written, std::string_view spelling) {
    return lowerCase(written) == spelling && !isReserved(spelling);
}

} // namespace Korvane::ado::postgres
