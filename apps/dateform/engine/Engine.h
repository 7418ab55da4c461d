#pragma once

#include <korvane/voice/AudioSource.h>
#include <korvane/voice/SpeechEngine.h>

#include <QString>

#include <memory>

namespace DateForm {

/// The sound of a file, or of the microphone when none is named; null in a build without voice.
std::shared_ptr<Korvane::voice::AudioSource> soundFrom(const QString& file);

/// The speech engine of this build on a sound; null in a build without one. Raises `RuntimeError` when it
/// cannot be opened.
std::shared_ptr<Korvane::voice::SpeechEngine> openEngine(std::shared_ptr<Korvane::voice::AudioSource> source);

/// The speech engine, installed while this lives; where there is none, the controls can tell why.
class InstalledEngine {
  public:
    explicit InstalledEngine(std::shared_ptr<Korvane::voice::AudioSource> source);
    ~InstalledEngine();
    InstalledEngine(const InstalledEngine&) = delete;
    InstalledEngine& operator=(const InstalledEngine&) = delete;
};

} // namespace DateForm
