#include <korvane/nip/SqlName.h>

#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Text.h>
#include <korvane/runtime/Translation.h>

#include <algorithm>
#include <set>

namespace Korvane {

namespace {

using namespace std::string_view_literals;

/// What at least one engine, or the dialect itself, refuses or misreads as a bare name.
constexpr std::string_view reservedWords =
    "ADD ALL ALTER ANALYSE ANALYZE AND ANY ARRAY AS ASC ASYMMETRIC AUTHORIZATION AUTOINCREMENT BEGIN "
    "BETWEEN BINARY BOTH BY CASE CAST CHECK COLLATE COLLATION COLUMN COMMIT CONCURRENTLY CONSTRAINT "
    "CREATE CROSS CURRENT_CATALOG CURRENT_DATE CURRENT_ROLE CURRENT_SCHEMA CURRENT_TIME "
    "CURRENT_TIMESTAMP CURRENT_USER DEFAULT DEFERRABLE DELETE DESC DISTINCT DISTINCTROW DO DROP ELSE "
    "END ESCAPE EXCEPT EXISTS FALSE FETCH FOR FOREIGN FREEZE FROM FULL GRANT GROUP HAVING ILIKE IN "
    "INDEX INDEXED INITIALLY INNER INSERT INTERSECT INTO IS ISNULL JOIN LATERAL LEADING LEFT LIKE LIMIT "
    "LOCALTIME LOCALTIMESTAMP NATURAL NOT NOTHING NOTNULL NULL OFFSET ON ONLY OR ORDER OUTER "
    "OVERLAPS PERCENT PLACING PRIMARY PROCEDURE RAISE REFERENCES RETURNING REVOKE RIGHT ROLLBACK SELECT "
    "SESSION_USER SET SIMILAR SOME SYMMETRIC SYSTEM_USER TABLE TABLESAMPLE THEN TO TOP TRAILING "
    "TRANSACTION TRIGGER TRUE UNION UNIQUE UPDATE USER USING VALUES VARIADIC VERBOSE VIEW WHEN WHERE "
    "WINDOW WITH";

std::set<std::string_view> wordsOf(std::string_view text) {
    std::set<std::string_view> words;
    for (std::size_t end; !text.empty(); text.remove_prefix(std::min(end + 1, text.size()))) {
        end = std::min(text.find(' '), text.size());
        words.insert(text.substr(0, end));
    }
    return words;
}

bool isPlain(std::string_view name) {
    constexpr auto letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz_0123456789"sv;
    const bool digitFirst = name.front() >= '0' && name.front() <= '9';
    return !digitFirst && name.find_first_not_of(letters) == std::string_view::npos;
}

} // namespace

bool isReservedWord(std::string_view word) {
    static const std::set<std::string_view> words = wordsOf(reservedWords);
    return words.contains(upperCase(word));
}

std::string sqlName(std::string_view name) {
    if (name.empty() || name.find_first_of("]\0"sv) != std::string_view::npos)
        throw RuntimeError(
            RuntimeError::InvalidArgument,
            filled(translate("Korvane::nip", "\"%1\" cannot be the name of a table or field"), {name}));
    if (isPlain(name) && !isReservedWord(name)) return std::string(name);
    return "[" + std::string(name) + "]";
}

} // namespace Korvane
