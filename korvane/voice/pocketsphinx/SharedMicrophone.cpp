#include <korvane/voice/pocketsphinx/SharedMicrophone.h>

#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Translation.h>

#include <utility>

namespace Korvane::voice {

namespace {

class Switch : public MicrophoneSwitch {
  public:
    explicit Switch(std::shared_ptr<SharedMicrophone> microphone)
        : mMicrophone(std::move(microphone)),
          mHandle(mMicrophone->Changed.connect([this](bool on) { Changed.raise(on); })) {}

    void SetUp(std::int32_t number) override {
        if (number != 1) throw RuntimeError(RuntimeError::SubscriptOutOfRange);
    }
    bool On() const override { return mMicrophone->on(); }
    void On(bool on) override { mMicrophone->on(on); }
    std::string Status() const override { return mMicrophone->status(); }

  private:
    std::shared_ptr<SharedMicrophone> mMicrophone;
    EventHandle mHandle;
};

} // namespace

void SharedMicrophone::on(bool on) {
    if (on == this->on()) return;
    if (!on) {
        off(translate("Korvane::voice", "The microphone is off."));
        return;
    }
    if (!mListener)
        throw RuntimeError(RuntimeError::ObjectClosed,
                           translate("Korvane::voice", "The speech engine has been closed."));
    mSource->Start();
    mSession = ++mSessions;
    mStatus = translate("Korvane::voice", "The microphone is on.");
    mListener->listen(mSession);
    Changed.raise(true);
}

void SharedMicrophone::ended(std::uint64_t session, const std::string& why) {
    if (session == mSession) off(why.empty() ? mSource->WhyEnded() : why);
}

void SharedMicrophone::off(std::string why) {
    if (mListener) mListener->pause();
    mSource->Stop();
    mSession = 0;
    mStatus = std::move(why);
    Changed.raise(false);
}

std::unique_ptr<MicrophoneSwitch> makeSwitch(const std::shared_ptr<SharedMicrophone>& microphone) {
    return std::make_unique<Switch>(microphone);
}

} // namespace Korvane::voice
