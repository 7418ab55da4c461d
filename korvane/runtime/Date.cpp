#include <korvane/runtime/Date.h>

#include <korvane/runtime/RuntimeError.h>

#include <chrono>
#include <cmath>

namespace Korvane {

namespace {

using std::chrono::sys_days;
using std::chrono::year_month_day;

constexpr std::int64_t secondsPerDay = 86400;
constexpr sys_days dayZero = sys_days{std::chrono::year{1899} / 12 / 30};
constexpr std::int64_t firstDay = -657434; // 1 January 100
constexpr std::int64_t lastDay = 2958465;  // 31 December 9999

struct Moment {
    std::int64_t day;
    std::int64_t secondOfDay;
};

bool inRange(std::int64_t day) {
    return day >= firstDay && day <= lastDay;
}

/// Before day 0 the fraction counts forward from midnight, so it is the distance from the whole day on either
/// side.
Moment momentOf(double dayNumber) {
    if (!(dayNumber > firstDay - 1.0 && dayNumber < lastDay + 1.0))
        throw RuntimeError(RuntimeError::Overflow);
    const double whole = std::trunc(dayNumber);
    Moment moment{static_cast<std::int64_t>(whole),
                  std::llround(std::abs(dayNumber - whole) * static_cast<double>(secondsPerDay))};
    if (moment.secondOfDay == secondsPerDay) moment = {moment.day + 1, 0};
    if (!inRange(moment.day)) throw RuntimeError(RuntimeError::Overflow);
    return moment;
}

Date dateOf(Moment moment) {
    const double fraction = static_cast<double>(moment.secondOfDay) / static_cast<double>(secondsPerDay);
    const auto day = static_cast<double>(moment.day);
    return Date(moment.day < 0 ? day - fraction : day + fraction);
}

std::int64_t floorDivide(std::int64_t a, std::int64_t b) {
    return (a >= 0 ? a : a - b + 1) / b;
}

int fullYear(int year) {
    if (year < 0 || year > 99) return year;
    return year < 30 ? 2000 + year : 1900 + year;
}

} // namespace

Date Date::of(int year, int month, int day, int hour, int minute, int second) {
    const std::int64_t months = std::int64_t{fullYear(year)} * 12 + month - 1;
    const std::int64_t rolledYear = floorDivide(months, 12);
    // Wide of the range only so that days may roll back into it; std::chrono ends at 32767.
    if (year > 9999 || rolledYear < -9999 || rolledYear > 19999) throw RuntimeError(RuntimeError::Overflow);
    const auto rolledMonth = static_cast<unsigned>(months - rolledYear * 12 + 1);
    const sys_days first = year_month_day{std::chrono::year{static_cast<int>(rolledYear)},
                                          std::chrono::month{rolledMonth}, std::chrono::day{1}};
    const std::int64_t seconds = std::int64_t{hour} * 3600 + std::int64_t{minute} * 60 + second;
    const std::int64_t extraDays = floorDivide(seconds, secondsPerDay);
    const Moment moment{(first - dayZero).count() + std::int64_t{day} - 1 + extraDays,
                        seconds - extraDays * secondsPerDay};
    if (!inRange(moment.day)) throw RuntimeError(RuntimeError::Overflow);
    return dateOf(moment);
}

std::optional<Date> Date::exactly(int year, int month, int day, int hour, int minute, int second) {
    if (year < 100 || year > 9999 || month < 1 || day < 1) return std::nullopt;
    if (hour < 0 || hour > 23 || minute < 0 || minute > 59 || second < 0 || second > 59) return std::nullopt;
    if (month > 12 || day > 31) return std::nullopt;
    const year_month_day civil{std::chrono::year{year}, std::chrono::month{static_cast<unsigned>(month)},
                               std::chrono::day{static_cast<unsigned>(day)}};
    if (!civil.ok()) return std::nullopt;
    return dateOf({(sys_days{civil} - dayZero).count(), hour * 3600 + minute * 60 + second});
}

Date::Parts Date::parts() const {
    const Moment moment = momentOf(mDays);
    const sys_days day = dayZero + std::chrono::days{moment.day};
    const year_month_day civil{day};
    const auto second = static_cast<int>(moment.secondOfDay);
    Parts parts;
    parts.year = int{civil.year()};
    parts.month = static_cast<int>(unsigned{civil.month()});
    parts.day = static_cast<int>(unsigned{civil.day()});
    parts.hour = second / 3600;
    parts.minute = second / 60 % 60;
    parts.second = second % 60;
    parts.weekday = static_cast<int>(std::chrono::weekday{day}.c_encoding());
    parts.dayOfYear = static_cast<int>((day - sys_days{civil.year() / 1 / 1}).count()) + 1;
    return parts;
}

std::int64_t Date::seconds() const {
    const Moment moment = momentOf(mDays);
    return moment.day * secondsPerDay + moment.secondOfDay;
}

} // namespace Korvane
