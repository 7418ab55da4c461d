#pragma once

#include <korvane/controls/container/Text.h>
#include <korvane/runtime/Interaction.h>
#include <korvane/runtime/RuntimeError.h>

#include <QCoreApplication>

#include <string>
#include <utility>

namespace Korvane {

/// Shows a failure of one of the date control's routines to the user.
inline void logError(const char* routineName, const std::string& description) {
    const QString text = QCoreApplication::translate("Korvane::axDate", " Error in %1: %2");
    Interaction::current().MsgBox(utf8(text.arg(QLatin1String(routineName), qt(description))),
                                  MsgBoxStyle::OkOnly, "");
}

/// Runs a routine. What it raises goes no further than a message box: its name and the description.
template <typename Routine>
void reported(const char* routineName, Routine&& routine) {
    try {
        std::forward<Routine>(routine)();
    } catch (...) {
        logError(routineName, currentError().Description());
    }
}

} // namespace Korvane
