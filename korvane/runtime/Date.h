#pragma once

// Qt 6.4's moc cannot read <compare> when it is the first standard header it meets.
#include <version>

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace Korvane {

/// A point in local time, kept as a day number: whole days since 30 December 1899, the time of day as the
/// fraction. Before day 0 the fraction still counts forward from midnight: -0.25 is 30 December 1899 6:00 AM,
/// -1.25 is 29 December 6:00 AM.
///
///     Date d = Date::of(2026, 11, 15, 17, 21, 51);
///     d.text();      // "11/15/2026 5:21:51 PM"
///     d.isoText();   // "2026-11-15 17:21:51"
///
/// Range: 1 January 100 to 31 December 9999. Resolution in texts and parts: one second, rounded to the
/// nearest.
class Date {
  public:
    /// What a calendar and a clock show: the defaults are those of day 0.
    struct Parts {
        /// Months and days from 1, hours from 0 to 23.
        int year = 1899, month = 12, day = 30, hour = 0, minute = 0, second = 0;
        int weekday = 6;     ///< 0 = Sunday
        int dayOfYear = 364; ///< from 1
        bool operator==(const Parts&) const = default;
    };

    /// Day 0: midnight of 30 December 1899, the "zero date".
    constexpr Date() = default;
    /// Taken as it is: one out of range is refused only by what reads it.
    constexpr explicit Date(double dayNumber) : mDays(dayNumber) {}

    /// Parts out of range roll over (month 13 is January of the next year). Overflow outside the range of
    /// years. A year of 0 to 29 means 2000 to 2029, one of 30 to 99 means 1930 to 1999.
    static Date of(int year, int month, int day, int hour = 0, int minute = 0, int second = 0);

    /// As `of`, but nothing rolls over and the year stands as given (100 to 9999): nothing when no such
    /// moment exists.
    static std::optional<Date> exactly(int year, int month, int day, int hour = 0, int minute = 0,
                                       int second = 0);

    /// Days since day 0, the time of day as the fraction; for days before see above.
    constexpr double dayNumber() const { return mDays; }

    /// Overflow when the day number is outside the range of years.
    Parts parts() const;

    /// The general date form: "11/15/2026 5:21:51 PM"; the date alone at midnight; the time alone on day 0
    /// ("12:00:00 AM" for the zero date). Overflow outside the range.
    std::string text() const;

    /// "2026-11-15 17:21:51", always with the time. Sorts as it stands. Overflow outside the range.
    std::string isoText() const;

    /// Seconds since day 0, rounded: two dates that read the same are equal in it. Overflow outside the
    /// range.
    std::int64_t seconds() const;

    /// By day number: within a day before day 0 the later hour is the lesser one. `seconds` orders by time.
    friend constexpr auto operator<=>(const Date& a, const Date& b) { return a.mDays <=> b.mDays; }
    friend constexpr bool operator==(const Date& a, const Date& b) { return a.mDays == b.mDays; }

  private:
    double mDays = 0.0;
};

/// Reads a text as a date the way the general conversion does (en-US; two-digit years 00-29 are 2000s). A
/// date without a year takes `currentYear`; a time alone lies on day 0. Nothing when it is no date.
///
/// Two or three numbers, one of which may be a month's name, with "/", "-", blanks or commas between them,
/// make a date: month day year; else year month day; else year day month or day month year. Two numbers are
/// month and day, else day and month, else a year and a month (its first day). Before or behind the date, or
/// alone, stands a time: two or three numbers with ":" or "." between them, or AM or PM behind one to three.
/// Names of weekdays are not read.
///
///     parseDate("2 January, 1970", 2026);   // 1970-01-02
///     parseDate("8:30 PM", 2026);           // 1899-12-30 20:30
std::optional<Date> parseDate(std::string_view text, int currentYear);

/// The same with the current year of `Clock`.
std::optional<Date> parseDate(std::string_view text);

/// Whether `parseDate` would read it.
bool isDate(std::string_view text);

/// Reads "2026-11-15", "2026-11-15 17:21:51" (or with a T; fractions of a second are dropped). Nothing else.
std::optional<Date> parseIsoDate(std::string_view text);

} // namespace Korvane
