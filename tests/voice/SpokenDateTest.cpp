#include <korvane/voice/SpokenDate.h>

#include <gtest/gtest.h>

namespace Korvane::voice {
namespace {

TEST(SpokenDate, IsPartedIntoItsValues) {
    using Values = std::vector<std::string>;
    const struct {
        const char* words;
        Values values;
    } cases[] = {
        {"november", {"november"}},
        {"twenty twenty six", {"twenty twenty six"}},
        {"november fifteen", {"november", "fifteen"}},
        {"march twenty one", {"march", "twenty one"}},
        {"november fifteen twenty twenty six", {"november", "fifteen", "twenty twenty six"}},
        {"may twenty first nineteen oh five", {"may", "twenty first", "nineteen oh five"}},
        {"may twenty two thousand and five", {"may", "twenty", "two thousand and five"}},
        {"may twenty two two thousand five", {"may", "twenty two", "two thousand five"}},
        {"june nineteen eighty four", {"june", "nineteen eighty four"}},
        {"next field", {"next field"}},
        {"", {""}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(spokenValues(c.words), c.values) << c.words;
}

} // namespace
} // namespace Korvane::voice
