#include <korvane/ado/postgres/ChangedTable.h>

#include <gtest/gtest.h>

namespace Korvane::ado::Testing {

TEST(ChangedTable, IsToldOnlyWhereNoOtherOneChanges) {
    const struct {
        const char* statement;
        const char* table;
    } cases[] = {
        {"Create Table If Not Exists [Problem List] (A Integer)", "Problem List"},
        {"Alter Table \"a\"\"b\" Add Column \"only\" Text", "a\"b"},
        {"alter table if exists only T rename column a to b", "T"},
        {"Drop Table If Exists T", "T"},
        {"Create Unique Index \"T_A\" On \"T\" (\"A\")", "T"},
        {"Create Index If Not Exists I On Only T (A)", "T"},
        {"Create Index On T (A)", "T"},
        {"Drop Table T, U", ""},
        {"Drop Table T Cascade", ""},
        {"Drop Index I", ""},
        {"Alter Table T Rename To U", ""},
        {"Alter Table S.T Add Column A Text", ""},
        {"Create Temp Table T (A Integer)", ""},
        {"Create View V As Select 1", ""},
        {"Set search_path To s", ""},
        {"Drop Table", ""},
        {"Create", ""},
        {"", ""},
    };
    for (const auto& c : cases)
        EXPECT_EQ(postgres::changedTable(c.statement), c.table) << c.statement;
}

} // namespace Korvane::ado::Testing
