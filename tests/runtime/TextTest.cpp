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
    const struct {
        const char* text;
        const char* digits;
        const char* decimal; ///< null: no decimal holds it
    } cases[] = {
        {" ($1,234.50) ", "-1234.50", "-1234.5"},
        {"+12345678901234567890.123", "12345678901234567890.123", "12345678901234567890.123"},
        {"-0.000", "-0.000", "0"},
        {".5D+2", ".5e2", "50"},
        {"1e-28", "1e-28", "0.0000000000000000000000000001"},
        {"1e-29", "1e-29", nullptr},
        {"79228162514264337593543950335", "79228162514264337593543950335", "79228162514264337593543950335"},
        {"79228162514264337593543950336", "79228162514264337593543950336", nullptr},
        {"1e9999999", "1e9999999", nullptr},
        {"&H1F", "31", "31"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(numberDigits(c.text), c.digits);
        const auto decimal = parseDecimal(c.text);
        ASSERT_EQ(decimal.has_value(), c.decimal != nullptr) << c.text;
        EXPECT_EQ(decimal ? fixedPointText(*decimal) : "", c.decimal ? c.decimal : "");
    }
    EXPECT_FALSE(numberDigits("12 abc"));
    EXPECT_EQ(toCurrency(*parseDecimal("-922337203685477.5807")), Currency{-9223372036854775807});
    EXPECT_FALSE(toCurrency(*parseDecimal("922337203685477.5808")));
    EXPECT_FALSE(toCurrency(*parseDecimal("0.00001")));
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
