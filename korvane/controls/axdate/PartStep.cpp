#include <korvane/controls/axdate/PartStep.h>

#include <korvane/runtime/Text.h>

#include <algorithm>

namespace Korvane {

namespace {

int lastDayOf(DateParts parts) {
    for (int day = 31; day > 28; --day) {
        parts.texts[DateParts::day] = std::to_string(day);
        if (parts.makeDate()) return day;
    }
    return 28;
}

int lastDayWhereKnown(DateParts parts) {
    parts.texts[DateParts::day] = "1";
    return parts.makeDate() ? lastDayOf(parts) : 31;
}

} // namespace

std::string steppedPart(const DateParts& parts, std::size_t index, int by, Date today) {
    const std::string& text = parts.texts[index];
    const auto value = parseNumber(text);
    const DateParts now = splitDate(today.text()).value_or(DateParts{});
    if (!value && index == DateParts::day)
        return std::to_string(std::min(std::stoi(now.texts[index]), lastDayWhereKnown(parts)));
    if (!value) return now.texts[index];
    const int typed = static_cast<int>(std::clamp(*value, -9999.0, 9999.0));
    switch (index) {
    case DateParts::month:
        return std::to_string(std::clamp(typed + by, 1, 12));
    case DateParts::day:
        return std::to_string(std::clamp(typed + by, 1, lastDayWhereKnown(parts)));
    default: {
        const auto first = splitDate("1/1/" + text);
        const int year = first ? std::stoi(first->texts[DateParts::year]) : typed;
        const std::string stepped = std::to_string(std::clamp(year + by, 100, 9999));
        return std::string(4 - stepped.size(), '0') + stepped;
    }
    }
}

} // namespace Korvane
