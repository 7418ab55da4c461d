#include "ado/Engine.h"

#include "support/ScratchDir.h"
#include "support/ScratchSchema.h"

namespace Korvane::ado::Testing {

std::string Engine::declaration(DataType type, int size) const {
    switch (type) {
    case DataType::SmallInt:
        return "SmallInt";
    case DataType::Integer:
        return "Integer";
    case DataType::Boolean:
        return "Boolean";
    case DataType::VarWChar:
        return "VarChar(" + std::to_string(size) + ")";
    default:
        return "Text";
    }
}

namespace {

class SqliteEngine : public Engine {
  public:
    std::shared_ptr<Connection> connect() override { return open("sqlite:" + mDir.file("test.db")); }

    std::string declaration(DataType type, int size) const override {
        switch (type) {
        case DataType::Double:
            return "Double";
        case DataType::Currency:
            return "Currency";
        case DataType::Date:
            return "DateTime";
        default:
            return Engine::declaration(type, size);
        }
    }

  private:
    Korvane::Testing::ScratchDir mDir;
};

class PostgresEngine : public Engine {
  public:
    std::shared_ptr<Connection> connect() override { return open(mSchema.address()); }

    std::string declaration(DataType type, int size) const override {
        switch (type) {
        case DataType::Double:
            return "Double Precision";
        case DataType::Currency:
            return "Numeric(19,4)";
        case DataType::Date:
            return "Timestamp";
        default:
            return Engine::declaration(type, size);
        }
    }

    // Texts are UTF-8 there, and nothing else.
    bool keepsAnyBytes() const override { return false; }
    std::size_t longestName() const override { return 63; }
    bool bindsSizes() const override { return true; }

  private:
    Korvane::Testing::ScratchSchema mSchema;
};

std::unique_ptr<Engine> postgresEngine() {
    if (!Korvane::Testing::ScratchSchema::hasServer()) return nullptr;
    return std::make_unique<PostgresEngine>();
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
    const auto type = [&](DataType t, int size = 0) { return " " + mEngine->declaration(t, size); };
    mDb->Execute("Create Table Visit (ID" + type(DataType::Integer) + " Primary Key, Name" +
                 type(DataType::VarWChar, 50) + ", Note" + type(DataType::LongVarWChar) + ", [Day]" +
                 type(DataType::Date) + ", Done" + type(DataType::Boolean) + ", Size" +
                 type(DataType::SmallInt) + ", Amount" + type(DataType::Double) + ", Price" +
                 type(DataType::Currency) + ")");
}

std::shared_ptr<Recordset> OnEveryEngine::query(std::string_view statement, CursorType cursorType,
                                                LockType lockType) {
    auto rs = Recordset::create();
    rs->CursorType(cursorType);
    rs->LockType(lockType);
    rs->Open(statement, mDb);
    return rs;
}

std::string OnEveryEngine::one(std::string_view statement) {
    const auto rs = query(statement);
    if (rs->Eof()) return "(none)";
    const Variant value = rs->Value(0);
    return value.isNull() ? "(null)" : value.text();
}

int errorOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const RuntimeError& error) {
        return error.Number();
    }
    return 0;
}

RuntimeError raised(const std::function<void()>& action) {
    try {
        action();
    } catch (const RuntimeError& error) {
        return error;
    }
    ADD_FAILURE() << "no error";
    return RuntimeError(0, "");
}

std::string one(const std::shared_ptr<Connection>& db, std::string_view statement) {
    const auto rs = Recordset::create();
    rs->Open(statement, db);
    return rs->Eof() ? "(none)" : rs->Value(0).textOrEmpty();
}

} // namespace Korvane::ado::Testing
