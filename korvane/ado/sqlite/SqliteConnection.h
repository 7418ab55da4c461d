#pragma once

#include <korvane/ado/Connection.h>

#include <chrono>
#include <cstddef>
#include <memory>
#include <string_view>

struct sqlite3;

namespace Korvane::ado::sqlite {

/// Opens a database file (or ":memory:") with the settings that suit a clinic on a local disk: write-ahead
/// logging with full synchronisation, a busy timeout, foreign keys on. Raises when the file cannot be opened
/// or is no database.
std::shared_ptr<Connection> open(std::string_view path, bool readOnly = false);

/// Works on a handle that the host opened and goes on owning: its settings are left as they are, it is never
/// closed here, and it must outlive the connection's use. A transaction that the host has open is joined.
///
/// A host that cannot promise so gives `stillLent`, which is asked before every use. Once it says no, the
/// connection is as good as closed (`State` is 0). Whoever closes the handle early finds it busy then, with
/// statements that are kept here, and it is closed here in the end.
std::shared_ptr<Connection> adopt(sqlite3* handle, StillLent stillLent = {});

/// How long a statement waits for another writer before it fails. 5 seconds unless set; only connections of
/// this provider.
void setBusyTimeout(Connection& connection, std::chrono::milliseconds timeout);

/// How many statements that differ in more than their values are kept compiled; 512 unless set. About 3 for
/// each group of a Nip and 32 more are used. With fewer, nothing changes but the time it takes.
void setShapeLimit(Connection& connection, std::size_t most);

} // namespace Korvane::ado::sqlite
