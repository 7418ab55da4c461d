#pragma once

#include <korvane/ado/Connection.h>

#include <QString>

#include <memory>

namespace Clinic {

/// Where the clinic lives when nobody names another database: an SQLite file in the user's data directory,
/// which is made when it is missing. Raises when it cannot be made.
QString defaultDatabase();

/// Opens a database and sees that the clinic can work with it: an empty one gets the tables and the sample
/// clinic, any other only the tables that it lacks. Raises a RuntimeError that says what was wrong.
std::shared_ptr<Korvane::ado::Connection> openDatabase(const QString& address);

/// The address as it may be shown: without a password.
QString shownAddress(const QString& address);

} // namespace Clinic
