#pragma once

#include <korvane/runtime/Variant.h>

#include <compare>
#include <cstdint>
#include <optional>
#include <string>

namespace Korvane {

/// @file
/// The arithmetic behind Currency and Decimal: texts, conversions and exact comparison.

/// The plain text, without zeros at the end of its decimals: "1.5".
std::string fixedPointText(Currency value);
/// The same of a decimal.
std::string fixedPointText(const Decimal& value);

/// The nearest double.
double fixedPointToDouble(Currency value);
/// The nearest double.
double fixedPointToDouble(const Decimal& value);

/// The nearest whole number, halves to the even one.
std::int64_t roundedToWhole(Currency value);
/// The same of a decimal; nothing when it is beyond 64 bits.
std::optional<std::int64_t> roundedToWhole(const Decimal& value);

/// Exact; an integer's scale is 0.
Decimal toDecimal(std::int64_t value);
/// Exact.
Decimal toDecimal(Currency value);

/// With the 15 digits that a double stands for. Nothing when it is beyond 96 bits or no
/// number; what is smaller than 10^-28 is lost.
std::optional<Decimal> toDecimal(double value);
/// The same with the 7 digits of a float.
std::optional<Decimal> toDecimal(float value);

/// With all its digits, as `parseNumber` reads it. Nothing for what a decimal cannot hold exactly.
std::optional<Decimal> parseDecimal(std::string_view text);

/// Exact; nothing for what needs more than four decimals or is too wide.
std::optional<Currency> toCurrency(const Decimal& value);

/// Rounded to four decimals, halves to even. Nothing when it does not fit.
std::optional<Currency> toCurrency(double value);

/// By value, whatever the scales are. Negative zero equals zero.
std::strong_ordering compareDecimals(const Decimal& a, const Decimal& b);

} // namespace Korvane
