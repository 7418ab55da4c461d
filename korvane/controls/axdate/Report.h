#pragma once

#include <korvane/runtime/Interaction.h>
#include <korvane/runtime/RuntimeError.h>

#include <string>
#include <utility>

namespace Korvane {

/// Shows a failure of the date control to the user.
inline void logError(const std::string& text) {
    Interaction::current().MsgBox(text, MsgBoxStyle::OkOnly, "");
}

/// Runs a routine. What it raises goes no further than a message box: the prefix and the description.
template <typename Routine>
void reported(const char* prefix, Routine&& routine) {
    try {
        std::forward<Routine>(routine)();
    } catch (...) {
        logError(prefix + currentError().Description());
    }
}

} // namespace Korvane
