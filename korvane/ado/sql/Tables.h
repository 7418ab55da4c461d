#pragma once

#include <korvane/ado/Cursor.h>

#include <span>
#include <string>
#include <string_view>

namespace Korvane::ado::sql {

/// What a translation asks about the database's tables.
class Tables {
  public:
    virtual ~Tables() = default;

    /// The columns of a table, in its order; empty for a table that is not known. The names are compared
    /// without regard to case.
    virtual std::span<const ColumnInfo> columnsOf(std::string_view table) const = 0;

    /// The table's name as the database spells it; empty for a table that is not known, and on an engine to
    /// which the case of names means nothing.
    virtual std::string nameOf(std::string_view) const { return {}; }
};

} // namespace Korvane::ado::sql
