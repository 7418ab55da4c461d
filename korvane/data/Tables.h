#pragma once

#include <korvane/ado/Connection.h>

namespace Korvane {

/// Creates the library's own tables where they are missing: `DBFieldGroups`, `DBFields`, `DBFieldValues`,
/// `Encounter`, `Attachment`, `Provider`, with their keys, the indexes that the library's queries use, and
/// the reserved group 1 (where no group from 1 on is there yet). Tables, columns and rows that are there stay
/// as they are, also where they are not as the library would have made them; an existing table that lacks a
/// column which an index needs is a failure, since the library's queries need it as well. A login that may
/// create nothing is fine where all tables are there. All or nothing: raises a RuntimeError that begins "The
/// tables could not be installed: " and changes nothing.
///
///     auto db = ado::open("sqlite:clinic.db");
///     installTables(*db);
void installTables(ado::Connection& connection);

} // namespace Korvane
