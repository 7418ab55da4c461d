#include <korvane/controls/axdate/DateVoice.h>

#include <korvane/controls/container/Text.h>
#include <korvane/runtime/Interaction.h>

#include <QApplication>
#include <QWidget>

#include <utility>

namespace Korvane {

namespace {

constexpr std::int32_t usEnglish = 1033;
constexpr std::int32_t firstMicrophone = 1;

/// Any number will do that no other control has.
voice::WindowHandle handleOf(const QWidget& control) {
    return reinterpret_cast<voice::WindowHandle>(&control);
}

} // namespace

DateVoice::DateVoice(QWidget& control, Commanded commanded, Dictated dictated)
    : mControl(control), mCommanded(std::move(commanded)), mDictated(std::move(dictated)) {}

DateVoice::~DateVoice() {
    const auto from = mEngine.lock();
    if (from && mHasFocus) from->WindowFocus(handleOf(mControl), false);
}

/// The parts go with the engine that made them.
std::shared_ptr<voice::SpeechEngine> DateVoice::engine() {
    const auto current = voice::current();
    if (current && current == mEngine.lock()) return current;
    mMenu.reset();
    VCmd.reset();
    deDate.reset();
    DgnMicBtn1.reset();
    mHasFocus = mIsDictating = false;
    mEngine = current;
    focusMoved(); // it may be there already
    return current;
}

voice::VoiceCommandControl* DateVoice::commands() {
    if (const auto from = engine(); from && !VCmd) {
        VCmd = from->MakeVoiceCommand();
        mCommandHandle = VCmd->CommandRecognized.connect(mCommanded);
    }
    return VCmd.get();
}

voice::DictationControl* DateVoice::dictation() {
    if (const auto from = engine(); from && !deDate) {
        deDate = from->MakeDictation();
        mDictatedHandle = deDate->Dictated.connect(mDictated);
    }
    return deDate.get();
}

void DateVoice::create() {
    followFocus(true);
    const auto from = engine();
    if (!from) return;
    commands()->Initialize("", 1);
    DgnMicBtn1 = from->MakeMicrophone();
    DgnMicBtn1->SetUp(firstMicrophone);
    dictation()->Register();
    deDate->Language(usEnglish);
    deDate->DateWords(true);
}

void DateVoice::buildMenu(std::string_view nextField, std::string_view previousField) {
    dropMenu();
    if (!commands()) return tellAbsence();
    auto menu = VCmd->MenuCreate("AxDate Control", "Function Menu", usEnglish, "", 1);
    menu->Add(1, nextField, "Navigation", "Moves to next field in date control.");
    menu->Add(2, previousField, "Navigation", "Moves to previous field in date control.");
    menu->Attach(handleOf(mControl));
    menu->Activate(true);
    mMenu = std::move(menu);
}

void DateVoice::dropMenu() {
    mMenu.reset();
}

void DateVoice::activateMenu(bool on) {
    if (mMenu) mMenu->Activate(on);
}

void DateVoice::await(voice::DatePart part) {
    mAwaited = part;
    if (mIsDictating && dictation()) deDate->Awaited(part);
}

void DateVoice::activateDictation(bool on) {
    if (on == mIsDictating || !dictation()) return;
    if (on) deDate->Awaited(mAwaited);
    deDate->Activate(on);
    mIsDictating = on;
    mWasAway = false;
}

void DateVoice::followFocus(bool on) {
    if (on && !mWatch) mWatch = connect(qApp, &QApplication::focusChanged, this, &DateVoice::focusMoved);
    if (!on) disconnect(mWatch);
    focusMoved();
}

/// Also when another window came in front, which is no leaving: there, another control may have dictated.
void DateVoice::focusMoved() {
    const QWidget* now = QApplication::focusWidget();
    const bool has = mWatch && now && mControl.isAncestorOf(now);
    const auto from = mEngine.lock();
    if (has == mHasFocus || !from) return;
    mHasFocus = has;
    from->WindowFocus(handleOf(mControl), has);
    if (has && mIsDictating && mWasAway) deDate->Activate(true);
    mWasAway = !has && mIsDictating;
}

/// Once the host has shown its form. The next control that has its voice on is not another reason.
void DateVoice::tellAbsence() {
    const auto tell = [] {
        static std::string told;
        const std::string why = voice::whyAbsent();
        if (why.empty() || std::exchange(told, why) == why) return;
        const QString text = tr("%1 Dates can be entered by hand.").arg(qt(why));
        Interaction::current().MsgBox(utf8(text), MsgBoxStyle::Information, utf8(tr("Voice")));
    };
    QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
}

} // namespace Korvane
