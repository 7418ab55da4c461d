#include <korvane/controls/axdate/GivenDate.h>

#include <korvane/runtime/Date.h>
#include <korvane/runtime/DateFields.h>

#include <algorithm>

namespace Korvane {

std::optional<DateParts> givenDate(std::string_view text) {
    std::string spaced(text);
    // The standard form of computers, which is not that of people.
    if (parseIsoDate(text)) std::replace(spaced.begin(), spaced.end(), 'T', ' ');
    const auto fields = readDateFields(spaced);
    const auto date = parseDate(spaced, 2000);
    if (!fields || !date || fields->count < DateParts::count) return std::nullopt;
    const Date::Parts read = date->parts();
    const auto is = [&](std::size_t at, int value) { return fields->fields[at].value == value; };
    const auto isYear = [&](std::size_t at) { return is(at, read.year) || is(at, read.year % 100); };
    const bool inOrder = (is(0, read.month) && is(1, read.day) && isYear(2)) ||
                         (is(0, read.year) && is(1, read.month) && is(2, read.day)) ||
                         (is(0, read.day) && is(1, read.month) && isYear(2));
    const bool joinedByTime = fields->fields[1].joint == DateFields::Joint::Time ||
                              fields->fields[2].joint == DateFields::Joint::Time;
    if (!inOrder || joinedByTime) return std::nullopt;
    return splitDate(date->text());
}

} // namespace Korvane
