#include <korvane/controls/axdate/axDate.h>

#include <korvane/controls/axdate/DatePartBox.h>
#include <korvane/controls/axdate/DateVoice.h>
#include <korvane/controls/container/Text.h>

#include <QApplication>

#include <algorithm>

namespace Korvane {

namespace {

/// Round and round: a spoken command never leaves the control.
int boxAfterCommand(std::int32_t number, int box) {
    constexpr int boxes = 3;
    switch (number) {
    case 1:
        return (box + 1) % boxes;
    case 2:
        return (box + boxes - 1) % boxes;
    default:
        return 0;
    }
}

} // namespace

void axDate::makeVoice() {
    mVoice = std::make_unique<DateVoice>(
        *this, [this](std::int32_t number) { commandRecognized(number); },
        [this](const std::string& words) {
            if (isListening()) emit Dictated(qt(words));
        });
}

void axDate::setupVoiceMenu() {
    if (!mDragonSpeechEnabled || designMode()) return mVoice->dropMenu();
    mVoice->buildMenu(utf8(mNextFieldCommand), utf8(mPreviousFieldCommand));
}

/// Switched off, it is silent at once, also with the focus inside.
void axDate::switchVoice() {
    mVoice->followFocus(mDragonSpeechEnabled);
    mVoice->activateMenu(mDragonSpeechEnabled);
    mVoice->activateDictation(mDragonSpeechEnabled && mFocus->isInside());
}

/// What was said may arrive when the focus is elsewhere, or below a menu or a message box, which may have
/// come up and not got the focus yet.
bool axDate::isListening() const {
    const QWidget* modal = QApplication::activeModalWidget();
    if (!mDragonSpeechEnabled || !mEnlivened || QApplication::activePopupWidget() ||
        (modal && modal != window()))
        return false;
    return std::any_of(mBoxes.begin(), mBoxes.end(),
                       [](const DatePartBox* each) { return each->hasFocus(); });
}

void axDate::commandRecognized(std::int32_t number) {
    if (isListening()) focusBox(boxAfterCommand(number, mIndex));
}

} // namespace Korvane
