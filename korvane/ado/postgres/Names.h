#pragma once

#include <string>
#include <string_view>

namespace Korvane::ado::postgres {

/// Whether a name written without marks is taken by the engine for the one that the catalog spells so: it
/// takes plain names in lower case, and some of them for words of its own.
bool isPlainFor(std::string_view written, std::string_view spelling);

/// How a new table or column of that name is spelled in the catalog: one that needs no marks as if it had
/// been written without, in lower case, so that it is found so by every other program; any other as it is.
std::string newSpelling(std::string_view name);

/// Raises InvalidArgument for a name that is longer than the engine keeps: it would cut it without a word,
/// and find another table or column.
void requireKeepable(std::string_view name);

/// Whether a word cannot be a column's name without marks.
bool isReserved(std::string_view lowerCaseWord);

} // namespace Korvane::ado::postgres
