#include <korvane/runtime/Clock.h>
#include <korvane/runtime/Date.h>
#include <korvane/runtime/RuntimeError.h>

#include "support/CaseTable.h"
#include "support/StoppedClock.h"

#include <gtest/gtest.h>

#include <random>
#include <sstream>

using namespace Korvane;
using namespace Korvane::Testing;

namespace {

std::string partsText(double dayNumber, bool withDays) {
    try {
        const Date date(dayNumber);
        const auto parts = date.parts();
        if (!withDays) return date.isoText();
        return date.isoText() + " weekday=" + std::to_string(parts.weekday) +
               " dayofyear=" + std::to_string(parts.dayOfYear);
    } catch (const RuntimeError& e) {
        return e.Number() == RuntimeError::Overflow ? "error" : e.Description();
    }
}

std::optional<Date> dateOf(const std::string& operation, const std::string& sixNumbers) {
    std::istringstream in(sixNumbers);
    int year = 0, month = 0, day = 0, hour = 0, minute = 0, second = 0;
    in >> year >> month >> day >> hour >> minute >> second;
    if (operation == "exactly") return Date::exactly(year, month, day, hour, minute, second);
    try {
        return Date::of(year, month, day, hour, minute, second);
    } catch (const RuntimeError&) {
        return std::nullopt;
    }
}

} // namespace

TEST(Date, TurnsDayNumbersIntoPartsAndBack) {
    for (const auto& row : readCases("datenumber.tsv")) {
        SCOPED_TRACE(row[0] + ' ' + row[1]);
        if (row[0] == "parts") {
            EXPECT_EQ(partsText(std::stod(row[1]), row[2].find("weekday") != std::string::npos), row[2]);
        } else if (const auto date = dateOf(row[0], row[1]); row[2] == "error") {
            EXPECT_FALSE(date);
        } else {
            ASSERT_TRUE(date);
            EXPECT_NEAR(date->dayNumber(), std::stod(row[2]), 1e-9);
        }
    }
}

TEST(Date, CountsSecondsForwardAlsoBeforeDayZero) {
    EXPECT_EQ(Date::of(1899, 12, 29, 6).seconds(), -18 * 3600);
    EXPECT_EQ(Date(-0.25).seconds(), Date(0.25).seconds());
    EXPECT_THROW((void)Date(1e300).seconds(), RuntimeError);
}

TEST(Date, ReadsDatesAsTheTableSays) {
    const StoppedClock clock;
    for (const auto& row : readCases("isdate.tsv")) {
        std::string expected = row[1];
        if (expected.starts_with("{Y}")) expected.replace(0, 3, "2026");
        const auto date = parseDate(quotedText(row[0]));
        EXPECT_EQ(date ? date->isoText() : "no", expected) << row[0];
        EXPECT_EQ(isDate(quotedText(row[0])), date.has_value()) << row[0];
    }
}

TEST(Date, EveryMomentSurvivesBothOfItsTexts) {
    std::mt19937 random(20261115);
    std::uniform_int_distribution<std::int64_t> days(-657434, 2958465), seconds(1, 86399);
    for (int i = 0; i < 2000; ++i) {
        const Date date = Date::of(1899, 12, static_cast<int>(30 + days(random)), 0, 0,
                                   static_cast<int>(seconds(random)) - (i % 7 == 0 ? 1 : 0));
        ASSERT_EQ(parseDate(date.text(), 2026), date) << date.text();
        ASSERT_EQ(parseIsoDate(date.isoText()), date) << date.isoText();
    }
}

TEST(Date, ReadsTheIsoFormAndNothingElse) {
    for (const auto& row : readCases("isodate.tsv")) {
        const auto date = parseIsoDate(quotedText(row[0]));
        EXPECT_EQ(date ? date->isoText() : "no", row[1]) << row[0];
    }
}

TEST(Date, RejectsWhateverBytesItIsGiven) {
    const std::size_t length = 40000;
    EXPECT_FALSE(parseDate(std::string(length, '1'), 2026));
    EXPECT_FALSE(parseDate(std::string(length, ' '), 2026));
    EXPECT_FALSE(parseDate(std::string(length, '\xE3'), 2026));
    EXPECT_TRUE(parseDate("1/2" + std::string(length, ' ') + "1970", 2026));
}

TEST(Clock, AsksItsSourceUntilTheSystemsIsWantedAgain) {
    {
        const StoppedClock clock(Date::of(1999, 1, 2));
        EXPECT_EQ(Clock::now().text(), "1/2/1999");
    }
    EXPECT_GT(Clock::now(), Date::of(2024, 1, 1));
}
