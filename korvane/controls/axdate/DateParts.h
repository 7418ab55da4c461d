#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace Korvane {

/// The three parts of a date as texts, each typed into a box of its own, and what they make together.
///
///     DateParts parts{{"4", "15", "2001"}};
///     parts.joined();                          // "4/15/2001"
///     composedDate(parts, "", true);           // the same, as it is a date
///
/// Texts are UTF-8. Nothing here raises but `widenedYear`.
struct DateParts {
    static constexpr std::size_t month = 0, day = 1, year = 2, count = 3;

    std::array<std::string, count> texts;

    /// Month "/" day "/" year, also when some are empty.
    std::string joined() const;
    bool allEmpty() const;
    /// Whether there is such a day. The parts are read as month, day and year and in no other order: 2/30/12
    /// is none, though the text alone would read as 30 December 2002.
    bool makeDate() const;

    bool operator==(const DateParts&) const = default;
};

/// Whether a text will do for the part `index`. An empty one always does; else it has to be a number, a month
/// from 1 to 12, a day from 1 to 31 in any month, a year of 4 characters that is not negative, or of 2 when
/// four are not required. Any number will do for another index.
bool isValidPart(std::string_view text, std::int16_t index, bool requireFourDigitYear);

/// The whole date that the parts make, as typed: no zero is added or taken away. Empty when a part is not
/// valid or all are empty; `before` when each part is valid and there is no such date (yet).
std::string composedDate(const DateParts& parts, std::string_view before, bool requireFourDigitYear);

/// A whole date taken apart: month and day without leading zeros, the year with four digits. Nothing when the
/// text does not read as a date, or as a time alone.
std::optional<DateParts> splitDate(std::string_view wholeDate);

/// The four digits of a year of two: 00 to 29 are 2000s. TypeMismatch when "1/1/" and the text is no date.
std::string widenedYear(std::string_view text);

/// The number of a month by its full English name in any letter case, as text; else "not found".
///
///     monthNumber("MAY");    // "5"
std::string monthNumber(std::string_view name);

} // namespace Korvane
