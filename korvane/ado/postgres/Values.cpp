#include <korvane/ado/postgres/Values.h>

#include <korvane/ado/Numbers.h>
#include <korvane/runtime/Text.h>

#include <charconv>
#include <limits>

namespace Korvane::ado::postgres {

namespace {

template <typename Number>
std::optional<Number> readAs(std::string_view text) {
    Number number{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return number;
}

bool isWhole(DataType type) {
    return type == DataType::SmallInt || type == DataType::Integer || type == DataType::BigInt;
}

// "2026-11-15", "2026-11-15 17:21:51.5+01": what stands behind the seconds is dropped.
std::optional<Date> readDate(std::string_view text) {
    constexpr std::size_t toTheSecond = 19;
    if (text.ends_with("BC")) return std::nullopt;
    return parseIsoDate(text.substr(0, toTheSecond));
}

// Any number of digits, as a decimal when it is narrow enough.
void readDecimal(std::string_view text, DataType type, Variant& value) {
    if (text.find('.') != std::string_view::npos) {
        while (text.ends_with('0'))
            text.remove_suffix(1);
        if (text.ends_with('.')) text.remove_suffix(1);
    }
    if (const auto whole = readAs<std::int64_t>(text)) return setNumber(value, *whole, type);
    if (const auto number = parseNumber(text)) return setNumber(value, *number, type);
    value.setText(text);
}

} // namespace

std::string literalText(const sql::ColumnValue& value) {
    return std::visit(sql::Overloaded{[](std::monostate) { return std::string("Null"); },
                                      [](bool truth) { return std::string(truth ? "True" : "False"); },
                                      [](std::int64_t number) { return std::to_string(number); },
                                      [](double number) { return exactText(number); },
                                      [](Date date) { return "Timestamp '" + date.isoText() + "'"; },
                                      [](std::string_view text) { return "'" + escapeQuotes(text) + "'"; }},
                      value);
}

std::optional<std::string> parameterText(const sql::ColumnValue& value) {
    using Text = std::optional<std::string>;
    return std::visit(sql::Overloaded{[](std::monostate) { return Text(); },
                                      [](bool truth) { return Text(truth ? "t" : "f"); },
                                      [](std::int64_t number) { return Text(std::to_string(number)); },
                                      [](double number) { return Text(exactText(number)); },
                                      [](Date date) { return Text(date.isoText()); },
                                      [](std::string_view text) { return Text(std::in_place, text); }},
                      value);
}

TypeId parameterType(const sql::ParameterRule& rule, const sql::ColumnValue& value) {
    const auto* whole = std::get_if<std::int64_t>(&value);
    if (!rule.column) {
        if (!whole) return types::unknown;
        return *whole == static_cast<std::int32_t>(*whole) ? types::integer : types::bigInteger;
    }
    const bool compares = rule.use == sql::Use::Compare;
    switch (rule.column->type) {
    case DataType::SmallInt:
    case DataType::Integer:
    case DataType::BigInt:
        return std::holds_alternative<double>(value) ? types::real : types::bigInteger;
    case DataType::Single:
        return compares ? types::single : types::real;
    case DataType::Double:
        return types::real;
    case DataType::Currency:
    case DataType::Numeric:
        return types::numeric;
    case DataType::Date:
        return types::timestamp;
    case DataType::Boolean:
        return whole ? types::bigInteger : types::boolean;
    default:
        return types::unknown;
    }
}

void read(std::string_view cell, DataType type, Variant& value) {
    switch (type) {
    case DataType::Boolean:
        if (cell == "t" || cell == "f") {
            value = cell == "t";
            return;
        }
        break;
    case DataType::Date:
        if (const auto date = readDate(cell)) {
            value = *date;
            return;
        }
        break;
    case DataType::Single:
        if (const auto number = readAs<float>(cell)) {
            value = *number;
            return;
        }
        break;
    case DataType::Double:
        if (const auto number = readAs<double>(cell)) {
            value = *number;
            return;
        }
        break;
    case DataType::Currency:
    case DataType::Numeric:
        return readDecimal(cell, type, value);
    default:
        if (!isWhole(type)) break;
        if (const auto number = readAs<std::int64_t>(cell)) return setNumber(value, *number, type);
        break;
    }
    value.setText(cell);
}

} // namespace Korvane::ado::postgres
