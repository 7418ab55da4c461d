#include <korvane/controls/axdate/DateBounds.h>
#include <korvane/controls/axdate/DateParts.h>
#include <korvane/controls/axdate/GivenDate.h>
#include <korvane/controls/axdate/PartStep.h>
#include <korvane/runtime/Date.h>
#include <korvane/runtime/RuntimeError.h>

#include "support/CaseTable.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace Korvane {

using namespace Testing;

namespace {

using Pairs = std::vector<std::pair<const char*, const char*>>;

} // namespace

TEST(DateParts, EachPartHasItsOwnBounds) {
    const struct {
        std::int16_t index;
        std::vector<const char*> texts;
        bool valid, validWithTwo; ///< with two: where four digits are not required
    } cases[] = {{0, {"", "1", "12", "1.5"}, true, true},
                 {0, {"13", "0", "12.5", "x"}, false, false},
                 {1, {"31"}, true, true},
                 {1, {"32", "0.5"}, false, false},
                 {2, {"", "2001", "\u00A012\u00A0"}, true, true},
                 {2, {"00"}, false, true},
                 {2, {"1", "123", "12345", "-5", "-500"}, false, false},
                 {3, {"99"}, true, true},
                 {3, {"x"}, false, false}};
    for (const auto& c : cases)
        for (const char* text : c.texts) {
            EXPECT_EQ(isValidPart(text, c.index, true), c.valid) << text << " at " << c.index;
            EXPECT_EQ(isValidPart(text, c.index, false), c.validWithTwo) << text << " at " << c.index;
        }
}

TEST(DateParts, ComposeTheWholeDateAsTyped) {
    const std::pair<DateParts, const char*> cases[] = {{{{"", "", ""}}, ""},
                                                       {{{"04", "5", "2001"}}, "04/5/2001"},
                                                       {{{"4", "5", ""}}, "before"},
                                                       {{{"4", "31", "2001"}}, "before"},
                                                       {{{"2", "29", "2024"}}, "2/29/2024"},
                                                       {{{"2", "29", "2023"}}, "before"},
                                                       {{{"2", "28", "12"}}, "2/28/12"},
                                                       {{{"1.5", "2", "2001"}}, "before"},
                                                       {{{"13", "1", "2001"}}, ""},
                                                       {{{"1", "x", ""}}, ""}};
    for (const auto& [parts, expected] : cases) // the date before is "before"
        EXPECT_EQ(composedDate(parts, "before", false), expected) << parts.joined();
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

TEST(DateParts, WidenYears) {
    for (const auto& [two, four] : Pairs{{"00", "2000"}, {"29", "2029"}, {"30", "1930"}, {"99", "1999"}})
        EXPECT_EQ(widenedYear(two), four);
    EXPECT_THROW(widenedYear("-5"), RuntimeError);
}

TEST(DateBounds, CountWholeDaysAndTheMinimumWins) {
    const struct {
        const char *date, *minimum, *maximum;
        int expected;
    } cases[] = {{"5/2/2001", "", "", 0},
                 {"5/2/2001", "5/2/2001", "5/2/2001", 0},
                 {"5/2/2001 11:00 PM", "", "5/2/2001", 0},
                 {"5/3/2001", "", "5/2/2001", 1},
                 {"5/1/2001", "5/2/2001", "", -1},
                 {"5/1/2001", "5/2/2001", "4/2/2001", -1},
                 {"5/1/2001", "soon", "later", 0},
                 {"", "5/2/2001", "4/2/2001", 0},
                 {"nothing", "5/2/2001", "", 0}};
    for (const auto& c : cases)
        EXPECT_EQ(compareWithBounds(c.date, c.minimum, c.maximum), c.expected) << c.date << ' ' << c.minimum;
}

TEST(GivenDate, NamesItsDayMonthAndYear) {
    for (const auto& [text, expected] : Pairs{{"11/15/2026", "11/15/2026"},
                                              {"01/05/99", "1/5/1999"},
                                              {"2026-11-15", "11/15/2026"},
                                              {"11/15/2026 5:21:51 PM", "11/15/2026"},
                                              {"November 15, 2026", "11/15/2026"},
                                              {"15/11/2026", "11/15/2026"}})
        EXPECT_EQ(givenDate(text)->joined(), expected) << text;
    for (const char* text :
         {"4/31/12", "3/1970", "3/1970 5:00", "3/4", "3/4 5:00", "5:21:51 PM", "2/30/2026", "soon", ""})
        EXPECT_FALSE(givenDate(text)) << text;
}

TEST(PartStep, StaysWithinTheRangeOfItsPart) {
    const struct {
        DateParts parts;
        std::size_t index;
        int by;
        const char* expected;
    } cases[] = {{{{"", "", ""}}, 0, 1, "10"},        {{{"2", "", "2026"}}, 1, 1, "28"},
                 {{{"", "", ""}}, 2, -1, "2026"},     {{{"9", "", ""}}, 0, 1, "10"},
                 {{{"12", "", ""}}, 0, 1, "12"},      {{{"99999999999", "", ""}}, 0, -1, "12"},
                 {{{"4", "30", ""}}, 1, 1, "31"},     {{{"4", "30", "2026"}}, 1, 1, "30"},
                 {{{"2", "28", "2024"}}, 1, 1, "29"}, {{{"2", "31", "2023"}}, 1, -1, "28"},
                 {{{"", "1", ""}}, 1, -1, "1"},       {{{"", "", "99"}}, 2, 1, "2000"},
                 {{{"", "", "9999"}}, 2, 1, "9999"},  {{{"", "", "123456"}}, 2, 1, "9999"},
                 {{{"", "", "0100"}}, 2, -1, "0100"}};
    for (const auto& c : cases)
        EXPECT_EQ(steppedPart(c.parts, c.index, c.by, Date::of(2026, 10, 31)), c.expected)
            << c.parts.joined();
}

} // namespace Korvane
