#include <korvane/runtime/Date.h>

namespace Korvane {

namespace {

void append(std::string& out, int number, int width) {
    const std::string digits = std::to_string(number);
    for (auto missing = width - static_cast<int>(digits.size()); missing > 0; --missing)
        out += '0';
    out += digits;
}

void appendTime(std::string& out, const Date::Parts& parts) {
    append(out, parts.hour % 12 == 0 ? 12 : parts.hour % 12, 1);
    out += ':';
    append(out, parts.minute, 2);
    out += ':';
    append(out, parts.second, 2);
    out += parts.hour < 12 ? " AM" : " PM";
}

/// The number in `text[at .. at + count)`; -1 when one of them is no digit.
int digitsAt(std::string_view text, std::size_t at, std::size_t count) {
    int number = 0;
    for (const char c : text.substr(at, count)) {
        if (c < '0' || c > '9') return -1;
        number = number * 10 + (c - '0');
    }
    return number;
}

bool isFraction(std::string_view text) {
    return text.empty() || (text.size() > 1 && text[0] == '.' &&
                            text.find_first_not_of("0123456789", 1) == std::string_view::npos);
}

} // namespace

std::string Date::text() const {
    const Parts p = parts();
    const bool midnight = p.hour == 0 && p.minute == 0 && p.second == 0;
    const bool dayZero = p.year == 1899 && p.month == 12 && p.day == 30;
    std::string out;
    if (!dayZero) {
        append(out, p.month, 1);
        out += '/';
        append(out, p.day, 1);
        out += '/';
        append(out, p.year, 1);
        if (midnight) return out;
        out += ' ';
    }
    appendTime(out, p);
    return out;
}

std::string Date::isoText() const {
    const Parts p = parts();
    std::string out;
    append(out, p.year, 4);
    out += '-';
    append(out, p.month, 2);
    out += '-';
    append(out, p.day, 2);
    out += ' ';
    append(out, p.hour, 2);
    out += ':';
    append(out, p.minute, 2);
    out += ':';
    append(out, p.second, 2);
    return out;
}

std::optional<Date> parseIsoDate(std::string_view text) {
    constexpr std::size_t dateLength = 10, fullLength = 19;
    if (text.size() < dateLength || text[4] != '-' || text[7] != '-') return std::nullopt;
    const int year = digitsAt(text, 0, 4), month = digitsAt(text, 5, 2), day = digitsAt(text, 8, 2);
    if (text.size() == dateLength) return Date::exactly(year, month, day);
    if (text.size() < fullLength || (text[10] != ' ' && text[10] != 'T')) return std::nullopt;
    if (text[13] != ':' || text[16] != ':' || !isFraction(text.substr(fullLength))) return std::nullopt;
    return Date::exactly(year, month, day, digitsAt(text, 11, 2), digitsAt(text, 14, 2),
                         digitsAt(text, 17, 2));
}

} // namespace Korvane
