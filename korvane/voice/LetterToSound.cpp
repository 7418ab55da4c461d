#include <korvane/voice/LetterToSound.h>

#include <korvane/runtime/Text.h>

#include <algorithm>

namespace Korvane::voice {

namespace {

/// Letters, what has to stand behind them ("#" a vowel, "%" e i y, "$" the end, "^" a consonant and then a
/// final e), and how they sound. The first that fits counts.
struct Rule {
    std::string_view letters, behind, sounds;
};

constexpr Rule rules[] = {
    {"tion", "", "SH AH N"}, {"sion", "", "ZH AH N"}, {"ture", "$", "CH ER"}, {"ough", "", "OW"},
    {"augh", "", "AO"},      {"eigh", "", "EY"},      {"igh", "", "AY"},      {"sch", "", "SH"},
    {"tch", "", "CH"},       {"dge", "", "JH"},       {"ing", "$", "IH NG"},  {"all", "", "AO L"},
    {"ous", "$", "AH S"},    {"ed", "$", "D"},        {"es", "$", "IH Z"},    {"er", "$", "ER"},
    {"or", "$", "ER"},       {"le", "$", "AH L"},     {"ch", "", "CH"},       {"sh", "", "SH"},
    {"th", "", "TH"},        {"ph", "", "F"},         {"wh", "", "W"},        {"ck", "", "K"},
    {"ng", "$", "NG"},       {"qu", "", "K W"},       {"kn", "", "N"},        {"wr", "", "R"},
    {"gh", "", "G"},         {"ee", "", "IY"},        {"ea", "", "IY"},       {"oo", "", "UW"},
    {"oa", "", "OW"},        {"ai", "", "EY"},        {"ay", "", "EY"},       {"au", "", "AO"},
    {"aw", "", "AO"},        {"ei", "", "IY"},        {"ey", "", "IY"},       {"ie", "", "IY"},
    {"ew", "", "UW"},        {"eu", "", "UW"},        {"oi", "", "OY"},       {"oy", "", "OY"},
    {"ou", "", "AW"},        {"ow", "", "OW"},        {"ue", "$", "UW"},      {"ui", "", "UW"},
    {"ar", "", "AA R"},      {"er", "", "ER"},        {"ir", "", "ER"},       {"or", "", "AO R"},
    {"ur", "", "ER"},        {"bb", "", "B"},         {"cc", "", "K"},        {"dd", "", "D"},
    {"ff", "", "F"},         {"gg", "", "G"},         {"ll", "", "L"},        {"mm", "", "M"},
    {"nn", "", "N"},         {"pp", "", "P"},         {"rr", "", "R"},        {"ss", "", "S"},
    {"tt", "", "T"},         {"zz", "", "Z"},         {"a", "^", "EY"},       {"e", "^", "IY"},
    {"i", "^", "AY"},        {"o", "^", "OW"},        {"u", "^", "UW"},       {"y", "^", "AY"},
    {"e", "$", ""},          {"y", "$", "IY"},        {"o", "$", "OW"},       {"a", "$", "AH"},
    {"i", "$", "IY"},        {"u", "$", "UW"},        {"c", "%", "S"},        {"g", "%", "JH"},
    {"y", "#", "Y"},         {"a", "", "AE"},         {"b", "", "B"},         {"c", "", "K"},
    {"d", "", "D"},          {"e", "", "EH"},         {"f", "", "F"},         {"g", "", "G"},
    {"h", "", "HH"},         {"i", "", "IH"},         {"j", "", "JH"},        {"k", "", "K"},
    {"l", "", "L"},          {"m", "", "M"},          {"n", "", "N"},         {"o", "", "AA"},
    {"p", "", "P"},          {"q", "", "K"},          {"r", "", "R"},         {"s", "", "S"},
    {"t", "", "T"},          {"u", "", "AH"},         {"v", "", "V"},         {"w", "", "W"},
    {"x", "", "K S"},        {"y", "", "IH"},         {"z", "", "Z"},
};

bool isOneOf(std::string_view letters, char c) {
    return letters.find(c) != std::string_view::npos;
}

bool fits(const Rule& rule, std::string_view word) {
    if (!word.starts_with(rule.letters)) return false;
    const auto rest = word.substr(rule.letters.size());
    if (rule.behind.empty()) return true;
    constexpr std::string_view vowels = "aeiouy";
    switch (rule.behind.front()) {
    case '$':
        return rest.empty();
    case '#':
        return !rest.empty() && isOneOf(vowels, rest.front());
    case '%':
        return !rest.empty() && isOneOf("eiy", rest.front());
    default:
        return rest.size() == 2 && !isOneOf(vowels, rest[0]) && rest[1] == 'e';
    }
}

bool hasVowel(std::string_view sounds) {
    return sounds.find_first_of("AEIOU") != std::string_view::npos;
}

/// A word of consonants alone is spelled: "x", "bp".
constexpr std::string_view names[] = {"EY",
                                      "B IY",
                                      "S IY",
                                      "D IY",
                                      "IY",
                                      "EH F",
                                      "JH IY",
                                      "EY CH",
                                      "AY",
                                      "JH EY",
                                      "K EY",
                                      "EH L",
                                      "EH M",
                                      "EH N",
                                      "OW",
                                      "P IY",
                                      "K Y UW",
                                      "AA R",
                                      "EH S",
                                      "T IY",
                                      "Y UW",
                                      "V IY",
                                      "D AH B AH L Y UW",
                                      "EH K S",
                                      "W AY",
                                      "Z IY"};

void append(std::string& sounds, std::string_view more) {
    if (!sounds.empty() && !more.empty()) sounds += ' ';
    sounds += more;
}

} // namespace

std::string pronounce(std::string_view text) {
    std::string word = lowerCase(text);
    std::erase(word, '\'');
    if (!std::ranges::all_of(word, [](char c) { return c >= 'a' && c <= 'z'; })) return {};
    std::string sounds;
    for (std::string_view rest = word; !rest.empty();) {
        // "er", "ed" and the like are no ending where nothing is before them.
        const auto* rule = std::ranges::find_if(rules, [&](const Rule& r) {
            return fits(r, rest) && (r.behind != "$" || r.letters.size() == 1 || hasVowel(sounds));
        });
        append(sounds, rule->sounds);
        rest.remove_prefix(rule->letters.size());
    }
    if (hasVowel(sounds)) return sounds;
    sounds.clear();
    for (const char c : word)
        append(sounds, names[c - 'a']);
    return sounds;
}

} // namespace Korvane::voice
