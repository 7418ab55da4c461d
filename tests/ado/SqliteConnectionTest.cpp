#include <korvane/ado/sqlite/SqliteConnection.h>

#include "ado/Engine.h"
#include "support/ScratchDir.h"

#include <korvane/ado/Transaction.h>
#include <korvane/runtime/RuntimeError.h>

#include <gmock/gmock.h>
#include <sqlite3.h>

#include <chrono>
#include <filesystem>
#include <fstream>

namespace Korvane::ado::Testing {

using testing::HasSubstr;

class SqliteFile : public testing::Test {
  protected:
    std::shared_ptr<Connection> connect(const char* option = "") {
        auto db = open("sqlite:" + path() + option);
        sqlite::setBusyTimeout(*db, std::chrono::milliseconds(20));
        return db;
    }
    std::string path() const { return mDir.file("clinic.db"); }
    Korvane::Testing::ScratchDir mDir;
};

TEST_F(SqliteFile, ThatIsLockedIsWaitedForThenReported) {
    const auto db = connect();
    db->Execute("Create Table T (A Integer)");
    const auto other = connect();
    Transaction held(*other);
    const auto begin = std::chrono::steady_clock::now();
    const RuntimeError busy = raised([&] { db->Execute("Insert into T (A) values (1)"); });
    EXPECT_GE(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(15));
    EXPECT_THAT(busy.Description(), HasSubstr("in use by another program"));
    EXPECT_EQ(busy.NativeCode() & 0xFF, SQLITE_BUSY);
    EXPECT_NE(errorOf([&] { db->BeginTrans(); }), 0);
    EXPECT_EQ(db->transactionLevel(), 0);
    EXPECT_EQ(one(db, "Select Count(*) From T"), "0"); // reading goes on
    held.commit();
    EXPECT_EQ(db->Execute("Insert into T (A) values (1)"), 1);
}

TEST_F(SqliteFile, ThatIsFullLosesNothingAndLeavesNoTransaction) {
    const auto db = connect();
    db->Execute("Create Table T (A Integer, B Text)");
    db->Execute("Insert into T (A,B) values (1,'before')");
    const std::string big(100000, 'x');
    const std::string pages = one(db, "Pragma page_count");
    one(db, "Pragma max_page_count=" + pages);
    db->BeginTrans(TransactionFor::Writing);
    db->BeginTrans(TransactionFor::Writing);
    db->Execute("Update T Set B='half' Where A=1");
    const RuntimeError full = raised([&] { db->Execute("Insert into T (A,B) values (2,'" + big + "')"); });
    EXPECT_EQ(full.Number(), RuntimeError::DiskFull);
    EXPECT_THAT(full.Description(), HasSubstr("no room left"));
    while (db->transactionLevel() > 0)
        db->RollbackTrans();
    EXPECT_EQ(one(db, "Select B From T"), "before");
    one(db, "Pragma max_page_count=100000");
    EXPECT_EQ(db->Execute("Insert into T (A,B) values (2,'" + big + "')"), 1);
}

TEST_F(SqliteFile, OpenedReadOnlyIsReadOnly) {
    connect()->Execute("Create Table T (A Integer)");
    const auto db = connect("?mode=ro");
    EXPECT_EQ(one(db, "Select Count(*) From T"), "0");
    EXPECT_EQ(raised([&] { db->Execute("Insert into T (A) values (1)"); }).Number(),
              RuntimeError::PermissionDenied);
    EXPECT_EQ(db->BeginTrans(TransactionFor::Reading), 1);
    EXPECT_EQ(errorOf([&] { db->Execute("Delete From T"); }), RuntimeError::PermissionDenied);
    db->CommitTrans();
    EXPECT_NE(errorOf([&] { open("sqlite:" + mDir.file("missing.db") + "?mode=ro"); }), 0);
    EXPECT_FALSE(mDir.has("missing.db"));
    EXPECT_EQ(errorOf([&] { open("sqlite:" + mDir.file("no/such/folder.db")); }), RuntimeError::FileNotFound);
}

TEST_F(SqliteFile, ThatIsNoneOrDamagedIsReported) {
    std::ofstream(path()) << std::string(5000, 'z');
    EXPECT_THAT(raised([&] { connect(); }).Description(), HasSubstr("not a database"));
    std::filesystem::remove(path());
    auto db = connect();
    db->Execute("Create Table T (A Integer Primary Key, B Text)");
    db->Execute("Insert into T (B) With Recursive n(i) As (Select 1 Union All Select i+1 From n Where i<200) "
                "Select '" +
                std::string(200, 'b') + "' From n");
    db->Close();
    const auto size = std::filesystem::file_size(path());
    std::fstream file(path(), std::ios::in | std::ios::out | std::ios::binary);
    file.seekp(4096);
    file << std::string(size - 4096, '\xAA');
    file.close();
    db = connect();
    const RuntimeError damaged = raised([&] { one(db, "Select Count(*) From T Where B Like 'b%'"); });
    EXPECT_THAT(damaged.Description(), HasSubstr("restore it from a backup"));
    EXPECT_EQ(damaged.NativeCode() & 0xFF, SQLITE_CORRUPT);
}

TEST_F(SqliteFile, KeepsABoundedNumberOfCompiledStatements) {
    const auto db = connect();
    sqlite::setShapeLimit(*db, 2);
    db->Execute("Create Table T (A Integer, B Integer, C Integer)");
    for (int round = 0; round < 3; ++round) {
        for (const char* column : {"A", "B", "C"}) {
            EXPECT_EQ(db->Execute("Insert into T (" + std::string(column) + ") values (5)"), 1);
            EXPECT_EQ(one(db, "Select Count(*) From T Where " + std::string(column) + "=5"),
                      std::to_string(round + 1));
        }
    }
}

} // namespace Korvane::ado::Testing
