#include <korvane/ado/Numbers.h>

#include <korvane/runtime/Text.h>

#include <array>
#include <charconv>
#include <cmath>

namespace Korvane::ado {

namespace {

Decimal decimalOf(std::int64_t number) {
    Decimal decimal;
    decimal.negative = number < 0;
    decimal.low = number < 0 ? ~static_cast<std::uint64_t>(number) + 1 : static_cast<std::uint64_t>(number);
    return decimal;
}

Variant wholeNumber(std::int64_t number) {
    if (number == static_cast<std::int32_t>(number)) return static_cast<std::int32_t>(number);
    return decimalOf(number);
}

// A number with a few decimals as a decimal; what has no short exact form stays a double.
Variant decimalNumber(double number) {
    const std::string text = numberText(number);
    const auto point = text.find('.');
    std::string digits = text;
    if (point != std::string::npos) digits.erase(point, 1);
    std::int64_t mantissa = 0;
    const char* end = digits.data() + digits.size();
    const auto [at, error] = std::from_chars(digits.data(), end, mantissa);
    double again = 0.0;
    std::from_chars(text.data(), text.data() + text.size(), again);
    if (error != std::errc() || at != end || again != number) return number;
    Decimal decimal = decimalOf(mantissa);
    decimal.negative = number < 0;
    decimal.scale =
        point == std::string::npos ? std::uint8_t{0} : static_cast<std::uint8_t>(text.size() - point - 1);
    return decimal;
}

Variant currencyNumber(double number) {
    const double tenThousandths = std::round(number * 10000.0);
    constexpr double limit = 9.0e18;
    if (std::abs(tenThousandths) > limit || tenThousandths / 10000.0 != number) return number;
    return Currency{static_cast<std::int64_t>(tenThousandths)};
}

Variant singleNumber(double number) {
    const auto narrow = static_cast<float>(number);
    if (static_cast<double>(narrow) == number || numberText(narrow) == numberText(number)) return narrow;
    return number;
}

} // namespace

void setNumber(Variant& value, std::int64_t number, DataType type) {
    switch (type) {
    case DataType::SmallInt:
        if (number == static_cast<std::int16_t>(number)) {
            value = static_cast<std::int16_t>(number);
            return;
        }
        break;
    case DataType::Boolean:
        if (number >= -1 && number <= 1) {
            value = number != 0;
            return;
        }
        break;
    case DataType::Single:
        value = singleNumber(static_cast<double>(number));
        return;
    case DataType::Double:
        value = static_cast<double>(number);
        return;
    case DataType::Currency:
        value = currencyNumber(static_cast<double>(number));
        return;
    case DataType::Numeric:
        value = decimalOf(number);
        return;
    default:
        break;
    }
    value = wholeNumber(number);
}

void setNumber(Variant& value, double number, DataType type) {
    switch (type) {
    case DataType::Single:
        value = singleNumber(number);
        return;
    case DataType::Currency:
        value = currencyNumber(number);
        return;
    case DataType::Numeric:
        value = decimalNumber(number);
        return;
    default:
        value = number;
        return;
    }
}

// The shortest text that reads back as the same number.
std::string exactText(double number) {
    std::array<char, 32> buffer{};
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number);
    return {buffer.data(), error == std::errc() ? end : buffer.data()};
}

} // namespace Korvane::ado
