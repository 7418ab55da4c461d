#include <korvane/voice/SpokenDate.h>

#include "support/CaseTable.h"

#include <gtest/gtest.h>

namespace Korvane::voice {

TEST(SpokenDate, IsPartedIntoItsValues) {
    for (const auto& row : Testing::readCases("spokendate.tsv")) {
        std::string values;
        for (const std::string& value : spokenValues(Testing::quotedText(row[0])))
            values += (values.empty() ? "" : "/") + value;
        EXPECT_EQ(values, row[1]) << row[0];
    }
}

} // namespace Korvane::voice
