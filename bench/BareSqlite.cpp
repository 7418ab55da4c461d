#include "BareSqlite.h"

#include <stdexcept>
#include <string_view>

namespace Korvane::Bench {

void BareSqlite::keepRow(sqlite3_stmt* statement, KeptCells& cells) {
    const int columns = sqlite3_column_count(statement);
    cells.expect(columns);
    for (int i = 0; i < columns; ++i) {
        const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, i));
        const auto length = static_cast<std::size_t>(sqlite3_column_bytes(statement, i));
        cells.keep({text ? text : "", length});
    }
}

BareSqlite::BareSqlite(const std::string& address) {
    const std::string path = address.substr(std::string_view("sqlite:").size());
    sqlite3* handle = nullptr;
    const int code =
        sqlite3_open_v2(path.c_str(), &handle, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
    mHandle.reset(handle);
    if (code != SQLITE_OK) fail();
    for (const char* pragma :
         {"Pragma journal_mode=WAL", "Pragma synchronous=FULL", "Pragma foreign_keys=on"})
        run(pragma);
    sqlite3_busy_timeout(handle, 5000);
}

BareStatement BareSqlite::prepare(const std::string& statement) const {
    sqlite3_stmt* compiled = nullptr;
    const int length = static_cast<int>(statement.size()) + 1;
    if (sqlite3_prepare_v2(handle(), statement.c_str(), length, &compiled, nullptr) != SQLITE_OK) fail();
    return BareStatement(compiled);
}

int BareSqlite::run(const std::string& statement, KeptCells& cells) const {
    const BareStatement compiled = prepare(statement);
    stepAll(compiled.get(), cells);
    return sqlite3_changes(handle());
}

void BareSqlite::run(const std::string& statement) const {
    KeptCells dropped;
    run(statement, dropped);
}

void BareSqlite::runPrepared(const BareStatement& statement, int parameter, KeptCells& cells) const {
    sqlite3_bind_int(statement.get(), 1, parameter);
    stepAll(statement.get(), cells);
    sqlite3_reset(statement.get());
}

void BareSqlite::stepAll(sqlite3_stmt* statement, KeptCells& cells) const {
    int code = SQLITE_ROW;
    while ((code = sqlite3_step(statement)) == SQLITE_ROW)
        keepRow(statement, cells);
    if (code != SQLITE_DONE) fail();
}

void BareSqlite::fail() const {
    throw std::runtime_error(sqlite3_errmsg(handle()));
}

} // namespace Korvane::Bench
