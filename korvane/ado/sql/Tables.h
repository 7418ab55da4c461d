#pragma once

#include <korvane/ado/Cursor.h>

#include <span>
#include <string_view>

namespace Korvane::ado::sql {

/// What a translation asks about the database's tables.
class Tables {
  public:
    virtual ~Tables() = default;

    /// The columns of a table, in its order; empty for a table that is not known. The names are compared
    /// without regard to case.
    virtual std::span<const ColumnInfo> columnsOf(std::string_view table) const = 0;
};

} // namespace Korvane::ado::sql
