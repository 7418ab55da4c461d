#pragma once

#include <korvane/voice/WindowHandle.h>

#include <cstdint>
#include <string_view>

namespace Korvane::voice {

/// A set of spoken commands that belong together, made by `VoiceCommandControl::MenuCreate`.
///
///     menu->Add(1, "Next Field", "Navigation", "Moves to next field in date control.");
///     menu->Attach(handle);
///     menu->Activate(true);
///
/// It is listened to while it is active, its window has the focus (`SpeechEngine::WindowFocus`) and the
/// microphone is on. Destroying it ends that; a command that was said before and not yet delivered is
/// dropped.
class VoiceMenu {
  public:
    virtual ~VoiceMenu() = default;

    /// Adds a command. Its number is what `CommandRecognized` gives; several phrases may share one. The words
    /// are compared without regard to case and punctuation. Category and description are for people; an
    /// engine may show them in its list of what can be said.
    ///
    /// Raises `RuntimeError` 5 for words without a letter or digit, and for those that the engine can neither
    /// look up nor pronounce, with a description that names the word; the menu is then as before.
    virtual void Add(std::int32_t number, std::string_view words, std::string_view category,
                     std::string_view description) = 0;

    /// The window whose focus the menu follows. A menu attached to none (0, the default) is listened to
    /// whatever has the focus.
    virtual void Attach(WindowHandle window) = 0;

    /// Default false.
    virtual void Activate(bool on) = 0;
};

} // namespace Korvane::voice
