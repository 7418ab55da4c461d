#pragma once

#include <korvane/ado/Connection.h>

#include <memory>

class QSqlDatabase;

namespace Korvane::ado {

/// Works on a database that the host has open through Qt, by the driver QSQLITE or QPSQL. The host goes on
/// owning it and using it: settings stay as they are (on PostgreSQL until the end, see postgres::adopt), it
/// is never closed here, and a transaction that the host has open is joined.
///
///     QSqlDatabase clinic = QSqlDatabase::addDatabase("QPSQL");
///     ...
///     if (clinic.open()) panel->Initialize(ado::adopt(clinic));
///
/// What is returned is best released before the host closes the database. When the host closes it first, the
/// connection is as good as closed (`State` is 0, its use raises ObjectClosed); opened again, the database is
/// handed over again. Both are used in the thread of the database, one at a time: a query of the host that is
/// still giving rows as they come (forward only, on PostgreSQL) has to be finished before.
///
/// Raises ObjectClosed when the database is not open, InvalidConnection when an answer is pending on it, and
/// InvalidArgument when its driver is another, or brings an engine of its own that is not the one the library
/// uses (a handle of one must never come into the hands of the other).
std::shared_ptr<Connection> adopt(const QSqlDatabase& database);

} // namespace Korvane::ado
