#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace Korvane {

/// Style codes of a message box: one of the button sets plus one of the icons plus a default button.
namespace MsgBoxStyle {
enum : int {
    OkOnly = 0,
    OkCancel = 1,
    YesNo = 4,
    Critical = 16,
    Question = 32,
    Exclamation = 48,
    Information = 64,
    DefaultButton2 = 256,
};
}

/// What the user answered.
enum class Answer : int { Ok = 1, Cancel = 2, Yes = 6, No = 7 };

/// How the library talks to its user. One is in force at a time (`Interaction::current`): a host with windows
/// installs one that shows boxes; the default writes messages to standard error and answers for nobody
/// (Cancel or No).
class Interaction {
  public:
    virtual ~Interaction() = default;

    /// Shows a message and waits for the answer. An empty title is allowed.
    virtual Answer MsgBox(std::string_view text, int style, std::string_view title) = 0;

    /// Asks for one line of text; nothing when the user cancelled.
    virtual std::optional<std::string> InputBox(std::string_view prompt, std::string_view title) = 0;

    /// The answer of somebody who agrees to nothing: No, else Cancel, else Ok where that is the only button.
    static Answer refusal(int style);

    /// The one in force; there always is one.
    static Interaction& current();

    /// Whether nobody has installed one.
    static bool isDefault();

    /// Installs another one and returns the one before; null goes back to the default.
    static std::shared_ptr<Interaction> install(std::shared_ptr<Interaction> interaction);
};

} // namespace Korvane
