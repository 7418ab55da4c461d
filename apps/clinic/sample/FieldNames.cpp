#include "clinic/sample/FieldNames.h"

#include <korvane/runtime/Text.h>

#include <algorithm>

namespace Clinic {

namespace {

constexpr std::size_t readableLength = 32;

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

bool isPlain(char c) {
    return isDigit(c) || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

std::vector<std::string> wordsOf(std::string_view text) {
    std::vector<std::string> words;
    bool inWord = false;
    for (const char c : text) {
        if (isPlain(c) && !inWord)
            words.push_back(Korvane::upperCase({&c, 1}));
        else if (isPlain(c))
            words.back() += c;
        inWord = isPlain(c);
    }
    return words;
}

} // namespace

std::string FieldNames::from(std::string_view text) {
    std::string name;
    for (const std::string& word : wordsOf(text)) {
        if (!name.empty() && name.size() + word.size() > readableLength) break;
        name += word;
    }
    if (name.empty() || isDigit(name.front())) name.insert(0, "Field");
    std::string unique = name;
    for (int copy = 2; isTaken(unique); ++copy)
        unique = name + std::to_string(copy);
    mTaken.push_back(unique);
    return unique;
}

bool FieldNames::isTaken(std::string_view name) const {
    return std::any_of(mTaken.begin(), mTaken.end(),
                       [&](const std::string& taken) { return Korvane::sameName(taken, name); });
}

} // namespace Clinic
