#include <korvane/voice/pocketsphinx/Controls.h>

#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Translation.h>

#include <utility>

namespace Korvane::voice {

namespace {

constexpr std::int32_t usEnglish = 1033;

void checkLanguage(std::int32_t language) {
    if (language != usEnglish)
        throw RuntimeError(RuntimeError::InvalidProcedureCall,
                           filled(translate("Korvane::voice",
                                            "The speech engine speaks US English (1033), not language %1."),
                                  {std::to_string(language)}));
}

void changed(const std::weak_ptr<Audience>& weak) {
    if (const auto audience = weak.lock()) audience->changed();
}

class Menu : public VoiceMenu {
  public:
    Menu(std::weak_ptr<Audience> audience, std::shared_ptr<Audience::Menu> menu)
        : mAudience(std::move(audience)), mMenu(std::move(menu)) {}

    /// Whoever is just being told of a command may still hold it.
    ~Menu() override { Menu::Activate(false); }

    void Add(std::int32_t number, std::string_view words, std::string_view, std::string_view) override {
        mMenu->commands.push_back({number, commandWords(words)});
        if (mMenu->active) changed(mAudience);
    }
    void Attach(WindowHandle window) override {
        mMenu->window = window;
        if (mMenu->active) changed(mAudience);
    }
    void Activate(bool on) override {
        if (std::exchange(mMenu->active, on) != on) changed(mAudience);
    }

  private:
    std::weak_ptr<Audience> mAudience;
    std::shared_ptr<Audience::Menu> mMenu;
};

class Commands : public VoiceCommandControl {
  public:
    explicit Commands(std::weak_ptr<Audience> audience) : mAudience(std::move(audience)) {}

    void Initialize(std::string_view, std::int32_t) override {}

    std::unique_ptr<VoiceMenu> MenuCreate(std::string_view, std::string_view, std::int32_t language,
                                          std::string_view, std::int32_t) override {
        checkLanguage(language);
        auto menu = std::make_shared<Audience::Menu>();
        menu->recognized = [link = std::weak_ptr(mLink)](std::int32_t number) {
            if (const auto alive = link.lock()) (*alive)->CommandRecognized.raise(number);
        };
        if (const auto audience = mAudience.lock()) audience->add(menu);
        return std::make_unique<Menu>(mAudience, std::move(menu));
    }

  private:
    std::weak_ptr<Audience> mAudience;
    std::shared_ptr<Commands*> mLink = std::make_shared<Commands*>(this);
};

class DateDictation : public DictationControl {
  public:
    explicit DateDictation(std::weak_ptr<Audience> audience) : mAudience(std::move(audience)) {
        mDictation->dictated = [this](const std::string& words) { Dictated.raise(words); };
    }
    ~DateDictation() override { DateDictation::Activate(false); }

    void Register() override {}
    std::int32_t Language() const override { return usEnglish; }
    void Language(std::int32_t language) override { checkLanguage(language); }
    bool DateWords() const override { return mDictation->dates; }
    void DateWords(bool on) override {
        mDictation->dates = on;
        changed(mAudience);
    }
    DatePart Awaited() const override { return mDictation->awaited; }
    void Awaited(DatePart part) override {
        mDictation->awaited = part;
        if (const auto audience = mAudience.lock()) audience->awaited();
    }
    void Activate(bool on) override {
        if (const auto audience = mAudience.lock()) audience->activate(mDictation, on);
    }

  private:
    std::weak_ptr<Audience> mAudience;
    std::shared_ptr<Audience::Dictation> mDictation = std::make_shared<Audience::Dictation>();
};

} // namespace

std::unique_ptr<VoiceCommandControl> makeVoiceCommand(std::weak_ptr<Audience> audience) {
    return std::make_unique<Commands>(std::move(audience));
}

std::unique_ptr<DictationControl> makeDictation(std::weak_ptr<Audience> audience) {
    return std::make_unique<DateDictation>(std::move(audience));
}

} // namespace Korvane::voice
