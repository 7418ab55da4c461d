#include <korvane/ado/postgres/PostgresConnection.h>

#include "ado/Engine.h"
#include "support/Relay.h"
#include "support/ServerTest.h"

#include <korvane/ado/Transaction.h>
#include <korvane/ado/postgres/Error.h>

#include <gmock/gmock.h>
#include <signal.h>

#include <chrono>
#include <thread>

namespace Korvane::ado::Testing {

using Korvane::Testing::Relay;
using Korvane::Testing::ServerTest;
using postgres::sqlState;
using std::chrono::milliseconds;
using testing::HasSubstr;

class PostgresServer : public ServerTest {
  protected:
    static milliseconds timeOf(const std::function<void()>& action) {
        const auto begin = std::chrono::steady_clock::now();
        action();
        return std::chrono::duration_cast<milliseconds>(std::chrono::steady_clock::now() - begin);
    }
};

TEST_F(PostgresServer, ThatCannotBeReachedIsReportedInTime) {
    std::string address;
    {
        Relay silent("nowhere"); // takes the call and says nothing
        silent.hang();
        address = "postgresql://someone:secret@" + silent.host() + "/clinic";
        const milliseconds time = timeOf([&] {
            const RuntimeError late =
                raised([&] { postgres::open(address, {.connect = milliseconds(150)}); });
            EXPECT_THAT(late.Description(), HasSubstr("did not answer in time"));
        });
        EXPECT_GE(time, milliseconds(150));
        EXPECT_LT(time, milliseconds(3000));
    }
    const RuntimeError gone = raised([&] { open(address); });
    EXPECT_THAT(gone.Description(), HasSubstr("could not be reached"));
    EXPECT_THAT(gone.Description(), testing::Not(HasSubstr("secret")));
    EXPECT_EQ(errorOf([&] { connect("statement_timeout=soon"); }), RuntimeError::InvalidArgument);
}

TEST_F(PostgresServer, StopsAStatementThatTakesTooLong) {
    const auto db = connect("statement_timeout=150");
    db->Execute("Create Table T (A Integer)");
    db->Execute("Insert into T (A) values (1)");
    const auto other = connect();
    Transaction held(*other);
    other->Execute("Update T Set A=2");
    const milliseconds time = timeOf([&] {
        const RuntimeError late = raised([&] { db->Execute("Update T Set A=3"); });
        EXPECT_THAT(late.Description(), HasSubstr("longer than it is given"));
    });
    EXPECT_LT(time, milliseconds(2000));
    EXPECT_EQ(db->State(), 1);
    held.commit();
    EXPECT_EQ(db->Execute("Update T Set A=3"), 1);
    postgres::setLimits(*db, {.statement = milliseconds(50)});
    EXPECT_EQ(sqlState(raised([&] { db->Execute("Select pg_sleep(5)"); }).NativeCode()), "57014");
}

TEST_F(PostgresServer, ThatNoLongerAnswersIsGivenUp) {
    const auto db = connect("statement_timeout=100");
    db->Execute("Create Table T (A Integer)");
    const int backend = std::stoi(one(db, "Select pg_backend_pid()"));
    if (::kill(backend, SIGSTOP) != 0) GTEST_SKIP() << "the server's processes may not be stopped from here";
    const milliseconds time = timeOf([&] {
        const RuntimeError lost = raised([&] { db->Execute("Insert into T (A) values (1)"); });
        EXPECT_THAT(lost.Description(), HasSubstr("not answered in time"));
    });
    EXPECT_LT(time, milliseconds(10000));
    EXPECT_EQ(db->State(), 0);
    ::kill(backend, SIGCONT);
    db->Reset();
    EXPECT_EQ(db->Execute("Insert into T (A) values (2)"), 1);
}

TEST_F(PostgresServer, SpeaksUtf8WhateverItKeeps) {
    const std::string database = mSchema->name() + "_latin1";
    connect()->Execute("Create Database " + database +
                       " Encoding 'LATIN1' LC_COLLATE 'C' LC_CTYPE 'C' Template template0");
    {
        const auto db = open(mSchema->address("dbname=" + database));
        db->Execute("Create Temporary Table T (A Text)");
        db->Execute("Insert into T (A) values ('caf\xC3\xA9')");
        EXPECT_EQ(one(db, "Select A From T"), "caf\xC3\xA9");
        EXPECT_EQ(one(db, "Select Octet_Length(A) From T"), "4");
        const RuntimeError refused =
            raised([&] { db->Execute("Insert into T (A) values ('\xE4\xB8\xAD')"); });
        EXPECT_EQ(refused.Number(), RuntimeError::InvalidArgument);
        EXPECT_THAT(refused.Description(), HasSubstr("does not have"));
    }
    connect()->Execute("Drop Database " + database);
}

TEST_F(PostgresServer, HasTheSettingsOfALentHandlesOwnerAgainInTheEnd) {
    const Korvane::Testing::NativeHandle handle(mSchema->address("client_encoding=LATIN1"));
    handle.run("set datestyle to 'SQL, DMY'; set statement_timeout to 5000");
    const auto settings = [&] {
        return handle.value("select concat_ws(' ', current_setting('client_encoding'), "
                            "current_setting('datestyle'), current_setting('statement_timeout'))");
    };
    EXPECT_EQ(errorOf([] { postgres::adopt(nullptr); }), RuntimeError::InvalidConnection);
    const auto db = postgres::adopt(handle.get());
    postgres::setLimits(*db, {.statement = milliseconds(777)});
    EXPECT_EQ(settings(), "UTF8 ISO, MDY 777ms");
    // In a transaction that has failed nothing could be put back.
    handle.run("begin");
    PQclear(PQexec(handle.get(), "select nonsense"));
    EXPECT_EQ(errorOf([&] { db->Close(); }), RuntimeError::TransactionOpen);
    EXPECT_EQ(errorOf([&] { postgres::adopt(handle.get()); }), RuntimeError::InvalidConnection);
    handle.run("rollback");
    db->Close();
    EXPECT_EQ(settings(), "LATIN1 SQL, DMY 5s");
}

} // namespace Korvane::ado::Testing
