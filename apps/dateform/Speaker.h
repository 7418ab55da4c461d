#pragma once

#include <korvane/voice/StreamSource.h>

#include <QDir>
#include <QString>

#include <memory>

namespace DateForm {

/// Speaks to the form on its tour: what espeak-ng makes of words goes into the engine as from a microphone.
class Speaker {
  public:
    /// The files go into the directory, which is made when the first one does.
    explicit Speaker(const QDir& directory);

    /// Whether there is something to speak with. It is not needed for anything else.
    static bool isThere();

    std::shared_ptr<Korvane::voice::StreamSource> source() const { return mSource; }

    /// Says the words, and is silent for a moment behind them. Does not wait until they are understood. Fails
    /// when the sound cannot be made.
    void say(const QString& words);

  private:
    QDir mDirectory;
    std::shared_ptr<Korvane::voice::StreamSource> mSource;
};

} // namespace DateForm
