#pragma once

#include <korvane/ado/CatalogDialect.h>

namespace Korvane::ado::sqlite {

/// The texts of SQLite by which its catalog is read and changed.
class CatalogDialect final : public ado::CatalogDialect {
  public:
    std::string tablesQuery() const override;
    std::string relationQuery(std::string_view name, bool withColumns) const override;
    ColumnInfo column(const Cursor& row) const override;
    std::string indexesQuery(const std::string& table) const override;
    std::optional<std::string> widenColumn(const std::string&, const Column&) const override { return {}; }
    bool dropsIndexesWithColumn() const override { return false; }

  private:
    std::string typeName(const Column& column) const override;
};

} // namespace Korvane::ado::sqlite
