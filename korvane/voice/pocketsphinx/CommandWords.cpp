#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Text.h>
#include <korvane/runtime/Translation.h>
#include <korvane/voice/pocketsphinx/Audience.h>

namespace Korvane::voice {

namespace {

constexpr std::string_view digits[] = {"zero", "one", "two",   "three", "four",
                                       "five", "six", "seven", "eight", "nine"};

[[noreturn]] void refuse(const std::string& why) {
    throw RuntimeError(RuntimeError::InvalidProcedureCall, why);
}

/// The word around a character that nobody can say.
std::string wordAround(std::string_view words, std::size_t at) {
    const auto blank = words.rfind(' ', at);
    const auto first = blank == std::string_view::npos ? 0 : blank + 1;
    return std::string(words.substr(first, words.find(' ', at) - first));
}

bool isPunctuation(char c) {
    return std::string_view(" \t\r\n.,;:!?-_/\"()").find(c) != std::string_view::npos;
}

} // namespace

std::string commandWords(std::string_view words) {
    std::string said;
    const auto part = [&] {
        if (!said.empty() && said.back() != ' ') said += ' ';
    };
    const auto text = lowerCase(words);
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if ((c >= 'a' && c <= 'z') || (c == '\'' && !said.empty() && said.back() != ' '))
            said += c;
        else if (c >= '0' && c <= '9')
            part(), said += digits[c - '0'], said += ' ';
        else if (isPunctuation(c) || c == '\'')
            part();
        else
            refuse(filled(translate("Korvane::voice", "\"%1\" cannot be a voice command: the word \"%2\" has "
                                                      "a letter or a sign that is not said in English."),
                          {words, wordAround(words, i)}));
    }
    said = trim(said);
    if (said.empty())
        refuse(filled(translate("Korvane::voice", "\"%1\" cannot be a voice command: it has no words."),
                      {words}));
    return said;
}

} // namespace Korvane::voice
