#include "ado/Engine.h"
#include "support/ServerTest.h"

#include <korvane/ado/Connection.h>

#include <chrono>
#include <string>
#include <vector>

namespace Korvane::ado::Testing {

/// A connection of our own, where announced reads are answered one by one.
class ReadAhead : public Korvane::Testing::ServerTest {
  protected:
    void prepare() override {
        mDb = connect();
        mDb->Execute("Create Table T (ID Integer Primary Key, Value Integer)");
        mDb->Execute("Insert Into T Values (1,10),(2,0),(3,30)");
    }
    static std::string select(int id) { return "Select 60/Value From T Where ID=" + std::to_string(id); }
    std::string ask(const std::string& statement) { return one(mDb, statement); }

    std::shared_ptr<Connection> mDb;
};

TEST_F(ReadAhead, GivesTheFirstAnswerWhileTheServerIsAtWorkOnTheNext) {
    const std::vector<std::string> statements{select(1), "Select 7 From pg_sleep(2)", select(3)};
    mDb->BeginTrans(TransactionFor::Reading);
    mDb->Announce(statements);
    const auto begun = std::chrono::steady_clock::now();
    EXPECT_EQ(ask(statements[0]), "6");
    EXPECT_LT(std::chrono::steady_clock::now() - begun, std::chrono::milliseconds(1900));
    EXPECT_EQ(ask("Select 8"), "8"); // in between; what is on its way arrives first
    EXPECT_EQ(ask(statements[2]) + ask(statements[1]), "27");
    mDb->CommitTrans();
}

TEST_F(ReadAhead, IsLeftBehindAtAnyPoint) {
    const std::vector<std::string> statements{select(1), select(2), select(3)};
    const std::vector<std::function<void()>> leave{
        [&] { mDb->RollbackTrans(); }, [&] { mDb->CommitTrans(); },
        [&] {
            mDb->BeginTrans();
            mDb->Execute("Create Table U (ID Integer)");
            mDb->RollbackTrans();
            mDb->RollbackTrans();
        },
        [&] {
            mDb->Announce(std::vector<std::string>{select(3), select(1)});
            EXPECT_EQ(ask(select(3)), "2");
            mDb->CommitTrans();
        }};
    for (const auto& way : leave) {
        mDb->BeginTrans(TransactionFor::Reading);
        mDb->Announce(statements);
        EXPECT_EQ(ask(statements[0]), "6");
        way();
        EXPECT_EQ(mDb->transactionLevel(), 0);
        EXPECT_EQ(ask("Select Count(*) From T") + ask(select(3)), "32");
    }
    mDb->BeginTrans(TransactionFor::Reading);
    mDb->Announce(statements);
    ask(statements[0]);
    mDb.reset();
}

} // namespace Korvane::ado::Testing
