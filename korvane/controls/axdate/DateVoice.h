#pragma once

#include <korvane/voice/SpeechEngine.h>

#include <QObject>

#include <functional>
#include <string_view>

class QWidget;

namespace Korvane {

/// What a date control listens with: its voice commands (`VCmd`), its dictation (`deDate`) and its microphone
/// (`DgnMicBtn1`). Each is taken from the installed engine when it is first needed, so that nothing is
/// touched for a control that has its voice off. Without an engine nothing happens.
///
/// The engine hears of the control's focus from here, also when another window comes in front of its own.
class DateVoice : public QObject {
    Q_OBJECT

  public:
    /// Told which command was said.
    using Commanded = std::function<void(std::int32_t number)>;
    /// Told what was dictated.
    using Dictated = std::function<void(const std::string& words)>;

    /// What is heard may delete the control by `deleteLater`, and this with it.
    DateVoice(QWidget& control, Commanded commanded, Dictated dictated);
    ~DateVoice() override;

    /// What is done for a control that has its voice on when it is made.
    void create();

    /// Builds the menu of the two navigation commands, in place of an earlier one. Raises `RuntimeError` when
    /// the engine refuses the words: there is no menu then. Where there is no engine the user is told why, in
    /// a box, once for each reason and after the events at hand.
    void buildMenu(std::string_view nextField, std::string_view previousField);
    void dropMenu();

    /// Whether the engine hears of the control's focus: for as long as the voice is on. Default false.
    void followFocus(bool on);

    /// Listening for the commands starts and ends; does nothing where there is no menu.
    void activateMenu(bool on);

    /// The part of the date whose box has the focus, which the values to come are for.
    void await(voice::DatePart part);

    /// Listening for values starts and ends. Ending it where it was not started does nothing.
    void activateDictation(bool on);

  private:
    std::shared_ptr<voice::SpeechEngine> engine();
    voice::VoiceCommandControl* commands();
    voice::DictationControl* dictation();
    void focusMoved();
    void tellAbsence();

    QWidget& mControl;
    Commanded mCommanded;
    Dictated mDictated;
    std::weak_ptr<voice::SpeechEngine> mEngine; ///< the one that the parts are from
    std::unique_ptr<voice::VoiceCommandControl> VCmd;
    std::unique_ptr<voice::VoiceMenu> mMenu;
    std::unique_ptr<voice::DictationControl> deDate;
    std::unique_ptr<voice::MicrophoneSwitch> DgnMicBtn1;
    QMetaObject::Connection mWatch;
    EventHandle mCommandHandle, mDictatedHandle;
    voice::DatePart mAwaited = voice::DatePart::Any;
    bool mHasFocus = false;
    bool mIsDictating = false;
    bool mWasAway = false; ///< with the dictation on, which may have passed to another control
};

} // namespace Korvane
