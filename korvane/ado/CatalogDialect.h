#pragma once

#include <string>
#include <string_view>

namespace Korvane::ado {

/// What a `Catalog` has to know of an engine: how the engine is asked for its tables and told to change them.
/// Only texts are made here, in the engine's own words; they are run by `Connection::openNative`.
class CatalogDialect {
  public:
    virtual ~CatalogDialect() = default;

    /// Asks for the names of all tables (no views), in the order of their names.
    virtual std::string tablesQuery() const = 0;
};

} // namespace Korvane::ado
