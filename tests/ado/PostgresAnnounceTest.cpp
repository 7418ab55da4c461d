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
        for (int group = 1; group <= groups; ++group)
            mHandle->run("create table " + table(group) + " (ID Integer Primary Key, Value SmallInt)");
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

    static std::string table(int group) { return "NIP_Custom" + std::to_string(group); }
    static std::string update(int group, int id, const std::string& value) {
        return "Update " + table(group) + " Set [Value]='" + value + "' Where ID=" + std::to_string(id);
    }
    static std::string insert(int group, int id, const std::string& value) {
        return "Insert Into " + table(group) + "([Value],[ID])  values ('" + value + "'," +
               std::to_string(id) + ")";
    }
    static std::string select(int group, int id) {
        return "Select [Value] From " + table(group) + " Where ID=" + std::to_string(id);
    }
    std::vector<std::string> each(const std::function<std::string(int)>& statement) {
        std::vector<std::string> all;
        for (int group = 1; group <= groups; ++group)
            all.push_back(statement(group));
        return all;
    }
    /// As the model saves: an Update a group, and an Insert where it touched nothing.
    void save(int id, const std::string& value) {
        Transaction work(*mDb);
        mDb->Announce(each([&](int group) { return update(group, id, value); }));
        bool announced = false;
        for (int group = 1; group <= groups; ++group) {
            if (mDb->Execute(update(group, id, value)) > 0) continue;
            const auto inserts = each([&](int g) { return insert(g, id, value); });
            if (!std::exchange(announced, true))
                mDb->Announce(std::span(inserts).subspan(static_cast<std::size_t>(group - 1)));
            EXPECT_EQ(mDb->Execute(insert(group, id, value)), 1);
        }
        work.commit();
    }
    std::string load(int id) {
        Transaction snapshot(*mDb, TransactionFor::Reading);
        mDb->Announce(each([&](int group) { return select(group, id); }));
        std::string values;
        for (int group = 1; group <= groups; ++group)
            values += one(mDb, select(group, id)) + " ";
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
    EXPECT_EQ(load(1), times("(none) "));
    EXPECT_LE(trips(), 3); // with the look into the catalog
    save(1, "7");
    EXPECT_LE(trips(), 3);
    save(1, "8");
    EXPECT_LE(trips(), 2);
    EXPECT_EQ(load(1), times("8 "));
    EXPECT_LE(trips(), 2);
    mHandle->run("delete from NIP_Custom3");
    mHandle->run("delete from NIP_Custom17");
    trips();
    save(1, "9"); // some rows are there, some are not
    EXPECT_LE(trips(), 3);
    EXPECT_EQ(load(1), times("9 "));
}

TEST_F(Announced, GiveTheFirstAnswerWhileTheServerIsAtWorkOnTheNext) {
    save(1, "7");
    mDb = connect(); // a lent one takes all answers first
    const std::vector<std::string> statements{select(1, 1), "Select 8 From pg_sleep(2)", select(3, 1)};
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
        save(1, value);
        EXPECT_EQ(load(1), times(std::string(value) + " "));
    }
    mDb->Execute(update(1, 1, "9")); // takes the last ones along
    EXPECT_LE(std::stoi(mHandle->value("select count(*) from pg_prepared_statements")), 3);
    mHandle->run("discard all");
    mHandle->run(("set search_path to " + mSchema->name()).c_str());
    EXPECT_EQ(mDb->Execute(update(1, 1, "10")), 1);
    EXPECT_EQ(one(mDb, select(1, 1)), "10");
    mDb->Close();
    EXPECT_EQ(mHandle->value("select count(*) from pg_prepared_statements"), "0");
}

TEST_F(Announced, AreSentAnewWhereTheTableHasChanged) {
    save(1, "7");
    EXPECT_EQ(load(1), times("7 "));
    const NativeHandle other(mSchema->address());
    other.run("alter table NIP_Custom4 alter column Value type varchar(20) using 'text ' || Value");
    EXPECT_EQ(load(1), times("7 ").substr(0, 6) + "text 7 " + times("7 ").substr(8));
    save(1, "8");
    EXPECT_EQ(load(1), times("8 "));
}

} // namespace Korvane::ado::Testing
