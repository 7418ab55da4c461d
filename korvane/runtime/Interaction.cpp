#include <korvane/runtime/Interaction.h>

#include <iostream>
#include <utility>

namespace Korvane {

namespace {

class StandardErrorInteraction : public Interaction {
  public:
    Answer MsgBox(std::string_view text, int style, std::string_view title) override {
        if (!title.empty()) std::cerr << title << ": ";
        std::cerr << text << std::endl;
        return refusal(style);
    }

    std::optional<std::string> InputBox(std::string_view, std::string_view) override { return std::nullopt; }
};

std::shared_ptr<Interaction>& installed() {
    static std::shared_ptr<Interaction> interaction = std::make_shared<StandardErrorInteraction>();
    return interaction;
}

} // namespace

Answer Interaction::refusal(int style) {
    constexpr int buttonSet = 15;
    switch (style & buttonSet) {
    case MsgBoxStyle::OkOnly:
        return Answer::Ok;
    case MsgBoxStyle::YesNo:
        return Answer::No;
    default:
        return Answer::Cancel;
    }
}

Interaction& Interaction::current() {
    return *installed();
}

bool Interaction::isDefault() {
    return dynamic_cast<const StandardErrorInteraction*>(installed().get()) != nullptr;
}

std::shared_ptr<Interaction> Interaction::install(std::shared_ptr<Interaction> interaction) {
    if (!interaction) interaction = std::make_shared<StandardErrorInteraction>();
    return std::exchange(installed(), std::move(interaction));
}

} // namespace Korvane
