#pragma once

#include <korvane/ado/CatalogDialect.h>

namespace Korvane::ado::postgres {

/// The texts of PostgreSQL by which its catalog is read and changed.
class CatalogDialect final : public ado::CatalogDialect {
  public:
    std::string tablesQuery() const override;
    std::string relationQuery(std::string_view name, bool withColumns) const override;
    ColumnInfo column(const Cursor& row) const override;
    std::string indexesQuery(const std::string& table) const override;
    std::optional<std::string> widenColumn(const std::string& table, const Column& column) const override;
    bool dropsIndexesWithColumn() const override { return true; }

  private:
    std::string typeName(const Column& column) const override;
    std::optional<std::size_t> longestName() const override { return 63; }
};

} // namespace Korvane::ado::postgres
