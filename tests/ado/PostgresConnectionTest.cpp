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
    static int backendOf(const std::shared_ptr<Connection>& db) {
        return std::stoi(one(db, "Select pg_backend_pid()"));
    }
    void terminate(int backend) {
        EXPECT_EQ(one(connect(), "Select pg_terminate_backend(" + std::to_string(backend) + ", 5000)"),
                  "True");
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
    const int backend = backendOf(db);
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

TEST_F(PostgresServer, ThatEndedTheConnectionCanBeReachedAgain) {
    const auto db = connect();
    db->Execute("Create Table T (A Integer Primary Key)");
    db->Execute("Insert into T (A) values (1)");
    const auto kept = opened(db, "Select A From T");
    db->BeginTrans();
    db->Execute("Insert into T (A) values (2)");
    terminate(backendOf(db));
    EXPECT_EQ(db->State(), 1); // until it is used
    const RuntimeError lost = raised([&] { db->Execute("Insert into T (A) values (3)"); });
    EXPECT_THAT(lost.Description(), HasSubstr("lost"));
    EXPECT_EQ(db->State(), 0);
    EXPECT_EQ(errorOf([&] { db->Execute("Insert into T (A) values (3)"); }), RuntimeError::ObjectClosed);
    EXPECT_NE(errorOf([&] { db->CommitTrans(); }), 0);
    EXPECT_EQ(kept->Value(0).text(), "1");
    EXPECT_EQ(errorOf([&] { db->Reset(); }), RuntimeError::TransactionOpen);
    db->RollbackTrans();
    EXPECT_EQ(db->transactionLevel(), 0);
    db->Reset();
    EXPECT_EQ(db->State(), 1);
    EXPECT_EQ(one(db, "Select Count(*) From T"), "1");
    EXPECT_EQ(db->Execute("Insert into T (A) values (2)"), 1);
    EXPECT_EQ(one(db, "Select #1/2/2026 3:04:05 PM#"), "1/2/2026 3:04:05 PM"); // the settings are back
    db->Close();
    EXPECT_EQ(errorOf([&] { db->Reset(); }), RuntimeError::ObjectClosed);
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

} // namespace Korvane::ado::Testing
