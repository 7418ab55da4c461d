#include <korvane/ado/Catalog.h>

#include "ado/Engine.h"
#include "support/RecordingConnection.h"

#include <korvane/ado/Transaction.h>

#include <gmock/gmock.h>

#include <optional>

namespace Korvane::ado::Testing {

using testing::ElementsAre;
using testing::HasSubstr;

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
    static Index unique(const std::string& column) {
        Index index(column, {column});
        index.Unique(true);
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

    /// A table as a connection finds it: "Name(Column:type:size! ...)[Index:kind(columns) ...]", "!" behind
    /// what may not be Null; kinds are p, u and i.
    static std::string described(const std::shared_ptr<Connection>& db, std::string_view name) {
        if (!Catalog(db).Tables().Exists(name)) return "(none)";
        const Table table = Catalog(db).Tables().Item(name);
        std::string text = table.Name() + "(";
        for (const Column& column : table.Columns().All()) {
            text += column.Name() + ":" + std::to_string(static_cast<int>(column.Type())) + ":" +
                    std::to_string(column.DefinedSize()) + (column.Nullable() ? " " : "! ");
        }
        text += ")[";
        for (const Index& index : table.Indexes().All()) {
            text += index.Name() + (index.PrimaryKey() ? ":p(" : index.Unique() ? ":u(" : ":i(");
            for (const std::string& column : index.Columns())
                text += column + " ";
            text += ") ";
        }
        return text + "]";
    }
    std::string described(std::string_view name = "nip_custom1") { return described(mDb, name); }

    std::optional<Catalog> mCatalog;
};

constexpr const char* vitalsAsMade =
    "NIP_Custom1(EncounterID:3:0! Pulse:202:10 )[EncounterID:p(EncounterID ) Pulse:i(Pulse ) ]";

TEST_P(Catalogs, ListTheTablesAndFindThemWithoutRegardToCase) {
    mDb->Execute("Create Table [Problem List] (ID Integer)");
    mDb->Execute("Create View Seen As Select ID From Visit");
    EXPECT_THAT(mCatalog->Tables().Names(),
                testing::UnorderedElementsAre(testing::StrCaseEq("Visit"), "Problem List"));
    EXPECT_EQ(mCatalog->Tables().Count(), 2);
    EXPECT_TRUE(mCatalog->Tables().Exists("VISIT"));
    EXPECT_EQ(mCatalog->Tables().Item("problem LIST").Name(), "Problem List");
    EXPECT_FALSE(mCatalog->Tables().Exists("Seen"));
    EXPECT_FALSE(mCatalog->Tables().Exists(""));
    EXPECT_EQ(errorOf([&] { mCatalog->Tables().Item("seen"); }), RuntimeError::ItemNotFound);
    EXPECT_EQ(errorOf([&] { mCatalog->Tables().Delete("seen"); }), RuntimeError::ItemNotFound);
    EXPECT_EQ(errorOf([&] { Catalog(nullptr); }), RuntimeError::InvalidConnection);
    const auto other = mEngine->connect();
    other->Execute("Drop View Seen");
    Catalog(other).Tables().Delete("visit");
    EXPECT_THAT(mCatalog->Tables().Names(), ElementsAre("Problem List"));
}

TEST_P(Catalogs, MakeATableWithEveryTypeAndEveryKindOfIndex) {
    Table table("NIP_Custom1");
    Columns columns = table.Columns();
    columns.Append(Column("EncounterID", DataType::Integer));
    columns.Append(Column("Name", DataType::VarWChar, 40));
    columns.Append(Column("Size", DataType::SmallInt));
    columns.Append(Column("Note", DataType::LongVarWChar));
    columns.Append(Column("Weight", DataType::Double));
    columns.Append(Column("Height", DataType::Single));
    columns.Append(Column("Done", DataType::Boolean));
    columns.Append(Column("Day", DataType::Date));
    columns.Append(Column("Price", DataType::Currency));
    columns.Append(Column("Big", DataType::BigInt));
    columns.Append(Column("Any", DataType::VarWChar));
    EXPECT_EQ(errorOf([&] { columns.Append(Column("DAY", DataType::Date)); }), RuntimeError::DuplicateKey);
    table.Indexes().Append(key("EncounterID"));
    table.Indexes().Append(unique("Name"));
    table.Indexes().Append(Index("Size", {"Size", "Day"}));
    EXPECT_EQ(errorOf([&] { table.Indexes().Append(unique("SIZE")); }), RuntimeError::DuplicateKey);
    EXPECT_EQ(errorOf([&] { table.Indexes().Append(key("Day")); }), RuntimeError::InvalidArgument);
    EXPECT_EQ(errorOf([&] { table.Indexes().Append(Index("X", {"X"})); }), RuntimeError::ItemNotFound);
    EXPECT_EQ(errorOf([&] { table.Indexes().Append(Index("X", {})); }), RuntimeError::InvalidArgument);
    EXPECT_EQ(errorOf([&] { columns.Delete("Day"); }), RuntimeError::InvalidArgument);
    EXPECT_EQ(described(), "(none)");

    mCatalog->Tables().Append(table);
    const std::string made =
        "NIP_Custom1(EncounterID:3:0! Name:202:40 Size:2:0 Note:203:0 Weight:5:0 Height:4:0 Done:11:0 "
        "Day:7:0 Price:6:0 Big:20:0 Any:202:0 )"
        "[EncounterID:p(EncounterID ) Name:u(Name ) Size:i(Size Day ) ]";
    EXPECT_EQ(described(), made);
    EXPECT_EQ(described(mEngine->connect(), "NIP_CUSTOM1"), made);
    const auto insert = [&](const char* id, const char* name) {
        mDb->Execute(std::string("Insert into NIP_Custom1 ([EncounterID],[Name],[Size],[Done],[Day])  "
                                 "values (") +
                     id + ",'" + name + "','7','True','11/15/2026')");
    };
    insert("1", "a");
    EXPECT_EQ(errorOf([&] { insert("1", "b"); }), RuntimeError::DuplicateKey);
    EXPECT_EQ(errorOf([&] { insert("2", "a"); }), RuntimeError::DuplicateKey);
    insert("2", "b");
    EXPECT_EQ(one("Select Day From nip_custom1 Where DONE=True And Size=7 And EncounterID=2"), "11/15/2026");

    EXPECT_EQ(errorOf([&] { mCatalog->Tables().Append(table); }), RuntimeError::InvalidArgument);
    Table second("nip_CUSTOM1");
    EXPECT_EQ(errorOf([&] { mCatalog->Tables().Append(second); }), RuntimeError::InvalidArgument);
    second.Columns().Append(Column("A"));
    EXPECT_THAT(raised([&] { mCatalog->Tables().Append(second); }).Description(),
                HasSubstr("already a table \"NIP_Custom1\""));
}

TEST_P(Catalogs, AddColumnsAndIndexesToATable) {
    Table table = vitals();
    table.Columns().Append(Column("Due", DataType::Date));
    mDb->Execute("Update NIP_Custom1 Set [DUE]='5/6/2026' Where EncounterID=1");
    EXPECT_EQ(one("Select Due From NIP_Custom1 Where Due>'5/5/2026'"), "5/6/2026");
    Column required("Required", DataType::SmallInt);
    required.Nullable(false);
    EXPECT_THAT(raised([&] { table.Columns().Append(required); }).Description(), HasSubstr("has rows"));
    mDb->Execute("Delete From NIP_Custom1");
    table.Columns().Append(required);
    EXPECT_NE(errorOf([&] { mDb->Execute("Insert into NIP_Custom1 (EncounterID) values (1)"); }), 0);
    table.Indexes().Append(unique("required"));
    table.Indexes().Append(Index("Both", {"Due", "Pulse"}));
    EXPECT_EQ(described(), "NIP_Custom1(EncounterID:3:0! Pulse:202:10 Due:7:0 Required:2:0! )"
                           "[EncounterID:p(EncounterID ) Both:i(Due Pulse ) Pulse:i(Pulse ) "
                           "required:u(Required ) ]");
    mDb->Execute("Insert into NIP_Custom1 (EncounterID,Pulse,Required) values (1,'a',1),(2,'a',2)");
    EXPECT_EQ(errorOf([&] {
                  Index again("Again", {"Pulse"});
                  again.Unique(true);
                  table.Indexes().Append(again);
              }),
              RuntimeError::DuplicateKey);
    const auto refused = [&](const Column& column) {
        return errorOf([&] { table.Columns().Append(column); });
    };
    EXPECT_EQ(refused(Column("PULSE")), RuntimeError::DuplicateKey);
    EXPECT_EQ(refused(Column("Minus", DataType::VarWChar, -1)), RuntimeError::InvalidArgument);
    EXPECT_EQ(refused(Column("Nothing", DataType::Empty)), RuntimeError::InvalidArgument);
    EXPECT_EQ(errorOf([&] { table.Indexes().Append(key("Due")); }), RuntimeError::InvalidArgument);
    EXPECT_EQ(errorOf([&] { table.Indexes().Append(Index("PULSE", {"Due"})); }), RuntimeError::DuplicateKey);
    table.Indexes().Delete("PULSE");
    EXPECT_EQ(errorOf([&] { table.Indexes().Delete("pulse"); }), RuntimeError::ItemNotFound);
    EXPECT_EQ(errorOf([&] { table.Indexes().Delete("EncounterID"); }), RuntimeError::InvalidArgument);
    EXPECT_EQ(table.Indexes().Count(), 3);
}

TEST_P(Catalogs, RenameColumnsAndKeepTheirRowsAndIndexes) {
    const Table table = vitals();
    for (const char* name : {"PULSE", "pulse", "Heart Rate", "Order"}) {
        SCOPED_TRACE(name);
        table.Columns().Rename(table.Columns().All().back().Name(), name);
        EXPECT_EQ(table.Columns().All().back().Name(), name);
        EXPECT_EQ(one(std::string("Select [") + name + "] From NIP_Custom1 Where EncounterID=1"), "seventy");
        EXPECT_EQ(query("Select * From NIP_Custom1")->Fields(1).Name(), name);
    }
    table.Columns().Rename("encounterid", "Key");
    EXPECT_EQ(described(), "NIP_Custom1(Key:3:0! Order:202:10 )[Key:p(Key ) Pulse:i(Order ) ]");
    const auto rename = [&](const char* from, const char* to) {
        return errorOf([&] { table.Columns().Rename(from, to); });
    };
    EXPECT_EQ(rename("Order", "Order"), 0);
    EXPECT_EQ(rename("Order", "KEY"), RuntimeError::DuplicateKey);
    EXPECT_EQ(rename("Pulse", "Pulse2"), RuntimeError::ItemNotFound);
    EXPECT_EQ(rename("Order", " "), RuntimeError::InvalidArgument);
}

TEST_P(Catalogs, WidenATextColumnAndNeverNarrowIt) {
    const Table table = vitals();
    table.Columns().Append(Column("Any"));
    const auto store = [&](const char* text) {
        mDb->Execute(std::string("Update NIP_Custom1 Set [Pulse]='") + text + "' Where EncounterID=1");
    };
    EXPECT_EQ(errorOf([&] { store("longer than ten"); }) != 0, mEngine->bindsSizes());
    table.Columns().Widen("PULSE", 20);
    store("longer than ten");
    table.Columns().Widen("Pulse", 5);
    EXPECT_EQ(one("Select Pulse From NIP_Custom1"), "longer than ten");
    EXPECT_EQ(table.Columns().Item("Pulse").DefinedSize(), mEngine->bindsSizes() ? 20 : 10);
    table.Columns().Widen("Any", 5);
    EXPECT_EQ(table.Columns().Item("any").DefinedSize(), 0);
    EXPECT_EQ(errorOf([&] { table.Columns().Widen("EncounterID", 5); }), RuntimeError::InvalidArgument);
}

TEST_P(Catalogs, RemoveColumnsWithTheirIndexesButNoKey) {
    Table table = vitals();
    table.Columns().Append(Column("Note", DataType::LongVarWChar));
    table.Indexes().Append(Index("Both", {"EncounterID", "Pulse"}));
    table.Columns().Delete("PULSE");
    EXPECT_EQ(described(), "NIP_Custom1(EncounterID:3:0! Note:203:0 )[EncounterID:p(EncounterID ) ]");
    EXPECT_EQ(one("Select Count(*) From NIP_Custom1"), "1");
    EXPECT_THAT(raised([&] { table.Columns().Delete("encounterid"); }).Description(), HasSubstr("key"));
    EXPECT_EQ(errorOf([&] { table.Columns().Delete("Pulse"); }), RuntimeError::ItemNotFound);
    mCatalog->Tables().Delete("nip_CUSTOM1");
    EXPECT_EQ(errorOf([&] { table.Columns().All(); }), RuntimeError::ItemNotFound);
    Table lone("Lone");
    lone.Columns().Append(Column("A"));
    mCatalog->Tables().Append(lone);
    EXPECT_THAT(raised([&] { lone.Columns().Delete("a"); }).Description(), HasSubstr("last"));
}

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
        {"index", [](const Table& t) { t.Indexes().Append(unique("Pulse")); }},
        {"drop", [&](const Table& t) { mCatalog->Tables().Delete(t.Name()); }},
    };
    const auto other = mEngine->connect();
    const auto row = [](const std::shared_ptr<Connection>& db) {
        const auto rs = Recordset::create();
        rs->Open("Select * From NIP_Custom1 Where EncounterID=1", db);
        std::string text;
        for (int i = 0; i < rs->FieldCount(); ++i)
            text += rs->Fields(i).Name() + "=" + rs->Value(i).textOrEmpty() + " ";
        return text;
    };
    for (const auto& c : changes) {
        SCOPED_TRACE(c.what);
        const Table table = vitals();
        if (std::string_view(c.what) == "index") table.Indexes().Delete("Pulse");
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
        EXPECT_EQ(described(name), std::string(name) + "(EncounterID:3:0! " + name + ":202:20 " + name +
                                       "2:202:0 )[EncounterID:p(EncounterID ) " + name + ":i(" + name +
                                       " ) ]");
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
    EXPECT_EQ(described("Other"), "Other(A:202:0 )[A:i(A ) ]");
    EXPECT_EQ(mDb->transactionLevel(), 0);
}

INSTANTIATE_TEST_SUITE_P(Engines, Catalogs, testing::ValuesIn(engines()), engineName);

} // namespace Korvane::ado::Testing
