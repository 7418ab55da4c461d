#include <korvane/ado/postgres/ChangedTable.h>

#include "support/CaseTable.h"

#include <gtest/gtest.h>

namespace Korvane::ado::Testing {

TEST(ChangedTable, IsToldOnlyWhereNoOtherOneChanges) {
    for (const auto& row : Korvane::Testing::readCases("changedtable.tsv"))
        EXPECT_EQ(postgres::changedTable(Korvane::Testing::quotedText(row[0])),
                  row[1] == "none" ? "" : row[1])
            << row[0];
}

} // namespace Korvane::ado::Testing
