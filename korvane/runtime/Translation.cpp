#include <korvane/runtime/Translation.h>

#include <memory>
#include <mutex>
#include <utility>

namespace Korvane {

namespace {

struct InForce {
    std::mutex mutex;
    std::shared_ptr<const Translator> translator = std::make_shared<Translator>();
};

InForce& inForce() {
    static InForce here;
    return here;
}

} // namespace

std::string translate(const char* context, const char* text) {
    std::shared_ptr<const Translator> translator;
    {
        const std::lock_guard lock(inForce().mutex);
        translator = inForce().translator;
    }
    try {
        if (*translator) return (*translator)(context, text);
    } catch (...) {
        // The text is on its way to tell of something: better in the wrong language than lost.
    }
    return text;
}

std::string filled(std::string_view text, std::initializer_list<std::string_view> values) {
    std::string whole;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool place = text[i] == '%' && i + 1 < text.size() && text[i + 1] >= '1' && text[i + 1] <= '9';
        const std::size_t value = place ? static_cast<std::size_t>(text[i + 1] - '1') : values.size();
        if (value < values.size()) {
            whole += values.begin()[value];
            ++i;
        } else {
            whole += text[i];
        }
    }
    return whole;
}

Translator installTranslator(Translator translator) {
    auto next = std::make_shared<const Translator>(std::move(translator));
    const std::lock_guard lock(inForce().mutex);
    return *std::exchange(inForce().translator, std::move(next));
}

} // namespace Korvane
