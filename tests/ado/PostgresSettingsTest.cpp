#include <korvane/ado/postgres/PostgresConnection.h>

#include "ado/Engine.h"
#include "support/NativeHandle.h"
#include "support/ScratchSchema.h"

namespace Korvane::ado::Testing {

using Korvane::Testing::NativeHandle;
using Korvane::Testing::ScratchSchema;

/// A handle that is lent with settings of its owner's.
class PostgresSettings : public testing::Test {
  protected:
    void SetUp() override {
        if (!ScratchSchema::hasServer()) GTEST_SKIP() << ScratchSchema::noServer;
        mSchema = std::make_unique<ScratchSchema>();
        mHandle = std::make_unique<NativeHandle>(mSchema->address("client_encoding=LATIN1"));
        mHandle->run("set datestyle to 'SQL, DMY'; set extra_float_digits to -10;"
                     "set standard_conforming_strings to off; set statement_timeout to 5000");
        mHandle->run(
            "create table T (A Integer Primary Key, Day Timestamp, Name Text, Rate Double Precision)");
    }
    std::string ofTheOwner() const {
        return mHandle->value("select concat_ws(' ', current_setting('client_encoding'), "
                              "current_setting('datestyle'), current_setting('extra_float_digits'), "
                              "current_setting('standard_conforming_strings'), "
                              "current_setting('statement_timeout'))");
    }
    static void expectToHold(const std::shared_ptr<Connection>& db) {
        db->Execute("Delete From T");
        db->Execute("Insert into T values (1,'11/5/2026 5:21:51 PM','\xC3\xA9\\n',123456.789)");
        EXPECT_EQ(one(db, "Select [Day] From T"), "11/5/2026 5:21:51 PM");
        EXPECT_EQ(one(db, "Select Name From T"), "\xC3\xA9\\n");
        EXPECT_EQ(one(db, "Select Rate From T"), "123456.789");
    }

    static constexpr const char* owners = "LATIN1 SQL, DMY -10 off 5s";
    std::unique_ptr<ScratchSchema> mSchema;
    std::unique_ptr<NativeHandle> mHandle;
};

TEST_F(PostgresSettings, HoldWhateverTheOwnerRollsBack) {
    mHandle->run("begin");
    auto db = postgres::adopt(mHandle->get());
    expectToHold(db);
    mHandle->run("rollback");
    expectToHold(db);
    mHandle->run("begin");
    mHandle->run("set datestyle to 'German, DMY'");
    expectToHold(db);
    mHandle->run("commit");
    expectToHold(db);
    db.reset();
    EXPECT_EQ(ofTheOwner(), owners);
    db = postgres::adopt(mHandle->get());
    mHandle->run("discard all");
    expectToHold(db);
}

TEST_F(PostgresSettings, AreTheOwnersAgainInTheEnd) {
    auto db = postgres::adopt(mHandle->get());
    postgres::setLimits(*db, {.statement = std::chrono::milliseconds(777)});
    expectToHold(db);
    mHandle->run("begin");
    db->Close();
    mHandle->run("commit");
    EXPECT_EQ(ofTheOwner(), owners);
    // In a transaction that has failed nothing could be put back.
    db = postgres::adopt(mHandle->get());
    mHandle->run("begin");
    PQclear(PQexec(mHandle->get(), "select nonsense"));
    EXPECT_EQ(errorOf([&] { db->Close(); }), RuntimeError::TransactionOpen);
    EXPECT_EQ(errorOf([&] { postgres::adopt(mHandle->get()); }), RuntimeError::InvalidConnection);
    mHandle->run("rollback");
    db->Close();
    EXPECT_EQ(ofTheOwner(), owners);
}

TEST_F(PostgresSettings, AndWhatWasPreparedMayBeDiscardedInATransactionOfTheOwners) {
    const auto db = postgres::adopt(mHandle->get());
    EXPECT_EQ(one(db, "Select Count(*) From T Where A=1"), "0");
    db->Execute("Alter Table T Add Column B Integer"); // what was prepared is to be given up
    mHandle->run("discard all");
    mHandle->run("begin");
    mHandle->run("insert into T (A) values (1)");
    EXPECT_EQ(one(db, "Select Count(*) From T Where A=1"), "1");
    db->Execute("Insert into T (A) values (2)");
    mHandle->run("commit");
    EXPECT_EQ(mHandle->value("select count(*) from T"), "2");
}

TEST_F(PostgresSettings, AndTransactionsMayBeBegunByAStatement) {
    const auto db = open(mSchema->address());
    db->Execute("Begin");
    db->Execute("Insert into T (A) values (1)");
    db->Execute("Savepoint Here");
    db->Execute("Insert into T (A) values (2)");
    db->Execute("Rollback To Savepoint Here");
    db->Execute("Commit");
    db->Execute("Begin");
    db->Execute("Delete From T");
    db->Execute("Rollback");
    EXPECT_EQ(one(db, "Select Sum(A) From T"), "1");
}

} // namespace Korvane::ado::Testing
