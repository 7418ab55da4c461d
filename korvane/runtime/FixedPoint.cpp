#include <korvane/runtime/FixedPoint.h>

#include <korvane/runtime/Text.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace Korvane {

namespace {

__extension__ typedef unsigned __int128 Wide;

constexpr int currencyScale = 4;
constexpr int largestScale = 28;
constexpr Wide largestMantissa = (Wide{1} << 96) - 1;

Wide mantissa(const Decimal& value) {
    return (Wide{value.high} << 64) | value.low;
}

Decimal decimalOf(Wide mantissa, int scale, bool negative) {
    return {static_cast<std::uint32_t>(mantissa >> 64), static_cast<std::uint64_t>(mantissa),
            static_cast<std::uint8_t>(scale), negative};
}

Wide powerOfTen(int exponent) {
    Wide power = 1;
    for (; exponent > 0; --exponent)
        power *= 10;
    return power;
}

std::string digitsOf(Wide number) {
    std::string out;
    do {
        out += static_cast<char>('0' + static_cast<int>(number % 10));
        number /= 10;
    } while (number != 0);
    std::ranges::reverse(out);
    return out;
}

std::uint64_t magnitudeOf(std::int64_t value) {
    return value < 0 ? 0 - static_cast<std::uint64_t>(value) : static_cast<std::uint64_t>(value);
}

/// The part of a positive value before the point, and the part behind it stretched to the longest scale.
struct Split {
    Wide whole;
    Wide fraction;
};

Split split(const Decimal& value) {
    const Wide unit = powerOfTen(value.scale);
    return {mantissa(value) / unit, mantissa(value) % unit * powerOfTen(largestScale - value.scale)};
}

template <typename Float>
std::optional<Decimal> decimalFromFloat(Float value, int precision) {
    if (!(std::abs(value) <= static_cast<Float>(8e28))) return std::nullopt;
    std::array<char, 40> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::abs(value),
                                   std::chars_format::scientific, precision - 1)
                         .ptr;
    Wide digits = 0;
    const char* at = buffer.data();
    for (; *at != 'e'; ++at)
        if (*at != '.') digits = digits * 10 + static_cast<unsigned>(*at - '0');
    int exponent = 0;
    std::from_chars(at[1] == '+' ? at + 2 : at + 1, end, exponent);
    int scale = precision - 1 - exponent;
    for (; scale < 0; ++scale)
        digits *= 10;
    for (; scale > largestScale && digits != 0; --scale)
        digits /= 10;
    if (digits > largestMantissa) return std::nullopt;
    return decimalOf(digits, std::min(scale, largestScale), std::signbit(value));
}

} // namespace

std::string fixedPointText(const Decimal& value) {
    if (mantissa(value) == 0) return "0";
    std::string out = digitsOf(mantissa(value));
    const std::size_t scale = value.scale;
    if (out.size() <= scale) out.insert(0, scale + 1 - out.size(), '0');
    if (scale > 0) {
        out.insert(out.size() - scale, 1, '.');
        out.erase(out.find_last_not_of('0') + 1);
        if (out.back() == '.') out.pop_back();
    }
    return value.negative ? '-' + out : out;
}

std::string fixedPointText(Currency value) {
    return fixedPointText(toDecimal(value));
}

double fixedPointToDouble(Currency value) {
    return static_cast<double>(value.tenThousandths) / 10000.0;
}

double fixedPointToDouble(const Decimal& value) {
    return parseNumber(fixedPointText(value)).value_or(0);
}

std::optional<std::int64_t> roundedToWhole(const Decimal& value) {
    const auto [whole, fraction] = split(value);
    const Wide half = powerOfTen(largestScale) / 2;
    const Wide rounded = whole + (fraction > half || (fraction == half && whole % 2 == 1) ? 1 : 0);
    if (rounded > (Wide{1} << 63) - 1) return std::nullopt;
    const auto result = static_cast<std::int64_t>(rounded);
    return value.negative ? -result : result;
}

std::int64_t roundedToWhole(Currency value) {
    return *roundedToWhole(toDecimal(value));
}

Decimal toDecimal(std::int64_t value) {
    return decimalOf(magnitudeOf(value), 0, value < 0);
}

Decimal toDecimal(Currency value) {
    Decimal decimal = toDecimal(value.tenThousandths);
    decimal.scale = currencyScale;
    return decimal;
}

std::optional<Decimal> toDecimal(double value) {
    return decimalFromFloat(value, 15);
}
std::optional<Decimal> toDecimal(float value) {
    return decimalFromFloat(value, 7);
}

std::optional<Decimal> parseDecimal(std::string_view text) {
    const auto written = numberDigits(text);
    if (!written) return std::nullopt;
    const std::size_t mark = std::min(written->find('e'), written->size());
    std::int64_t scale = 0;
    if (mark < written->size() &&
        std::from_chars(written->data() + mark + 1, written->data() + written->size(), scale).ec !=
            std::errc{})
        return std::nullopt;
    scale = -scale;
    std::string digits = written->substr(0, mark);
    const bool negative = digits.front() == '-';
    if (negative) digits.erase(0, 1);
    if (const auto point = digits.find('.'); point != std::string::npos) {
        scale += static_cast<std::int64_t>(digits.size() - point - 1);
        digits.erase(point, 1);
    }
    digits.erase(0, std::min(digits.find_first_not_of('0'), digits.size()));
    for (; scale > 0 && digits.ends_with('0'); --scale)
        digits.pop_back();
    if (digits.empty()) return Decimal{};
    constexpr std::size_t mostDigits = 29;
    if (scale > largestScale || digits.size() > mostDigits || scale < -static_cast<std::int64_t>(mostDigits))
        return std::nullopt;
    for (; scale < 0; ++scale)
        digits += '0';
    if (digits.size() > mostDigits) return std::nullopt;
    Wide number = 0;
    for (const char digit : digits)
        number = number * 10 + static_cast<unsigned>(digit - '0');
    if (number > largestMantissa) return std::nullopt;
    return decimalOf(number, static_cast<int>(scale), negative);
}

std::optional<Currency> toCurrency(const Decimal& value) {
    const Decimal rescaled = value.scale > currencyScale
                                 ? value
                                 : decimalOf(mantissa(value) * powerOfTen(currencyScale - value.scale),
                                             currencyScale, value.negative);
    constexpr Wide most = (Wide{1} << 63) - 1;
    if (rescaled.scale != currencyScale || mantissa(rescaled) > most) return std::nullopt;
    const auto magnitude = static_cast<std::int64_t>(rescaled.low);
    return Currency{value.negative ? -magnitude : magnitude};
}

std::optional<Currency> toCurrency(double value) {
    const double scaled = std::nearbyint(value * 10000.0);
    if (!(std::abs(scaled) < 9223372036854775808.0)) return std::nullopt;
    return Currency{static_cast<std::int64_t>(scaled)};
}

std::strong_ordering compareDecimals(const Decimal& a, const Decimal& b) {
    const bool aNegative = a.negative && mantissa(a) != 0;
    const bool bNegative = b.negative && mantissa(b) != 0;
    if (aNegative != bNegative) return aNegative ? std::strong_ordering::less : std::strong_ordering::greater;
    const Split left = split(aNegative ? b : a), right = split(aNegative ? a : b);
    return left.whole != right.whole ? left.whole <=> right.whole : left.fraction <=> right.fraction;
}

} // namespace Korvane
