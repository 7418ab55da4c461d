#include <korvane/runtime/Text.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace Korvane {

namespace {

/// A number as its significant digits, the point behind the first of them, times 10^exponent.
struct Digits {
    std::string digits;
    int exponent = 0;
};

/// Halves go up, which to_chars would round to even: so it gives some digits more, and these are cut here.
void roundTo(Digits& number, std::size_t count) {
    std::string& digits = number.digits;
    const bool up = digits[count] >= '5';
    digits.resize(count);
    if (!up) return;
    const auto last = digits.find_last_not_of('9');
    if (last == std::string::npos) {
        digits.assign(1, '1');
        ++number.exponent;
        return;
    }
    ++digits[last];
    digits.resize(last + 1);
}

template <typename Float>
Digits significantDigits(Float magnitude, std::size_t precision) {
    constexpr int spareDigits = 8;
    std::array<char, 40> buffer{};
    char* const begin = buffer.data();
    const char* const end =
        std::to_chars(begin, begin + buffer.size(), magnitude, std::chars_format::scientific,
                      static_cast<int>(precision) - 1 + spareDigits)
            .ptr;
    const char* const mark = std::find(static_cast<const char*>(begin), end, 'e');
    Digits out;
    out.digits.assign(static_cast<const char*>(begin), mark);
    out.digits.erase(1, 1);
    std::from_chars(mark[1] == '+' ? mark + 2 : mark + 1, end, out.exponent); // which takes no plus
    roundTo(out, precision);
    out.digits.erase(out.digits.find_last_not_of('0') + 1);
    return out;
}

std::string exponentForm(const Digits& number) {
    std::string out = number.digits.substr(0, 1);
    if (number.digits.size() > 1) out += '.' + number.digits.substr(1);
    out += number.exponent < 0 ? "E-" : "E+";
    const int exponent = std::abs(number.exponent);
    if (exponent < 10) out += '0';
    return out + std::to_string(exponent);
}

std::string plainForm(const Digits& number) {
    std::string out = number.digits;
    if (number.exponent < 0) out.insert(0, static_cast<std::size_t>(-number.exponent), '0');
    const std::size_t whole = number.exponent < 0 ? 1 : static_cast<std::size_t>(number.exponent) + 1;
    if (out.size() < whole) out.resize(whole, '0');
    if (out.size() > whole) out.insert(whole, 1, '.');
    return out;
}

/// The plain form as long as it has at most `precision` digits on either side of the point.
template <typename Float>
std::string text(Float value, int precision) {
    if (value == 0) return "0";
    const std::string sign = std::signbit(value) ? "-" : "";
    if (std::isnan(value)) return "nan";
    if (std::isinf(value)) return sign + "inf";
    const Digits number = significantDigits(std::abs(value), static_cast<std::size_t>(precision));
    const int decimals = static_cast<int>(number.digits.size()) - 1 - number.exponent;
    const bool plain = number.exponent < precision && decimals <= precision;
    return sign + (plain ? plainForm(number) : exponentForm(number));
}

} // namespace

std::string numberText(double value) {
    return text(value, 15);
}
std::string numberText(float value) {
    return text(value, 7);
}

} // namespace Korvane
