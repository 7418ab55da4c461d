#include <korvane/runtime/Text.h>

#include "support/CaseTable.h"

#include <gtest/gtest.h>

#include <limits>

using namespace Korvane;
using namespace Korvane::Testing;

TEST(Text, ReadsNumbersAsTheTableSays) {
    for (const auto& row : readCases("isnumeric.tsv")) {
        const std::string text = quotedText(row[0]);
        EXPECT_EQ(isNumeric(text), row[1] != "no") << row[0];
        if (row[1] != "no") {
            EXPECT_DOUBLE_EQ(parseNumber(text).value_or(-99999), std::stod(row[1])) << row[0];
        }
    }
}

TEST(Text, ReadsVeryLongNumbers) {
    const std::string zeros(40000, '0');
    EXPECT_EQ(parseNumber(zeros + "12"), 12);
    EXPECT_EQ(parseNumber("0." + zeros + "1e40000"), 0.1);
    EXPECT_EQ(parseNumber("0." + zeros + "1"), 0);
    EXPECT_EQ(parseNumber("1" + zeros), std::nullopt);
    EXPECT_EQ(parseNumber("0" + std::string(400, '9')), std::nullopt);
}

TEST(Text, TakesTheNumberThatATextBeginsWith) {
    const std::pair<const char*, double> cases[] = {{"12abc", 12},    {" 1 6 15 198th Street", 1615198},
                                                    {"-2.5e1x", -25}, {"1e", 1},
                                                    {"2.5.7", 2.5},   {"abc", 0},
                                                    {"", 0},          {"+", 0},
                                                    {".", 0},         {"\t07", 7}};
    for (const auto& [text, number] : cases)
        EXPECT_EQ(leadingNumber(text), number) << text;
}

TEST(Text, WritesExtremeNumbers) {
    EXPECT_EQ(numberText(std::numeric_limits<double>::max()), "1.79769313486232E+308");
    EXPECT_EQ(numberText(std::numeric_limits<double>::denorm_min()), "4.94065645841247E-324");
    EXPECT_EQ(numberText(std::numeric_limits<float>::max()), "3.402823E+38");
    EXPECT_EQ(numberText(-100000.0), "-100000");
}

TEST(Text, ComparesNamesWithoutCaseAndLeavesOtherCharactersAlone) {
    EXPECT_TRUE(sameName("EncounterID", "ENCOUNTERid"));
    EXPECT_FALSE(sameName("Encounter", "Encounters"));
    EXPECT_FALSE(sameName("[", "{")); // apart by the bit that tells the cases of a letter apart
    EXPECT_EQ(upperCase("naïve-x1"), "NAïVE-X1");
    EXPECT_EQ(lowerCase("ÄB@Z["), "Äb@z[");
    EXPECT_EQ(trim("  a b\t "), "a b\t");
    EXPECT_EQ(trim("   "), "");
    EXPECT_EQ(escapeQuotes("O'Brien's \""), "O''Brien''s \"");
}
