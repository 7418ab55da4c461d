#pragma once

#include <string>
#include <string_view>

namespace Korvane {

/// What the library knows of the application it runs in.
class App {
  public:
    /// The directory of the error files, without a separator at its end. Until a host sets it:
    /// $XDG_STATE_HOME/korvane, or $HOME/.local/state/korvane, or "korvane-<user id>" in the temporary
    /// directory, the first of them that can be written; made (for its owner alone) when it is first asked
    /// for.
    static std::string Path();
    /// Taken as given; the directory must exist. An empty text goes back to the default.
    static void Path(std::string_view directory);

    /// A short description of the library, shown to the user when a database failure is reported.
    static std::string FileDescription();
};

} // namespace Korvane
