#include <korvane/runtime/HeldMessages.h>

#include <korvane/runtime/Interaction.h>

#include <string>
#include <vector>

namespace Korvane {

class HeldMessages::Keeper : public Interaction {
  public:
    struct Box {
        std::string text;
        int style;
        std::string title;
    };

    std::shared_ptr<Interaction> before;
    std::vector<Box> kept;

    Answer MsgBox(std::string_view text, int style, std::string_view title) override {
        const Answer answer = refusal(style);
        if (answer != Answer::Ok) return before->MsgBox(text, style, title); // there is a choice to make
        kept.push_back({std::string(text), style, std::string(title)});
        return answer;
    }

    std::optional<std::string> InputBox(std::string_view prompt, std::string_view title) override {
        return before->InputBox(prompt, title);
    }
};

HeldMessages::HeldMessages() : mKeeper(std::make_shared<Keeper>()) {
    mKeeper->before = Interaction::install(mKeeper);
}

HeldMessages::~HeldMessages() {
    Interaction::install(mKeeper->before);
    for (const Keeper::Box& box : mKeeper->kept) {
        try {
            Interaction::current().MsgBox(box.text, box.style, box.title);
        } catch (...) {
            // The work that it tells of is over.
        }
    }
}

} // namespace Korvane
