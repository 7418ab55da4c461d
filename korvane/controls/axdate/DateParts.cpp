#include <korvane/controls/axdate/DateParts.h>

#include <korvane/runtime/Date.h>
#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Text.h>

#include <algorithm>
#include <cstdio>

namespace Korvane {

namespace {

constexpr std::array<std::string_view, 12> monthNames{"january",   "february", "march",    "april",
                                                      "may",       "june",     "july",     "august",
                                                      "september", "october",  "november", "december"};

/// In characters: a number may have a no-break space about it, which is more than one byte.
std::size_t lengthOf(std::string_view text) {
    return static_cast<std::size_t>(std::count_if(
        text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

std::string fourDigits(int year) {
    std::array<char, 16> digits{};
    std::snprintf(digits.data(), digits.size(), "%04d", year);
    return digits.data();
}

} // namespace

std::string DateParts::joined() const {
    return texts[month] + '/' + texts[day] + '/' + texts[year];
}

bool DateParts::allEmpty() const {
    return std::all_of(texts.begin(), texts.end(), [](const std::string& text) { return text.empty(); });
}

bool DateParts::makeDate() const {
    const auto date = parseDate(joined());
    if (!date) return false;
    const Date::Parts read = date->parts();
    return parseNumber(texts[month]) == read.month && parseNumber(texts[day]) == read.day;
}

bool isValidPart(std::string_view text, std::int16_t index, bool requireFourDigitYear) {
    if (text.empty()) return true;
    const auto value = parseNumber(text);
    if (!value) return false;
    switch (index) {
    case DateParts::month:
        return *value >= 1 && *value <= 12;
    case DateParts::day:
        return *value >= 1 && *value <= 31;
    case DateParts::year:
        if (*value < 0) return false;
        return lengthOf(text) == 4 || (lengthOf(text) == 2 && !requireFourDigitYear);
    default:
        return true;
    }
}

std::string composedDate(const DateParts& parts, std::string_view before, bool requireFourDigitYear) {
    for (std::size_t i = 0; i < DateParts::count; ++i)
        if (!isValidPart(parts.texts[i], static_cast<std::int16_t>(i), requireFourDigitYear)) return {};
    if (parts.makeDate()) return parts.joined();
    return parts.allEmpty() ? std::string() : std::string(before);
}

std::optional<DateParts> splitDate(std::string_view wholeDate) {
    const auto date = parseDate(wholeDate);
    if (!date) return std::nullopt;
    const Date::Parts read = date->parts();
    DateParts parts{{std::to_string(read.month), std::to_string(read.day), fourDigits(read.year)}};
    if (!parts.makeDate()) return std::nullopt; // a time alone lies on a day that no text names
    return parts;
}

std::string widenedYear(std::string_view text) {
    const auto date = splitDate("1/1/" + std::string(text));
    if (!date) throw RuntimeError(RuntimeError::TypeMismatch);
    return date->texts[DateParts::year];
}

std::string monthNumber(std::string_view name) {
    const auto* found = std::find(monthNames.begin(), monthNames.end(), lowerCase(name));
    if (found == monthNames.end()) return "not found";
    return std::to_string(found - monthNames.begin() + 1);
}

} // namespace Korvane
