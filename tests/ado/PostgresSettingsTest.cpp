#include <korvane/ado/postgres/PostgresConnection.h>

#include "ado/Engine.h"
#include "support/ServerTest.h"

namespace Korvane::ado::Testing {

/// A handle that is lent with settings of its owner's.
class PostgresSettings : public Korvane::Testing::ServerTest {
  protected:
    void prepare() override {
        mHandle.emplace(mSchema->address("client_encoding=LATIN1"));
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
    std::optional<Korvane::Testing::NativeHandle> mHandle;
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
    mHandle->run("prepare theirs as select 7");
    auto db = postgres::adopt(mHandle->get());
    postgres::setLimits(*db, {.statement = std::chrono::milliseconds(777)});
    expectToHold(db);
    mHandle->run("begin");
    db->Close();
    mHandle->run("commit");
    EXPECT_EQ(ofTheOwner(), owners);
    EXPECT_EQ(mHandle->value("select substr(name,1,1) from T"), "\xE9");
    EXPECT_EQ(mHandle->value("execute theirs"), "7");
    EXPECT_EQ(mHandle->value("select count(*) from pg_prepared_statements"), "1");
    EXPECT_EQ(errorOf([&] { postgres::adopt(nullptr); }), RuntimeError::InvalidConnection);
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

} // namespace Korvane::ado::Testing
