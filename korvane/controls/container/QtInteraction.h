#pragma once

#include <korvane/runtime/Interaction.h>

namespace Korvane {

/// Talks to the user with Qt's message and input boxes, above the active window. Installed by the first
/// control that is made, unless the host has installed an interaction of its own.
class QtInteraction : public Interaction {
  public:
    Answer MsgBox(std::string_view text, int style, std::string_view title) override;
    std::optional<std::string> InputBox(std::string_view prompt, std::string_view title) override;

    /// Installs one where the default is still in force, and lets Qt translate (`letQtTranslate`).
    static void installOnce();
};

} // namespace Korvane
