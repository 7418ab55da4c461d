#include <korvane/ado/postgres/PostgresConnection.h>

#include "ado/Engine.h"
#include "support/NativeHandle.h"
#include "support/ScratchSchema.h"

#include <gmock/gmock.h>

namespace Korvane::ado::Testing {

using Korvane::Testing::NativeHandle;
using Korvane::Testing::ScratchSchema;

/// A recordset opened for writing while another program is at work on the same tables.
class PostgresWriteback : public testing::Test {
  protected:
    void SetUp() override {
        if (!ScratchSchema::hasServer()) GTEST_SKIP() << ScratchSchema::noServer;
        mSchema = std::make_unique<ScratchSchema>();
        mOther = std::make_unique<NativeHandle>(mSchema->address());
        mDb = open(mSchema->address());
    }
    std::shared_ptr<Recordset> forWriting(const std::string& statement) {
        const auto rs = Recordset::create();
        rs->CursorType(CursorType::Keyset);
        rs->LockType(LockType::Optimistic);
        rs->Open(statement, mDb);
        return rs;
    }
    static int errorOfWriting(const std::shared_ptr<Recordset>& rs, const Variant& value) {
        return errorOf([&] {
            rs->Fields(0).Value(value);
            rs->Update();
        });
    }
    std::string rows(const std::string& table) {
        return mOther->value("select string_agg(t::text, ' ' order by t::text) from " + table + " t");
    }

    std::unique_ptr<ScratchSchema> mSchema;
    std::unique_ptr<NativeHandle> mOther;
    std::shared_ptr<Connection> mDb;
};

TEST_F(PostgresWriteback, WritesNoOtherRowOfATableWithoutAKey) {
    mOther->run("create table Parted (P text, V text) partition by list (P);"
                "create table PartA partition of Parted for values in ('A');"
                "create table PartB partition of Parted for values in ('B');"
                "create table Above (P text, V text); create table Below () inherits (Above);"
                "create table Keyed (P text primary key, V text); create table Heir () inherits (Keyed);"
                "insert into Above values ('A','a'); insert into Below values ('B','b');"
                "insert into Keyed values ('A','a'); insert into Heir values ('A','b');"
                "insert into Parted values ('A','a'),('B','b')");
    for (const std::string table : {"Parted", "Above", "Keyed"}) {
        SCOPED_TRACE(table);
        const auto rs = forWriting("Select V From " + table + " Where V='a'");
        EXPECT_EQ(errorOfWriting(rs, "once"), 0);
        EXPECT_EQ(errorOfWriting(rs, "twice"), 0); // the row as it lies now
        EXPECT_EQ(rows(table), table == "Keyed" ? "(A,b) (A,twice)" : "(A,twice) (B,b)");
    }
    mOther->run("create table Loose (P text, V text); insert into Loose values ('A','a')");
    const auto rs = forWriting("Select V From Loose");
    mOther->run("delete from Loose");
    mOther->run("vacuum Loose");
    mOther->run("insert into Loose values ('B','b')"); // where the other one was
    EXPECT_EQ(errorOfWriting(rs, "of A"), RuntimeError::DatabaseFailure);
    EXPECT_EQ(rows("Loose"), "(B,b)");
}

TEST_F(PostgresWriteback, WritesNothingWhenTheKeyHasBecomeThatOfTwoRows) {
    mOther->run("create table T (ID integer primary key, V text); insert into T values (1,'a')");
    const auto rs = forWriting("Select V From T");
    mOther->run("alter table T drop constraint t_pkey; insert into T values (1,'b')");
    EXPECT_THAT(raised([&] {
                    rs->Fields(0).Value("x");
                    rs->Update();
                }).Description(),
                testing::HasSubstr("cannot be told"));
    EXPECT_EQ(rows("T"), "(1,a) (1,b)");
}

TEST_F(PostgresWriteback, KnowsWhatOthersHaveMadeSince) {
    EXPECT_EQ(one(mDb, "Select Count(*) From pg_class Where relname='none'"), "0");
    mOther->run("create table Late (ID integer primary key, V text); insert into Late values (1,'a')");
    EXPECT_EQ(errorOfWriting(forWriting("Select V From Late"), "b"), 0);
    mOther->run("alter table Late add column \"New One\" text");
    EXPECT_EQ(errorOfWriting(forWriting("Select [new one] From Late"), "c"), 0);
    mOther->run("alter table Late add column another text");
    EXPECT_EQ(errorOfWriting(forWriting("Select another From Late"), "d"), 0);
    const auto stale = forWriting("Select V From Late");
    mOther->run("alter table Late alter V type integer using 7");
    EXPECT_NE(errorOfWriting(stale, "2.5"), 0);
    EXPECT_EQ(rows("Late"), "(1,7,c,d)");
    EXPECT_EQ(errorOfWriting(forWriting("Select V From Late"), "8"), 0);
    // What is made of several rows can be read, and no more.
    const auto joined = forWriting("Select String_Agg(another,',') As A From Late");
    EXPECT_EQ(joined->Value(0).text(), "d");
    EXPECT_EQ(errorOfWriting(joined, "x"), RuntimeError::ReadOnlyRecordset);
    EXPECT_EQ(rows("Late"), "(1,8,c,d)");
}

TEST_F(PostgresWriteback, TellsSchemasAndTwinsApart) {
    const ScratchSchema other;
    const NativeHandle there(other.address());
    mOther->run("create table T (K integer primary key, V integer); insert into T values (1,1)");
    there.run("create table T (ID integer primary key, \"V\" text, \"v\" text);"
              "insert into T values (1,'a','b')");
    const std::string table = other.name() + ".T";
    const auto rs = forWriting("Select [v],[V] From " + table);
    EXPECT_EQ(rs->Value("V").text() + rs->Value("v").text(), "ab");
    EXPECT_EQ(errorOfWriting(rs, "007"), 0);
    mDb->Execute("Update " + table + " Set [V]='1e3' Where [v]='007'");
    EXPECT_EQ(there.value("select t::text from T t"), "(1,1e3,007)");
    EXPECT_EQ(rows("T"), "(1,1)");
}

TEST_F(PostgresWriteback, RefusesATextThatItWouldCut) {
    mOther->run("create table T (ID integer primary key, V text); insert into T values (1,'old')");
    EXPECT_EQ(errorOfWriting(forWriting("Select V From T"), std::string("a\0b", 3)),
              RuntimeError::InvalidArgument);
    EXPECT_EQ(rows("T"), "(1,old)");
}

} // namespace Korvane::ado::Testing
