#include <korvane/runtime/Date.h>

#include <korvane/runtime/Clock.h>
#include <korvane/runtime/DateFields.h>

#include <span>

namespace Korvane {

namespace {

using Field = DateFields::Field;
using Joint = DateFields::Joint;
using Half = DateFields::Half;

struct Time {
    int hour = 0, minute = 0, second = 0;
};

/// The fields of the date and those of the time, in the order of the text.
struct Halves {
    std::span<const Field> date, time;
};

/// The length of the run of fields from `at` on that time marks join.
std::size_t timeRun(const DateFields& f, std::size_t at) {
    std::size_t end = at + 1;
    while (end < f.count && f.fields[end].joint == Joint::Time)
        ++end;
    return end - at;
}

/// The one time of a text stands at its front or at its end: a run of two or three fields, or one with AM or
/// PM.
std::optional<Halves> splitFields(const DateFields& f) {
    const std::span<const Field> all(f.fields.data(), f.count);
    std::optional<Halves> halves;
    for (std::size_t at = 0; at < f.count;) {
        const std::size_t length = timeRun(f, at), end = at + length;
        if (length > 1 || (f.half != Half::None && f.halfAt == at)) {
            if (halves || length > 3 || (at > 0 && end < f.count)) return std::nullopt;
            if (f.half != Half::None && f.halfAt != end - 1) return std::nullopt;
            halves = Halves{at == 0 ? all.subspan(end) : all.first(at), all.subspan(at, length)};
        }
        at = end;
    }
    if (!halves && f.half == Half::None) halves = Halves{all, {}};
    return halves;
}

std::optional<Time> readTime(std::span<const Field> fields, Half half) {
    Time time;
    const std::array<int*, 3> parts = {&time.hour, &time.minute, &time.second};
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (fields[i].isMonthName) return std::nullopt;
        *parts[i] = fields[i].value;
    }
    if (half == Half::Pm && time.hour < 12) time.hour += 12;
    if (half == Half::Am && time.hour == 12) time.hour = 0;
    if (time.hour > 23 || time.minute > 59 || time.second > 59) return std::nullopt;
    return time;
}

/// Which field is the year, the month and the day; -1 where the text has none.
struct Order {
    int year, month, day;
};

constexpr std::array threeFieldOrders = {Order{2, 0, 1}, Order{0, 1, 2}, Order{0, 2, 1}, Order{2, 1, 0}};
constexpr std::array twoFieldOrders = {Order{-1, 0, 1}, Order{-1, 1, 0}, Order{0, 1, -1}, Order{1, 0, -1}};

int withCentury(int year) {
    if (year >= 100) return year;
    return year < 30 ? 2000 + year : 1900 + year;
}

/// The date in one order of the fields, when there is such a day and a month's name stands for the month.
std::optional<Date> dateInOrder(std::span<const Field> fields, const Order& order, const Time& time,
                                int thisYear) {
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (fields[i].isMonthName && static_cast<int>(i) != order.month) return std::nullopt;
    }
    const auto value = [&](int at, int otherwise) {
        return at < 0 ? otherwise : fields[static_cast<std::size_t>(at)].value;
    };
    const int year = order.year < 0 ? thisYear : withCentury(value(order.year, 0));
    return Date::exactly(year, value(order.month, 1), value(order.day, 1), time.hour, time.minute,
                         time.second);
}

std::optional<Date> readDate(std::span<const Field> fields, const Time& time, std::optional<int> givenYear) {
    if (fields.empty()) return Date::exactly(1899, 12, 30, time.hour, time.minute, time.second);
    if (fields.size() != 2 && fields.size() != 3) return std::nullopt;
    // Asking the clock costs more than all the rest.
    const int thisYear = givenYear || fields.size() == 3 ? givenYear.value_or(0) : Clock::now().parts().year;
    const auto orders = fields.size() == 2 ? std::span(twoFieldOrders) : std::span(threeFieldOrders);
    for (const Order& order : orders) {
        if (auto date = dateInOrder(fields, order, time, thisYear)) return date;
    }
    return std::nullopt;
}

std::optional<Date> parse(std::string_view text, std::optional<int> currentYear) {
    const auto fields = readDateFields(text);
    if (!fields) return std::nullopt;
    const auto halves = splitFields(*fields);
    if (!halves) return std::nullopt;
    // A date mark joins dates only: "1/2/3:04" is no date and a time.
    if (!halves->date.empty() && !halves->time.empty()) {
        const Field& second =
            halves->time.data() == fields->fields.data() ? halves->date[0] : halves->time[0];
        if (second.joint == Joint::Date) return std::nullopt;
    }
    const auto time = readTime(halves->time, fields->half);
    if (!time) return std::nullopt;
    auto date = readDate(halves->date, *time, currentYear);
    // "0.0" is the number zero rather than midnight.
    if (date && date->dayNumber() == 0 && !fields->hasColonOrName) return std::nullopt;
    return date;
}

} // namespace

std::optional<Date> parseDate(std::string_view text, int currentYear) {
    return parse(text, currentYear);
}

std::optional<Date> parseDate(std::string_view text) {
    return parse(text, std::nullopt);
}

bool isDate(std::string_view text) {
    return parseDate(text).has_value();
}

} // namespace Korvane
