#pragma once

#include <string>
#include <string_view>

namespace Korvane {

/// The name of a table or column as it is written into a statement: a plain identifier (ASCII letters,
/// digits, underscores, no digit first) that is no reserved word stands as it is, any other is bracketed.
///
///     sqlName("Pulse");    // Pulse
///     sqlName("Temp-1");   // [Temp-1]
///     sqlName("Order");    // [Order]
///
/// A name that no statement can hold (empty, or with a "]" or a zero character in it) raises InvalidArgument.
std::string sqlName(std::string_view name);

/// Whether a word is reserved by SQL or by an engine, so that it is no name unless bracketed. Case does not
/// count.
bool isReservedWord(std::string_view word);

} // namespace Korvane
