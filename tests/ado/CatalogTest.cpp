#include <korvane/ado/Catalog.h>

#include "ado/Engine.h"

#include <gmock/gmock.h>

#include <optional>

namespace Korvane::ado::Testing {

class Catalogs : public OnEveryEngine {
  protected:
    void SetUp() override {
        OnEveryEngine::SetUp();
        if (!IsSkipped()) mCatalog.emplace(mDb);
    }
    std::optional<Catalog> mCatalog;
};

TEST_P(Catalogs, ListTheTablesAndFindThemWithoutRegardToCase) {
    mDb->Execute("Create Table [Problem List] (ID Integer)");
    mDb->Execute("Create View Seen As Select ID From Visit");
    EXPECT_THAT(mCatalog->Tables().Names(),
                testing::UnorderedElementsAre(testing::StrCaseEq("Visit"), "Problem List"));
    EXPECT_EQ(mCatalog->Tables().Count(), 2);
    EXPECT_TRUE(mCatalog->Tables().Exists("VISIT"));
    EXPECT_TRUE(mCatalog->Tables().Exists("problem LIST"));
    EXPECT_FALSE(mCatalog->Tables().Exists("Seen"));
    EXPECT_FALSE(mCatalog->Tables().Exists(""));
    const auto other = mEngine->connect();
    other->Execute("Drop View Seen");
    other->Execute("Drop Table Visit");
    EXPECT_THAT(mCatalog->Tables().Names(), testing::ElementsAre("Problem List"));
}

INSTANTIATE_TEST_SUITE_P(Engines, Catalogs, testing::ValuesIn(engines()), engineName);

} // namespace Korvane::ado::Testing
