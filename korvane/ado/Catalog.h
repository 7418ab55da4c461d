#pragma once

#include <korvane/ado/Connection.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Korvane::ado {

/// The tables of a database. Views are none. Names are compared without regard to case. Every call asks the
/// database, so that what others changed is seen.
class Tables {
  public:
    explicit Tables(std::shared_ptr<Connection> connection) : mConnection(std::move(connection)) {}

    std::int32_t Count() const;
    /// All of them, in the order of their names.
    std::vector<std::string> Names() const;
    bool Exists(std::string_view name) const;

  private:
    std::shared_ptr<Connection> mConnection;
};

/// The schema of a database.
///
///     Catalog catalog(db);
///     if (catalog.Tables().Count() == 0) installTables(*db);
class Catalog {
  public:
    /// InvalidConnection without a connection.
    explicit Catalog(std::shared_ptr<Connection> connection);

    const std::shared_ptr<Connection>& ActiveConnection() const { return mConnection; }

    ado::Tables Tables() const { return ado::Tables(mConnection); }

  private:
    std::shared_ptr<Connection> mConnection;
};

} // namespace Korvane::ado
