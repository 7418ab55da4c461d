#pragma once

#include <korvane/ado/Connection.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

struct sqlite3;

namespace Korvane::Fuzz {

/// A database in memory that is used twice: through the provider, and by SQLite itself. What takes too long
/// or too much is given up.
class SqliteDatabase {
  public:
    SqliteDatabase();
    ~SqliteDatabase();
    SqliteDatabase(const SqliteDatabase&) = delete;
    SqliteDatabase& operator=(const SqliteDatabase&) = delete;

    ado::Connection& provider() { return *mConnection; }
    const std::shared_ptr<ado::Connection>& connection() const { return mConnection; }
    sqlite3* handle() const { return mHandle; }

    /// The cells of a result, row by row, as SQLite has them: their texts, nothing for what is no text.
    /// Nothing at all when the statement fails.
    using Rows = std::vector<std::vector<std::optional<std::string>>>;
    std::optional<Rows> rows(const std::string& statement);

    /// Whether the last statement used up its time; it tells nothing then.
    bool gaveUp() const { return mSteps > mostSteps; }
    /// The next statement has all its time again.
    void rest() { mSteps = 0; }

  private:
    static constexpr int mostSteps = 100;
    static int onStep(void* database);

    sqlite3* mHandle = nullptr;
    std::shared_ptr<ado::Connection> mConnection;
    int mSteps = 0;
};

} // namespace Korvane::Fuzz
