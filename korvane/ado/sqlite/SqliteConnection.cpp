#include <korvane/ado/sqlite/SqliteConnection.h>

#include <korvane/ado/sqlite/Error.h>
#include <korvane/ado/sqlite/Session.h>
#include <korvane/runtime/Translation.h>

#include <sqlite3.h>

#include <string>
#include <utility>

namespace Korvane::ado::sqlite {

namespace {

constexpr int defaultBusyMilliseconds = 5000;
// One statement of a hundred columns or so compiles within it.
constexpr int lookasideSlotSize = 1200;
constexpr int lookasideSlots = 1000;

struct CloseHandle {
    void operator()(sqlite3* handle) const { sqlite3_close_v2(handle); }
};
using OwnedHandle = std::unique_ptr<sqlite3, CloseHandle>;

void setUp(sqlite3* handle) {
    sqlite3_extended_result_codes(handle, 1);
    sqlite3_busy_timeout(handle, defaultBusyMilliseconds);
    // Some builds of the engine have no lookaside: nothing is lost then.
    sqlite3_db_config(handle, SQLITE_DBCONFIG_LOOKASIDE, nullptr, lookasideSlotSize, lookasideSlots);
    check(handle, sqlite3_db_config(handle, SQLITE_DBCONFIG_ENABLE_FKEY, 1, nullptr));
    // "Quoted" is a name, never a text, so that a misspelled one is an error.
    check(handle, sqlite3_db_config(handle, SQLITE_DBCONFIG_DQS_DML, 0, nullptr));
    check(handle, sqlite3_db_config(handle, SQLITE_DBCONFIG_DQS_DDL, 0, nullptr));
}

void run(sqlite3* handle, const char* statement) {
    check(handle, sqlite3_exec(handle, statement, nullptr, nullptr, nullptr));
}

void requireDatabase(sqlite3* handle, std::string_view path) {
    try {
        run(handle, "Pragma schema_version");
    } catch (const RuntimeError& error) {
        throw RuntimeError(error.Number(), std::string(path) + ": " + error.Description(),
                           error.NativeCode());
    }
}

} // namespace

std::shared_ptr<Connection> open(std::string_view path, bool readOnly) {
    if (path.empty() || path.find('\0') != std::string_view::npos) {
        throw RuntimeError(RuntimeError::InvalidArgument,
                           Korvane::translate("Korvane::ado", "The address names no database file."));
    }
    // A file may have any name; only the engine would take this one for an address.
    const std::string file = (path.starts_with("file:") ? "./" : "") + std::string(path);
    const int access = readOnly ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE;
    sqlite3* opened = nullptr;
    const int code = sqlite3_open_v2(file.c_str(), &opened, access | SQLITE_OPEN_NOMUTEX, nullptr);
    OwnedHandle handle(opened);
    if (code != SQLITE_OK) {
        const RuntimeError error = engineError(opened, code);
        throw RuntimeError(error.Number(), std::string(path) + ": " + error.Description(),
                           error.NativeCode());
    }
    setUp(opened);
    requireDatabase(opened, path);
    if (!readOnly) {
        // Where it cannot be had (a database in memory, one that others hold open in another mode) the engine
        // keeps the mode there is.
        sqlite3_exec(opened, "Pragma journal_mode=WAL", nullptr, nullptr, nullptr);
        run(opened, "Pragma synchronous=Full");
    }
    auto session = std::make_shared<Session>(opened);
    (void)handle.release();
    return session;
}

std::shared_ptr<Connection> adopt(sqlite3* handle, StillLent stillLent) {
    if (!handle) throw RuntimeError(RuntimeError::InvalidConnection);
    return std::make_shared<Session>(handle, std::move(stillLent));
}

namespace {

Session& sessionOf(Connection& connection) {
    auto* session = dynamic_cast<Session*>(&connection);
    if (!session)
        throw RuntimeError(
            RuntimeError::InvalidArgument,
            Korvane::translate("Korvane::ado", "The connection is not one to a SQLite database."));
    return *session;
}

} // namespace

void setBusyTimeout(Connection& connection, std::chrono::milliseconds timeout) {
    sqlite3_busy_timeout(sessionOf(connection).handle(), static_cast<int>(timeout.count()));
}

void setShapeLimit(Connection& connection, std::size_t most) {
    sessionOf(connection).keepShapes(most);
}

} // namespace Korvane::ado::sqlite
