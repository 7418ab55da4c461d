#include <korvane/runtime/FixedPoint.h>
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

TEST(Text, KeepsEveryDigitOfANumber) {
    for (const auto& row : readCases("digits.tsv")) {
        EXPECT_EQ(numberDigits(quotedText(row[0])), row[1]);
        const auto decimal = parseDecimal(quotedText(row[0]));
        EXPECT_EQ(decimal ? fixedPointText(*decimal) : "none", row[2]) << row[0];
    }
    EXPECT_FALSE(numberDigits("12 abc"));
    EXPECT_EQ(toCurrency(*parseDecimal("-922337203685477.5807")), Currency{-9223372036854775807});
    EXPECT_FALSE(toCurrency(*parseDecimal("922337203685477.5808")));
    EXPECT_FALSE(toCurrency(*parseDecimal("0.00001")));
}

TEST(Text, TakesTheNumberThatATextBeginsWith) {
    for (const auto& row : readCases("leadingnumber.tsv"))
        EXPECT_EQ(leadingNumber(quotedText(row[0])), std::stod(row[1])) << row[0];
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
