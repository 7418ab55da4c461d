#pragma once

#include <string_view>
#include <utility>

namespace Korvane {

/// Writes the exception being handled to the error log in the panel's common form: the prefix, the error
/// number, ":", the description, " on line " and 0, since statements carry no line numbers. Call inside a
/// `catch (...)`.
void logFailure(std::string_view prefix);

/// Runs the body of one of the panel's routines; an exception is logged and gives `failed`.
///
///     return routine("Error in ucNipPanel.LoadNipInfo: ", false, [&] { ...; return true; });
template <typename Result, typename Body>
Result routine(std::string_view prefix, Result failed, Body&& body) {
    try {
        return std::forward<Body>(body)();
    } catch (...) {
        logFailure(prefix);
        return failed;
    }
}

/// The same for a routine without a result.
template <typename Body>
void routine(std::string_view prefix, Body&& body) {
    routine(prefix, false, [&] { return std::forward<Body>(body)(), true; });
}

} // namespace Korvane
