#pragma once

#include <korvane/ado/Column.h>
#include <korvane/ado/Index.h>

#include <memory>
#include <string>
#include <string_view>

namespace Korvane::ado {

/// A table of a database, or a new one that is to become one. Copies are the same table.
///
///     Table table("NIP_Custom1");
///     table.Columns().Append(Column("EncounterID", DataType::Integer));
///     Index key("EncounterID", {"EncounterID"});
///     key.PrimaryKey(true);
///     table.Indexes().Append(key);
///     catalog.Tables().Append(table);                              // now it is in the database
///     table.Columns().Append(Column("Pulse", DataType::VarWChar, 40)); // and so is the column
class Table {
  public:
    /// A new one, without columns.
    explicit Table(std::string_view name);
    /// As `Tables::Item` makes it.
    explicit Table(std::shared_ptr<TableState> state) : mState(std::move(state)) {}

    /// As the database spells it.
    const std::string& Name() const;
    /// What it is made of: changing them changes a table that is in the database.
    ado::Columns Columns() const { return ado::Columns(mState); }
    ado::Indexes Indexes() const { return ado::Indexes(mState); }

  private:
    friend class Tables;
    std::shared_ptr<TableState> mState;
};

} // namespace Korvane::ado
