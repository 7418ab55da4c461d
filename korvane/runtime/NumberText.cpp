#include <korvane/runtime/Text.h>

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

template <typename Float>
Digits significantDigits(Float magnitude, int precision) {
    std::array<char, 40> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude,
                                   std::chars_format::scientific, precision - 1)
                         .ptr;
    const std::string_view text(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
    const auto mark = text.find('e');
    Digits out;
    out.digits = text.substr(0, mark);
    if (out.digits.size() > 1) out.digits.erase(1, 1);
    out.digits.erase(out.digits.find_last_not_of('0') + 1);
    const std::size_t sign = text[mark + 1] == '+' ? 1 : 0; // from_chars takes no plus
    std::from_chars(text.data() + mark + 1 + sign, end, out.exponent);
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
    const auto count = static_cast<int>(number.digits.size());
    if (number.exponent < 0)
        return "0." + std::string(static_cast<std::size_t>(-number.exponent - 1), '0') + number.digits;
    if (count <= number.exponent + 1)
        return number.digits + std::string(static_cast<std::size_t>(number.exponent + 1 - count), '0');
    const auto whole = static_cast<std::size_t>(number.exponent + 1);
    return number.digits.substr(0, whole) + '.' + number.digits.substr(whole);
}

/// The plain form as long as it has at most `precision` digits on either side of the point.
template <typename Float>
std::string text(Float value, int precision) {
    if (value == 0) return "0";
    const std::string sign = std::signbit(value) ? "-" : "";
    if (std::isnan(value)) return "nan";
    if (std::isinf(value)) return sign + "inf";
    const Digits number = significantDigits(std::abs(value), precision);
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
