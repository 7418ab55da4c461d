#include <korvane/voice/pocketsphinx/PocketSphinx.h>

#include <korvane/voice/pocketsphinx/Controls.h>
#include <korvane/voice/pocketsphinx/SharedMicrophone.h>

#include <utility>

namespace Korvane::voice {

namespace {

class PocketSphinxEngine : public SpeechEngine {
  public:
    PocketSphinxEngine(std::shared_ptr<AudioSource> source, const Post& post,
                       const std::filesystem::path& model)
        : mMicrophone(std::make_shared<SharedMicrophone>(std::move(source))),
          mListener(mMicrophone->source(), std::make_unique<Decoder>(model), reports(post)) {
        mMicrophone->reader(&mListener);
        mAudience->wants = [this](const Wanted& wanted) { mListener.want(wanted); };
    }

    ~PocketSphinxEngine() override {
        mAudience->wants = nullptr;
        mMicrophone->on(false);
        mMicrophone->reader(nullptr);
    }

    std::unique_ptr<VoiceCommandControl> MakeVoiceCommand() override { return makeVoiceCommand(mAudience); }
    std::unique_ptr<DictationControl> MakeDictation() override { return makeDictation(mAudience); }
    std::unique_ptr<MicrophoneSwitch> MakeMicrophone() override { return makeSwitch(mMicrophone); }
    void WindowFocus(WindowHandle window, bool has) override { mAudience->focus(window, has); }

  private:
    /// Each report goes on to the user-interface thread, and to nobody when the engine is gone by then.
    Listener::Reports reports(const Post& post) {
        const std::weak_ptr audience = mAudience;
        const std::weak_ptr microphone = mMicrophone;
        return {
            [post, audience](const Sentence& said) {
                post([audience, said] {
                    if (const auto there = audience.lock()) there->heard(said);
                });
            },
            [post, microphone](std::uint64_t session, const std::string& why) {
                post([microphone, session, why] {
                    if (const auto there = microphone.lock()) there->ended(session, why);
                });
            },
            [post, microphone](const std::string& why) {
                post([microphone, why] {
                    if (const auto there = microphone.lock()) there->problem(why);
                });
            },
        };
    }

    std::shared_ptr<Audience> mAudience = std::make_shared<Audience>();
    std::shared_ptr<SharedMicrophone> mMicrophone;
    Listener mListener;
};

} // namespace

std::shared_ptr<SpeechEngine> openPocketSphinx(std::shared_ptr<AudioSource> source, const Post& post,
                                               const std::filesystem::path& model) {
    return std::make_shared<PocketSphinxEngine>(
        std::move(source), post, model.empty() ? std::filesystem::path(KORVANE_SPEECH_MODEL) : model);
}

} // namespace Korvane::voice
