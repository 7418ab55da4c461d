#include <korvane/voice/SpokenDate.h>
#include <korvane/voice/SpokenNumber.h>

#include <charconv>

namespace Korvane::voice {

namespace {

bool isDay(std::string_view words) {
    const auto digits = spokenNumber(words);
    int day = 0;
    if (digits) std::from_chars(digits->data(), digits->data() + digits->size(), day);
    return day >= 1 && day <= 31;
}

bool isYear(std::string_view words) {
    const auto digits = spokenNumber(words);
    return digits && digits->size() == 4;
}

/// Where the first of two values ends, or npos.
std::size_t endOfDay(std::string_view words) {
    for (auto blank = words.find(' '); blank != std::string_view::npos; blank = words.find(' ', blank + 1))
        if (isDay(words.substr(0, blank)) && isYear(words.substr(blank + 1))) return blank;
    return std::string_view::npos;
}

} // namespace

std::vector<std::string> spokenValues(std::string_view words) {
    const auto blank = words.find(' ');
    if (blank == std::string_view::npos || spokenNumber(words.substr(0, blank)) || spokenNumber(words))
        return {std::string(words)};
    const std::string month(words.substr(0, blank));
    const auto rest = words.substr(blank + 1);
    if (isDay(rest) || isYear(rest)) return {month, std::string(rest)};
    const auto end = endOfDay(rest);
    if (end == std::string_view::npos) return {std::string(words)};
    return {month, std::string(rest.substr(0, end)), std::string(rest.substr(end + 1))};
}

} // namespace Korvane::voice
