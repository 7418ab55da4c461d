#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace Korvane {

/// ASCII letters only; other characters stand as they are.
std::string upperCase(std::string_view text);
/// ASCII letters only, as well.
std::string lowerCase(std::string_view text);

/// 0 to 9, whatever the locale is.
constexpr bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// Equal without regard to the case of ASCII letters, as names of tables, columns and fields are compared.
bool sameName(std::string_view a, std::string_view b);
/// A number that names have in common when they are the same.
std::size_t nameHash(std::string_view name);

/// Without blanks at both ends (blanks only: line breaks and tabs stay).
std::string_view trim(std::string_view text);

/// Whether a text reads as a number: blanks around it, a sign before or behind, "$", thousands commas, a
/// decimal point, an exponent, "&H" and "&O" forms. Empty text is no number.
bool isNumeric(std::string_view text);

/// The number that `isNumeric` would accept; nothing otherwise.
std::optional<double> parseNumber(std::string_view text);

/// The same number with every digit that was written, in plain form; nothing for a text that is none.
///
///     numberDigits("($1,234.50)");   // "-1234.50"
std::optional<std::string> numberDigits(std::string_view text);

/// The numeric value of the digits that a text begins with, blanks skipped; 0 when there are none.
///
///     leadingNumber("12abc");   // 12
double leadingNumber(std::string_view text);

/// A number in its plain text form: up to 15 significant digits, "1E+15" from 10^15 on.
std::string numberText(double value);
/// The same with up to 7 digits.
std::string numberText(float value);

/// Every single quote doubled, for a value pasted between single quotes into a statement.
std::string escapeQuotes(std::string_view text);
/// The same, appended to a statement that is being written.
void appendEscaped(std::string& statement, std::string_view text);

} // namespace Korvane
