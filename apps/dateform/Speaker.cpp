#include "dateform/Speaker.h"

#include "shared/Failure.h"

#include <korvane/voice/FileSource.h>

#include <QProcess>
#include <QStandardPaths>

#include <algorithm>
#include <cmath>
#include <vector>

namespace DateForm {

namespace voice = Korvane::voice;
using Apps::require;

namespace {

QString program() {
    return QStandardPaths::findExecutable(QStringLiteral("espeak-ng"));
}

/// Not so loud as the program makes it: as somebody speaks into a microphone.
std::vector<std::int16_t> atEase(std::vector<std::int16_t> sound) {
    constexpr double peak = 12000;
    double loudest = 1;
    for (const std::int16_t sample : sound)
        loudest = std::max(loudest, std::abs(static_cast<double>(sample)));
    for (std::int16_t& sample : sound)
        sample = static_cast<std::int16_t>(sample * peak / loudest);
    return sound;
}

} // namespace

Speaker::Speaker(const QDir& directory)
    : mDirectory(directory), mSource(std::make_shared<voice::StreamSource>()) {}

bool Speaker::isThere() {
    return !program().isEmpty();
}

void Speaker::say(const QString& words) {
    require(mDirectory.mkpath(QStringLiteral(".")),
            QStringLiteral("%1 cannot be made.").arg(mDirectory.path()));
    const QString file = mDirectory.filePath(QString(words).replace(u' ', u'-') + QStringLiteral(".wav"));
    constexpr int wordsPerMinute = 120;
    const int code =
        QProcess::execute(program(), {QStringLiteral("-v"), QStringLiteral("en-us"), QStringLiteral("-s"),
                                      QString::number(wordsPerMinute), QStringLiteral("-w"), file, words});
    require(code == 0, QStringLiteral("espeak-ng cannot say \"%1\".").arg(words));
    const std::vector<std::int16_t> silence(voice::AudioSource::sampleRate / 2);
    mSource->Push(silence);
    mSource->Push(atEase(voice::readSoundFile(file.toStdString())));
    mSource->Push(silence);
    mSource->Push(silence);
}

} // namespace DateForm
