#include <korvane/ado/postgres/Values.h>

#include <korvane/ado/Numbers.h>
#include <korvane/runtime/FixedPoint.h>
#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Text.h>
#include <korvane/runtime/Translation.h>

#include <charconv>
#include <cmath>
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

// With all its digits: what is too wide for a decimal is handed out as text.
void readDecimal(std::string_view text, DataType type, Variant& value) {
    const auto decimal = parseDecimal(text);
    const auto currency = decimal && type == DataType::Currency ? toCurrency(*decimal) : std::nullopt;
    if (currency)
        value = *currency;
    else if (decimal)
        value = *decimal;
    else
        value.setText(text);
}

bool isInRangeOfSingle(double number) {
    const auto narrow = static_cast<float>(number);
    return std::isfinite(narrow) && (narrow != 0.0F || number == 0.0);
}

} // namespace

std::string literalText(const sql::ColumnValue& value) {
    return std::visit(sql::Overloaded{[](std::monostate) { return std::string("Null"); },
                                      [](bool truth) { return std::string(truth ? "True" : "False"); },
                                      [](std::int64_t number) { return std::to_string(number); },
                                      [](double number) { return exactText(number); },
                                      [](sql::Digits digits) { return std::string(digits.text); },
                                      [](Date date) { return "Timestamp '" + date.isoText() + "'"; },
                                      [](std::string_view text) { return "'" + escapeQuotes(text) + "'"; }},
                      value);
}

// 0.1 is another number as a double than as a single.
std::string comparedText(const sql::ColumnValue& value, const ColumnInfo& column) {
    const double* number = column.type == DataType::Single ? std::get_if<double>(&value) : nullptr;
    if (!number || !isInRangeOfSingle(*number)) return literalText(value);
    return "Float4 '" + exactText(*number) + "'";
}

std::optional<std::string> parameterText(const sql::ColumnValue& value) {
    using Text = std::optional<std::string>;
    if (const auto* text = std::get_if<std::string_view>(&value); text && text->find('\0') != text->npos)
        throw RuntimeError(RuntimeError::InvalidArgument,
                           Korvane::translate("Korvane::ado", "A text cannot hold the character NUL."));
    return std::visit(sql::Overloaded{[](std::monostate) { return Text(); },
                                      [](bool truth) { return Text(truth ? "t" : "f"); },
                                      [](std::int64_t number) { return Text(std::to_string(number)); },
                                      [](double number) { return Text(exactText(number)); },
                                      [](sql::Digits digits) { return Text(std::in_place, digits.text); },
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
        if (const double* number = std::get_if<double>(&value); number && !isInRangeOfSingle(*number))
            return types::real;
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
        return readDecimal(cell, DataType::Numeric, value); // its column is of another type by now
    }
    value.setText(cell);
}

CellView peek(std::string_view cell, DataType type) {
    switch (type) {
    case DataType::VarWChar:
    case DataType::LongVarWChar:
        return cell;
    case DataType::Boolean:
        if (cell == "t") return std::int64_t{-1};
        if (cell == "f") return std::int64_t{0};
        return {};
    case DataType::SmallInt:
    case DataType::Integer:
    case DataType::BigInt:
        if (const auto number = readAs<std::int64_t>(cell)) return *number;
        return {};
    default:
        return {};
    }
}

} // namespace Korvane::ado::postgres
