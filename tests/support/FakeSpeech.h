#pragma once

#include <korvane/runtime/RuntimeError.h>
#include <korvane/voice/SpeechEngine.h>

#include <algorithm>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace Korvane::Testing {

/// Installed while it lives: an engine that writes down what is asked of it, in order, and says what it is
/// told to. Windows are named A, B and so on, in the order in which it hears of them.
class FakeSpeech {
  public:
    FakeSpeech() : mBefore(voice::install(std::make_shared<Engine>(*this))) {}
    ~FakeSpeech() { voice::install(mBefore); }
    FakeSpeech(const FakeSpeech&) = delete;
    FakeSpeech& operator=(const FakeSpeech&) = delete;

    /// Words that `Add` refuses.
    std::string unpronounceable;
    /// Why the microphone cannot be switched on; empty when it can.
    std::string noSound;

    /// What was asked for since this was last asked.
    std::vector<std::string> take() { return std::exchange(mCalls, {}); }

    /// As heard by the control that was set up as the nth, whatever the state of its menu and its focus: also
    /// what was said before is delivered later.
    void command(std::int32_t number, std::size_t nth = 0) {
        mCommands.at(nth)->CommandRecognized.raise(number);
    }
    void dictate(const std::string& words, std::size_t nth = 0) {
        mDictations.at(nth)->Dictated.raise(words);
    }

  private:
    struct Menu : voice::VoiceMenu {
        FakeSpeech& log;
        explicit Menu(FakeSpeech& to) : log(to) {}
        ~Menu() override { log.write("menu ends"); }
        void Add(std::int32_t number, std::string_view words, std::string_view category,
                 std::string_view description) override {
            if (words == log.unpronounceable) throw RuntimeError(5, "Nobody can say that.");
            log.write("Add", number, words, category, description);
        }
        void Attach(voice::WindowHandle window) override { log.write("Attach", log.name(window)); }
        void Activate(bool on) override { log.write("Activate", on); }
    };
    struct Commands : voice::VoiceCommandControl {
        FakeSpeech& log;
        explicit Commands(FakeSpeech& to) : log(to) {}
        void Initialize(std::string_view user, std::int32_t number) override {
            log.write("VCmd.Initialize", '"' + std::string(user) + '"', number);
        }
        std::unique_ptr<voice::VoiceMenu> MenuCreate(std::string_view application, std::string_view state,
                                                     std::int32_t language, std::string_view dialect,
                                                     std::int32_t flags) override {
            log.write("VCmd.MenuCreate", application, state, language, '"' + std::string(dialect) + '"',
                      flags);
            return std::make_unique<Menu>(log);
        }
    };
    struct Dictation : voice::DictationControl {
        FakeSpeech& log;
        explicit Dictation(FakeSpeech& to) : log(to) {}
        void Register() override { log.write("deDate.Register"); }
        std::int32_t Language() const override { return 0; }
        void Language(std::int32_t language) override { log.write("deDate.Language", language); }
        bool DateWords() const override { return false; }
        void DateWords(bool on) override { log.write("deDate.DateWords", on); }
        voice::DatePart Awaited() const override { return voice::DatePart::Any; }
        void Awaited(voice::DatePart part) override {
            constexpr const char* names[] = {"Any", "Month", "Day", "Year"};
            log.write("deDate.Awaited", names[static_cast<int>(part)]);
        }
        void Activate(bool on) override { log.write("deDate.Activate", on); }
    };
    struct Microphone : voice::MicrophoneSwitch {
        FakeSpeech& log;
        explicit Microphone(FakeSpeech& to) : log(to) {}
        void SetUp(std::int32_t number) override { log.write("DgnMicBtn1.SetUp", number); }
        bool On() const override { return isOn; }
        void On(bool on) override {
            if (on && !log.noSound.empty()) throw RuntimeError(5, log.noSound);
            isOn = on;
            Changed.raise(on);
        }
        std::string Status() const override { return isOn ? "It is on." : "It is off."; }
        bool isOn = false;
    };
    struct Engine : voice::SpeechEngine {
        FakeSpeech& log;
        explicit Engine(FakeSpeech& to) : log(to) {}
        std::unique_ptr<voice::VoiceCommandControl> MakeVoiceCommand() override {
            auto made = std::make_unique<Commands>(log);
            log.mCommands.push_back(made.get());
            return made;
        }
        std::unique_ptr<voice::DictationControl> MakeDictation() override {
            auto made = std::make_unique<Dictation>(log);
            log.mDictations.push_back(made.get());
            return made;
        }
        std::unique_ptr<voice::MicrophoneSwitch> MakeMicrophone() override {
            return std::make_unique<Microphone>(log);
        }
        void WindowFocus(voice::WindowHandle window, bool has) override {
            log.write(log.name(window), has ? "has the focus" : "lost the focus");
        }
    };

    template <typename... Parts>
    void write(const Parts&... parts) {
        std::ostringstream line;
        line << std::boolalpha;
        const char* gap = "";
        ((line << std::exchange(gap, " ") << parts), ...);
        mCalls.push_back(line.str());
    }
    std::string name(voice::WindowHandle window) {
        auto found = std::find(mWindows.begin(), mWindows.end(), window);
        if (found == mWindows.end()) found = mWindows.insert(found, window);
        return {static_cast<char>('A' + (found - mWindows.begin()))};
    }

    std::vector<std::string> mCalls;
    std::vector<voice::WindowHandle> mWindows;
    std::vector<Commands*> mCommands;
    std::vector<Dictation*> mDictations;
    std::shared_ptr<voice::SpeechEngine> mBefore;
};

} // namespace Korvane::Testing
