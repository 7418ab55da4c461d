#include "fuzz/Properties.h"

#include <korvane/ado/sql/Literal.h>
#include <korvane/nip/Choices.h>
#include <korvane/runtime/Date.h>
#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Text.h>

#include <array>
#include <cmath>

namespace Korvane::Fuzz {

namespace {

using ado::DataType;

void survives(const std::optional<Date>& date, std::string_view text) {
    if (!date) return;
    const auto again = parseDate(date->text());
    require(again && again->seconds() == date->seconds(), "A date is another one when read again", text);
    const auto sorted = parseIsoDate(date->isoText());
    require(sorted && sorted->seconds() == date->seconds(), "A date is another one in its sortable form",
            text);
}

void survives(const std::optional<double>& number, std::string_view text) {
    if (!number || !std::isfinite(*number)) return;
    const auto again = parseNumber(numberText(*number));
    const double most = std::abs(*number) * 1e-14;
    require(again && (*again == *number || std::abs(*again - *number) <= most),
            "A number is another one when read again", text);
}

void joinsAgain(std::string_view text) {
    FieldRecord field;
    field.displayType = "LIST-MULTIPLE";
    field.value = text;
    splitChoices(field);
    const std::string joined = joinChoices(field);
    require(joined == (trim(text).empty() ? std::string_view() : text), "A list of choices was changed",
            text);
}

/// A value in the form of a column, written there again, stays what it is; a text in a text column anyway.
void suits(std::string_view text, DataType type, ado::sql::Use use) {
    const ado::ColumnInfo column{"C", type, 0};
    const ado::sql::Literal literal{.kind = ado::sql::Literal::Text, .text = text};
    std::string scratch;
    try {
        const auto value = ado::sql::toColumn(literal, column, use, scratch);
        const auto* kept = std::get_if<std::string_view>(&value);
        if (ado::sql::isTextType(type)) require(kept && *kept == text, "A text column changes a text", text);
    } catch (const RuntimeError& error) {
        require(error.Number() == RuntimeError::TypeMismatch || error.Number() == RuntimeError::Overflow,
                "Another error than about the value", text);
    }
}

} // namespace

void converting(std::string_view text) {
    constexpr int year = 2026;
    survives(parseDate(text, year), text);
    survives(parseIsoDate(text), text);
    const auto number = parseNumber(text);
    require(number.has_value() == isNumeric(text), "It is a number and is none", text);
    survives(number, text);
    leadingNumber(text);
    joinsAgain(text);
    for (const DataType type :
         {DataType::Empty, DataType::SmallInt, DataType::Integer, DataType::Single, DataType::Double,
          DataType::Currency, DataType::Date, DataType::Boolean, DataType::BigInt, DataType::Numeric,
          DataType::VarWChar, DataType::LongVarWChar, DataType::LongVarBinary}) {
        suits(text, type, ado::sql::Use::Store);
        suits(text, type, ado::sql::Use::Compare);
    }
}

} // namespace Korvane::Fuzz
