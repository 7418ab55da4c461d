#pragma once

#include <korvane/runtime/RuntimeError.h>

#include <string>
#include <string_view>
#include <utility>

namespace Korvane {

/// Appends one line, the date and time, a blank and the message, to "ERR.txt" in `App::Path()`, made for its
/// owner alone. A failure to write is swallowed.
void ErrLog(std::string_view message);

/// Runs the body of a routine; an exception is written to the error log as "<prefix><description>" and gives
/// `failed`.
///
///     return guarded("Error in cNip.Save: ", false, [&] { ...; return true; });
template <typename Result, typename Body>
Result guarded(std::string_view prefix, Result failed, Body&& body) {
    try {
        return std::forward<Body>(body)();
    } catch (...) {
        ErrLog(std::string(prefix) + currentError().Description());
        return failed;
    }
}

} // namespace Korvane
