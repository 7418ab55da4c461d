#include <korvane/data/SQLData.h>

#include "support/ScratchClinic.h"

#include <korvane/runtime/App.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

using namespace Korvane;
using namespace Korvane::Testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class SQLDataTest : public ::testing::Test, protected ScratchClinic {
  protected:
    SQLDataTest() {
        db->quietly(
            "Create Table Sample (ID INTEGER PRIMARY KEY, Name VARCHAR(20), Small SMALLINT, Ratio REAL, "
            "Done BOOLEAN, Seen TIMESTAMP)");
        db->quietly("Insert Into Sample (ID,Name,Small,Ratio,Done,Seen) Values "
                    "(1,'Ada',7,2.5,True,'11/15/2026 5:21:51 PM')");
        db->quietly("Insert Into Sample (ID) Values (2)");
    }

    bool run(SQLData& query, std::string_view statement, std::int32_t mode = AccessMode::Read) {
        return query.SQL(db, statement, false, mode);
    }
    std::string shown() const { return user->boxes.empty() ? "" : user->boxes.back().text; }
    static std::string box(const std::string& failure) {
        return failure + "\r\n\r\nIt is recommended that you restart the " + App::FileDescription();
    }

    const std::string everything = "Select * From Sample Order By ID";
};

TEST_F(SQLDataTest, ReadsEveryRowByNameAndByOrdinal) {
    SQLData query;
    ASSERT_TRUE(run(query, everything));
    EXPECT_EQ(query.State(), 1);
    EXPECT_EQ(query.FieldCount(), 6);
    EXPECT_EQ(query.RecordsAffected(), -1);
    EXPECT_EQ(query.Data("ID"), Variant(1));
    EXPECT_EQ(query.Data("name"), Variant("Ada"));
    EXPECT_EQ(query.Data(1), Variant("Ada"));
    EXPECT_EQ(query.Data("Small"), Variant(std::int16_t{7}));
    EXPECT_EQ(query.Data("Ratio").toDouble(), 2.5);
    EXPECT_EQ(query.Data("Done"), Variant(true));
    EXPECT_EQ(query.Data("Seen"), Variant(Date::of(2026, 11, 15, 17, 21, 51)));

    query.NextRow();
    EXPECT_EQ(query.Data("Name"), Variant(""));
    EXPECT_EQ(query.Data("Seen"), Variant(""));
    for (const char* number : {"Small", "Ratio", "Done"})
        EXPECT_EQ(query.Data(number), Variant(std::int16_t{0})) << number;
    EXPECT_TRUE(query.Fields("Name")->Value().isNull());

    EXPECT_FALSE(query.Eof());
    query.NextRow();
    EXPECT_TRUE(query.Eof());
    EXPECT_TRUE(query.Data("Name").isEmpty());
    EXPECT_THAT(user->boxes, IsEmpty());
    query.NextRow();
    EXPECT_EQ(shown(), box("0 Attempt to read past end of file"));
}

TEST_F(SQLDataTest, KeepsAFieldReadInARowUntilTheNext) {
    SQLData query;
    ASSERT_TRUE(run(query, everything, AccessMode::Write));
    EXPECT_EQ(query.Data("Name"), Variant("Ada"));
    query.Fields("Name")->Value("changed behind it");
    EXPECT_EQ(query.Data("Name"), Variant("Ada"));
    EXPECT_EQ(query.Data("name"), Variant("changed behind it"));
    EXPECT_EQ(query.Data(2), Variant(std::int16_t{7}));
    EXPECT_EQ(query.Data("2"), Variant(std::int16_t{7}));
    query.NextRow();
    EXPECT_EQ(query.Data(2), Variant(std::int16_t{0}));
    query.CloseRS();
    EXPECT_EQ(query.State(), 0);
    EXPECT_TRUE(query.Eof());
    EXPECT_FALSE(query.Fields("Name"));
    EXPECT_THAT(user->boxes, IsEmpty());
}

TEST_F(SQLDataTest, TakesTheNameOfAFieldFromAFieldJustRead) {
    const std::string name = "ANameThatIsTooLongToBeKeptInPlace", text(500, 'x');
    db->quietly("Create Table Named (FieldName VARCHAR(90), " + name + " TEXT, NullInstead" + name +
                " SMALLINT)");
    db->quietly("Insert Into Named Values ('" + name + "','" + text + "',Null)");
    SQLData query;
    ASSERT_TRUE(run(query, "Select * From Named"));
    EXPECT_EQ(query.Data(query.DataView("FieldName")), Variant(text));
    EXPECT_EQ(query.Data(name), Variant(text)) << "kept under its name";
    Variant value = "NullInstead" + name;
    query.DataInto(value, value);
    EXPECT_EQ(value, Variant(std::int16_t{0}));
    EXPECT_THAT(user->boxes, IsEmpty());
}

TEST_F(SQLDataTest, WritesChangesWhenItMovesOnClosesOrEnds) {
    const struct {
        std::function<void(SQLData&)> end;
        std::string stored;
    } cases[] = {
        {[](SQLData& query) { query.NextRow(); }, "a0"},
        {[](SQLData& query) { query.CloseRS(); }, "a1"},
        {[](SQLData&) {}, "a2"},
        {[this](SQLData& query) { run(query, "Select ID From Sample"); }, "a2"}, // dropped
    };
    for (int i = 0; const auto& c : cases) {
        {
            SQLData query;
            ASSERT_TRUE(run(query, everything, AccessMode::Write));
            query.Data("Name", "a" + std::to_string(i++));
            EXPECT_EQ(query.Data("Name").text().front(), 'a');
            c.end(query);
        }
        EXPECT_EQ(rows("Select Name From Sample Where ID=1"), c.stored);
    }
    EXPECT_THAT(user->boxes, IsEmpty());
}

TEST_F(SQLDataTest, WritesOnlyWhatDiffers) {
    SQLData query;
    ASSERT_TRUE(run(query, everything, AccessMode::Write));
    db->quietly("Update Sample Set Small=99 Where ID=1"); // would be undone if an equal value were written
    query.Data("Small", 7.0);
    EXPECT_EQ(query.Data("Small"), Variant(std::int16_t{7}));
    query.Data("Small", 7.0);
    EXPECT_EQ(query.Data("Small"), Variant(7.0)); // the kept value is the one given
    query.NextRow();
    EXPECT_EQ(rows("Select Small From Sample Where ID=1"), "99");

    query.Data("Name", Variant::null());
    EXPECT_EQ(query.Data("Name"), Variant(""));
    query.Data("Name", Variant::null());
    EXPECT_EQ(query.Data("Name"), Variant(""));
    query.Data("Name", "x\x01");
    query.Data("Small", 3);
    query.Data("Name", "x"); // sorts as the text before
    query.CloseRS();
    EXPECT_EQ(rows("Select Name, Small From Sample Where ID=2"), "x|3");
    EXPECT_THAT(user->boxes, IsEmpty());
}

TEST_F(SQLDataTest, ReportsAWriteThatFailsAndGoesOn) {
    db->quietly("Create Unique Index OneName On Sample (Name)");
    SQLData query;
    ASSERT_TRUE(run(query, "Select * From Sample Order By ID Desc", AccessMode::Write));
    query.Data("Name", "Ada");
    EXPECT_NO_THROW(query.NextRow());
    EXPECT_EQ(query.Data("Name"), Variant("Ada"));
    EXPECT_EQ(query.Data("ID"), Variant(1));
    EXPECT_THAT(user->boxes, SizeIs(1));
    query.CloseRS();
    EXPECT_EQ(rows("Select ID, Name From Sample Order By ID"), "1|Ada 2|NULL");

    SQLData closing;
    ASSERT_TRUE(run(closing, "Select * From Sample Where ID=2", AccessMode::Write));
    closing.Data("Name", "Ada");
    closing.CloseRS();
    EXPECT_FALSE(closing.LastError()) << "closing tells nobody";
    EXPECT_THAT(user->boxes, SizeIs(1));
    EXPECT_EQ(closing.State(), 0);
}

TEST_F(SQLDataTest, CountsTheRowsThatAStatementTouched) {
    SQLData query;
    EXPECT_EQ(query.RecordCount(), 0);
    EXPECT_EQ(query.State(), 0);
    ASSERT_TRUE(query.SQL(db, "Update Sample Set Small=1", true, AccessMode::Read));
    EXPECT_EQ(query.RecordsAffected(), 2);
    EXPECT_EQ(query.FieldCount(), -1);
    ASSERT_TRUE(run(query, everything, AccessMode::ReadCounted));
    EXPECT_EQ(query.RecordsAffected(), -1);
    EXPECT_EQ(query.RecordCount(), 2);
    ASSERT_TRUE(run(query, everything, AccessMode::Write));
    EXPECT_EQ(query.RecordCount(), 2);
    ASSERT_TRUE(run(query, everything));
    ASSERT_TRUE(query.SQL(db, "Update Sample Set Small=1", true, AccessMode::Read));
    EXPECT_EQ(query.State(), 0) << "the rows of the query before are closed";
    ASSERT_TRUE(run(query, everything));
    EXPECT_EQ(query.RecordCount(), 0);
    EXPECT_EQ(shown(), box("0 Attempt to get RecordCount from a query that does not support that property"));
}

TEST_F(SQLDataTest, ReportsEveryKindOfMisuse) {
    using Use = std::function<void(SQLData&)>;
    const Use open = [this](SQLData& query) { run(query, everything); };
    const Use closed = [this](SQLData& query) { run(query, everything), query.CloseRS(); };
    const Use none = [this](SQLData& query) {
        query.SQL(db, "Update Sample Set Small=1", true, AccessMode::Write);
    };
    const Use ended = [this](SQLData& query) {
        const auto other = ado::open(database.address());
        query.SQL(other, everything, false, AccessMode::Read);
        other->Close();
        EXPECT_EQ(query.State(), 0);
        EXPECT_TRUE(query.Eof());
    };
    const Use asksNobody = [this](SQLData& query) {
        EXPECT_FALSE(query.SQL(nullptr, everything, true, AccessMode::Read));
    };
    const Use get = [](SQLData& query) { EXPECT_TRUE(query.Data("Name").isEmpty()); };
    const Use let = [](SQLData& query) { query.Data("Name", "x"); };
    const Use next = [](SQLData& query) { query.NextRow(); };
    const Use eof = [](SQLData& query) { EXPECT_FALSE(query.Eof()); };
    const std::string nothingToRead =
        "0 Attempt to return results from an Execute only SQL cmd or error creating RS object";
    const std::string notOpen = "0 Attempt to read data from a closed Recordset";
    const struct {
        Use before, use;
        std::string failure;
    } cases[] = {
        {none, get, nothingToRead},
        {none, next, nothingToRead},
        {none, eof, nothingToRead},
        {none, let, "0 Attempt to write results to an Execute only SQL cmd or error creating RS object"},
        {closed, get, notOpen},
        {closed, let, notOpen},
        {closed, next, notOpen},
        {ended, get, notOpen},
        {open, let, "0 Attempt to write results to ReadOnly Recordset"},
        {asksNobody, get, "0 Attempt to query while ADO Connection not open"},
    };
    for (const auto& c : cases) {
        user->clear();
        SQLData query;
        c.before(query);
        c.use(query);
        EXPECT_THAT(user->boxes, ElementsAre(ShownBox{box(c.failure), MsgBoxStyle::Critical, ""}));
    }
}

TEST_F(SQLDataTest, ShowsAndLogsOnlyItsFirstFailure) {
    SQLData query;
    EXPECT_FALSE(query.SQL(db, "Select * From nowhere", false, AccessMode::Read));
    ASSERT_TRUE(query.LastError());
    const std::string failure =
        std::to_string(query.LastError()->Number()) + " " + query.LastError()->Description();
    EXPECT_THAT(failure, ::testing::HasSubstr("nowhere"));
    EXPECT_TRUE(query.Data("x").isEmpty());
    EXPECT_FALSE(query.SQL(db, "Delete From nowhere", true, AccessMode::Read));
    EXPECT_EQ(query.RecordsAffected(), -1);
    EXPECT_THAT(user->boxes, ElementsAre(ShownBox{box(failure), MsgBoxStyle::Critical, ""}));
    EXPECT_EQ(dir.read("err.txt"),
              "11/15/2026 5:21:51 PM-SQLData Class->" + failure + "\n\tSelect * From nowhere\n");

    SQLData unknownField;
    ASSERT_TRUE(run(unknownField, everything));
    EXPECT_TRUE(unknownField.Data("Nickname").isEmpty());
    EXPECT_EQ(unknownField.LastError()->Number(), RuntimeError::ItemNotFound);
    EXPECT_EQ(unknownField.Data("Name"), Variant("Ada"));
    EXPECT_THROW(unknownField.Fields("Nickname"), RuntimeError);
    EXPECT_TRUE(unknownField.Data(Variant::null()).isEmpty());
    EXPECT_TRUE(unknownField.Data(Variant(1e300)).isEmpty());
}

TEST_F(SQLDataTest, LogsAFailureWhateverItsBoxDoes) {
    SQLData query;
    user->whenShown = [&] {
        EXPECT_FALSE(run(query, "Select * From Elsewhere")); // no second box
        throw RuntimeError(RuntimeError::OutOfMemory);
    };
    EXPECT_FALSE(run(query, "Select * From nowhere"));
    EXPECT_THAT(user->boxes, SizeIs(1));
    EXPECT_THAT(dir.read("err.txt"), ::testing::EndsWith("\n\tSelect * From nowhere\n"));
}
