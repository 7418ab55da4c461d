#pragma once

#include <korvane/ado/Catalog.h>

#include <cstdint>
#include <string>

namespace Korvane {

/// How a column is indexed. 0 and less: not at all.
enum class IndexKind : std::int16_t { None = 0, Unique = 1, PrimaryKey = 2, Plain = 3 };

/// A column of a group's table before it is made.
struct DataColumn {
    std::string name;
    std::string dataType; ///< "dbText", "dbLong", ... Any other is made as text, with a line in the error log
    IndexKind indexed = IndexKind::None;
    std::int32_t size = 0; ///< characters of a "dbText"
};

// The schema operations on the tables that hold the groups' data. They raise what the catalog raises.

/// Makes a table with its key column "EncounterID" and no other.
void createDataTable(const ado::Catalog& catalog, const std::string& name);

/// Adds a column, which takes nulls unless it is indexed. A "dbMemo" is never indexed.
void createColumn(ado::Table& table, const DataColumn& column);

/// Removes a column; one that is not there is noted in the error log.
void deleteColumn(ado::Table& table, const std::string& column);

/// The characters that a text column takes; 0 for one without a limit, or of another type, or missing.
std::int32_t columnSize(const ado::Catalog& catalog, const std::string& table, const std::string& column);

} // namespace Korvane
