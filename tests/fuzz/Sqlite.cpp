#include "fuzz/Sqlite.h"

#include <korvane/ado/sqlite/SqliteConnection.h>

#include <sqlite3.h>

#include <stdexcept>

namespace Korvane::Fuzz {

SqliteDatabase::SqliteDatabase() {
    if (sqlite3_open(":memory:", &mHandle) != SQLITE_OK) throw std::runtime_error("No memory for a database");
    sqlite3_limit(mHandle, SQLITE_LIMIT_LENGTH, 1 << 20);
    sqlite3_progress_handler(mHandle, 1000, onStep, this);
    mConnection = ado::sqlite::adopt(mHandle);
}

SqliteDatabase::~SqliteDatabase() {
    mConnection->Close();
    sqlite3_close_v2(mHandle);
}

int SqliteDatabase::onStep(void* database) {
    return ++static_cast<SqliteDatabase*>(database)->mSteps > mostSteps ? 1 : 0;
}

std::optional<SqliteDatabase::Rows> SqliteDatabase::rows(const std::string& statement) {
    sqlite3_stmt* compiled = nullptr;
    if (sqlite3_prepare_v2(mHandle, statement.data(), static_cast<int>(statement.size()), &compiled,
                           nullptr) != SQLITE_OK)
        return std::nullopt;
    Rows rows;
    int result = sqlite3_step(compiled);
    for (; result == SQLITE_ROW; result = sqlite3_step(compiled)) {
        auto& row = rows.emplace_back();
        for (int column = 0; column < sqlite3_column_count(compiled); ++column) {
            auto& cell = row.emplace_back();
            if (sqlite3_column_type(compiled, column) != SQLITE_TEXT) continue;
            const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(compiled, column));
            cell.emplace(text, static_cast<std::size_t>(sqlite3_column_bytes(compiled, column)));
        }
    }
    sqlite3_finalize(compiled);
    return result == SQLITE_DONE ? std::optional(std::move(rows)) : std::nullopt;
}

} // namespace Korvane::Fuzz
