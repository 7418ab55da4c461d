#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Korvane::ado {

struct TableState;

/// What an index is: a value, of a new index or as it was read. A plain one unless told otherwise.
///
///     Index key("EncounterID", {"EncounterID"});
///     key.PrimaryKey(true);
class Index {
  public:
    /// Over these columns, in this order.
    Index(std::string_view name, std::vector<std::string> columns)
        : mName(name), mColumns(std::move(columns)) {}

    /// Unique within its table; for a primary key see `Indexes`.
    const std::string& Name() const { return mName; }
    /// The names of its columns, in its order.
    const std::vector<std::string>& Columns() const { return mColumns; }

    /// Whether rows are known by it: `Recordset::Update` finds its row by it.
    bool PrimaryKey() const { return mPrimaryKey; }
    void PrimaryKey(bool primaryKey) { mPrimaryKey = primaryKey; }

    /// Whether no two rows may have the same values in its columns. Always true of a primary key.
    bool Unique() const { return mUnique || mPrimaryKey; }
    void Unique(bool unique) { mUnique = unique; }

  private:
    std::string mName;
    std::vector<std::string> mColumns;
    bool mPrimaryKey = false;
    bool mUnique = false;
};

/// The indexes of a `Table`, the primary key among them, found by their names without regard to case. Those
/// of a table that is in the database are read when they are asked for and changed at once, inside the
/// connection's transaction if one is open. Tables may have indexes of the same name: the database keeps them
/// under the table's name and theirs ("NIP_Custom1_Pulse"). The name of a primary key is not kept: it is
/// listed by that of its first column.
class Indexes {
  public:
    /// As `Table::Indexes` makes it.
    explicit Indexes(std::shared_ptr<TableState> table) : mTable(std::move(table)) {}

    /// At the time of the call, copies: changing one changes no table.
    std::int32_t Count() const { return static_cast<std::int32_t>(All().size()); }
    std::vector<Index> All() const;

    /// Adds an index. DuplicateKey when there is one of that name, or when it is to be unique and rows are
    /// not; ItemNotFound when a column is not there; InvalidArgument for a name that the engine cannot keep,
    /// without columns, and for a primary key of a table that is in the database: it is given to a new one.
    void Append(const Index& index);

    /// Removes an index. InvalidArgument for the primary key; ItemNotFound.
    void Delete(std::string_view name);

  private:
    std::shared_ptr<TableState> mTable;
};

} // namespace Korvane::ado
