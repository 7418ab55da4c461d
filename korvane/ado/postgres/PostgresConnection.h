#pragma once

#include <korvane/ado/Connection.h>

#include <chrono>
#include <cstddef>
#include <memory>
#include <string_view>

struct pg_conn;

namespace Korvane::ado::postgres {

/// How long is waited before a failure is reported.
struct Limits {
    std::chrono::milliseconds connect{10000}; ///< for a connection
    std::chrono::milliseconds statement{
        60000}; ///< for one statement; 0: no limit, only a dead line is noticed
};

/// Opens a database of a server. The address is an URI of the engine,
/// `postgresql://user@host:port/database?option= value&...`; what it leaves out is taken from the environment
/// (PGHOST, PGUSER, PGPASSWORD, ...) and from the user's password file. Beside the options of the engine's
/// client library there is `statement_timeout`, in milliseconds; it and `connect_timeout`, in seconds, win
/// over the limits given here.
///
/// Raises when there is no server, the login is refused, or it takes longer than the limit. (Looking up the
/// host's name is up to the system and has no limit here.)
///
///     auto db = ado::postgres::open("postgresql://clinic@server/clinic?statement_timeout=20000");
std::shared_ptr<Connection> open(std::string_view address, const Limits& limits = {});

/// Works on a connection that the host opened and goes on owning: it is never closed here, and it must
/// outlive the use of what is returned. Meanwhile its texts are UTF-8, its dates in the ISO form and its
/// numbers given with all their digits; what these settings were comes back at the end. A transaction that
/// the host has open is joined. It is used by one side at a time; a host that has a pipeline or an answer
/// pending, or is inside a transaction that has failed, cannot hand it over (InvalidConnection).
///
/// Best handed over and let go of outside of transactions: the server takes back what was set in a
/// transaction that is rolled back. Our settings are made anew then. The host's come back when we are let go
/// of inside a transaction that it commits; when it rolls that back, ours remain and it has to set its own
/// (client_encoding, DateStyle, standard_conforming_strings, extra_float_digits, and statement_timeout after
/// `setLimits`). They remain too when we are destroyed inside one that has failed; `Close` refuses that
/// (TransactionOpen).
///
/// A host that cannot promise to keep it gives `stillLent`, which is asked before every use. Once it says no,
/// the handle is not touched any more, and the connection is as good as closed (`State` is 0).
std::shared_ptr<Connection> adopt(pg_conn* handle, StillLent stillLent = {});

/// How long is waited for a connection (by `Reset`) and for a statement. A statement that takes longer is
/// stopped and fails. When not even that is answered, the line is taken for dead: `State` is 0 then. Only
/// connections of this provider.
void setLimits(Connection& connection, const Limits& limits);

/// How many statements that differ in more than their values are kept prepared; 512 unless set. About 3 for
/// each group of a Nip and 32 more are used. With fewer, nothing changes but the time it takes.
void setShapeLimit(Connection& connection, std::size_t most);

} // namespace Korvane::ado::postgres
