#include <korvane/ado/Catalog.h>

#include "ado/ScriptVerbs.h"
#include "support/RecordingConnection.h"

#include <gmock/gmock.h>

#include <optional>

namespace Korvane::ado::Testing {

using testing::ElementsAre;

class Catalogs : public OnEveryEngine {
  protected:
    void SetUp() override {
        OnEveryEngine::SetUp();
        if (!IsSkipped()) mCatalog.emplace(mDb);
    }

    static Index key(const std::string& column) {
        Index index(column, {column});
        index.PrimaryKey(true);
        return index;
    }

    /// EncounterID, the key, and Pulse, a text of 10 characters with an index; one row, 1 and 'seventy'.
    Table vitals() {
        Table table("NIP_Custom1");
        table.Columns().Append(Column("EncounterID", DataType::Integer));
        table.Columns().Append(Column("Pulse", DataType::VarWChar, 10));
        table.Indexes().Append(key("ENCOUNTERID"));
        table.Indexes().Append(Index("Pulse", {"pulse"}));
        mCatalog->Tables().Append(table);
        mDb->Execute("Insert into NIP_Custom1 (EncounterID,Pulse) values (1,'seventy')");
        return table;
    }

    std::string described(const std::string& name = "nip_custom1") const {
        Actor actor{mDb};
        return perform(actor, "describes", name);
    }

    std::optional<Catalog> mCatalog;
};

constexpr const char* vitalsAsMade =
    "NIP_Custom1 EncounterID:3! Pulse:202:10 EncounterID:p(EncounterID) Pulse:i(Pulse)";

TEST_P(Catalogs, TakeAnyTextForAName) {
    for (const std::string name : {"Select", "it's", "two words", "a]b[c", "100%", "semi;colon", "--", "a.b",
                                   "\"quoted\"", "O\\K", "?1", "$1", "Größe \U0001F489", "1st"}) {
        SCOPED_TRACE(name);
        Table table(name);
        table.Columns().Append(Column("EncounterID", DataType::Integer));
        table.Columns().Append(Column(name, DataType::VarWChar, 20));
        table.Indexes().Append(Index(name, {name}));
        mCatalog->Tables().Append(table);
        table.Columns().Append(Column(name + "2"));
        table.Columns().Rename(name, name + "3");
        table.Columns().Widen(name + "3", 10);
        EXPECT_EQ(described(name), name + " EncounterID:3 " + name + "3:202:20 " + name + "2:202 " + name +
                                       ":i(" + name + "3)");
        table.Columns().Delete(name + "3");
        mCatalog->Tables().Delete(name);
    }
    EXPECT_THAT(mCatalog->Tables().Names(), ElementsAre(testing::StrCaseEq("Visit")));
    EXPECT_EQ(mCatalog->Tables().Count(), 1);
}

TEST_P(Catalogs, RefuseANameThatWouldNotBeKept) {
    const Table table = vitals();
    const std::string longest(mEngine->longestName(), 'x');
    for (const std::string& name :
         {std::string("  "), std::string("a\0b", 3), longest.empty() ? "" : longest + "x"}) {
        SCOPED_TRACE(name);
        Table other(name);
        other.Columns().Append(Column("A"));
        for (const std::function<void()>& use :
             {std::function([&] { mCatalog->Tables().Append(other); }),
              std::function([&] { table.Columns().Append(Column(name)); }),
              std::function([&] { table.Columns().Rename("Pulse", name); }),
              std::function([&] { table.Indexes().Append(Index(name, {"Pulse"})); })})
            EXPECT_EQ(errorOf(use), RuntimeError::InvalidArgument);
    }
    EXPECT_EQ(described(), vitalsAsMade);
    table.Columns().Rename("Pulse", longest.empty() ? std::string(500, 'x') : longest);
}

TEST_P(Catalogs, MakeAChangeOfSeveralStepsWholeOrNotAtAll) {
    vitals();
    auto failing = std::make_shared<Korvane::Testing::RecordingConnection>(mDb);
    Catalog catalog(failing);
    Table table("Other");
    table.Columns().Append(Column("A"));
    table.Indexes().Append(Index("A", {"A"}));
    EXPECT_EQ(errorOf([&] { table.Columns().Delete("A"); }), RuntimeError::InvalidArgument);
    for (const char* step : {"Create Table", "Create Index"}) {
        failing->failOn = step;
        EXPECT_EQ(errorOf([&] { catalog.Tables().Append(table); }), RuntimeError::DatabaseFailure) << step;
        EXPECT_EQ(described("Other"), "(none)") << step;
    }
    failing->failOn = "Drop Column";
    const Table vitals = catalog.Tables().Item("NIP_Custom1");
    EXPECT_EQ(errorOf([&] { vitals.Columns().Delete("Pulse"); }), RuntimeError::DatabaseFailure);
    EXPECT_EQ(described(), vitalsAsMade);
    failing->failOn.clear();
    catalog.Tables().Append(table);
    EXPECT_EQ(described("Other"), "Other A:202 A:i(A)");
    EXPECT_EQ(mDb->transactionLevel(), 0);
    EXPECT_EQ(errorOf([&] { catalog.Tables().Append(table); }), RuntimeError::InvalidArgument);
    EXPECT_EQ(errorOf([] { Catalog(nullptr); }), RuntimeError::InvalidConnection);
}

INSTANTIATE_TEST_SUITE_P(Engines, Catalogs, testing::ValuesIn(engines()), engineName);

} // namespace Korvane::ado::Testing
