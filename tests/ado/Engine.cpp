#include "ado/Engine.h"

#include "support/ScratchDir.h"
#include "support/ScratchSchema.h"
#ifdef KORVANE_HAS_POSTGRES
#include "support/NativeHandle.h"

#include <korvane/ado/postgres/PostgresConnection.h>
#endif
#include <korvane/ado/sqlite/SqliteConnection.h>

#include <sqlite3.h>

#include <optional>

namespace Korvane::ado::Testing {

std::string Engine::inItsWords(std::string text) const {
    for (const auto& [name, meaning] : words())
        for (std::size_t at; (at = text.find(name)) != std::string::npos;)
            text.replace(at, name.size(), meaning);
    return text;
}

namespace {

class SqliteEngine : public Engine {
  public:
    ~SqliteEngine() override { EXPECT_EQ(sqlite3_close(mHandle), SQLITE_OK); } // no statement may be left

    std::shared_ptr<Connection> connect() override { return open("sqlite:" + mDir.file("test.db")); }

    std::string foreign(const std::string& statements) override {
        std::optional<std::string> value;
        const auto take = [](void* to, int, char** cells, char**) {
            auto& first = *static_cast<std::optional<std::string>*>(to);
            if (!first) first = cells[0] ? cells[0] : "";
            return 0;
        };
        EXPECT_EQ(sqlite3_exec(handle(), statements.c_str(), take, &value, nullptr), SQLITE_OK)
            << sqlite3_errmsg(mHandle);
        return value.value_or("");
    }
    std::shared_ptr<Connection> lend() override { return sqlite::adopt(handle()); }

  private:
    std::vector<std::pair<std::string, std::string>> words() const override {
        return {{"{Date}", "DateTime"}, {"{Double}", "Double"}, {"{Currency}", "Currency"}};
    }

    sqlite3* handle() {
        if (!mHandle) sqlite3_open(mDir.file("test.db").c_str(), &mHandle);
        return mHandle;
    }

    Korvane::Testing::ScratchDir mDir;
    sqlite3* mHandle = nullptr;
};

#ifdef KORVANE_HAS_POSTGRES
class PostgresEngine : public Engine {
  public:
    std::shared_ptr<Connection> connect() override { return open(mSchema.address()); }
    std::string foreign(const std::string& statements) override { return mHandle.value(statements); }
    std::shared_ptr<Connection> lend() override { return postgres::adopt(mHandle.get()); }
    // Texts are UTF-8 there, and nothing else.
    bool keepsAnyBytes() const override { return false; }
    std::size_t longestName() const override { return 63; }

  private:
    std::vector<std::pair<std::string, std::string>> words() const override {
        return {{"{Date}", "Timestamp"},
                {"{Double}", "Double Precision"},
                {"{Currency}", "Numeric(19,4)"},
                {"{schema}", mSchema.name()}};
    }

    Korvane::Testing::ScratchSchema mSchema;
    Korvane::Testing::NativeHandle mHandle{mSchema.address()};
};
#endif

std::unique_ptr<Engine> postgresEngine() {
#ifdef KORVANE_HAS_POSTGRES
    if (Korvane::Testing::ScratchSchema::hasServer()) return std::make_unique<PostgresEngine>();
#endif
    return nullptr;
}

} // namespace

std::vector<EngineChoice> engines() {
    return {{"SQLite", [] { return std::make_unique<SqliteEngine>(); }}, {"PostgreSQL", postgresEngine}};
}

std::string engineName(const testing::TestParamInfo<EngineChoice>& choice) {
    return choice.param.name;
}

void OnEveryEngine::SetUp() {
    mEngine = GetParam().make();
    if (!mEngine) GTEST_SKIP() << Korvane::Testing::ScratchSchema::noServer;
    mDb = mEngine->connect();
    mDb->Execute(mEngine->inItsWords("Create Table Visit (ID Integer Primary Key, Name VarChar(50), Note "
                                     "Text, [Day] {Date}, Done Boolean, "
                                     "Size SmallInt, Amount {Double}, Price {Currency})"));
}

std::shared_ptr<Recordset> OnEveryEngine::query(std::string_view statement, CursorType cursorType,
                                                LockType lockType) {
    return opened(mDb, statement, cursorType, lockType);
}

std::string OnEveryEngine::one(std::string_view statement) {
    return Testing::one(mDb, statement);
}

std::shared_ptr<Recordset> opened(const std::shared_ptr<Connection>& db, std::string_view statement,
                                  CursorType cursorType, LockType lockType) {
    auto rs = Recordset::create();
    rs->CursorType(cursorType);
    rs->LockType(lockType);
    rs->Open(statement, db);
    return rs;
}

std::string one(const std::shared_ptr<Connection>& db, std::string_view statement) {
    const auto rs = opened(db, statement);
    if (rs->Eof()) return "(none)";
    const Variant value = rs->Value(0);
    return value.isNull() ? "(null)" : value.text();
}

} // namespace Korvane::ado::Testing
