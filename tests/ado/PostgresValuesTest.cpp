#include "ado/Engine.h"
#include "support/CaseTable.h"
#include "support/ServerTest.h"

namespace Korvane::ado::Testing {

using Korvane::Testing::readCases;

class PostgresValues : public Korvane::Testing::SharedServerTest {};

TEST_F(PostgresValues, OfEveryTypeOfColumnComeBack) {
    mDb->Execute("Create Domain Days As SmallInt Check (Value<8)");
    for (const auto& row : readCases("columntypes.tsv")) {
        SCOPED_TRACE(row[0]);
        mDb->Execute("Create Table T (K Integer, V " + row[0] + ")");
        mDb->Execute("Insert into T (K,V)  values (1," + row[1] + ")");
        mDb->Execute("Insert into T (K,V)  values (2,Null)");
        const auto rs = opened(mDb, "Select V From T Order By K");
        EXPECT_EQ(std::to_string(static_cast<int>(rs->FieldType("V"))), row[2]);
        EXPECT_EQ(std::to_string(rs->Fields("V").DefinedSize()), row[3]);
        EXPECT_EQ(rs->Value("V").text(), row[4]);
        EXPECT_EQ(one(mDb, "Select K From T Where V=" + row[1]), "1");
        rs->MoveNext();
        EXPECT_TRUE(rs->Value("V").isNull());
        mDb->Execute("Drop Table T");
    }
}

TEST_F(PostgresValues, LandUnalteredOrNotAtAllWhenAColumnHasGotAnotherType) {
    for (const auto& row : readCases("alteredtypes.tsv")) {
        for (const bool isKnown : {false, true}) {
            SCOPED_TRACE(row[0] + " to " + row[1] + (isKnown ? ", prepared" : ""));
            mOther->run("drop table if exists T; create table T (ID integer, V " + row[0] + ");" +
                        "insert into T values (1, null)");
            const auto db = connect();
            EXPECT_EQ(one(db, "Select V From T Where ID=1"), "(null)");
            const auto update = [&](const std::string& value) {
                return errorOf([&] { db->Execute("Update T Set V=" + value + " Where ID=1"); });
            };
            if (isKnown) update("'0'");
            mOther->run("alter table T alter V type " + row[1] + " using null");
            EXPECT_EQ(update(row[2]) == 0, row[3] != "none");
            EXPECT_EQ(mOther->value("select coalesce(V::text, 'none') from T"), row[3]);
        }
    }
}

TEST_F(PostgresValues, KeepEveryDigitOfADecimal) {
    mDb->Execute("Create Table T (Wide Numeric, Price Currency)");
    const std::tuple<std::string, std::string, VarType> cases[] = {
        {"Wide", "1234567890123456.7891", VarType::Decimal},
        {"Wide", "-0.1234567890123456789", VarType::Decimal},
        {"Wide", "12345678901234567890123456789012345.5", VarType::Text},
        {"Price", "100000000000000.0001", VarType::Currency},
        {"Price", "-99999999999.9999", VarType::Currency},
        {"Price", "999999999999999.9999", VarType::Decimal},
    };
    for (const auto& [column, digits, type] : cases) {
        for (const std::string& literal : {digits, "'" + digits + "'"}) {
            SCOPED_TRACE(literal);
            mDb->Execute("Delete From T");
            mDb->Execute("Insert into T (" + column + ") values (" + literal + ")");
            const std::string select = "Select " + column + " From T";
            EXPECT_EQ(mOther->value(select), digits);
            EXPECT_EQ(one(mDb, select + " Where " + column + "=" + literal), digits);
            const auto rs = opened(mDb, select, CursorType::Keyset, LockType::Optimistic);
            EXPECT_EQ(rs->Value(0).type(), type);
            rs->Fields(0).Value(rs->Value(0)); // read and written back
            rs->Update();
            EXPECT_EQ(mOther->value(select), digits);
        }
    }
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

} // namespace Korvane::ado::Testing
