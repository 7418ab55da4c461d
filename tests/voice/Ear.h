#pragma once

#include "voice/Speech.h"

#include <korvane/voice/SpeechEngine.h>
#include <korvane/voice/StreamSource.h>
#include <korvane/voice/pocketsphinx/PocketSphinx.h>

#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace Korvane::Testing {

/// Stands for the event loop of a window.
class Loop {
  public:
    void post(std::function<void()> work) {
        const std::lock_guard lock(mMutex);
        mWork.push_back(std::move(work));
        mPosted.notify_one();
    }

    /// Runs what is posted until the condition holds; false when it does not in time.
    bool runUntil(const std::function<bool()>& condition,
                  std::chrono::seconds patience = std::chrono::seconds(30)) {
        const auto end = std::chrono::steady_clock::now() + patience;
        std::unique_lock lock(mMutex);
        while (!condition()) {
            if (!mPosted.wait_until(lock, end, [this] { return !mWork.empty(); })) return false;
            auto work = std::move(mWork.front());
            mWork.pop_front();
            lock.unlock();
            work();
            lock.lock();
        }
        return true;
    }

  private:
    std::mutex mMutex;
    std::condition_variable mPosted;
    std::deque<std::function<void()>> mWork;
};

/// A control that listens to an engine: two commands, and dates.
class Ear {
  public:
    static constexpr voice::WindowHandle window = 7;

    Ear() {
        menu->Add(1, "Next Field", "Navigation", "");
        menu->Add(2, "Previous Field", "Navigation", "");
        menu->Attach(window);
        menu->Activate(true);
        engine->WindowFocus(window, true);
        dictation->Activate(true);
    }

    /// What is heard of a sound: "1" and "2" for the commands, dictated words as they come.
    std::vector<std::string> hear(const Sound& sound) {
        heard.clear();
        microphone->On(true);
        source->Push(sound);
        source->End("The sound has ended.");
        loop->runUntil([this] { return !microphone->On(); });
        return heard;
    }

    std::shared_ptr<Loop> loop = std::make_shared<Loop>();
    std::shared_ptr<voice::StreamSource> source = std::make_shared<voice::StreamSource>();
    std::shared_ptr<voice::SpeechEngine> engine = voice::openPocketSphinx(
        source, [posted = loop](std::function<void()> work) { posted->post(std::move(work)); });
    std::unique_ptr<voice::VoiceCommandControl> commands = engine->MakeVoiceCommand();
    std::unique_ptr<voice::VoiceMenu> menu = commands->MenuCreate("Ear", "Menu", 1033, "", 1);
    std::unique_ptr<voice::DictationControl> dictation = engine->MakeDictation();
    std::unique_ptr<voice::MicrophoneSwitch> microphone = engine->MakeMicrophone();
    std::vector<std::string> heard;

  private:
    EventHandle mCommand = commands->CommandRecognized.connect(
        [this](std::int32_t number) { heard.push_back(std::to_string(number)); });
    EventHandle mDictated =
        dictation->Dictated.connect([this](const std::string& words) { heard.push_back(words); });
};

} // namespace Korvane::Testing
