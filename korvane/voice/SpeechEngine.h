#pragma once

#include <korvane/voice/DictationControl.h>
#include <korvane/voice/MicrophoneSwitch.h>
#include <korvane/voice/VoiceCommandControl.h>
#include <korvane/voice/WindowHandle.h>

#include <memory>
#include <string>

namespace Korvane::voice {

/// What understands speech. A host installs one, and the controls that listen take their parts from it:
///
///     voice::install(voice::openPocketSphinx(std::make_unique<voice::Microphone>(), post));
///     ...
///     if (auto engine = voice::current()) commands = engine->MakeVoiceCommand();
///     else say(voice::whyAbsent());
///
/// Everything is called on the user-interface thread, and every event comes there; the sound is worked on
/// elsewhere. What an engine made may outlive it, and is silent then.
class SpeechEngine {
  public:
    virtual ~SpeechEngine() = default;

    /// The parts that a control or a form listens with. Each caller gets its own.
    virtual std::unique_ptr<VoiceCommandControl> MakeVoiceCommand() = 0;
    virtual std::unique_ptr<DictationControl> MakeDictation() = 0;
    virtual std::unique_ptr<MicrophoneSwitch> MakeMicrophone() = 0;

    /// A window has got or lost the focus. Its owner tells, so that of two controls on a form the right one
    /// hears; a loss that is told after another window's gain changes nothing.
    virtual void WindowFocus(WindowHandle window, bool has) = 0;
};

/// The engine of this process, or null: then voice is not there, and everything works by hand.
std::shared_ptr<SpeechEngine> current();

/// Installs an engine and returns the one before. Controls take their parts when they are set up, so install
/// it before the forms are made, and take it back (null) before what its `Post` goes to ends. For null, `why`
/// is what `whyAbsent` says from then on; an empty text stands for the usual one.
std::shared_ptr<SpeechEngine> install(std::shared_ptr<SpeechEngine> engine, std::string why = {});

/// Why there is no engine, in a sentence for the user; empty when there is one.
std::string whyAbsent();

} // namespace Korvane::voice
