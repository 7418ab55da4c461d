#include <korvane/ado/sql/Literal.h>

#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Text.h>
#include <korvane/runtime/Translation.h>

#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

namespace Korvane::ado::sql {

namespace {

std::string shortened(std::string_view text) {
    constexpr std::size_t longest = 40;
    if (text.size() <= longest) return std::string(text);
    std::size_t end = longest;
    while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80)
        --end;
    return std::string(text.substr(0, end)) + "...";
}

constexpr const char* outOfRange =
    translatable("Korvane::ado", "The value \"%1\" is outside the range of the column (column %2).");
constexpr const char* notADate = translatable("Korvane::ado", "The value \"%1\" is not a date (column %2).");

/// The reason has places for the value and the column.
[[noreturn]] void refuse(int number, std::string_view text, const ColumnInfo& column, const char* reason) {
    throw RuntimeError(number, filled(translate("Korvane::ado", reason), {shortened(text), column.name}));
}

std::string_view plainText(const Literal& literal, std::string& scratch) {
    if (!literal.doubledQuotes) return literal.text;
    scratch.clear();
    for (std::size_t i = 0; i < literal.text.size(); ++i) {
        scratch += literal.text[i];
        if (literal.text[i] == '\'') ++i;
    }
    return scratch;
}

std::string describe(const Literal& literal) {
    std::string scratch;
    switch (literal.kind) {
    case Literal::Text:
        return std::string(plainText(literal, scratch));
    case Literal::Integer:
        return std::to_string(literal.integer);
    case Literal::Number:
        return numberText(literal.number);
    case Literal::Boolean:
        return literal.truth ? "True" : "False";
    case Literal::Day:
        return literal.date.text();
    case Literal::Null:
        break;
    }
    return "Null";
}

std::optional<std::int64_t> wholeNumber(std::string_view text) {
    std::int64_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return value;
}

std::optional<std::int64_t> wholeNumber(double number) {
    constexpr double limit = 9223372036854775808.0;
    if (std::trunc(number) != number || number < -limit || number >= limit) return std::nullopt;
    return static_cast<std::int64_t>(number);
}

// What a text says as a number: a whole one whenever that is exact.
ColumnValue readNumber(std::string_view text, const ColumnInfo& column) {
    if (const auto whole = wholeNumber(trim(text))) return *whole;
    const auto number = parseNumber(text);
    if (!number)
        refuse(RuntimeError::TypeMismatch, text, column,
               translatable("Korvane::ado", "The value \"%1\" is not a number (column %2)."));
    if (!std::isfinite(*number))
        refuse(RuntimeError::Overflow, text, column,
               translatable("Korvane::ado", "The value \"%1\" is too large (column %2)."));
    return *number;
}

ColumnValue asNumber(const Literal& literal, const ColumnInfo& column, std::string& scratch) {
    switch (literal.kind) {
    case Literal::Text: {
        const auto text = plainText(literal, scratch);
        if (trim(text).empty()) return {};
        if (sameName(trim(text), "True")) return std::int64_t{1};
        if (sameName(trim(text), "False")) return std::int64_t{0};
        return readNumber(text, column);
    }
    case Literal::Integer:
        return literal.integer;
    case Literal::Boolean:
        return std::int64_t{literal.truth ? 1 : 0};
    case Literal::Number:
        return literal.number;
    case Literal::Day:
        return literal.date.dayNumber();
    case Literal::Null:
        break;
    }
    return {};
}

bool fits(std::int64_t value, const Literal& literal, DataType type) {
    switch (type) {
    case DataType::SmallInt:
        return value >= std::numeric_limits<std::int16_t>::min() &&
               value <= std::numeric_limits<std::int16_t>::max();
    case DataType::Integer:
        // Written as a plain integer it may be as wide as the engine's own: a row number, a time in
        // milliseconds.
        if (literal.kind == Literal::Integer) return true;
        return value >= std::numeric_limits<std::int32_t>::min() &&
               value <= std::numeric_limits<std::int32_t>::max();
    default:
        return true;
    }
}

ColumnValue asInteger(const Literal& literal, const ColumnInfo& column, Use use, std::string& scratch) {
    ColumnValue value = asNumber(literal, column, scratch);
    if (std::holds_alternative<std::monostate>(value) || use == Use::Compare) return value;
    if (const double* number = std::get_if<double>(&value)) {
        if (std::trunc(*number) != *number) {
            refuse(RuntimeError::TypeMismatch, describe(literal), column,
                   translatable("Korvane::ado", "The value \"%1\" is not a whole number (column %2)."));
        }
        const auto whole = wholeNumber(*number);
        if (!whole) refuse(RuntimeError::Overflow, describe(literal), column, outOfRange);
        value = *whole;
    }
    if (!fits(std::get<std::int64_t>(value), literal, column.type)) {
        refuse(RuntimeError::Overflow, describe(literal), column, outOfRange);
    }
    return value;
}

ColumnValue asDecimal(const Literal& literal, const ColumnInfo& column, std::string& scratch) {
    const ColumnValue value = asNumber(literal, column, scratch);
    const double* number = std::get_if<double>(&value);
    if (!number || (literal.kind != Literal::Text && literal.text.empty())) return value;
    if (literal.kind == Literal::Text)
        scratch = numberDigits(plainText(literal, scratch)).value_or("");
    else
        scratch = (std::signbit(*number) ? "-" : "") + std::string(literal.text);
    return Digits{scratch};
}

ColumnValue asBoolean(const Literal& literal, const ColumnInfo& column, Use use, std::string& scratch) {
    if (literal.kind == Literal::Boolean) return literal.truth;
    if (literal.kind == Literal::Text) {
        const auto text = trim(plainText(literal, scratch));
        if (sameName(text, "True")) return true;
        if (sameName(text, "False")) return false;
        if (!text.empty() && !isNumeric(text)) {
            refuse(RuntimeError::TypeMismatch, text, column,
                   translatable("Korvane::ado", "The value \"%1\" is neither True nor False (column %2)."));
        }
    }
    const ColumnValue number = asNumber(literal, column, scratch);
    if (const auto* whole = std::get_if<std::int64_t>(&number)) {
        // A comparison such as Outgoing > 1 keeps its meaning.
        if (use == Use::Compare && *whole != 0 && *whole != 1 && *whole != -1) return number;
        return *whole != 0;
    }
    if (const auto* real = std::get_if<double>(&number)) return *real != 0.0;
    return {};
}

ColumnValue asDate(const Literal& literal, const ColumnInfo& column, std::string& scratch) {
    switch (literal.kind) {
    case Literal::Null:
        return {};
    case Literal::Day:
        return literal.date;
    case Literal::Text: {
        const auto text = plainText(literal, scratch);
        if (trim(text).empty()) return {};
        if (const auto iso = parseIsoDate(text)) return *iso;
        if (const auto date = parseDate(text)) return *date;
        refuse(RuntimeError::TypeMismatch, text, column, notADate);
    }
    case Literal::Boolean:
        refuse(RuntimeError::TypeMismatch, describe(literal), column, notADate);
    case Literal::Integer:
    case Literal::Number:
        break;
    }
    const Date date(literal.kind == Literal::Integer ? static_cast<double>(literal.integer) : literal.number);
    date.parts(); // raises Overflow when there is no such day
    return date;
}

ColumnValue asText(const Literal& literal, std::string& scratch) {
    switch (literal.kind) {
    case Literal::Text:
        return plainText(literal, scratch);
    case Literal::Null:
        return {};
    case Literal::Integer:
        return literal.integer;
    case Literal::Number:
        return literal.number;
    case Literal::Boolean:
    case Literal::Day:
        scratch = describe(literal);
        return std::string_view(scratch);
    }
    return {};
}

} // namespace

bool isTextType(DataType type) {
    return type == DataType::VarWChar || type == DataType::LongVarWChar || type == DataType::LongVarBinary ||
           type == DataType::Empty;
}

ColumnValue asItStands(const Literal& literal, std::string& scratch) {
    switch (literal.kind) {
    case Literal::Boolean:
        return literal.truth;
    case Literal::Day:
        return literal.date;
    default:
        return asText(literal, scratch);
    }
}

ColumnValue toColumn(const Literal& literal, const ColumnInfo& column, Use use, std::string& scratch) {
    switch (column.type) {
    case DataType::SmallInt:
    case DataType::Integer:
    case DataType::BigInt:
        return asInteger(literal, column, use, scratch);
    case DataType::Single:
    case DataType::Double:
        return asNumber(literal, column, scratch);
    case DataType::Currency:
    case DataType::Numeric:
        return asDecimal(literal, column, scratch);
    case DataType::Date:
        return asDate(literal, column, scratch);
    case DataType::Boolean:
        return asBoolean(literal, column, use, scratch);
    case DataType::Empty:
    case DataType::VarWChar:
    case DataType::LongVarWChar:
    case DataType::LongVarBinary:
        break;
    }
    const bool isEmptyText = literal.kind == Literal::Text && literal.text.empty();
    if (column.onlyShownAsText && isEmptyText) return {};
    return asText(literal, scratch);
}

Literal fromVariant(const Variant& value, std::string& scratch) {
    Literal literal;
    switch (value.type()) {
    case VarType::Empty:
    case VarType::Null:
        break;
    case VarType::Int16:
    case VarType::Int32:
    case VarType::Byte:
        literal.kind = Literal::Integer;
        literal.integer = value.toInt32();
        break;
    case VarType::Boolean:
        literal.kind = Literal::Boolean;
        literal.truth = value.toBoolean();
        break;
    case VarType::Date:
        literal.kind = Literal::Day;
        literal.date = value.toDate();
        break;
    case VarType::Double:
        literal.kind = Literal::Number;
        literal.number = value.toDouble();
        break;
    case VarType::Text:
        literal.kind = Literal::Text;
        literal.text = value.asText();
        break;
    default:
        // Currency, Decimal and Single keep their digits best as text.
        scratch = value.text();
        literal.kind = Literal::Text;
        literal.text = scratch;
        break;
    }
    return literal;
}

} // namespace Korvane::ado::sql
