#include <korvane/voice/SpokenNumber.h>

#include "support/CaseTable.h"

#include <gtest/gtest.h>

namespace Korvane::voice {

TEST(SpokenNumber, ReadsDaysMonthsAndYearsAsTheyAreSaidAndNothingElse) {
    for (const auto& row : Testing::readCases("spokennumber.tsv"))
        EXPECT_EQ(spokenNumber(Testing::quotedText(row[0])).value_or("none"), row[1]) << row[0];
}

} // namespace Korvane::voice
