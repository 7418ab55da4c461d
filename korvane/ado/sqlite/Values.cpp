#include <korvane/ado/sqlite/Values.h>

#include <korvane/runtime/Text.h>

#include <sqlite3.h>

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace Korvane::ado::sqlite {

namespace {

template <class... Ts>
struct Overloaded : Ts... {
    using Ts::operator()...;
};
template <class... Ts>
Overloaded(Ts...) -> Overloaded<Ts...>;

// The shortest text that reads back as the same number.
std::string exactText(double number) {
    std::array<char, 32> buffer{};
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number);
    return {buffer.data(), error == std::errc() ? end : buffer.data()};
}

std::string quotedText(std::string_view text) {
    std::string quoted(1, '\'');
    quoted += text;
    quoted += '\'';
    return quoted;
}

int bindText(sqlite3_stmt* statement, int parameter, std::string_view text, TextLives lives) {
    const auto destructor = lives == TextLives::OnlyNow ? SQLITE_TRANSIENT : SQLITE_STATIC;
    const char* begin = text.data() ? text.data() : "";
    return sqlite3_bind_text64(statement, parameter, begin, text.size(), destructor, SQLITE_UTF8);
}

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

void readInteger(std::int64_t number, DataType type, Variant& value) {
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

void readReal(double number, DataType type, Variant& value) {
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

std::string_view textOf(sqlite3_stmt* statement, int column) {
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
    if (!text) return {};
    return {text, static_cast<std::size_t>(sqlite3_column_bytes(statement, column))};
}

} // namespace

std::string literalText(const sql::ColumnValue& value) {
    return std::visit(Overloaded{[](std::monostate) { return std::string("Null"); },
                                 [](bool truth) { return std::string(truth ? "1" : "0"); },
                                 [](std::int64_t number) { return std::to_string(number); },
                                 [](double number) { return exactText(number); },
                                 [](Date date) { return quotedText(date.isoText()); },
                                 [](std::string_view text) { return quotedText(escapeQuotes(text)); }},
                      value);
}

int bind(sqlite3_stmt* statement, int parameter, const sql::ColumnValue& value, TextLives lives) {
    return std::visit(
        Overloaded{
            [&](std::monostate) { return sqlite3_bind_null(statement, parameter); },
            [&](bool truth) { return sqlite3_bind_int(statement, parameter, truth ? 1 : 0); },
            [&](std::int64_t number) { return sqlite3_bind_int64(statement, parameter, number); },
            [&](double number) { return sqlite3_bind_double(statement, parameter, number); },
            [&](Date date) { return bindText(statement, parameter, date.isoText(), TextLives::OnlyNow); },
            [&](std::string_view text) { return bindText(statement, parameter, text, lives); }},
        value);
}

void read(sqlite3_stmt* statement, int column, DataType type, Variant& value) {
    switch (sqlite3_column_type(statement, column)) {
    case SQLITE_NULL:
        value = Variant::null();
        return;
    case SQLITE_INTEGER:
        readInteger(sqlite3_column_int64(statement, column), type, value);
        return;
    case SQLITE_FLOAT:
        readReal(sqlite3_column_double(statement, column), type, value);
        return;
    default:
        break;
    }
    const std::string_view text = textOf(statement, column);
    if (type == DataType::Date) {
        if (const auto date = parseIsoDate(text)) {
            value = *date;
            return;
        }
    }
    value.setText(text);
}

} // namespace Korvane::ado::sqlite
