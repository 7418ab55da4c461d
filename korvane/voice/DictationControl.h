#pragma once

#include <korvane/runtime/Event.h>
#include <korvane/voice/DatePart.h>

#include <cstdint>
#include <string>

namespace Korvane::voice {

/// What is dictated into one control, made by `SpeechEngine::MakeDictation`.
///
///     auto dictation = engine.MakeDictation();
///     EventHandle h = dictation->Dictated.connect([](const std::string& words) { ... });
///     dictation->Activate(true);    // the control has got the focus
///
/// Used on the user-interface thread only.
class DictationControl {
  public:
    virtual ~DictationControl() = default;

    /// Announces the control to the engine. Activating one that is not registered registers it.
    virtual void Register() = 0;

    /// The language of the words, a number as in `VoiceCommandControl::MenuCreate`. Default 1033. Setting one
    /// that the engine does not speak raises `RuntimeError` 5 and leaves it as it was.
    virtual std::int32_t Language() const = 0;
    virtual void Language(std::int32_t language) = 0;

    /// Whether the words are parts of dates: month names and numbers. Default true. False means free text,
    /// for which an engine may have no words: then nothing is delivered.
    virtual bool DateWords() const = 0;
    virtual void DateWords(bool on) = 0;

    /// Which part of a date the next words are for, as the box has it that has the focus. Default `Any`. An
    /// engine may use it to tell numbers that sound alike: what the part cannot be is then not recognised. A
    /// whole date is always understood, and so is the name of a month. What counts is the part at the moment
    /// at which somebody begins to speak: words for a part that is awaited no more are dropped.
    virtual DatePart Awaited() const = 0;
    virtual void Awaited(DatePart part) = 0;

    /// Listening starts and ends. While several are active, the one activated last is delivered to. A word
    /// that was said before the end and not yet delivered is dropped.
    virtual void Activate(bool on) = 0;

    /// Words were said: one value each time, as it was said and in lower case: "november", "fifteen", "twenty
    /// twenty six". A date said in one go is delivered as its values, in their order. See `spokenNumber` for
    /// the digits. Raised on the user-interface thread.
    Event<const std::string&> Dictated;
};

} // namespace Korvane::voice
