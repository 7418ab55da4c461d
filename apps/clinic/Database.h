#pragma once

#include <korvane/ado/Connection.h>

#include <QString>

#include <memory>

namespace Clinic {

/// Where the clinic lives when nobody names another database: an SQLite file in the user's data directory,
/// which is made when it is missing. Raises when it cannot be made.
QString defaultDatabase();

/// Opens a database and sees that the clinic can work with it: an empty one gets the tables and the sample
/// clinic, any other only the tables that it lacks (a login that may create none works with those that are
/// there). Raises a RuntimeError that says what was wrong; it holds no password.
std::shared_ptr<Korvane::ado::Connection> openDatabase(const QString& address);

/// Whether a database holds no table at all. Raises a RuntimeError.
bool isEmpty(const std::shared_ptr<Korvane::ado::Connection>& connection);

/// The address as it may be shown: a server's has no password and no options, and of one that cannot be told
/// apart from a password only what stands before it.
QString shownAddress(const QString& address);

} // namespace Clinic
