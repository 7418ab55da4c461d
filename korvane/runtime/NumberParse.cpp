#include <korvane/runtime/Text.h>

#include <korvane/runtime/WhiteSpace.h>

#include <algorithm>
#include <charconv>
#include <cstdint>

namespace Korvane {

namespace {

bool take(std::string_view& text, char c) {
    if (text.empty() || text[0] != c) return false;
    text.remove_prefix(1);
    return true;
}

/// Moves the digits at the front of `text` to `out`; how many there were.
std::size_t takeDigits(std::string_view& text, std::string& out) {
    std::size_t count = 0;
    while (count < text.size() && isDigit(text[count]))
        ++count;
    out += text.substr(0, count);
    text.remove_prefix(count);
    return count;
}

/// What may stand around the digits, each at most once.
struct Marks {
    bool plus = false, minus = false, currency = false, opened = false, closed = false;

    bool takeSign(std::string_view& text) {
        if (plus || minus || opened) return false;
        plus = take(text, '+');
        minus = !plus && take(text, '-');
        return plus || minus;
    }
    bool takeCurrency(std::string_view& text) { return !currency && (currency = take(text, '$')); }
    bool takeOpening(std::string_view& text) {
        return !opened && !plus && !minus && (opened = take(text, '('));
    }
    bool takeClosing(std::string_view& text) { return opened && !closed && (closed = take(text, ')')); }
    bool negative() const { return minus || closed; }
};

/// "&H" or "&O" and its digits.
std::optional<std::string> takeBased(std::string_view text) {
    if (text.size() < 3) return std::nullopt;
    const bool hex = text[1] == 'H' || text[1] == 'h';
    if (!hex && text[1] != 'O' && text[1] != 'o') return std::nullopt;
    text.remove_prefix(2);
    std::uint64_t value = 0;
    const auto [rest, error] = std::from_chars(text.data(), text.data() + text.size(), value, hex ? 16 : 8);
    if (error != std::errc{}) return std::nullopt;
    text.remove_prefix(static_cast<std::size_t>(rest - text.data()));
    skipWhiteSpace(text);
    if (!text.empty()) return std::nullopt;
    return std::to_string(value);
}

/// An exponent, in the form that from_chars reads. Leaves `text` alone when its letter has no digits behind
/// it.
void takeExponent(std::string_view& text, std::string& out) {
    if (text.empty() || std::string_view("eEdD").find(text[0]) == std::string_view::npos) return;
    std::string_view rest = text.substr(1);
    std::string exponent = "e";
    if (!take(rest, '+') && take(rest, '-')) exponent += '-';
    if (takeDigits(rest, exponent) == 0) return;
    out += exponent;
    text = rest;
}

/// Digits, a point, an exponent. False when there is no digit before the exponent.
bool takeNumber(std::string_view& text, std::string& out) {
    std::size_t digits = takeDigits(text, out);
    while (digits > 0 && take(text, ','))
        digits += takeDigits(text, out);
    if (take(text, '.')) {
        out += '.';
        digits += takeDigits(text, out);
    }
    if (digits == 0) return false;
    takeExponent(text, out);
    return true;
}

/// Whether a number that no double can hold is too small rather than too large.
bool isTiny(std::string_view number) {
    const auto mark = std::min(number.find('e'), number.size());
    const auto point = static_cast<std::int64_t>(std::min(number.find('.'), mark));
    const auto first = static_cast<std::int64_t>(number.find_first_of("123456789"));
    if (mark == number.size()) return point < first;
    std::int32_t exponent = 0;
    const char* end = number.data() + number.size();
    if (std::from_chars(number.data() + mark + 1, end, exponent).ec != std::errc{})
        return number[mark + 1] == '-';
    return point - first + exponent < 0;
}

/// The value of what `takeNumber` gathered: nothing when it is too large, 0 when it is too small to tell from
/// it.
std::optional<double> valueOf(const std::string& number) {
    double value = 0;
    const char* begin = number.data();
    if (std::from_chars(begin, begin + number.size(), value).ec != std::errc::result_out_of_range)
        return value;
    return isTiny(number) ? std::optional(0.0) : std::nullopt;
}

} // namespace

std::optional<std::string> numberDigits(std::string_view text) {
    Marks marks;
    skipWhiteSpace(text);
    if (!text.empty() && text[0] == '&') return takeBased(text);
    while (skipWhiteSpace(text) || marks.takeSign(text) || marks.takeCurrency(text) ||
           marks.takeOpening(text)) {
    }
    if (text.empty() || !(isDigit(text[0]) || text[0] == '.')) return std::nullopt;
    std::string number;
    if (!takeNumber(text, number)) return std::nullopt;
    while (skipWhiteSpace(text) || marks.takeSign(text) || marks.takeCurrency(text) ||
           marks.takeClosing(text)) {
    }
    if (!text.empty() || marks.opened != marks.closed) return std::nullopt;
    if (marks.negative()) number.insert(0, 1, '-');
    return number;
}

std::optional<double> parseNumber(std::string_view text) {
    auto number = numberDigits(text);
    if (!number) return std::nullopt;
    const bool negative = number->front() == '-';
    if (negative) number->erase(0, 1);
    const auto value = valueOf(*number);
    return value && negative ? -*value : value;
}

bool isNumeric(std::string_view text) {
    return parseNumber(text).has_value();
}

double leadingNumber(std::string_view text) {
    std::string number;
    for (const char c : text) {
        if (c == ' ' || c == '\t' || c == '\n') continue;
        if (!isDigit(c) && std::string_view("+-.eEdD").find(c) == std::string_view::npos) break;
        number += c;
    }
    std::string_view rest = number;
    const bool negative = !take(rest, '+') && take(rest, '-');
    std::string digits;
    if (!takeNumber(rest, digits)) return 0;
    const double value = valueOf(digits).value_or(0);
    return negative ? -value : value;
}

} // namespace Korvane
