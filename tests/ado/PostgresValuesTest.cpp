#include "ado/Engine.h"
#include "support/NativeHandle.h"
#include "support/ScratchSchema.h"

#include <gmock/gmock.h>

namespace Korvane::ado::Testing {

using Korvane::Testing::NativeHandle;
using Korvane::Testing::ScratchSchema;

class PostgresValues : public testing::Test {
  protected:
    void SetUp() override {
        if (!ScratchSchema::hasServer()) GTEST_SKIP() << ScratchSchema::noServer;
        mSchema = std::make_unique<ScratchSchema>();
        mOther = std::make_unique<NativeHandle>(mSchema->address());
        mDb = open(mSchema->address());
    }

    std::unique_ptr<ScratchSchema> mSchema;
    std::unique_ptr<NativeHandle> mOther;
    std::shared_ptr<Connection> mDb;
};

TEST_F(PostgresValues, LandUnalteredOrNotAtAllWhenAColumnHasGotAnotherType) {
    const struct {
        const char* before;
        const char* after;
        const char* literal;
        const char* stored; ///< null: refused
    } cases[] = {
        {"integer", "varchar(9)", "'0042'", "0042"},
        {"double precision", "text", "'1.50'", "1.50"},
        {"double precision", "integer", "'2.5'", nullptr},
        {"double precision", "integer", "2.5", nullptr},
        {"numeric", "smallint", "'99999'", nullptr},
        {"integer", "numeric(9,2)", "'2.5'", "2.50"},
        {"boolean", "text", "'true'", "true"},
        {"boolean", "integer", "'-7'", "-7"},
        {"timestamp", "text", "'5/6/2026'", "5/6/2026"},
        {"text", "timestamp", "'5/6/2026'", "2026-05-06 00:00:00"},
    };
    for (const auto& c : cases) {
        for (const bool isKnown : {false, true}) {
            SCOPED_TRACE(std::string(c.before) + " to " + c.after + (isKnown ? ", prepared" : ""));
            mOther->run("drop table if exists T");
            mOther->run(std::string("create table T (ID integer, V ") + c.before + ")");
            mOther->run("insert into T values (1, null)");
            const auto db = open(mSchema->address());
            EXPECT_EQ(one(db, "Select V From T Where ID=1"), "");
            const auto update = [&](const std::string& value) {
                return errorOf([&] { db->Execute("Update T Set V=" + value + " Where ID=1"); });
            };
            if (isKnown) update("'0'");
            mOther->run(std::string("alter table T alter V type ") + c.after + " using null");
            EXPECT_EQ(update(c.literal) == 0, c.stored != nullptr);
            EXPECT_EQ(mOther->value("select coalesce(V::text, 'none') from T"), c.stored ? c.stored : "none");
        }
    }
}

TEST_F(PostgresValues, AreReadAsTheTypeThatTheirColumnHasNow) {
    const struct {
        const char* type;
        const char* value;
        DataType now;
    } cases[] = {
        {"varchar(9)", "0042", DataType::VarWChar}, {"numeric(9,2)", "2.5", DataType::Numeric},
        {"boolean", "True", DataType::Boolean},     {"timestamp", "5/6/2026", DataType::Date},
        {"integer", "7", DataType::Integer},
    };
    mOther->run("create table T (ID integer, V integer); insert into T values (1, 5)");
    for (const auto& c : cases) {
        for (const std::string from : {"V", "Max(V)"}) {
            SCOPED_TRACE(from + " as " + c.type);
            const auto db = open(mSchema->address());
            EXPECT_NE(one(db, "Select " + from + " From T Where ID=1"), "");
            mOther->run(std::string("alter table T alter V type ") + c.type + " using '" + c.value +
                        "'::" + c.type);
            const auto rs = Recordset::create();
            rs->Open("Select " + from + " From T Where ID=1", db);
            EXPECT_EQ(rs->Value(0).text(), c.value);
            if (from == "V") {
                EXPECT_EQ(rs->FieldType(0), c.now);
            }
            mOther->run("alter table T alter V type integer using 5");
        }
    }
}

TEST_F(PostgresValues, KeepEveryDigitOfADecimal) {
    mDb->Execute("Create Table T (Wide Numeric, Price Currency)");
    const struct {
        const char* column;
        const char* digits;
        VarType type;
    } cases[] = {
        {"Wide", "1234567890123456.7891", VarType::Decimal},
        {"Wide", "-0.1234567890123456789", VarType::Decimal},
        {"Wide", "12345678901234567890123456789012345.5", VarType::Text},
        {"Price", "100000000000000.0001", VarType::Currency},
        {"Price", "-99999999999.9999", VarType::Currency},
        {"Price", "999999999999999.9999", VarType::Decimal},
    };
    for (const auto& c : cases) {
        for (const std::string quote : {"", "'"}) {
            SCOPED_TRACE(c.digits + quote);
            mDb->Execute("Delete From T");
            mDb->Execute(std::string("Insert into T (") + c.column + ") values (" + quote + c.digits + quote +
                         ")");
            EXPECT_EQ(mOther->value(std::string("select ") + c.column + " from T"), c.digits);
            EXPECT_EQ(one(mDb, std::string("Select ") + c.column + " From T Where " + c.column + "=" + quote +
                                   c.digits + quote),
                      c.digits);
            const auto rs = Recordset::create();
            rs->CursorType(CursorType::Keyset);
            rs->LockType(LockType::Optimistic);
            rs->Open(std::string("Select ") + c.column + " From T", mDb);
            EXPECT_EQ(rs->Value(0).type(), c.type);
            rs->Fields(0).Value(rs->Value(0)); // read and written back
            rs->Update();
            EXPECT_EQ(mOther->value(std::string("select ") + c.column + " from T"), c.digits);
        }
    }
}

TEST_F(PostgresValues, OfTypesThatAreShownAsText) {
    mOther->run("create type Mood as enum ('ok','sad'); create domain Under as varchar(7);"
                "create domain Over as Under;"
                "create table T (ID integer, C char(10), U uuid, M Mood, J json, H time, I interval, D Over, "
                "R real)");
    mDb->Execute("Insert into T values (1,'P1','a0eebc99-9c0b-4ef8-bb6d-6bb9bd380a11','ok','{\"a\":1}',"
                 "'5:21:51 PM','3 days','deep',0.1)");
    EXPECT_EQ(one(mDb, "Select C From T"), "P1"); // not the blanks behind it
    EXPECT_EQ(one(mDb, "Select C From T Where C='P1'"), "P1");
    for (const char* found :
         {"U Like 'a0eebc%'", "M Like 'O%'", "J Like '%a%'", "H Like '17%'", "I Not Like 'x'",
          "D Like 'DEEP'", "R=0.1", "R='0.1'", "R In (0.1)", "R<1e300", "0.1=R", "ID::Text='1'"}) {
        SCOPED_TRACE(found);
        EXPECT_EQ(one(mDb, std::string("Select ID From T Where ") + found), "1");
    }
    const auto rs = Recordset::create();
    rs->Open("Select D From T", mDb);
    EXPECT_EQ(rs->Fields(0).DefinedSize(), 7);
    for (const char* column : {"U", "M", "H", "I"}) {
        SCOPED_TRACE(column);
        mDb->Execute(std::string("Update T Set ") + column + "='' Where ID='1'");
        EXPECT_EQ(one(mDb, std::string("Select ID From T Where ") + column + " Is Null"), "1");
    }
    mDb->Execute("Update T Set D=''");
    EXPECT_EQ(one(mDb, "Select ID From T Where D=''"), "1");
}

TEST_F(PostgresValues, MayBeManyInOneStatement) {
    mDb->Execute("Create Table T (ID Integer, V Text)");
    mDb->BeginTrans();
    mDb->Execute("Insert into T values (0,'first')");
    std::string insert = "Insert into T values (1,'x')";
    for (int id = 2; id < 33000; ++id)
        insert += ",(" + std::to_string(id) + ",'y')";
    EXPECT_EQ(mDb->Execute(insert), 32999);
    mDb->CommitTrans();
    EXPECT_EQ(one(mDb, "Select Count(*) From T"), "33000");
}

TEST_F(PostgresValues, AreNotPutUnderANameThatWasCut) {
    const std::string name(64, 'n');
    EXPECT_EQ(errorOf([&] { mDb->Execute("Create Table T (ID Integer,[" + name + "] Text)"); }),
              RuntimeError::InvalidArgument);
    mDb->Execute("Create Table T (ID Integer,[" + name.substr(1) + "] Text)");
    EXPECT_EQ(errorOf([&] { mDb->Execute("Update T Set [" + name + "]='x'"); }),
              RuntimeError::InvalidArgument);
    EXPECT_EQ(mDb->Execute("Insert into T ([" + name.substr(1) + "])  values ('x')"), 1);
}

} // namespace Korvane::ado::Testing
