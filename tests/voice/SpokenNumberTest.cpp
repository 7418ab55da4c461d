#include <korvane/voice/SpokenNumber.h>

#include <gtest/gtest.h>

namespace Korvane::voice {
namespace {

TEST(SpokenNumber, ReadsDaysMonthsAndYearsAsTheyAreSaid) {
    const struct {
        const char* words;
        const char* digits;
    } cases[] = {
        {"one", "1"},
        {"fifteen", "15"},
        {" Twenty-One ", "21"},
        {"thirty first", "31"},
        {"third", "3"},
        {"twentieth", "20"},
        {"twenty twenty six", "2026"},
        {"twenty twenty", "2020"},
        {"nineteen eighty four", "1984"},
        {"nineteen oh five", "1905"},
        {"nineteen zero five", "1905"},
        {"two thousand", "2000"},
        {"two thousand five", "2005"},
        {"two thousand and twenty six", "2026"},
        {"nineteen hundred", "1900"},
        {"one nine eight four", "1984"},
        {"two zero oh five", "2005"},
        {"oh five", "05"},
        {"eighty four", "84"},
        {"twenty fifteen", "2015"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(spokenNumber(c.words), c.digits) << c.words;
}

TEST(SpokenNumber, MakesNothingOfWordsThatAreNoPartOfADate) {
    for (const auto* words : {"", " ", "november", "zero", "thirty second", "fifteen twenty one one",
                              "twenty oh", "and five", "one two three four five", "two thousand and",
                              "thousand", "five hundred", "fifteen november", "twenty eleventh", "ten five"})
        EXPECT_EQ(spokenNumber(words), std::nullopt) << words;
}

} // namespace
} // namespace Korvane::voice
