#include <korvane/voice/SpokenNumber.h>

#include <korvane/runtime/Text.h>

#include <algorithm>
#include <array>
#include <span>
#include <vector>

namespace Korvane::voice {

namespace {

using Words = std::span<const std::string>;

constexpr std::array<std::string_view, 20> cardinals = {
    "zero",     "one",     "two",     "three",     "four",     "five",    "six",
    "seven",    "eight",   "nine",    "ten",       "eleven",   "twelve",  "thirteen",
    "fourteen", "fifteen", "sixteen", "seventeen", "eighteen", "nineteen"};
constexpr std::array<std::string_view, 20> ordinals = {
    "",           "first",     "second",    "third",       "fourth",     "fifth",     "sixth",
    "seventh",    "eighth",    "ninth",     "tenth",       "eleventh",   "twelfth",   "thirteenth",
    "fourteenth", "fifteenth", "sixteenth", "seventeenth", "eighteenth", "nineteenth"};
constexpr std::array<std::string_view, 10> tens = {"",      "",      "twenty",  "thirty", "forty",
                                                   "fifty", "sixty", "seventy", "eighty", "ninety"};

std::vector<std::string> wordsOf(std::string_view text) {
    std::vector<std::string> words(1);
    for (const char c : lowerCase(text)) {
        if (c != ' ' && c != '-')
            words.back() += c;
        else if (!words.back().empty())
            words.emplace_back();
    }
    if (words.back().empty()) words.pop_back();
    return words;
}

template <std::size_t N>
std::optional<int> indexOf(const std::array<std::string_view, N>& names, std::string_view word) {
    const auto found = std::ranges::find(names, word);
    if (found == names.end() || found->empty()) return std::nullopt;
    return static_cast<int>(found - names.begin());
}

std::optional<int> digit(std::string_view word) {
    if (word == "oh" || word == "o") return 0;
    const auto value = indexOf(cardinals, word);
    return value && *value < 10 ? value : std::nullopt;
}

/// 1 to 99, "twenty one" in two words.
std::optional<int> underHundred(Words words) {
    if (words.empty() || words.size() > 2) return std::nullopt;
    const auto ten = indexOf(tens, words[0]);
    if (words.size() == 1) {
        if (ten) return *ten * 10;
        const auto value = indexOf(cardinals, words[0]);
        return value && *value > 0 ? value : std::nullopt;
    }
    const auto one = digit(words[1]);
    return ten && one && *one > 0 ? std::optional(*ten * 10 + *one) : std::nullopt;
}

/// The days of a month: "first" to "thirty first".
std::optional<int> dayInOrder(Words words) {
    if (words.size() == 1) {
        if (words[0] == "twentieth") return 20;
        if (words[0] == "thirtieth") return 30;
        return indexOf(ordinals, words[0]);
    }
    if (words.size() != 2) return std::nullopt;
    const auto ten = indexOf(tens, words[0]);
    const auto one = indexOf(ordinals, words[1]);
    if (!ten || !one || *one > 9) return std::nullopt;
    const int day = *ten * 10 + *one;
    return day <= 31 ? std::optional(day) : std::nullopt;
}

/// "two thousand", "two thousand and five", "nineteen hundred".
std::optional<int> countedYear(Words words) {
    if (words.size() < 2) return std::nullopt;
    const auto count = underHundred(words.first(1));
    const bool thousand = words[1] == "thousand";
    if (!count || (!thousand && words[1] != "hundred")) return std::nullopt;
    if (thousand ? *count > 9 : *count < 10) return std::nullopt;
    const int base = *count * (thousand ? 1000 : 100);
    words = words.subspan(2);
    if (words.empty()) return base;
    if (words[0] == "and") words = words.subspan(1);
    const auto rest = underHundred(words);
    return rest ? std::optional(base + *rest) : std::nullopt;
}

/// "nineteen eighty four", "twenty twenty six", "nineteen oh five".
std::optional<int> pairedYear(Words words) {
    if (words.size() < 2) return std::nullopt;
    const auto century = underHundred(words.first(1));
    if (!century || *century < 10) return std::nullopt;
    const Words rest = words.subspan(1);
    if (rest.size() == 2 && digit(rest[0]) == 0) {
        const auto one = digit(rest[1]);
        return one ? std::optional(*century * 100 + *one) : std::nullopt;
    }
    const auto years = underHundred(rest);
    return years && *years >= 10 ? std::optional(*century * 100 + *years) : std::nullopt;
}

std::optional<std::string> digitByDigit(Words words) {
    if (words.size() < 2 || words.size() > 4) return std::nullopt;
    std::string digits;
    for (const auto& word : words) {
        const auto value = digit(word);
        if (!value) return std::nullopt;
        digits += std::to_string(*value);
    }
    return digits;
}

} // namespace

std::optional<std::string> spokenNumber(std::string_view text) {
    const auto words = wordsOf(text);
    for (const auto rule : {underHundred, dayInOrder, countedYear, pairedYear}) {
        if (const auto value = rule(words)) return std::to_string(*value);
    }
    return digitByDigit(words);
}

} // namespace Korvane::voice
