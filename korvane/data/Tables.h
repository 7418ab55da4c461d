#pragma once

#include <korvane/ado/Connection.h>

namespace Korvane {

/// Creates the library's own tables where they are missing: `DBFieldGroups`, `DBFields`, `DBFieldValues`,
/// `Encounter`, `Attachment`, `Provider`, with their keys, the indexes that the library's queries use, and
/// the reserved group 1. Tables, columns and rows that are there stay as they are. All or nothing: raises a
/// RuntimeError and changes nothing on failure.
///
///     auto db = ado::open("sqlite:clinic.db");
///     installTables(*db);
void installTables(ado::Connection& connection);

} // namespace Korvane
