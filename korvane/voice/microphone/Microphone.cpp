#include <korvane/voice/microphone/Microphone.h>

#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Translation.h>
#include <korvane/voice/Resampler.h>
#include <korvane/voice/StreamSource.h>

#include <QAudioDevice>
#include <QAudioSource>
#include <QIODevice>
#include <QMediaDevices>

#include <algorithm>
#include <cstring>
#include <utility>
#include <vector>

namespace Korvane::voice {

namespace {

[[noreturn]] void refuse(const std::string& why) {
    throw RuntimeError(RuntimeError::DeviceIo, why);
}

QAudioDevice deviceNamed(const std::string& name) {
    const auto inputs = QMediaDevices::audioInputs();
    if (inputs.isEmpty()) refuse(translate("Korvane::voice", "No microphone was found."));
    if (name.empty()) return QMediaDevices::defaultAudioInput();
    const auto found = std::ranges::find(inputs, QString::fromStdString(name), &QAudioDevice::description);
    if (found == inputs.end())
        refuse(filled(translate("Korvane::voice", "The microphone \"%1\" was not found."), {name}));
    return *found;
}

/// What recognition takes if the device offers it, else the device's own rate and channels.
QAudioFormat formatFor(const QAudioDevice& device) {
    QAudioFormat format;
    format.setSampleRate(AudioSource::sampleRate);
    format.setChannelCount(1);
    format.setSampleFormat(QAudioFormat::Int16);
    if (device.isFormatSupported(format)) return format;
    format = device.preferredFormat();
    format.setSampleFormat(QAudioFormat::Int16);
    if (!device.isFormatSupported(format))
        refuse(translate("Korvane::voice", "The microphone gives no sound of 16 bits."));
    return format;
}

} // namespace

class Microphone::Device {
  public:
    explicit Device(std::string name) : mName(std::move(name)) {}
    ~Device() { stop(); }

    void start() {
        stop();
        const auto device = deviceNamed(mName);
        const auto format = formatFor(device);
        mResampler.emplace(format.sampleRate(), format.channelCount());
        mSource = std::make_unique<QAudioSource>(device, format);
        stream.Start();
        mInput = mSource->start();
        if (!mInput || mSource->error() != QAudio::NoError) {
            stop();
            refuse(filled(translate("Korvane::voice", "The microphone \"%1\" cannot be opened."),
                          {device.description().toStdString()}));
        }
        QObject::connect(mInput, &QIODevice::readyRead, mSource.get(), [this] { take(); });
        QObject::connect(mSource.get(), &QAudioSource::stateChanged, mSource.get(),
                         [this](QAudio::State state) {
                             if (state == QAudio::StoppedState && mSource->error() != QAudio::NoError)
                                 stream.End(translate("Korvane::voice", "The microphone has gone."));
                         });
    }

    void stop() {
        if (!mSource) return;
        mSource->disconnect();
        mSource->stop();
        mSource.reset();
        mInput = nullptr;
        stream.Stop();
    }

    StreamSource stream;

  private:
    void take() {
        const QByteArray bytes = mBytes + mInput->readAll();
        std::vector<std::int16_t> samples(static_cast<std::size_t>(bytes.size()) / sizeof(std::int16_t));
        const auto whole = samples.size() * sizeof(std::int16_t);
        std::memcpy(samples.data(), bytes.constData(), whole);
        mBytes = bytes.mid(static_cast<qsizetype>(whole));
        stream.Push(mResampler->convert(samples));
    }

    std::string mName;
    std::unique_ptr<QAudioSource> mSource;
    QIODevice* mInput = nullptr; ///< of `mSource`
    QByteArray mBytes;           ///< half a sample
    std::optional<Resampler> mResampler;
};

Microphone::Microphone(std::string device) : mDevice(std::make_unique<Device>(std::move(device))) {}

Microphone::~Microphone() = default;

void Microphone::Start() {
    mDevice->start();
}

void Microphone::Stop() noexcept {
    mDevice->stop();
}

std::optional<std::size_t> Microphone::Read(std::span<std::int16_t> samples,
                                            std::chrono::milliseconds patience) {
    return mDevice->stream.Read(samples, patience);
}

std::string Microphone::WhyEnded() const {
    return mDevice->stream.WhyEnded();
}

} // namespace Korvane::voice
