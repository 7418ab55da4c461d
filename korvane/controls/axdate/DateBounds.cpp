#include <korvane/controls/axdate/DateBounds.h>

#include <korvane/runtime/Date.h>

#include <optional>

namespace Korvane {

namespace {

std::optional<Date> dayOf(std::string_view text) {
    const auto date = parseDate(text);
    if (!date) return std::nullopt;
    const Date::Parts read = date->parts();
    return Date::exactly(read.year, read.month, read.day);
}

} // namespace

std::int16_t compareWithBounds(std::string_view wholeDate, std::string_view minimum,
                               std::string_view maximum) {
    const auto day = dayOf(wholeDate);
    if (!day) return 0;
    const auto first = dayOf(minimum), last = dayOf(maximum);
    if (first && *day < *first) return -1;
    if (last && *day > *last) return 1;
    return 0;
}

} // namespace Korvane
