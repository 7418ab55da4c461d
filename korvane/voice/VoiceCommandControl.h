#pragma once

#include <korvane/runtime/Event.h>
#include <korvane/voice/VoiceMenu.h>

#include <cstdint>
#include <memory>
#include <string_view>

namespace Korvane::voice {

/// The voice commands of one control, made by `SpeechEngine::MakeVoiceCommand`.
///
///     auto commands = engine.MakeVoiceCommand();
///     auto menu = commands->MenuCreate("AxDate Control", "Function Menu", 1033, "", 1);
///     menu->Add(1, "Next Field", "Navigation", "Moves to next field in date control.");
///     EventHandle h = commands->CommandRecognized.connect([](std::int32_t number) { ... });
///
/// Used on the user-interface thread only. The menus end with it.
class VoiceCommandControl {
  public:
    virtual ~VoiceCommandControl() = default;

    /// Announces the control to the engine: the user's name (empty for the one at the machine) and the number
    /// of the site (1). A control that is never initialised works all the same.
    virtual void Initialize(std::string_view user, std::int32_t number) = 0;

    /// A new menu without commands. Application and state name tell it from others in the engine's messages.
    /// Language 1033 is US English; an empty dialect is the usual one; flags 1 ask for a menu that is not
    /// kept beyond the program, and no menu is.
    ///
    /// Raises `RuntimeError` 5 for a language that the engine does not speak.
    virtual std::unique_ptr<VoiceMenu> MenuCreate(std::string_view application, std::string_view state,
                                                  std::int32_t language, std::string_view dialect,
                                                  std::int32_t flags) = 0;

    /// A command of one of the menus was said; its number. Raised on the user-interface thread.
    Event<std::int32_t> CommandRecognized;
};

} // namespace Korvane::voice
