#include <korvane/controls/buttons/ButtonFocus.h>

#include <korvane/controls/buttons/PanelButton.h>
#include <korvane/controls/container/Keys.h>

#include <QScopedValueRollback>

#include <algorithm>
#include <iterator>

namespace Korvane {

namespace {

constexpr int none = -1;

bool isUsable(const PanelButton& button) {
    return button.isEnabled() && !button.isHidden();
}

} // namespace

void ButtonFocus::add(PanelButton& button) {
    mButtons.push_back(&button);
    button.setFocusPolicy(Qt::ClickFocus);
    setCurrent(static_cast<int>(mCurrent));
}

int ButtonFocus::indexOf(const PanelButton& button) const {
    return static_cast<int>(
        std::distance(mButtons.begin(), std::find(mButtons.begin(), mButtons.end(), &button)));
}

/// The first usable one from `index` on, which may be beyond an end.
int ButtonFocus::next(int index, int by) const {
    for (; index >= 0 && index < std::ssize(mButtons); index += by)
        if (isUsable(*mButtons[static_cast<std::size_t>(index)])) return index;
    return none;
}

int ButtonFocus::nearest(int index) const {
    const int after = next(index, 1), before = next(index, -1);
    if (after == none || before == none) return std::max(after, before);
    return after - index <= index - before ? after : before;
}

void ButtonFocus::setCurrent(int index) {
    mButtons[mCurrent]->setFocusPolicy(Qt::ClickFocus);
    mCurrent = static_cast<std::size_t>(index);
    current().setFocusPolicy(Qt::StrongFocus);
    mPanel.setFocusProxy(&current());
}

void ButtonFocus::focus(int index) const {
    if (index != none) mButtons[static_cast<std::size_t>(index)]->setFocus(Qt::TabFocusReason);
}

void ButtonFocus::entered(const PanelButton& button) {
    setCurrent(indexOf(button));
    if (!mPassingOn) mLastUsed = indexOf(button);
}

void ButtonFocus::usableChanged() {
    if (current().hasFocus() && isUsable(current())) return;
    const int usable = nearest(mLastUsed);
    if (usable != none) setCurrent(usable);
}

bool ButtonFocus::passOn(const PanelButton& button) {
    const int usable = nearest(indexOf(button));
    const QScopedValueRollback passing(mPassingOn, true);
    focus(usable);
    return usable != none;
}

bool ButtonFocus::take(const PanelButton& button, const QKeyEvent& key) {
    const int index = mLastUsed = indexOf(button);
    if (!isPlain(key)) return false;
    const int last = static_cast<int>(std::ssize(mButtons)) - 1;
    const int right = mPanel.layoutDirection() == Qt::RightToLeft ? -1 : 1;
    const auto moveTo = [this](int from, int by) {
        focus(next(from, by));
        return true;
    };
    switch (key.key()) {
    case Qt::Key_Up:
        return moveTo(index - 1, -1);
    case Qt::Key_Down:
        return moveTo(index + 1, 1);
    case Qt::Key_Left:
        return moveTo(index - right, -right);
    case Qt::Key_Right:
        return moveTo(index + right, right);
    case Qt::Key_Home:
        return moveTo(0, 1);
    case Qt::Key_End:
        return moveTo(last, -1);
    default:
        return false;
    }
}

} // namespace Korvane
