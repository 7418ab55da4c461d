#include <korvane/ado/Catalog.h>

#include "ado/ScriptVerbs.h"
#include "support/RecordingConnection.h"

#include <korvane/ado/Transaction.h>

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

    static std::string described(const std::shared_ptr<Connection>& db, const std::string& name) {
        Actor actor{db};
        return perform(actor, "describes", name);
    }
    std::string described(const std::string& name = "nip_custom1") const { return described(mDb, name); }

    std::optional<Catalog> mCatalog;
};

constexpr const char* vitalsAsMade =
    "NIP_Custom1 EncounterID:3! Pulse:202:10 EncounterID:p(EncounterID) Pulse:i(Pulse)";

// Every kind of change, rolled back and committed, at the outer level and an inner one, with statements on
// the table kept from before and made in between.
TEST_P(Catalogs, AreAsTheDatabaseIsWhetherAChangeWasRolledBackOrCommitted) {
    const struct {
        const char* what;
        std::function<void(const Table&)> change;
    } changes[] = {
        {"add", [](const Table& t) { t.Columns().Append(Column("Note", DataType::LongVarWChar)); }},
        {"rename", [](const Table& t) { t.Columns().Rename("Pulse", "Rate"); }},
        {"case", [](const Table& t) { t.Columns().Rename("Pulse", "PULSE"); }},
        {"widen", [](const Table& t) { t.Columns().Widen("Pulse", 30); }},
        {"remove", [](const Table& t) { t.Columns().Delete("Pulse"); }},
        {"index",
         [](const Table& t) {
             t.Indexes().Append(Index("Both", {"Pulse", "EncounterID"}));
         }},
        {"drop", [&](const Table& t) { mCatalog->Tables().Delete(t.Name()); }},
    };
    const auto other = mEngine->connect();
    const auto row = [](const std::shared_ptr<Connection>& db) {
        const auto rs = opened(db, "Select * From NIP_Custom1 Where EncounterID=1");
        std::string text;
        for (int i = 0; i < rs->FieldCount(); ++i)
            text += rs->Fields(i).Name() + "=" + rs->Value(i).textOrEmpty() + " ";
        return text;
    };
    for (const auto& c : changes) {
        SCOPED_TRACE(c.what);
        const Table table = vitals();
        const std::string before = described();
        const std::string rowBefore = row(mDb);
        for (const int levels : {1, 2}) {
            for (int level = 0; level < levels; ++level)
                mDb->BeginTrans();
            c.change(table);
            if (described() != "(none)") row(mDb);
            mDb->RollbackTrans();
            EXPECT_EQ(row(mDb), rowBefore);
            EXPECT_EQ(described(), before);
            if (levels == 2) mDb->CommitTrans();
            EXPECT_EQ(row(other), rowBefore);
        }
        Transaction work(*mDb);
        c.change(table);
        work.commit();
        const std::string after = described();
        EXPECT_EQ(after == before, std::string_view(c.what) == "widen" && !mEngine->bindsSizes());
        EXPECT_EQ(described(other, "NIP_Custom1"), after);
        if (after == "(none)") continue;
        EXPECT_EQ(row(other), row(mDb));
        mCatalog->Tables().Delete("NIP_Custom1");
    }
    Table made("Passing");
    made.Columns().Append(Column("A"));
    {
        Transaction work(*mDb);
        mCatalog->Tables().Append(made);
        EXPECT_EQ(one("Select Count(*) From Passing"), "0");
    }
    EXPECT_EQ(described("Passing"), "(none)");
    EXPECT_NE(errorOf([&] { one("Select Count(*) From Passing"); }), 0);
}

TEST_P(Catalogs, TakeAnyTextForAName) {
    const char* names[] = {
        "Select", "user",    "it's",       "two words", "a]b[c", "100%", "semi;colon",
        "--",     "a.b",     "\"quoted\"", "O\\K",      "?1",    "$1",   "Größe \U0001F489",
        "1st",    "Order By"};
    for (const char* name : names) {
        SCOPED_TRACE(name);
        Table table(name);
        table.Columns().Append(Column("EncounterID", DataType::Integer));
        table.Columns().Append(Column(name, DataType::VarWChar, 20));
        table.Indexes().Append(key("EncounterID"));
        table.Indexes().Append(Index(name, {name}));
        mCatalog->Tables().Append(table);
        table.Columns().Append(Column(std::string(name) + "2"));
        const std::string text = name;
        EXPECT_EQ(described(text), text + " EncounterID:3! " + text + ":202:20 " + text +
                                       "2:202 EncounterID:p(EncounterID) " + text + ":i(" + text + ")");
        table.Columns().Rename(name, std::string(name) + "3");
        table.Columns().Widen(std::string(name) + "3", 30);
        table.Columns().Delete(std::string(name) + "3");
        EXPECT_EQ(mCatalog->Tables().Item(name).Columns().Count(), 2);
        mCatalog->Tables().Delete(name);
    }
    EXPECT_THAT(mCatalog->Tables().Names(), ElementsAre(testing::StrCaseEq("Visit")));
}

TEST_P(Catalogs, RefuseANameThatWouldNotBeKept) {
    const Table table = vitals();
    std::vector<std::string> refused{"", "  ", std::string("a\0b", 3)};
    const std::size_t longest = mEngine->longestName();
    if (longest > 0) refused.push_back(std::string(longest - 1, 'x') + "é");
    for (const std::string& name : refused) {
        SCOPED_TRACE(name);
        Table other(name);
        other.Columns().Append(Column("A"));
        EXPECT_EQ(errorOf([&] { mCatalog->Tables().Append(other); }), RuntimeError::InvalidArgument);
        EXPECT_EQ(errorOf([&] { table.Columns().Append(Column(name)); }), RuntimeError::InvalidArgument);
        EXPECT_EQ(errorOf([&] { table.Columns().Rename("Pulse", name); }), RuntimeError::InvalidArgument);
        EXPECT_EQ(errorOf([&] { table.Indexes().Append(Index(name, {"Pulse"})); }),
                  RuntimeError::InvalidArgument);
    }
    EXPECT_EQ(described(), vitalsAsMade);
    const std::string full(longest > 0 ? longest : 500, 'x');
    table.Columns().Rename("Pulse", full);
    EXPECT_TRUE(table.Columns().Exists(full));
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
