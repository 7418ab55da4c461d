#include <korvane/voice/pocketsphinx/Audience.h>

#include <korvane/voice/SpokenDate.h>

#include <algorithm>
#include <utility>

namespace Korvane::voice {

void Audience::changed() {
    std::erase_if(mMenus, [](const auto& menu) { return menu.expired(); });
    std::erase_if(mDictations, [](const auto& dictation) { return dictation.expired(); });
    Wanted wanted;
    std::vector<std::weak_ptr<Menu>> hearing;
    for (const auto& weak : mMenus) {
        const auto menu = weak.lock();
        if (!hears(*menu)) continue;
        hearing.push_back(menu);
        for (const auto& command : menu->commands)
            wanted.commands.push_back(command.words);
    }
    std::ranges::sort(wanted.commands);
    wanted.commands.erase(std::unique(wanted.commands.begin(), wanted.commands.end()), wanted.commands.end());
    const auto dictating = dictation();
    wanted.dates = dictating && dictating->dates;
    if (dictating) wanted.awaited = dictating->awaited;

    wanted.version = mWanted.version + 1;
    mWanted = std::move(wanted);
    mHearing = std::move(hearing);
    mDictation = dictating;
    if (wants) wants(mWanted);
}

void Audience::awaited() {
    const auto dictating = mDictation.lock();
    if (!dictating || mWanted.awaited == dictating->awaited) return;
    mWanted.awaited = dictating->awaited;
    if (wants) wants(mWanted);
}

void Audience::focus(WindowHandle window, bool has) {
    if (has ? mFocus == window : mFocus != window) return;
    mFocus = has ? window : 0;
    changed();
}

void Audience::activate(const std::shared_ptr<Dictation>& dictation, bool on) {
    std::erase_if(mDictations, [&](const auto& other) { return other.lock() == dictation; });
    if (on) mDictations.push_back(dictation);
    changed();
}

bool Audience::hears(const Menu& menu) const {
    return menu.active && !menu.commands.empty() && (menu.window == 0 || menu.window == mFocus);
}

std::shared_ptr<Audience::Dictation> Audience::dictation() const {
    return mDictations.empty() ? nullptr : mDictations.back().lock();
}

void Audience::heard(const Sentence& said) {
    if (said.version != mWanted.version || command(said.words)) return;
    if (!mWanted.dates || said.awaited != mWanted.awaited) return;
    for (const auto& value : spokenValues(said.words)) {
        const auto dictating = mDictation.lock();
        if (said.version != mWanted.version || !dictating) return;
        dictating->dictated(value);
    }
}

bool Audience::command(const std::string& words) {
    const auto version = mWanted.version;
    const auto hearing = mHearing;
    bool found = false;
    for (const auto& weak : hearing) {
        const auto menu = weak.lock();
        if (!menu || version != mWanted.version) continue;
        const auto said = std::ranges::find(menu->commands, words, &Menu::Command::words);
        if (said == menu->commands.end()) continue;
        found = true;
        menu->recognized(said->number);
    }
    return found;
}

} // namespace Korvane::voice
