#pragma once

#include <korvane/runtime/Interaction.h>

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Korvane::Testing {

/// A message box that was shown.
struct ShownBox {
    std::string text;
    int style = 0;
    std::string title;
    bool operator==(const ShownBox&) const = default;
    friend void PrintTo(const ShownBox& box, std::ostream* out) {
        *out << '"' << box.text << "\" (" << box.style << ", \"" << box.title << "\")";
    }
};

/// An input box that was shown.
struct ShownInput {
    std::string prompt;
    std::string title;
    bool operator==(const ShownInput&) const = default;
};

/// Records every box and answers from its queues. With nothing queued it answers as the default does: Ok
/// where that is the only button, else Cancel or No; an input box counts as cancelled.
class RecordingInteraction : public Interaction {
  public:
    std::vector<ShownBox> boxes;
    std::vector<ShownInput> inputs;
    std::deque<Answer> answers;
    std::deque<std::optional<std::string>> texts;
    /// Runs while a box is up.
    std::function<void()> whenShown;

    Answer MsgBox(std::string_view text, int style, std::string_view title) override {
        boxes.push_back({std::string(text), style, std::string(title)});
        if (whenShown) whenShown();
        if (answers.empty()) return refusal(style);
        return takeFront(answers);
    }

    std::optional<std::string> InputBox(std::string_view prompt, std::string_view title) override {
        inputs.push_back({std::string(prompt), std::string(title)});
        if (whenShown) whenShown();
        if (texts.empty()) return std::nullopt;
        return takeFront(texts);
    }

    void clear() {
        boxes.clear();
        inputs.clear();
    }

  private:
    template <typename T>
    static T takeFront(std::deque<T>& queue) {
        T front = std::move(queue.front());
        queue.pop_front();
        return front;
    }
};

/// Puts a RecordingInteraction in force for as long as it lives.
///
///     RecordedInteraction user;
///     user->answers = {Answer::Yes};
///     ...
///     EXPECT_EQ(user->boxes.at(0).text, "Delete it?");
class RecordedInteraction {
  public:
    RecordedInteraction() : mPrevious(Interaction::install(mRecorder)) {}
    ~RecordedInteraction() { Interaction::install(std::move(mPrevious)); }
    RecordedInteraction(const RecordedInteraction&) = delete;
    RecordedInteraction& operator=(const RecordedInteraction&) = delete;

    RecordingInteraction* operator->() const { return mRecorder.get(); }
    RecordingInteraction& operator*() const { return *mRecorder; }

  private:
    std::shared_ptr<RecordingInteraction> mRecorder = std::make_shared<RecordingInteraction>();
    std::shared_ptr<Interaction> mPrevious;
};

} // namespace Korvane::Testing
