#include <korvane/controls/axdate/DateBounds.h>
#include <korvane/controls/axdate/DateParts.h>
#include <korvane/controls/axdate/GivenDate.h>
#include <korvane/controls/axdate/PartStep.h>
#include <korvane/runtime/Date.h>
#include <korvane/runtime/RuntimeError.h>

#include "support/CaseTable.h"

#include <gtest/gtest.h>

namespace Korvane {

using namespace Testing;

namespace {

std::string shown(const std::optional<DateParts>& parts) {
    return parts ? parts->joined() : "no";
}

} // namespace

TEST(DateParts, EachPartHasItsOwnBounds) {
    struct Case {
        const char* text;
        int index;
        bool withFour, withTwo; ///< valid where four digits are required, and where they are not
    };
    for (const Case& c : {Case{"", 0, true, true},
                          Case{"1", 0, true, true},
                          Case{"12", 0, true, true},
                          Case{"1.5", 0, true, true},
                          Case{"13", 0, false, false},
                          Case{"0", 0, false, false},
                          Case{"12.5", 0, false, false},
                          Case{"x", 0, false, false},
                          Case{"31", 1, true, true},
                          Case{"32", 1, false, false},
                          Case{"0.5", 1, false, false},
                          Case{"", 2, true, true},
                          Case{"2001", 2, true, true},
                          Case{"00", 2, false, true},
                          Case{"1", 2, false, false},
                          Case{"123", 2, false, false},
                          Case{"12345", 2, false, false},
                          Case{"-5", 2, false, false},
                          Case{"-500", 2, false, false},
                          Case{"\u00A0"
                               "12\u00A0",
                               2, true, true},
                          Case{"99", 3, true, true},
                          Case{"x", 3, false, false}}) {
        const auto index = static_cast<std::int16_t>(c.index);
        EXPECT_EQ(isValidPart(c.text, index, true), c.withFour) << c.text << " at " << c.index;
        EXPECT_EQ(isValidPart(c.text, index, false), c.withTwo) << c.text << " at " << c.index;
    }
}

TEST(DateParts, ComposeTheWholeDateAsTyped) {
    struct Case {
        DateParts parts;
        const char* expected; ///< the date before is "before"
    };
    for (const Case& c : {Case{{{"", "", ""}}, ""},
                          {{{"04", "5", "2001"}}, "04/5/2001"},
                          {{{"4", "", "2001"}}, "before"},
                          {{{"4", "5", ""}}, "before"},
                          {{{"4", "31", "2001"}}, "before"},
                          {{{"2", "29", "2024"}}, "2/29/2024"},
                          {{{"2", "29", "2023"}}, "before"},
                          {{{"2", "30", "12"}}, "before"},
                          {{{"2", "28", "12"}}, "2/28/12"},
                          {{{"1.5", "2", "2001"}}, "before"},
                          {{{"13", "1", "2001"}}, ""},
                          {{{"1", "1", "201"}}, ""},
                          {{{"1", "x", ""}}, ""}})
        EXPECT_EQ(composedDate(c.parts, "before", false), c.expected) << c.parts.joined();
}

TEST(DateParts, ReadAsADateWhatTheTableSays) {
    for (const auto& row : readCases("isdate.tsv")) {
        const auto parts = splitDate(quotedText(row[0]));
        ASSERT_EQ(parts.has_value(), row[1] != "no" && !row[1].starts_with("1899-12-30")) << row[0];
        if (!parts || row[1].starts_with("{Y}")) continue;
        EXPECT_TRUE(parts->makeDate());
        EXPECT_EQ(parseDate(parts->joined())->isoText().substr(0, 10), row[1].substr(0, 10)) << row[0];
    }
}

TEST(DateParts, WidenYearsAndKnowTheMonths) {
    for (const auto& [two, four] : {std::pair{"00", "2000"}, {"29", "2029"}, {"30", "1930"}, {"99", "1999"}})
        EXPECT_EQ(widenedYear(two), four);
    EXPECT_THROW(widenedYear("-5"), RuntimeError);
    for (const auto& [name, number] : {std::pair{"MAY", "5"},
                                       {"january", "1"},
                                       {"December", "12"},
                                       {"Sept", "not found"},
                                       {" may", "not found"},
                                       {"5", "not found"},
                                       {"", "not found"}})
        EXPECT_EQ(monthNumber(name), number) << name;
}

TEST(DateBounds, CountWholeDaysAndTheMinimumWins) {
    struct Case {
        const char *date, *minimum, *maximum;
        int expected;
    };
    for (const Case& c : {Case{"5/2/2001", "", "", 0},
                          {"5/2/2001", "5/2/2001", "5/2/2001", 0},
                          {"5/2/2001 11:00 PM", "", "5/2/2001", 0},
                          {"5/3/2001", "", "5/2/2001", 1},
                          {"5/1/2001", "5/2/2001", "", -1},
                          {"5/1/2001", "5/2/2001", "4/2/2001", -1},
                          {"5/1/1801", "5/2/1801", "", -1},
                          {"5/1/2001", "soon", "later", 0},
                          {"", "5/2/2001", "4/2/2001", 0},
                          {"nothing", "5/2/2001", "", 0}})
        EXPECT_EQ(compareWithBounds(c.date, c.minimum, c.maximum), c.expected) << c.date << ' ' << c.minimum;
}

TEST(GivenDate, NamesItsDayMonthAndYear) {
    for (const auto& [text, expected] : {std::pair{"11/15/2026", "11/15/2026"},
                                         {"01/05/99", "1/5/1999"},
                                         {"2026-11-15", "11/15/2026"},
                                         {"2026-11-15T17:21:51", "11/15/2026"},
                                         {"11/15/2026 5:21:51 PM", "11/15/2026"},
                                         {"November 15, 2026", "11/15/2026"},
                                         {"15 Nov 2026", "11/15/2026"},
                                         {"15/11/2026", "11/15/2026"},
                                         {"4/31/12", "no"},
                                         {"3/1970", "no"},
                                         {"3/1970 5:00", "no"},
                                         {"3/4", "no"},
                                         {"3/4 5:00", "no"},
                                         {"5:21:51 PM", "no"},
                                         {"2/30/2026", "no"},
                                         {"soon", "no"},
                                         {"", "no"}})
        EXPECT_EQ(shown(givenDate(text)), expected) << text;
}

TEST(PartStep, StaysWithinTheRangeOfItsPart) {
    const Date today = Date::of(2026, 10, 31);
    struct Case {
        DateParts parts;
        std::size_t index;
        int by;
        const char* expected;
    };
    for (const Case& c : {Case{{{"", "", ""}}, 0, 1, "10"},
                          {{{"", "", ""}}, 2, -1, "2026"},
                          {{{"2", "", "2026"}}, 1, 1, "28"},
                          {{{"9", "", ""}}, 0, 1, "10"},
                          {{{"12", "", ""}}, 0, 1, "12"},
                          {{{"99999999999", "", ""}}, 0, -1, "12"},
                          {{{"4", "30", ""}}, 1, 1, "31"},
                          {{{"4", "30", "2026"}}, 1, 1, "30"},
                          {{{"2", "28", "2024"}}, 1, 1, "29"},
                          {{{"2", "31", "2023"}}, 1, -1, "28"},
                          {{{"", "1", ""}}, 1, -1, "1"},
                          {{{"", "", "99"}}, 2, 1, "2000"},
                          {{{"", "", "9999"}}, 2, 1, "9999"},
                          {{{"", "", "123456"}}, 2, 1, "9999"},
                          {{{"", "", "0100"}}, 2, -1, "0100"}})
        EXPECT_EQ(steppedPart(c.parts, c.index, c.by, today), c.expected) << c.parts.joined();
}

} // namespace Korvane
