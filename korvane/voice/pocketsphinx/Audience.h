#pragma once

#include <korvane/runtime/Event.h>
#include <korvane/voice/WindowHandle.h>
#include <korvane/voice/pocketsphinx/Sentence.h>
#include <korvane/voice/pocketsphinx/Wanted.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Korvane::voice {

/// Who listens on the user-interface thread: knows which menus and dictation are listened to, says so when
/// that changes, and gives what was heard to the one it is meant for.
class Audience {
  public:
    /// The commands of one control, and whom to tell which was said.
    struct Menu {
        /// What is said, and its number for the control.
        struct Command {
            std::int32_t number;
            std::string words;
        };
        std::vector<Command> commands;
        WindowHandle window = 0;
        bool active = false;
        std::function<void(std::int32_t)> recognized;
    };
    /// Whom to tell what was dictated.
    struct Dictation {
        bool dates = true;
        DatePart awaited = DatePart::Any;
        std::function<void(const std::string&)> dictated;
    };

    /// Told of what is wanted whenever that changes.
    std::function<void(const Wanted&)> wants;

    void add(const std::shared_ptr<Menu>& menu) { mMenus.push_back(menu); }
    /// A menu, or what it is attached to, was changed.
    void changed();
    void focus(WindowHandle window, bool has);
    /// The one activated last is delivered to.
    void activate(const std::shared_ptr<Dictation>& dictation, bool on);

    /// The part of a date that a dictation awaits was changed.
    void awaited();

    /// A listener may change anything: what was said to those who listened before it then goes to nobody
    /// else.
    void heard(const Sentence& said);

  private:
    bool hears(const Menu& menu) const;
    std::shared_ptr<Dictation> dictation() const;
    bool command(const std::string& words);

    std::vector<std::weak_ptr<Menu>> mMenus;
    std::vector<std::weak_ptr<Dictation>> mDictations; ///< active ones, the last is delivered to
    WindowHandle mFocus = 0;
    Wanted mWanted;
    std::weak_ptr<Dictation> mDictation; ///< of `mWanted`
    std::vector<std::weak_ptr<Menu>> mHearing;
};

/// The words of a command as a sentence has them: lower case, without punctuation, digits spoken. Raises
/// `RuntimeError` 5 as `VoiceMenu::Add`.
std::string commandWords(std::string_view words);

} // namespace Korvane::voice
