#include <korvane/ado/postgres/PostgresConnection.h>

#include "ado/Engine.h"
#include "support/ServerTest.h"

#include <korvane/ado/Transaction.h>

#include <gmock/gmock.h>

#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

namespace Korvane::ado::Testing {

using Korvane::Testing::NativeHandle;

/// Twenty tables of groups, and a connection whose round trips are counted.
class Announced : public Korvane::Testing::ServerTest {
  protected:
    void prepare() override {
        mHandle.emplace(mSchema->address());
        for (const std::string& statement :
             each("create table NIP_Custom# (ID Integer Primary Key, Value SmallInt)"))
            mHandle->run(statement);
        mDb = postgres::adopt(mHandle->get());
        mTrace = std::tmpfile();
        PQtrace(mHandle->get(), mTrace);
        PQsetTraceFlags(mHandle->get(), PQTRACE_SUPPRESS_TIMESTAMPS);
    }
    void TearDown() override {
        if (mHandle) PQuntrace(mHandle->get());
        if (mTrace) std::fclose(mTrace);
    }

    /// How often the server was asked something since the last time.
    int trips() {
        std::fflush(mTrace);
        std::rewind(mTrace);
        int syncs = 0;
        char line[4096];
        while (std::fgets(line, sizeof line, mTrace))
            syncs += std::string_view(line).find("F\t4\tSync") == 0 ? 1 : 0;
        const int before = std::exchange(mSyncs, syncs);
        return syncs - before;
    }

    /// A statement for each group, whose number stands for #.
    static std::vector<std::string> each(const std::string& statement) {
        std::vector<std::string> all(groups, statement);
        for (std::size_t i = 0; i < all.size(); ++i)
            all[i].replace(statement.find('#'), 1, std::to_string(i + 1));
        return all;
    }
    static std::vector<std::string> selects() { return each("Select [Value] From NIP_Custom# Where ID=1"); }
    static std::vector<std::string> updates(const std::string& value) {
        return each("Update NIP_Custom# Set [Value]='" + value + "' Where ID=1");
    }
    /// As the model saves: an Update a group, and an Insert where it touched nothing.
    void save(const std::string& value) {
        const auto updating = updates(value);
        const auto inserting = each("Insert Into NIP_Custom#([Value],[ID])  values ('" + value + "',1)");
        Transaction work(*mDb);
        mDb->Announce(updating);
        bool announced = false;
        for (std::size_t i = 0; i < updating.size(); ++i) {
            if (mDb->Execute(updating[i]) > 0) continue;
            if (!std::exchange(announced, true)) mDb->Announce(std::span(inserting).subspan(i));
            EXPECT_EQ(mDb->Execute(inserting[i]), 1);
        }
        work.commit();
    }
    std::string load() {
        Transaction snapshot(*mDb, TransactionFor::Reading);
        mDb->Announce(selects());
        std::string values;
        for (const std::string& statement : selects())
            values += one(mDb, statement) + " ";
        snapshot.commit();
        return values;
    }
    static std::string times(const std::string& text) {
        std::string all;
        for (int group = 1; group <= groups; ++group)
            all += text;
        return all;
    }

    static constexpr int groups = 20;
    std::optional<NativeHandle> mHandle;
    std::shared_ptr<Connection> mDb;
    std::FILE* mTrace = nullptr;
    int mSyncs = 0;
};

TEST_F(Announced, GoTogetherHoweverManyThereAre) {
    trips();
    EXPECT_EQ(load(), times("(none) "));
    EXPECT_LE(trips(), 3); // with the look into the catalog
    save("7");
    EXPECT_LE(trips(), 3);
    save("8");
    EXPECT_LE(trips(), 2);
    EXPECT_EQ(load(), times("8 "));
    EXPECT_LE(trips(), 2);
    mHandle->run("delete from NIP_Custom3");
    mHandle->run("delete from NIP_Custom17");
    trips();
    save("9"); // some rows are there, some are not
    EXPECT_LE(trips(), 3);
    EXPECT_EQ(load(), times("9 "));
}

TEST_F(Announced, GiveTheFirstAnswerWhileTheServerIsAtWorkOnTheNext) {
    save("7");
    mDb = connect(); // a lent one takes all answers first
    const std::vector<std::string> statements{selects()[0], "Select 8 From pg_sleep(2)", selects()[2]};
    mDb->BeginTrans(TransactionFor::Reading);
    mDb->Announce(statements);
    const auto begun = std::chrono::steady_clock::now();
    EXPECT_EQ(one(mDb, statements[0]), "7");
    EXPECT_LT(std::chrono::steady_clock::now() - begun, std::chrono::milliseconds(1900));
    EXPECT_EQ(one(mDb, "Select 9"), "9"); // in between; what is on its way arrives first
    EXPECT_EQ(one(mDb, statements[2]) + one(mDb, statements[1]), "78");
    mDb->CommitTrans();
}

TEST_F(Announced, MayBeMoreThanAreKeptPrepared) {
    postgres::setShapeLimit(*mDb, 3);
    for (const char* value : {"7", "8"}) {
        save(value);
        EXPECT_EQ(load(), times(std::string(value) + " "));
    }
    mDb->Execute(updates("9")[0]); // takes the last ones along
    EXPECT_LE(std::stoi(mHandle->value("select count(*) from pg_prepared_statements")), 3);
    mHandle->run("discard all");
    mHandle->run(("set search_path to " + mSchema->name()).c_str());
    EXPECT_EQ(mDb->Execute(updates("10")[0]), 1);
    EXPECT_EQ(one(mDb, selects()[0]), "10");
    mDb->Close();
    EXPECT_EQ(mHandle->value("select count(*) from pg_prepared_statements"), "0");
}

TEST_F(Announced, AreSentAnewWhereTheTableHasChanged) {
    save("7");
    EXPECT_EQ(load(), times("7 "));
    const NativeHandle other(mSchema->address());
    other.run("alter table NIP_Custom4 alter column Value type varchar(20) using 'text ' || Value");
    EXPECT_EQ(load(), times("7 ").substr(0, 6) + "text 7 " + times("7 ").substr(8));
    save("8");
    EXPECT_EQ(load(), times("8 "));
}

} // namespace Korvane::ado::Testing
