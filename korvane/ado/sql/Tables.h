#pragma once

#include <korvane/ado/Cursor.h>

#include <span>
#include <string>
#include <string_view>

namespace Korvane::ado::sql {

/// A table as a statement names it; `schema` is empty when it stands alone.
struct TableName {
    TableName(std::string_view table, std::string_view within = {}) : name(table), schema(within) {}
    TableName(const std::string& table) : name(table) {}
    TableName(const char* table) : name(table) {}

    std::string_view name;
    std::string_view schema;
};

/// What a translation asks about the database's tables.
class Tables {
  public:
    virtual ~Tables() = default;

    /// The columns of a table, in its order; empty for a table that is not known. The names are compared
    /// without regard to case.
    virtual std::span<const ColumnInfo> columnsOf(const TableName& table) const = 0;

    /// The table's name as the database spells it; empty for a table that is not known, and on an engine to
    /// which the case of names means nothing.
    virtual std::string nameOf(const TableName&) const { return {}; }

    /// The same for a schema.
    virtual std::string schemaOf(std::string_view) const { return {}; }
};

} // namespace Korvane::ado::sql
